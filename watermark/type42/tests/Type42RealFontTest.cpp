// Real fonts: the program carries the whole file, and Ghostscript draws text
// with it exactly as it draws the same text from the TrueType file.

#include "SfntBuilder.h"
#include "ShellCommand.h"
#include "Type42Program.h"
#include "watermark/type42/FontPostScriptName.h"
#include "watermark/type42/SfntData.h"
#include "watermark/type42/Type42Converter.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cctype>
#include <fstream>

namespace orvan {
namespace {

using namespace orvan::test;

const std::string kFonts = "/usr/share/fonts/truetype/";

Bytes fontFile(const std::string& relative)
{
    Bytes font = readFileBytes(kFonts + relative);
    EXPECT_FALSE(font.empty()) << relative << " is missing (a test dependency)";
    return font;
}

std::uint16_t numGlyphsOf(const Bytes& font)
{
    const auto maxp = find_table("maxp", font);
    return maxp ? readU16(font, maxp->offset + 4) : 0;
}

class RealFont : public testing::TestWithParam<const char*>
{
};

// "dejavu/DejaVuSans-Bold.ttf" gives "DejaVuSansBold".
std::string testName(std::string_view path)
{
    path = path.substr(path.rfind('/') + 1);
    path = path.substr(0, path.rfind('.'));
    std::string name;
    for (char c : path) {
        if (std::isalnum(static_cast<unsigned char>(c)))
            name += c;
    }
    return name;
}

TEST_P(RealFont, ProgramCarriesTheWholeFileInStringsWithinTheLimit)
{
    const Bytes font = fontFile(GetParam());
    ASSERT_FALSE(font.empty());
    std::string program;
    ASSERT_EQ(convertTTFtoPS42(font, "Real", program), Type42Result::Converted);

    const auto strings = sfntsStrings(program);
    ASSERT_TRUE(strings);
    Bytes joined;
    for (const Bytes& string : *strings) {
        EXPECT_LE(string.size(), 65534u);
        joined.insert(joined.end(), string.begin(), string.end());
    }
    EXPECT_EQ(joined, font);

    // The text of the array, rebuilt byte by byte from the string lengths:
    // a line feed after the byte at file position i when (i + 2s) % 30 is 29,
    // s being the number of strings before it.
    std::string expected = "/sfnts [\n";
    std::size_t position = 0;
    for (std::size_t s = 0; s < strings->size(); ++s) {
        expected += '<';
        for (std::size_t i = position; i < position + strings->at(s).size(); ++i) {
            static constexpr char digits[] = "0123456789ABCDEF";
            expected += digits[font[i] >> 4];
            expected += digits[font[i] & 15];
            if ((i + 2 * s) % 30 == 29)
                expected += '\n';
        }
        expected += "00>";
        position += strings->at(s).size();
    }
    expected += "] def\n";
    EXPECT_TRUE(sfntsText(program) == expected);
}

TEST_P(RealFont, EveryNamedGlyphIsInCharStringsInGlyphOrder)
{
    const Bytes font = fontFile(GetParam());
    ASSERT_FALSE(font.empty());
    const auto entries = charStringsOf(convertQuietly(font));
    ASSERT_EQ(entries.size(), numGlyphsOf(font));
    EXPECT_EQ(entries.front(), std::make_pair(std::string(".notdef"), 0));
    for (std::size_t g = 0; g < entries.size(); ++g)
        EXPECT_EQ(entries[g].second, static_cast<int>(g));
    EXPECT_TRUE(std::any_of(entries.begin(), entries.end(),
                            [](const auto& entry) { return entry.first == "A"; }));
}

INSTANTIATE_TEST_SUITE_P(Type42, RealFont,
                         testing::Values("dejavu/DejaVuSans.ttf", "dejavu/DejaVuSerif-Bold.ttf",
                                         "liberation/LiberationSans-Regular.ttf",
                                         "liberation/LiberationMono-Italic.ttf"),
                         [](const auto& info) { return testName(info.param); });

// Its large tables leave no break point within 65534 bytes after the first
// string, which ends where hmtx starts.
TEST(Type42RealFontCutShort, DroidSansFallbackStopsAfterTheFirstString)
{
    const Bytes font = fontFile("droid/DroidSansFallbackFull.ttf");
    ASSERT_FALSE(font.empty());
    std::string program;
    ASSERT_EQ(convertTTFtoPS42(font, "DroidSansFallback", program), Type42Result::CutShort);
    const auto hmtx = find_table("hmtx", font);
    ASSERT_TRUE(hmtx);
    const auto strings = sfntsStrings(program);
    ASSERT_TRUE(strings);
    ASSERT_EQ(strings->size(), 1u);
    EXPECT_EQ(strings->front(), Bytes(font.begin(), font.begin() + hmtx->offset));
    EXPECT_EQ(program.substr(program.size() - 3), "00>");
    EXPECT_EQ(program.find("00>] def"), std::string::npos);
    EXPECT_EQ(program.find("/CharStrings"), std::string::npos);
}

// Liberation names its space and hyphen glyphs uni00A0 and uni00AD, so
// codes 32 and 45 find no glyph of their StandardEncoding name and are given
// to the first glyphs left unencoded: .null and CR (the historical spelling).
TEST(Type42RealFontEncoding, LiberationGivesSpaceAndHyphenCodesToUnencodedGlyphs)
{
    const Bytes font = fontFile("liberation/LiberationSans-Regular.ttf");
    ASSERT_FALSE(font.empty());
    const auto encoding = encodingOf(convertQuietly(font));
    EXPECT_EQ(encoding.at(32), ".null");
    EXPECT_EQ(encoding.at(45), "CR");
    EXPECT_EQ(encoding.at(65), "A");
}

struct RenderCase
{
    const char* font;
    const char* text;
};

class GhostscriptRendering : public testing::TestWithParam<RenderCase>
{
protected:
    void SetUp() override
    {
        if (!commandExists("gs"))
            GTEST_SKIP() << "Ghostscript (gs) is not installed";
        ASSERT_TRUE(dir_.valid());
    }

    // A page drawing `text` with `font` at 24 points.
    std::string page(const std::string& fontSetup, const std::string& font) const
    {
        return fontSetup + "/" + font + " findfont 24 scalefont setfont\n" + "20 30 moveto (" +
               GetParam().text + ") show\nshowpage\n";
    }

    // Runs gs on `postScript` with `device`; returns what it wrote.
    std::string render(const std::string& postScript, const std::string& device,
                       const std::string& fontMap)
    {
        const std::string input = dir_.path() + "/page.ps";
        std::ofstream(input, std::ios::binary) << postScript;
        const CommandResult result =
            runCommand("gs -q -dNOPAUSE -dBATCH -dSAFER -r72 -g460x80 -sFONTMAP=" + fontMap +
                       " -sDEVICE=" + device + " -sOutputFile=- " + input);
        EXPECT_EQ(result.status, 0) << result.error;
        return result.output;
    }

    TemporaryDirectory dir_;
};

TEST_P(GhostscriptRendering, Type42ProgramDrawsLikeTheTrueTypeFile)
{
    const std::string path = kFonts + GetParam().font;
    const Bytes font = fontFile(GetParam().font);
    ASSERT_FALSE(font.empty());
    std::string program;
    ASSERT_EQ(convertTTFtoPS42(font, "OrvanType42Test", program), Type42Result::Converted);

    // The reference loads the TrueType file itself through a font map.
    const std::string fontMap = dir_.path() + "/Fontmap";
    std::ofstream(fontMap) << "/OrvanTrueTypeReference (" << path << ") ;\n";
    const std::string converted = page("%!PS\n" + program, "OrvanType42Test");
    const std::string reference = page("%!PS\n", "OrvanTrueTypeReference");

    const std::string text = render(converted, "txtwrite", fontMap);
    EXPECT_NE(text.find(GetParam().text), std::string::npos) << text;
    EXPECT_EQ(text, render(reference, "txtwrite", fontMap));

    const std::string pixels = render(converted, "pgmraw", fontMap);
    ASSERT_GT(pixels.size(), 460u * 80u);
    // Ink on the page, and the same ink as the TrueType file gives.
    EXPECT_NE(pixels.find('\0', pixels.size() - 460u * 80u), std::string::npos);
    EXPECT_TRUE(pixels == render(reference, "pgmraw", fontMap)) << "pixels differ";
}

// Liberation's text avoids space and hyphen (see above).
INSTANTIATE_TEST_SUITE_P(
    Type42, GhostscriptRendering,
    testing::Values(RenderCase{"dejavu/DejaVuSans.ttf",
                               "Sphinx of black quartz, judge my vow 0123456789"},
                    RenderCase{"liberation/LiberationSerif-Bold.ttf",
                               "Sphinx_of_black_quartz,judge_my_vow:0123456789"}),
    [](const auto& info) { return testName(info.param.font); });

} // namespace
} // namespace orvan
