// A private watermark file for each test, text watermark records,
// measurements of rendered pages, and the text Ghostscript reads from a font
// program.
#pragma once

#include "watermark/WatermarkData.h"
#include "watermark/WatermarkStore.h"

#include <QColor>
#include <QDir>
#include <QFile>
#include <QImage>
#include <QProcess>
#include <QRect>
#include <QTemporaryDir>

#include <poppler-qt6.h>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <memory>

namespace orvan::test {

// Points the machine-wide data folder (and so the watermark file) into a
// fresh temporary folder.
class WatermarkFileTest : public ::testing::Test
{
protected:
    void SetUp() override
    {
        ASSERT_TRUE(m_dir.isValid());
        m_previous = qgetenv("ORVAN_SHARED_DATA_DIR");
        qputenv("ORVAN_SHARED_DATA_DIR", m_dir.path().toUtf8());
    }
    void TearDown() override { qputenv("ORVAN_SHARED_DATA_DIR", m_previous); }

    QString path(const QString& name) const { return m_dir.filePath(name); }
    QString filePath() const { return WatermarkFilePath(kWatermarkFile); }
    void writeRaw(const QByteArray& bytes) const
    {
        QFile file(filePath());
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(bytes);
    }
    QByteArray readRaw() const
    {
        QFile file(filePath());
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    }

    QTemporaryDir m_dir;
    QByteArray m_previous;
};

inline _WatermarkData textRecord(const char* text, const char* font = "ArialMT", int angle = 45)
{
    _WatermarkData record;
    record.isText = 1;
    record.textString.assignIfFits(std::string_view(text));
    record.fontName.assignIfFits(std::string_view(font));
    record.fontSize = 72;
    record.angle = angle;
    record.density = 100;
    record.scale = 100;
    record.wellColorBlue = 1;
    record.wellColorAlpha = 1;
    return record;
}

// Page 1 of a PDF at `pixelsPerPoint`; null when it doesn't open.
inline QImage renderPdf(const QByteArray& pdf, double pixelsPerPoint = 2.0)
{
    const std::unique_ptr<Poppler::Document> document = Poppler::Document::loadFromData(pdf);
    if (!document || document->numPages() < 1)
        return {};
    return document->page(0)->renderToImage(72.0 * pixelsPerPoint, 72.0 * pixelsPerPoint);
}

// Bounds of the pixels that are not white, in pixels.
inline QRect inkBox(const QImage& image)
{
    QRect box;
    for (int y = 0; y < image.height(); ++y)
        for (int x = 0; x < image.width(); ++x)
            if ((image.pixel(x, y) & 0xFFFFFF) != 0xFFFFFF)
                box |= QRect(x, y, 1, 1);
    return box;
}

// The text Ghostscript extracts from a page showing codes 0 to count - 1 of
// the font program `program` named `fontName`.
inline QString GhostscriptText(const QByteArray& program, const QString& fontName, int count)
{
    QByteArray codes;
    for (int code = 0; code < count; ++code)
        codes += QByteArray::number(code, 16).rightJustified(2, '0');
    QProcess gs;
    gs.start("gs",
             {"-q", "-dNOPAUSE", "-dBATCH", "-dSAFER", "-sDEVICE=txtwrite", "-sOutputFile=-", "-"});
    gs.write(program + "\n/" + fontName.toUtf8() +
             " findfont 48 scalefont setfont 72 400 moveto <" + codes + "> show showpage\n");
    gs.closeWriteChannel();
    if (!gs.waitForFinished(30000) || gs.exitCode() != 0)
        return "gs failed: " + QString::fromUtf8(gs.readAllStandardError());
    return QString::fromUtf8(gs.readAllStandardOutput()).trimmed();
}

} // namespace orvan::test
