// Real fonts: the program carries the whole file and every glyph, and
// Ghostscript draws text with it exactly as it draws the TrueType file.
#include "Type42TestSupport.h"

#include "watermark/type42/FontPostScriptName.h"
#include "watermark/type42/SfntData.h"

#include <QProcess>
#include <QStandardPaths>
#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <cstdio>
#include <sstream>

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

struct RealFontCase
{
    const char* name;
    const char* path;
    const char* postScriptName;
    std::vector<const char*> encodingLines;
};

class RealFont : public testing::TestWithParam<RealFontCase>
{
};

// The sfnts array rebuilt from the file and the string lengths alone: strings
// of at most 65534 bytes covering the file, a line feed after the byte at file
// position i when (i + 2s) % 30 is 29, s being the number of strings before
// it. Every glyph in CharStrings in glyph order, glyph 0 as .notdef.
TEST_P(RealFont, ProgramCarriesTheWholeFileAndEveryGlyph)
{
    const Bytes font = fontFile(GetParam().path);
    ASSERT_FALSE(font.empty());
    EXPECT_EQ(fontPostScriptName(font), GetParam().postScriptName);
    std::string program;
    ASSERT_EQ(convertTTFtoPS42(font, "Real", program), Type42Result::Converted);

    const auto strings = sfntsStrings(program);
    ASSERT_TRUE(strings);
    std::string expected = "/sfnts [\n";
    std::size_t position = 0;
    for (std::size_t s = 0; s < strings->size(); ++s) {
        const std::size_t end = position + strings->at(s).size();
        ASSERT_LE(end - position, 65534u);
        ASSERT_LE(end, font.size());
        expected += '<';
        for (std::size_t i = position; i < end; ++i) {
            expected += "0123456789ABCDEF"[font[i] >> 4];
            expected += "0123456789ABCDEF"[font[i] & 15];
            if ((i + 2 * s) % 30 == 29)
                expected += '\n';
        }
        expected += "00>";
        position = end;
    }
    EXPECT_EQ(position, font.size());
    EXPECT_TRUE(sfntsText(program) == expected + "] def\n");

    // "/NAME GLYPH def" lines from the CharStrings line to its "end".
    std::istringstream lines(program.substr(program.find("/CharStrings")));
    std::string line;
    std::getline(lines, line);
    std::vector<std::string> names;
    char name[256];
    int glyph = 0;
    while (std::getline(lines, line) &&
           std::sscanf(line.c_str(), "/%255s %d def", name, &glyph) == 2) {
        EXPECT_EQ(glyph, static_cast<int>(names.size()));
        names.emplace_back(name);
    }
    EXPECT_EQ(line, "end readonly def");
    ASSERT_EQ(names.size(), readU16(font, find_table("maxp", font)->offset + 4));
    EXPECT_EQ(names.front(), ".notdef");
    for (const char* line : GetParam().encodingLines)
        EXPECT_NE(program.find(line), std::string::npos) << line;
}

// Liberation names its space and hyphen glyphs uni00A0 and uni00AD, so
// codes 32 and 45 find no glyph of their StandardEncoding name and are given
// to the first glyphs left unencoded: .null and CR (the historical spelling).
INSTANTIATE_TEST_SUITE_P(Type42, RealFont,
                         testing::Values(
                             // clang-format off
        RealFontCase{"DejaVuSans", "dejavu/DejaVuSans.ttf", "DejaVuSans", {"dup 32 /space put\n", "dup 65 /A put\n"}},
        RealFontCase{"DejaVuSerifBold", "dejavu/DejaVuSerif-Bold.ttf", "DejaVuSerif-Bold", {"dup 65 /A put\n"}},
        RealFontCase{"LiberationSans", "liberation/LiberationSans-Regular.ttf", "LiberationSans",
                     {"dup 32 /.null put\n", "dup 45 /CR put\n", "dup 65 /A put\n"}},
        RealFontCase{"LiberationMonoItalic", "liberation/LiberationMono-Italic.ttf", "LiberationMono-Italic", {"dup 65 /A put\n"}}),
                         // clang-format on
                         [](const auto& info) { return std::string(info.param.name); });

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
    EXPECT_TRUE(program.ends_with("00>"));
    EXPECT_EQ(sfntsStrings(program),
              std::vector<Bytes>{Bytes(font.begin(), font.begin() + hmtx->offset)});
}

struct RenderCase
{
    const char* name;
    const char* font;
    const char* text;
};

class GhostscriptRendering : public testing::TestWithParam<RenderCase>
{
protected:
    void SetUp() override
    {
        if (QStandardPaths::findExecutable("gs").isEmpty())
            GTEST_SKIP() << "Ghostscript (gs) is not installed";
        ASSERT_TRUE(m_dir.isValid());
    }

    // The text drawn at 24 points in `font`, defined by `setup`, through the
    // gs device `device`: what gs wrote.
    QByteArray render(const std::string& setup, const char* font, const QString& device)
    {
        const QString page = m_dir.filePath("page.ps");
        std::ofstream(page.toStdString(), std::ios::binary)
            << "%!PS\n"
            << setup << "/" << font << " findfont 24 scalefont setfont\n20 30 moveto ("
            << GetParam().text << ") show\nshowpage\n";
        QProcess gs;
        gs.start("gs", {"-q", "-dNOPAUSE", "-dBATCH", "-dSAFER", "-r72", "-g460x80",
                        "-sFONTMAP=" + m_dir.filePath("Fontmap"), "-sDEVICE=" + device,
                        "-sOutputFile=-", page});
        EXPECT_TRUE(gs.waitForFinished(60000));
        EXPECT_EQ(gs.exitCode(), 0) << gs.readAllStandardError().toStdString();
        return gs.readAllStandardOutput();
    }

    QTemporaryDir m_dir;
};

TEST_P(GhostscriptRendering, Type42ProgramDrawsLikeTheTrueTypeFile)
{
    std::string program;
    ASSERT_EQ(convertTTFtoPS42(fontFile(GetParam().font), "OrvanType42Test", program),
              Type42Result::Converted);
    // The reference loads the TrueType file itself through a font map.
    std::ofstream(m_dir.filePath("Fontmap").toStdString())
        << "/OrvanTrueTypeReference (" << kFonts << GetParam().font << ") ;\n";

    const QByteArray text = render(program, "OrvanType42Test", "txtwrite");
    EXPECT_TRUE(text.contains(GetParam().text)) << text.toStdString();
    EXPECT_EQ(text, render("", "OrvanTrueTypeReference", "txtwrite"));

    const QByteArray pixels = render(program, "OrvanType42Test", "pgmraw");
    ASSERT_GT(pixels.size(), 460 * 80);
    // Ink on the page, and the same ink as the TrueType file gives.
    EXPECT_TRUE(pixels.right(460 * 80).contains('\0'));
    EXPECT_TRUE(pixels == render("", "OrvanTrueTypeReference", "pgmraw")) << "pixels differ";
}

// Liberation's text avoids space and hyphen (see above).
INSTANTIATE_TEST_SUITE_P(
    Type42, GhostscriptRendering,
    testing::Values(RenderCase{"DejaVuSans", "dejavu/DejaVuSans.ttf",
                               "Sphinx of black quartz, judge my vow 0123456789"},
                    RenderCase{"LiberationSerifBold", "liberation/LiberationSerif-Bold.ttf",
                               "Sphinx_of_black_quartz,judge_my_vow:0123456789"}),
    [](const auto& info) { return std::string(info.param.name); });

} // namespace
} // namespace orvan
