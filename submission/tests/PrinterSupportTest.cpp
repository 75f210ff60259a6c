// A job fitted to a printer's description, and the documents a printer can
// be sent.
#include "submission/PrinterSupport.h"
#include "submission/Submission.h"
#include "submission/tests/IppText.h"
#include "tests/support/TestData.h"

#include <QFile>
#include <QTemporaryDir>

#include <gtest/gtest.h>

using namespace orvan::submission;
using orvan::testing::IppText;

namespace {

// A printer with a stapler, two bins and a short passcode limit.
IppPtr Printer()
{
    IppPtr printer(ippNew());
    ipp_t* p = printer.get();
    const char* bins[] = {"auto", "top"};
    ippAddStrings(p, IPP_TAG_PRINTER, IPP_TAG_KEYWORD, "output-bin-supported", 2, nullptr, bins);
    const int finishings[] = {3, 20};
    ippAddIntegers(p, IPP_TAG_PRINTER, IPP_TAG_ENUM, "finishings-supported", 2, finishings);
    const char* members[] = {"media-size", "media-type"};
    ippAddStrings(p, IPP_TAG_PRINTER, IPP_TAG_KEYWORD, "media-col-supported", 2, nullptr, members);
    ippAddString(p, IPP_TAG_PRINTER, IPP_TAG_KEYWORD, "media-type-supported", nullptr,
                 "stationery");
    ippAddRange(p, IPP_TAG_PRINTER, "copies-supported", 1, 99);
    ippAddInteger(p, IPP_TAG_PRINTER, IPP_TAG_INTEGER, "job-password-supported", 4);
    ippAddBoolean(p, IPP_TAG_PRINTER, "page-ranges-supported", 0);
    ippAddString(p, IPP_TAG_PRINTER, IPP_TAG_KEYWORD, "job-creation-attributes-supported", nullptr,
                 "job-sheet-message");
    return printer;
}

TEST(PrinterSupport, WhatThePrinterDoesNotSupportIsLeftOutWithANotice)
{
    IppPtr job(ippNew());
    ipp_t* j = job.get();
    ippAddOctetString(j, IPP_TAG_OPERATION, "job-password", "123456", 6);
    ippAddString(j, IPP_TAG_OPERATION, IPP_TAG_NAME, "job-name", nullptr, "kept unchecked");
    ippAddString(j, IPP_TAG_JOB, IPP_TAG_KEYWORD, "output-bin", nullptr, "side");
    const int finishings[] = {20, 74};
    ippAddIntegers(j, IPP_TAG_JOB, IPP_TAG_ENUM, "finishings", 2, finishings);
    IppPtr media(ippNew());
    ippAddString(media.get(), IPP_TAG_ZERO, IPP_TAG_KEYWORD, "media-type", nullptr, "cardstock");
    ippAddString(media.get(), IPP_TAG_ZERO, IPP_TAG_KEYWORD, "media-color", nullptr, "blue");
    IppPtr size(ippNew());
    ippAddInteger(size.get(), IPP_TAG_ZERO, IPP_TAG_INTEGER, "x-dimension", 21000);
    ippAddInteger(size.get(), IPP_TAG_ZERO, IPP_TAG_INTEGER, "y-dimension", 29700);
    ippAddCollection(media.get(), IPP_TAG_ZERO, "media-size", size.get());
    ippAddCollection(j, IPP_TAG_JOB, "media-col", media.get());
    ippAddInteger(j, IPP_TAG_JOB, IPP_TAG_INTEGER, "copies", 100);
    ippAddRange(j, IPP_TAG_JOB, "page-ranges", 2, 3);
    ippAddString(j, IPP_TAG_JOB, IPP_TAG_TEXT, "job-sheet-message", nullptr, "listed");
    ippAddString(j, IPP_TAG_JOB, IPP_TAG_TEXT, "job-message-to-operator", nullptr, "unknown");

    const IppPtr printer = Printer();
    const QStringList notices = DropUnsupported(j, printer.get());

    EXPECT_EQ(IppText(j, "job-name"), "job-name (nameWithoutLanguage)=kept unchecked");
    EXPECT_EQ(IppText(j, "finishings"), "finishings (enum)=staple-top-left");
    EXPECT_EQ(IppText(j, "media-col"),
              "media-col (collection)={media-size (collection)={x-dimension (integer)=21000 "
              "y-dimension (integer)=29700}}");
    EXPECT_EQ(IppText(j, "job-sheet-message"), "job-sheet-message (textWithoutLanguage)=listed");
    for (const char* gone :
         {"job-password", "output-bin", "copies", "page-ranges", "job-message-to-operator"})
        EXPECT_EQ(IppText(j, gone), QString()) << gone;
    EXPECT_EQ(notices,
              (QStringList{
                  "the printer does not support job-password; it is not sent",
                  "the printer does not support output-bin \"side\"; it is not sent",
                  "the printer does not support finishings punch-dual-left; it is not sent",
                  "the printer does not support media-type \"cardstock\" in media-col; it "
                  "is not sent",
                  "the printer does not support media-color in media-col; it is not sent",
                  "the printer does not support copies 100; it is not sent",
                  "the printer does not support page-ranges; it is not sent",
                  "the printer does not support job-message-to-operator; it is not sent",
              }));
    // A passcode's value never shows in a notice.
    EXPECT_FALSE(notices.join('\n').contains("123456"));
}

TEST(DocumentFormat, KnownDocumentsAndAOneLineReasonForTheRest)
{
    QTemporaryDir folder;
    const struct
    {
        const char* name;
        QByteArray content;
        const char* format; // nullptr: refused
    } cases[] = {
        {"a.pdf", "%PDF-1.7\n", "application/pdf"},
        {"a.ps", "%!PS-Adobe-3.0\n", "application/postscript"},
        {"a.png", "\x89PNG\r\n\x1a\n....", "image/png"},
        {"a.jpg", "\xff\xd8\xff\xe0", "image/jpeg"},
        {"a.txt", "Dear Ada,\n\tthank you.\n", "text/plain"},
        {"a.bin",
         QByteArray("\x7f"
                    "ELF\x02\x01\x01\x00",
                    8),
         nullptr},
        {"empty", "", nullptr},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.name);
        QFile file(folder.filePath(c.name));
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(c.content);
        file.close();
        QString why;
        const auto format = DocumentFormat(file.fileName(), &why);
        EXPECT_EQ(format.value_or(QByteArray()), QByteArray(c.format));
        EXPECT_EQ(why.isEmpty(), c.format != nullptr);
        EXPECT_FALSE(why.contains('\n'));
    }
    QString why;
    EXPECT_FALSE(DocumentFormat(folder.path(), &why));
    EXPECT_EQ(why, "cannot read " + folder.path());
}

} // namespace
