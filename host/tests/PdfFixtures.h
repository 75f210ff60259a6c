// Small PDF files for the host's tests and benchmarks, written with qpdf:
// pages that say which page they are, with a black left half for telling
// what lies over and under a watermark; a one-page watermark.
#pragma once

#include <QByteArray>
#include <QSizeF>
#include <QString>

#include <qpdf/Buffer.hh>
#include <qpdf/QPDF.hh>
#include <qpdf/QPDFPageDocumentHelper.hh>
#include <qpdf/QPDFPageObjectHelper.hh>
#include <qpdf/QPDFWriter.hh>

#include <functional>
#include <string>

namespace orvan::testing {

inline const QSizeF kA4Points(595, 842);

// Page n of a document from WritePdfDocument shows this text.
inline QString PdfPageMarker(int page)
{
    return QStringLiteral("Page%1Marker").arg(page);
}

// A document of the pages' contents, one string a page; Helvetica is /F1.
inline void BuildPdf(QPDF& pdf, int pages, QSizeF size,
                     const std::function<std::string(int page)>& content)
{
    pdf.emptyPDF();
    auto font = QPDFObjectHandle::parse("<< /Type /Font /Subtype /Type1 /BaseFont /Helvetica >>");
    QPDFPageDocumentHelper document(pdf);
    for (int page = 1; page <= pages; ++page) {
        auto resources = QPDFObjectHandle::newDictionary();
        auto fonts = QPDFObjectHandle::newDictionary();
        fonts.replaceKey("/F1", font);
        resources.replaceKey("/Font", fonts);
        auto dictionary = QPDFObjectHandle::newDictionary();
        dictionary.replaceKey("/Type", QPDFObjectHandle::newName("/Page"));
        dictionary.replaceKey("/MediaBox", QPDFObjectHandle::newArray(QPDFObjectHandle::Rectangle(
                                               0, 0, size.width(), size.height())));
        dictionary.replaceKey("/Resources", resources);
        dictionary.replaceKey("/Contents", QPDFObjectHandle::newStream(&pdf, content(page)));
        document.addPage(QPDFPageObjectHelper(pdf.makeIndirectObject(dictionary)), false);
    }
}

inline std::string MarkedPageContent(int page, QSizeF size)
{
    return "0 g 0 0 " + std::to_string(size.width() / 2) + ' ' + std::to_string(size.height()) +
           " re f\n0 g BT /F1 18 Tf " + std::to_string(size.width() / 2 + 20) + " 60 Td (" +
           PdfPageMarker(page).toStdString() + ") Tj ET\n";
}

// Pages with their markers (none: a document without pages); `userPassword`
// encrypts the file.
inline bool WritePdfDocument(const QString& path, int pages, QSizeF size = kA4Points,
                             const char* userPassword = nullptr)
{
    QPDF pdf;
    BuildPdf(pdf, pages, size, [size](int page) { return MarkedPageContent(page, size); });
    const QByteArray fileName = QFile::encodeName(path); // the writer keeps the pointer
    QPDFWriter writer(pdf, fileName.constData());
    if (userPassword)
        writer.setR6EncryptionParameters(userPassword, "owner", true, true, true, true, true, true,
                                         qpdf_r3p_full, true);
    writer.write();
    return true;
}

// The watermark text of WatermarkPdf().
inline const QString kWatermarkText = QStringLiteral("ORVANDRAFT");

// A one-page watermark on a transparent page: a red band across the middle
// (from a tenth to nine tenths of the width) and its text.
inline QByteArray WatermarkPdf(QSizeF size = kA4Points)
{
    QPDF pdf;
    const double w = size.width();
    const double h = size.height();
    BuildPdf(pdf, 1, size, [&](int) {
        return "1 0 0 rg " + std::to_string(w / 10) + ' ' + std::to_string(h * 0.45) + ' ' +
               std::to_string(w * 0.8) + ' ' + std::to_string(h * 0.1) + " re f\nBT /F1 30 Tf " +
               std::to_string(w / 10) + ' ' + std::to_string(h * 0.6) + " Td (" +
               kWatermarkText.toStdString() + ") Tj ET\n";
    });
    QPDFWriter writer(pdf);
    writer.setOutputMemory();
    writer.write();
    std::unique_ptr<Buffer> bytes(writer.getBuffer());
    return QByteArray(reinterpret_cast<const char*>(bytes->getBuffer()),
                      static_cast<qsizetype>(bytes->getSize()));
}

} // namespace orvan::testing
