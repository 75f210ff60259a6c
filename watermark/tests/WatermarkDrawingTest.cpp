#include "watermark/tests/WatermarkTestSupport.h"

#include "watermark/DrawWatermark.h"
#include "watermark/FontLookup.h"
#include "watermark/MemoryDocument.h"
#include "watermark/TextLayout.h"
#include "watermark/WatermarkDocument.h"
#include "watermark/WatermarkPreview.h"

#include <QFileInfo>

using namespace orvan;
using namespace orvan::test;

namespace {

constexpr QSizeF kLetter(612, 792);
constexpr double kPixelsPerPoint = 2.0;

using WatermarkDrawingTest = WatermarkFileTest;

// Centre of the ink of `record` drawn on a letter page, in points, y up.
QPointF inkCentre(const _WatermarkData& record)
{
    const QRect box = inkBox(renderPdf(RenderWatermarkPdf(record, kLetter), kPixelsPerPoint));
    const QPointF centre = QRectF(box).center() / kPixelsPerPoint;
    return {centre.x(), kLetter.height() - centre.y()};
}

QString writePicture(const QString& path, QSize size, QColor colour)
{
    QImage picture(size, QImage::Format_RGB32);
    picture.fill(colour);
    picture.save(path);
    return path;
}

_WatermarkData pictureRecord(const QString& path, int scale)
{
    _WatermarkData record;
    record.filename.assignIfFits(std::string_view("picture.png"));
    record.filePath.assignTruncated(path);
    record.scale = scale;
    return record;
}

} // namespace

TEST(FontLookup, ExactNameThenMetricFamilyThenFamily)
{
    const std::pair<const char*, const char*> rows[] = {
        {"DejaVuSans-Bold", "DejaVuSans-Bold.ttf"},
        {"ArialMT", "LiberationSans-Regular.ttf"},
        {"Arial-BoldItalicMT", "LiberationSans-BoldItalic.ttf"},
        {"DejaVu Serif", "DejaVuSerif.ttf"},
        {"dejavusans-bold", nullptr}, // PostScript names are case-sensitive
        {"NoSuchFontPS", nullptr},
    };
    for (const auto& [name, file] : rows) {
        const std::optional<FontLocation> found = FindFontByPostScriptName(name);
        EXPECT_EQ(found ? QFileInfo(found->file).fileName() : QString(), QString(file)) << name;
    }
    const std::vector<InstalledFont> fonts = InstalledFonts();
    const auto dejaVu = std::find_if(fonts.begin(), fonts.end(), [](const InstalledFont& f) {
        return f.postScriptName == "DejaVuSans";
    });
    ASSERT_NE(dejaVu, fonts.end());
    EXPECT_EQ(dejaVu->family, "DejaVu Sans");
    EXPECT_TRUE(std::is_sorted(fonts.begin(), fonts.end(), [](const auto& a, const auto& b) {
        return a.postScriptName.compare(b.postScriptName, Qt::CaseInsensitive) < 0;
    }));
}

TEST(WatermarkText, InkCentreLandsOnPageCentreMovedByOffsets)
{
    struct Row
    {
        const char* font;
        int angle;
        float xOffset, yOffset;
    };
    const Row rows[] = {
        {"ArialMT", 45, 0, 0},     {"ArialMT", 45, 1, 0},    {"ArialMT", 0, 0, 1},
        {"DejaVuSans", 45, 1, -1}, {"DejaVuSans", 90, 0, 0}, {"LiberationSerif", 300, -2, 0},
    };
    for (const Row& row : rows) {
        _WatermarkData record = textRecord("Confidential", row.font, row.angle);
        record.xOffset = row.xOffset;
        record.yOffset = row.yOffset;
        const QPointF centre = inkCentre(record);
        // Bounds are whole points and their halves integers: a point of slack.
        EXPECT_NEAR(centre.x(), 306 + 72 * row.xOffset, 1.5) << row.font << " " << row.angle;
        EXPECT_NEAR(centre.y(), 396 + 72 * row.yOffset, 1.5) << row.font << " " << row.angle;
    }
}

TEST(WatermarkText, OriginUsesFixedPointWithIntegerHalves)
{
    // Halves round toward zero: (-3 + 0) / 2 is -1, (-5 + -2) / 2 is -3.
    EXPECT_EQ(LineOrigin({-3, -5, 0, -2}, kLetter, 0, 0), QPointF(307, 393));
    // The offset is taken in single precision before the fixed conversion.
    EXPECT_EQ(LineOrigin({0, 0, 0, 0}, kLetter, 0.1f, 0),
              QPointF(ToFixed(0.1f * 72.0 + 306) / 65536.0, 396));
    EXPECT_EQ(ToFixed(1.0), 65536);
    EXPECT_EQ(ToFixed(-0.5), -32768);
}

TEST(WatermarkDensity, AppliesToTextOnly)
{
    // Blue at density 25 over white: 0.75 * 255 in red and green.
    _WatermarkData text = textRecord("Draft");
    text.density = 25;
    const QImage textPage = renderPdf(RenderWatermarkPdf(text, kLetter));
    QRgb darkest = 0xFFFFFFFF;
    for (int y = 0; y < textPage.height(); ++y)
        for (int x = 0; x < textPage.width(); ++x)
            darkest = std::min(darkest, textPage.pixel(x, y) | 0xFF000000);
    EXPECT_NEAR(qRed(darkest), 191, 2);
    EXPECT_EQ(qBlue(darkest), 255);
    EXPECT_EQ(textPage.pixel(2, 2) & 0xFFFFFF, 0xFFFFFFu); // the page fill clamps to white

    QTemporaryDir dir;
    _WatermarkData picture =
        pictureRecord(writePicture(dir.filePath("p.png"), {40, 40}, Qt::red), 100);
    picture.density = 25;
    const QImage picturePage = renderPdf(RenderWatermarkPdf(picture, kLetter));
    EXPECT_EQ(picturePage.pixel(picturePage.rect().center()) & 0xFFFFFF, 0xFF0000u);
}

TEST(WatermarkPicture, ScaledAndCentredWhateverAngleAndOffsets)
{
    QTemporaryDir dir;
    _WatermarkData record =
        pictureRecord(writePicture(dir.filePath("p.png"), {400, 200}, Qt::black), 50);
    record.angle = 45;
    record.xOffset = 2;
    const QRect box = inkBox(renderPdf(RenderWatermarkPdf(record, kLetter), kPixelsPerPoint));
    // Smoothing may blur one pixel past each edge.
    const QRectF expected(206, 346, 200, 100);
    EXPECT_NEAR(box.left() / kPixelsPerPoint, expected.left(), 0.5);
    EXPECT_NEAR(box.top() / kPixelsPerPoint, expected.top(), 0.5);
    EXPECT_NEAR((box.right() + 1) / kPixelsPerPoint, expected.right(), 0.5);
    EXPECT_NEAR((box.bottom() + 1) / kPixelsPerPoint, expected.bottom(), 0.5);
}

TEST(WatermarkFailures, NothingDrawnForMissingFontOrPicture)
{
    QTemporaryDir dir;
    QFile corrupt(dir.filePath("corrupt.png"));
    ASSERT_TRUE(corrupt.open(QIODevice::WriteOnly));
    corrupt.write("\x89PNG\r\n\x1a\n truncated");
    corrupt.close();
    const std::pair<_WatermarkData, WatermarkDrawn> rows[] = {
        {textRecord("Draft", "NoSuchFontPS"), WatermarkDrawn::FontMissing},
        {pictureRecord(dir.filePath("missing.png"), 100), WatermarkDrawn::PictureUnreadable},
        {pictureRecord(corrupt.fileName(), 100), WatermarkDrawn::PictureUnreadable},
        {pictureRecord(writePicture(dir.filePath("p.png"), {4, 4}, Qt::red), 0),
         WatermarkDrawn::Nothing},
        {_WatermarkData(), WatermarkDrawn::Nothing},
    };
    for (auto [record, expected] : rows) {
        const CairoSurface surface(cairo_image_surface_create(CAIRO_FORMAT_RGB24, 61, 79));
        const CairoContext context(cairo_create(surface.get()));
        EXPECT_EQ(DrawWatermark(context.get(), {61, 79}, record), expected);
        EXPECT_EQ(cairo_status(context.get()), CAIRO_STATUS_SUCCESS);
        EXPECT_FALSE(record.glyphs);
        EXPECT_TRUE(inkBox(renderPdf(RenderWatermarkPdf(record, kLetter))).isEmpty());
    }
}

TEST(MemoryDocument, GrowthKeepsOneByteFreeAndReadsStopBeforeIt)
{
    struct Row
    {
        std::size_t initialSize, cursor, count, expectedSize;
    };
    const Row rows[] = {
        {1, 0, 1, 2}, {4, 0, 3, 4}, {4, 0, 4, 8}, {4, 2, 9, 16}, {0, 0, 1, 2}, {8, 7, 0, 8},
    };
    for (const Row& row : rows) {
        MemoryDocument document;
        CreateMemoryConsumer(row.initialSize, document);
        document.cursor = std::uint32_t(row.cursor);
        const std::vector<char> bytes(row.count, 'x');
        EXPECT_EQ(MemoryConsumerPutBytes(document, bytes.data(), row.count), row.count);
        EXPECT_EQ(document.buffer.size(), row.expectedSize) << row.initialSize << "+" << row.count;
        EXPECT_EQ(document.cursor, row.cursor + row.count);
    }

    MemoryDocument document;
    CreateMemoryConsumer(8, document);
    MemoryConsumerPutBytes(document, "abcdef", 6);
    MemoryProviderRewind(document);
    MemoryProviderSkipBytes(document, 2);
    char out[16] = {};
    EXPECT_EQ(MemoryProviderGetBytes(document, out, sizeof out), 5u); // 8 - 2 - 1
    EXPECT_EQ(std::string(out, 4), "cdef");
    MemoryDocument empty;
    EXPECT_EQ(MemoryProviderGetBytes(empty, out, 3), 3u); // no buffer: count, nothing copied
}

TEST_F(WatermarkDrawingTest, PanelAndEditorDocumentsAndPreviewImage)
{
    saveWatermarkData(kWatermarkFile, textRecord("Draft"));
    MemoryDocument panel;
    ASSERT_TRUE(renderWatermark(kWatermarkFile, QString(), kLetter, panel));
    EXPECT_TRUE(inkBox(renderPdf(panel.written())).isEmpty()); // "No Watermark": blank page
    ASSERT_TRUE(renderWatermark(kWatermarkFile, "Draft", kLetter, panel));

    // Half size across, a quarter down: the aspect ratio is not kept.
    const QImage preview = DrawWatermarkPreview(panel, {306, 198});
    ASSERT_EQ(preview.size(), QSize(306, 198));
    EXPECT_EQ(preview.pixel(0, 100) & 0xFFFFFF, 0u); // the frame's inner half: 1.25 px
    EXPECT_EQ(preview.pixel(3, 100) & 0xFFFFFF, 0xFFFFFFu);
    EXPECT_FALSE(inkBox(preview.copy(4, 4, 298, 190)).isEmpty());
    EXPECT_TRUE(DrawWatermarkPreview(MemoryDocument(), {10, 10}).isNull());

    _WatermarkData edited = textRecord("Draft");
    edited.paperWidth = 612;
    edited.paperHeight = 792;
    edited.units = 1;
    WatermarkEditorValues values{45, 100, 100, 254, 0, "Draft", {}};
    MemoryDocument editor;
    EXPECT_TRUE(renderWatermarkIfNecessary(edited, values, false, editor));
    EXPECT_FLOAT_EQ(edited.xOffset, 10.0f); // 254 mm
    EXPECT_FALSE(renderWatermarkIfNecessary(edited, values, false, editor));
    EXPECT_TRUE(renderWatermarkIfNecessary(edited, values, true, editor));
    values.text = "Draft 2";
    EXPECT_TRUE(renderWatermarkIfNecessary(edited, values, false, editor));
    EXPECT_EQ(edited.textString.toString(), "Draft 2");
}
