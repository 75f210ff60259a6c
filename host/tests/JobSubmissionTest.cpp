// From a session's tickets to a finished CUPS job: the job options, then real
// jobs on a private cupsd (a file queue and a queue on an IPP printer).
#include "host/JobSubmission.h"
#include "host/tests/CupsServer.h"
#include "host/tests/HostTestSupport.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include <gtest/gtest.h>

using namespace orvan;
using namespace orvan::testing;

namespace {

struct OptionsCase
{
    const char* name;
    std::optional<int> copies;
    std::optional<std::pair<int, int>> pages;
    std::vector<std::pair<QString, PropertyValue>> ppdChoices;
    JobOptions expected; // in any order
};

TEST(JobOptions, FromTheSessionsTicket)
{
    const OptionsCase cases[] = {
        {"empty ticket",
         std::nullopt,
         std::nullopt,
         {},
         {{QStringLiteral("copies"), QStringLiteral("1")}}},
        {"choices, copies and a range",
         3,
         std::pair{2, 5},
         {{QStringLiteral("Duplex"), PropertyValue(QStringLiteral("DuplexNoTumble"))},
          {QStringLiteral("MediaType"), PropertyValue(QStringLiteral("Plain"))}},
         {{QStringLiteral("Duplex"), QStringLiteral("DuplexNoTumble")},
          {QStringLiteral("MediaType"), QStringLiteral("Plain")},
          {QStringLiteral("copies"), QStringLiteral("3")},
          {QStringLiteral("page-ranges"), QStringLiteral("2-5")}}},
        {"from a page to the end",
         1,
         std::pair{4, kAllPagesLast},
         {},
         {{QStringLiteral("copies"), QStringLiteral("1")},
          {QStringLiteral("page-ranges"), QStringLiteral("4-")}}},
        {"all pages",
         2,
         std::pair{1, kAllPagesLast},
         {},
         {{QStringLiteral("copies"), QStringLiteral("2")}}},
        {"a single page",
         1,
         std::pair{7, 7},
         {},
         {{QStringLiteral("copies"), QStringLiteral("1")},
          {QStringLiteral("page-ranges"), QStringLiteral("7-7")}}},
        // Nonsense in the ticket falls back to one copy of all pages.
        {"backwards range and no copies",
         0,
         std::pair{5, 2},
         {},
         {{QStringLiteral("copies"), QStringLiteral("1")}}},
        {"empty and non-text choices are not options",
         std::nullopt,
         std::nullopt,
         {{QStringLiteral("InputSlot"), PropertyValue(QString())},
          {QStringLiteral("Jog"), PropertyValue::integer(1)},
          {QStringLiteral("OutputBin"), PropertyValue(QStringLiteral("Top"))}},
         {{QStringLiteral("OutputBin"), QStringLiteral("Top")},
          {QStringLiteral("copies"), QStringLiteral("1")}}},
    };
    for (const OptionsCase& c : cases) {
        SCOPED_TRACE(c.name);
        PrintSession session;
        Ticket& settings = session.printSettings();
        if (c.copies)
            settings.setItem(kPrintingManagerClient, kCopiesKey, PropertyValue::integer(*c.copies));
        if (c.pages) {
            settings.setItem(kPrintingManagerClient, kFirstPageKey,
                             PropertyValue::integer(c.pages->first));
            settings.setItem(kPrintingManagerClient, kLastPageKey,
                             PropertyValue::integer(c.pages->second));
        }
        for (const auto& [keyword, choice] : c.ppdChoices)
            settings.ppdDictionary().insert(keyword, choice);
        JobOptions options = JobOptionsFromSession(session);
        JobOptions expected = c.expected;
        std::sort(options.begin(), options.end());
        std::sort(expected.begin(), expected.end());
        EXPECT_EQ(options, expected);
    }
}

TEST(JobOptions, CopiesAndPagesRoundTripThroughTheTicket)
{
    Ticket settings;
    WriteCopiesAndPages(settings, 12, 3, 9);
    EXPECT_EQ(CopiesFromTicket(settings), 12);
    EXPECT_EQ(PageRangeFromTicket(settings), std::pair(3, 9));
    EXPECT_EQ(settings.item(kCopiesKey)->client, kPrintingManagerClient);
    WriteCopiesAndPages(settings, 1, 1, kAllPagesLast);
    EXPECT_EQ(PageRangeFromTicket(settings), std::pair(1, kAllPagesLast));
}

class PrivateCups : public ::testing::Test
{
protected:
    void SetUp() override
    {
        if (CupsServer::daemonPath().isEmpty())
            GTEST_SKIP() << "cupsd is not installed";
        ASSERT_TRUE(m_files.isValid());
        QString why;
        m_server = CupsServer::start(&why);
        ASSERT_TRUE(m_server) << why.toStdString();
    }

    QString document(int pages) const
    {
        const QString path = m_files.filePath(QStringLiteral("document-%1.ps").arg(pages));
        EXPECT_TRUE(WritePostScriptDocument(path, pages));
        return path;
    }

    QTemporaryDir m_files;
    std::unique_ptr<CupsServer> m_server;
};

TEST_F(PrivateCups, JobCarriesTheSessionsOptionsAndPrintsTheChosenPages)
{
    QString why;
    ASSERT_TRUE(m_server->addFileQueue(QStringLiteral("Meridian"), SamplePpdPath(), &why))
        << why.toStdString();
    PrintSession session;
    WriteCopiesAndPages(session.printSettings(), 2, 2, 3);
    session.printSettings().ppdDictionary().insert(QStringLiteral("Duplex"),
                                                   PropertyValue(QStringLiteral("DuplexTumble")));
    session.printSettings().ppdDictionary().insert(QStringLiteral("OutputBin"),
                                                   PropertyValue(QStringLiteral("Top")));

    const int job =
        SubmitJob(QStringLiteral("Meridian"), {document(4)}, QStringLiteral("Quarterly report"),
                  JobOptionsFromSession(session), &why);
    ASSERT_GT(job, 0) << why.toStdString();
    const auto status = m_server->waitForJob(job);
    ASSERT_TRUE(status);
    ASSERT_TRUE(status->completed()) << "job state " << status->state << "\n"
                                     << m_server->errorLog().toStdString();
    EXPECT_EQ(status->attributes.value(QStringLiteral("copies")), QStringLiteral("2"));
    EXPECT_EQ(status->attributes.value(QStringLiteral("page-ranges")), QStringLiteral("2-3"));
    EXPECT_EQ(status->attributes.value(QStringLiteral("Duplex")), QStringLiteral("DuplexTumble"));
    EXPECT_EQ(status->attributes.value(QStringLiteral("OutputBin")), QStringLiteral("Top"));
    EXPECT_EQ(status->attributes.value(QStringLiteral("job-name")),
              QStringLiteral("Quarterly report"));

    QFile output(m_server->outputFile(QStringLiteral("Meridian")));
    ASSERT_TRUE(output.open(QIODevice::ReadOnly)) << output.fileName().toStdString();
    const QByteArray printed = output.readAll();
    EXPECT_FALSE(printed.contains(PageMarker(1)));
    EXPECT_TRUE(printed.contains(PageMarker(2)));
    EXPECT_TRUE(printed.contains(PageMarker(3)));
    EXPECT_FALSE(printed.contains(PageMarker(4)));
}

TEST_F(PrivateCups, StoppedMissingQueuesAndMissingFilesGiveNoJobAndAReason)
{
    QString why;
    // lpadmin leaves a queue it made without -E stopped and rejecting jobs.
    ASSERT_TRUE(m_server->addQueue(QStringLiteral("Stopped"), QStringLiteral("file:///dev/null"),
                                   SamplePpdPath(), false, &why))
        << why.toStdString();
    const QString file = document(1);
    for (const char* queue : {"Stopped", "NoSuchQueue"}) {
        SCOPED_TRACE(queue);
        QString reason;
        EXPECT_EQ(SubmitJob(QLatin1String(queue), {file}, QStringLiteral("t"), {}, &reason), 0);
        EXPECT_FALSE(reason.isEmpty());
    }
    ASSERT_TRUE(m_server->addFileQueue(QStringLiteral("Meridian"), SamplePpdPath(), &why))
        << why.toStdString();
    QString reason;
    EXPECT_EQ(SubmitJob(QStringLiteral("Meridian"), {m_files.filePath(QStringLiteral("absent.ps"))},
                        QStringLiteral("t"), {}, &reason),
              0);
    EXPECT_FALSE(reason.isEmpty());
}

TEST_F(PrivateCups, JobReachesAnIppPrinterThroughItsQueue)
{
    if (IppEveryWherePrinter::programPath().isEmpty())
        GTEST_SKIP() << "ippeveprinter or dbus-daemon is not installed";
    QString why;
    const auto printer = IppEveryWherePrinter::start(QStringLiteral("Orvan Test IPP"), &why);
    ASSERT_TRUE(printer) << why.toStdString();
    // A raw queue: the printer gets the document itself, with the job's
    // options as IPP attributes.
    ASSERT_TRUE(
        m_server->addQueue(QStringLiteral("Network"), printer->uri(), QString(), true, &why))
        << why.toStdString();
    PrintSession session;
    WriteCopiesAndPages(session.printSettings(), 3, 1, kAllPagesLast);
    const QString file = document(2);
    const int job = SubmitJob(QStringLiteral("Network"), {file}, QStringLiteral("over ipp"),
                              JobOptionsFromSession(session), &why);
    ASSERT_GT(job, 0) << why.toStdString();
    const auto status = m_server->waitForJob(job);
    ASSERT_TRUE(status);
    ASSERT_TRUE(status->completed())
        << "job state " << status->state << "\n"
        << m_server->errorLog().toStdString() << printer->output().toStdString();

    const QStringList received = printer->receivedDocuments();
    ASSERT_EQ(received.size(), 1) << printer->output().toStdString();
    QFile sent(file);
    QFile arrived(received.first());
    ASSERT_TRUE(sent.open(QIODevice::ReadOnly) && arrived.open(QIODevice::ReadOnly));
    EXPECT_EQ(arrived.readAll(), sent.readAll());
    const auto printed = printer->job(1);
    ASSERT_TRUE(printed);
    EXPECT_EQ(printed->attributes.value(QStringLiteral("copies")), QStringLiteral("3"));
    EXPECT_EQ(printed->attributes.value(QStringLiteral("job-name")), QStringLiteral("over ipp"));
}

} // namespace
