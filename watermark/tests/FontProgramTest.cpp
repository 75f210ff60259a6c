#include "watermark/tests/WatermarkTestSupport.h"

#include "watermark/FontProgram.h"
#include "watermark/WatermarkDocument.h"

#include "settings/SystemVersion.h"

using namespace orvan;
using namespace orvan::test;

using FontProgramTest = WatermarkFileTest;

// Drawing stores the text's glyphs and origin in the file (and frees the
// record's array); the subset made from them shows the text again.
TEST_F(FontProgramTest, SubsetOfDrawnWatermarkShowsItsTextInGhostscript)
{
    const std::pair<const char*, const char*> rows[] = {
        {"ArialMT", "Confidential"}, // drawn with the metric-compatible family
        {"DejaVuSans", "Brouillon – ébauche"},
    };
    for (const auto& [font, text] : rows) {
        _WatermarkData record = textRecord(text, font);
        MemoryDocument document;
        ASSERT_TRUE(RenderWatermarkDocument(record, {612, 792}, document, kWatermarkFile));
        EXPECT_FALSE(record.glyphs);
        _WatermarkData saved;
        ASSERT_TRUE(loadWatermarkData(kWatermarkFile, text, saved));
        EXPECT_EQ(saved.glyphCount, QString(text).size());
        EXPECT_GT(saved.xPos, 0);
        EXPECT_LT(saved.yPos, 396);
        const std::optional<QString> subsetName = convertFont(kWatermarkFile, text);
        ASSERT_EQ(subsetName, QStringLiteral("QV-%1-QV").arg(font));
        QByteArray program;
        loadFontData(kWatermarkFile, *subsetName, program);
        ASSERT_TRUE(program.startsWith("%!PS-TrueTypeFont")) << font;
        EXPECT_EQ(GhostscriptText(program, *subsetName, QString(text).size()), QString(text));
    }
}

TEST(FontProgram, EncodesFirst256GlyphsAndKeepsThemAll)
{
    std::vector<std::uint16_t> glyphs(300);
    for (std::size_t i = 0; i < glyphs.size(); ++i)
        glyphs[i] = std::uint16_t(i + 1);
    const QString program =
        QString::fromLatin1(MakeSubsetFontProgram("DejaVuSans", "QV-DejaVuSans-QV", glyphs));
    ASSERT_FALSE(program.isEmpty());
    EXPECT_TRUE(program.contains("dup 0 /g1 put\n"));
    EXPECT_TRUE(program.contains("dup 255 /g256 put\n"));
    EXPECT_FALSE(program.contains("/g257 put"));
    EXPECT_TRUE(program.contains("/CharStrings 301 dict")); // .notdef and all 300
    EXPECT_TRUE(program.contains("/g300 300 def\n"));
}

TEST_F(FontProgramTest, NoProgramForPicturesMissingFontsOrWithoutTheFile)
{
    _WatermarkData picture;
    picture.filename.assignIfFits(std::string_view("logo.png"));
    saveWatermarkData(kWatermarkFile, picture);
    _WatermarkData missing = textRecord("Lost", "NoSuchFontPS");
    saveWatermarkData(kWatermarkFile, missing);
    const QByteArray before = readRaw();
    EXPECT_FALSE(convertFont(kWatermarkFile, "logo.png"));
    EXPECT_FALSE(convertFont(kWatermarkFile, "Lost"));
    EXPECT_FALSE(convertFont(kWatermarkFile, "Unknown"));
    EXPECT_EQ(readRaw(), before);
}

TEST_F(FontProgramTest, OlderSystemsStoreTheWholeFontUnderItsName)
{
    saveWatermarkData(kWatermarkFile, textRecord("Draft", "DejaVuSans"));
    SetSystemVersionForTesting(SystemVersion{10, 3, 9});
    EXPECT_FALSE(convertFont(kWatermarkFile, "Draft"));
    ResetSystemVersionForTesting();
    QByteArray program;
    loadFontData(kWatermarkFile, "DejaVuSans", program);
    EXPECT_TRUE(program.startsWith("%!PS-TrueTypeFont"));
    EXPECT_GT(program.size(), 1000000); // every glyph
}
