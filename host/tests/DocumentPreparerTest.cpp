// Documents as they are printed or saved and as the preview draws them: the
// watermark over, under or blended with the pages, pages laid out on sheets,
// and files that cannot be printed. (PostScript input: JobSubmissionTest's
// headless print.)
#include "host/DocumentPreparer.h"
#include "host/PreviewRenderer.h"
#include "host/tests/HostTestSupport.h"
#include "host/tests/PdfFixtures.h"

#include <QTemporaryDir>

#include <poppler-qt6.h>

#include <gtest/gtest.h>

using namespace orvan;
using namespace orvan::testing;

namespace {

std::unique_ptr<Poppler::Document> openPdf(const QString& path)
{
    auto document = Poppler::Document::load(path);
    EXPECT_TRUE(document) << path.toStdString();
    return document;
}

QString pageText(Poppler::Document& document, int page)
{
    return document.page(page)->text(QRectF());
}

bool isRed(QRgb pixel)
{
    return qRed(pixel) > 200 && qGreen(pixel) < 60 && qBlue(pixel) < 60;
}
bool isBlack(QRgb pixel)
{
    return qRed(pixel) < 60 && qGreen(pixel) < 60 && qBlue(pixel) < 60;
}

class DocumentPreparerTest : public ::testing::Test
{
protected:
    QString path(const char* name) const { return m_folder.filePath(QString::fromLatin1(name)); }
    QTemporaryDir m_folder;
};

// The band of the watermark crosses the black left half and the empty right
// half of each page; the layer decides which parts show. The preview draws
// the same as the file holds.
TEST_F(DocumentPreparerTest, WatermarkLayersOverAndUnderThePage)
{
    ASSERT_TRUE(WritePdfDocument(path("in.pdf"), 1));
    const struct
    {
        WatermarkLayer layer;
        bool onBlack;
        bool onEmpty;
    } cases[] = {
        {WatermarkLayer::Background, false, true},
        {WatermarkLayer::Foreground, true, true},
        {WatermarkLayer::Blend, false, true},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(static_cast<int>(c.layer));
        DocumentPreparation preparation;
        preparation.watermark = WatermarkStamp{WatermarkPdf(), c.layer, false};
        ASSERT_TRUE(PrepareDocument(path("in.pdf"), preparation, path("out.pdf")).ok());
        const auto printed = openPdf(path("out.pdf"));
        const QImage image = printed->page(0)->renderToImage(36, 36);
        const QRgb black = image.pixel(image.width() / 4, image.height() / 2);
        const QRgb empty = image.pixel(image.width() * 3 / 4, image.height() / 2);
        EXPECT_EQ(isRed(black), c.onBlack);
        EXPECT_EQ(isBlack(black), !c.onBlack);
        EXPECT_EQ(isRed(empty), c.onEmpty);

        PreviewRenderer preview;
        ASSERT_EQ(preview.open(path("in.pdf"), nullptr), DocumentProblem::None);
        PreviewSettings settings{PageSetup{{"A4", "A4", kA4Points}}};
        settings.watermark = preparation.watermark;
        const QImage shown = preview.renderSpread(settings, 0, QSize(400, 400));
        EXPECT_EQ(isRed(shown.pixel(shown.width() / 4, shown.height() / 2)), c.onBlack);
        EXPECT_EQ(isRed(shown.pixel(shown.width() * 3 / 4, shown.height() / 2)), c.onEmpty);
    }
}

// A4 landscape, two pages a sheet, the watermark on every page: half the
// sheets, landscape media boxes, each page's watermark and marker in order.
TEST_F(DocumentPreparerTest, SavedPdfHasThePagesLaidOutOnSheets)
{
    ASSERT_TRUE(WritePdfDocument(path("in.pdf"), 5));
    DocumentPreparation preparation;
    preparation.watermark = WatermarkStamp{WatermarkPdf(), WatermarkLayer::Foreground, false};
    preparation.sheets = PageSetup{{"A4", "A4", kA4Points}, Orientation::Landscape, 2};
    ASSERT_TRUE(PrepareDocument(path("in.pdf"), preparation, path("out.pdf")).ok());
    const auto saved = openPdf(path("out.pdf"));
    ASSERT_EQ(saved->numPages(), 3);
    for (int sheet = 0; sheet < 3; ++sheet) {
        SCOPED_TRACE(sheet);
        EXPECT_EQ(saved->page(sheet)->pageSizeF(), QSizeF(842, 595));
        const QString text = pageText(*saved, sheet);
        EXPECT_EQ(text.count(kWatermarkText), sheet < 2 ? 2 : 1);
        EXPECT_TRUE(text.contains(PdfPageMarker(2 * sheet + 1)));
        EXPECT_EQ(text.contains(PdfPageMarker(2 * sheet + 2)), sheet < 2);
    }

    // The preview counts the same sheets, two sides a spread when two-sided.
    PreviewRenderer preview;
    ASSERT_EQ(preview.open(path("in.pdf"), nullptr), DocumentProblem::None);
    PreviewSettings settings{*preparation.sheets};
    EXPECT_EQ(preview.spreadCount(settings), 3);
    settings.twoSided = true;
    EXPECT_EQ(preview.spreadCount(settings), 2);
    const QImage spread = preview.renderSpread(settings, 0, QSize(1000, 200));
    EXPECT_GT(spread.width(), 2 * spread.height());
}

// First page only means the first page that prints; the pages out of the
// range stay in a job's copy (the printer skips them).
TEST_F(DocumentPreparerTest, FirstPageOnlyStampsTheFirstPageOfTheRange)
{
    ASSERT_TRUE(WritePdfDocument(path("in.pdf"), 4));
    DocumentPreparation preparation;
    preparation.firstPage = 2;
    preparation.lastPage = 3;
    preparation.watermark = WatermarkStamp{WatermarkPdf(), WatermarkLayer::Blend, true};
    ASSERT_TRUE(PrepareDocument(path("in.pdf"), preparation, path("out.pdf")).ok());
    const auto copy = openPdf(path("out.pdf"));
    ASSERT_EQ(copy->numPages(), 4);
    for (int page = 0; page < 4; ++page)
        EXPECT_EQ(pageText(*copy, page).contains(kWatermarkText), page == 1) << page;
}

// The preview, the check before Print and the preparation agree on what
// cannot be printed, and say it naming the file; nothing is written.
TEST_F(DocumentPreparerTest, FilesThatCannotBePrintedAreRefusedWithTheReason)
{
    QFile text(path("notes.txt"));
    ASSERT_TRUE(text.open(QIODevice::WriteOnly) && text.write("minutes of the meeting\n") > 0);
    text.close();
    QFile broken(path("broken.pdf"));
    ASSERT_TRUE(broken.open(QIODevice::WriteOnly) && broken.write("%PDF-1.7\nnot really\n") > 0);
    broken.close();
    ASSERT_TRUE(WritePdfDocument(path("locked.pdf"), 2, kA4Points, "secret"));
    ASSERT_TRUE(WritePdfDocument(path("empty.pdf"), 0));
    const struct
    {
        const char* file;
        DocumentProblem problem;
        const char* says;
    } cases[] = {
        {"notes.txt", DocumentProblem::Unsupported, "neither a PDF nor a PostScript"},
        {"broken.pdf", DocumentProblem::Unreadable, "could not be read"},
        {"locked.pdf", DocumentProblem::PasswordProtected, "password"},
        {"empty.pdf", DocumentProblem::NoPages, "no pages"},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.file);
        QString checked;
        EXPECT_EQ(CheckDocument(path(c.file), &checked), c.problem);
        EXPECT_TRUE(checked.contains(c.says) && checked.contains(c.file)) << checked.toStdString();
        QString previewed;
        PreviewRenderer preview;
        EXPECT_EQ(preview.open(path(c.file), &previewed), c.problem);
        EXPECT_TRUE(previewed.contains(c.says)) << previewed.toStdString();
        EXPECT_TRUE(preview.renderSpread(PreviewSettings{}, 0, QSize(100, 100)).isNull());
        EXPECT_EQ(PrepareDocument(path(c.file), DocumentPreparation{}, path("out.pdf")).problem,
                  c.problem);
        EXPECT_FALSE(QFile::exists(path("out.pdf")));
    }
}

} // namespace
