// The program text on fonts built in memory: header, sfnts strings and their
// break points, CharStrings and the closing lines; and what fonts that lack
// tables, are truncated or lie about their tables give (never a read outside
// the font's bytes: the fuzz target and the sanitizer builds run these paths).
#include "Type42TestSupport.h"

#include "watermark/type42/SfntData.h"

#include <gtest/gtest.h>

#include <memory>

namespace orvan {
namespace {

using namespace orvan::test;
using enum Type42Result;

struct HeaderCase
{
    const char* what;
    FontSpec spec;
    std::string name;
    std::string expected; // a part of the program
};

TEST(Type42Program, HeaderAndClosingLines)
{
    const std::string n511(511, 'N'), n510(510, 'N');
    // clang-format off
    const HeaderCase cases[] = {
        {"versions, name, encoding", {.revision = 0x00028000}, "Orvan-Sans",
         "%!PS-TrueTypeFont-1.0000-2.5000\n11 dict begin\n/FontName /Orvan-Sans def\n/Encoding 256 array\ndup 0 /.notdef put\n"},
        {"signed 16.16 versions", {.version = 0xFFFF0000, .revision = 0x0001199A}, "F", "TrueTypeFont--1.0000-1.1000\n11 dict"},
        {"VMUsage with a maximum", {.post = post3(4096, 4294967295u)}, "F", "-1.0000\n%%VMUsage: 4096 4294967295\n11 dict"},
        {"no VMUsage without a maximum", {.post = post3(4096, 0)}, "F", "-1.0000\n11 dict begin\n"},
        // The two have always shared a line in stored programs.
        {"Encoding close shares a line with PaintType", {}, "F",
         "dup 255 /.notdef put\nreadonly def/PaintType 0 def\n/FontMatrix [1 0 0 1 0 0] def\n"},
        // -7/1000 is -0.007 in reals; the integer division gives -0.006989.
        {"bounding box by truncating division", {.xMin = -7, .yMin = -250, .xMax = 1003, .yMax = 32767}, "F",
         "def\n/FontBBox [-0.006989 -0.250000 1.002991 32.766998] def\n/FontType 42 def\n"
         "/FontInfo 8 dict dup begin\nend readonly def\n/sfnts [\n<"},
        {"bounding box at 2048 units", {.unitsPerEm = 2048, .xMin = -2090, .yMin = -483, .xMax = 3673, .yMax = 2000},
         "F", "/FontBBox [-1.020508 -0.235840 1.793457 0.976562] def\n"},
        {"name cut at a NUL", {}, std::string("Name\0Rest", 9), "/FontName /Name def\n"},
        {"511-byte name whole", {}, n511, "/FontName /" + n511 + " def\n"},
        {"longer name cut to 511 bytes", {}, n511 + "X", "/FontName /" + n511 + " def\n"},
        {"character across the limit goes whole", {}, n510 + "\xC3\xA9", "/FontName /" + n510 + " def\n"},
        // "FontName" without a slash, as every stored program has it.
        {"closing lines", {.glyphs = 7}, "F",
         "00>] def\n/CharStrings 7 dict dup begin\nend readonly def\nFontName currentdict end definefont pop\n"},
    };
    // clang-format on
    for (const HeaderCase& c : cases) {
        const std::string program = convertQuietly(build(vitalTables(c.spec)), c.name);
        EXPECT_NE(program.find(c.expected), std::string::npos) << c.what << ":\n"
                                                               << program.substr(0, 300);
        EXPECT_TRUE(program.starts_with("%!PS-TrueTypeFont-")) << c.what;
        EXPECT_TRUE(
            program.ends_with("end readonly def\nFontName currentdict end definefont pop\n"))
            << c.what;
    }
}

// Without post format 2.0 names the encoding is StandardEncoding as it stands
// and CharStrings stays empty (see the closing lines); stored programs were
// written so.
TEST(Type42Program, PostFormat3KeepsStandardEncoding)
{
    const std::string program = convertQuietly(build(vitalTables({.glyphs = 3})));
    for (const char* line :
         {"dup 0 /.notdef put\n", "dup 32 /space put\n", "dup 39 /quoteright put\n",
          "dup 65 /A put\n", "dup 251 /germandbls put\n"})
        EXPECT_NE(program.find(line), std::string::npos) << line;
}

TEST(Type42Program, Format2NamesEveryGlyphAndCallsGlyphZeroNotdef)
{
    // Custom names "zeroglyph", "Euro" and an empty one (not listed).
    const std::string program = convertQuietly(build(vitalTables(
        {.glyphs = 6, .post = post2({258, 36, 2, 147, 259, 260}, {"zeroglyph", "Euro", ""})})));
    EXPECT_NE(program.find("/CharStrings 6 dict dup begin\n/.notdef 0 def\n/A 1 def\n/CR 2 def\n"
                           "/plusinus 3 def\n/Euro 4 def\nend readonly def\n"),
              std::string::npos);

    const std::string nul = convertQuietly(
        build(vitalTables({.glyphs = 2, .post = post2({0, 258}, {std::string("ab\0cd", 5)})})));
    EXPECT_NE(nul.find("dup 32 /ab put\n"), std::string::npos);
    EXPECT_NE(nul.find("/.notdef 0 def\n/ab 1 def\nend"), std::string::npos);
    EXPECT_EQ(nul.find('\0'), std::string::npos);
}

// The font is cut into strings at the last glyph start within 65534 bytes.
// Glyph starts are break points only when their loca offset is a multiple of
// 4 (twice the entry in the short format, 0 in an unknown one), wherever they
// stand in glyph order; starts beyond the file are harmless. With no break
// point within 65534 bytes of the current position the program stops after
// the last complete string, the array left open: kept so.
TEST(Type42Sfnts, BreakPoints)
{
    struct Case
    {
        const char* what;
        std::int16_t locFormat;
        Bytes loca;
        std::size_t glyfSize;
        Type42Result result;
        std::size_t strings;
        std::size_t firstEndsAfterGlyf;
    };
    // clang-format off
    const Case cases[] = {
        {"under 65534 bytes: one string", 1, loca({0}), 65000, Converted, 1, 65000},
        {"short: 20000 gives 40000, 25001 no break", 0, loca({0, 20000, 25001}, 2), 90000, Converted, 2, 40000},
        {"out of glyph order", 1, loca({0, 50000, 20000, 30000}), 100000, Converted, 2, 50000},
        {"unknown format: every glyph at glyf", 2, loca({40000, 50000}), 65400, Converted, 2, 0},
        {"none in reach: cut short", 1, loca({0}), 140000, CutShort, 1, 0},
        {"starts beyond the file", 1, loca({0x7FFFFFF0u, 0xFFFFFFFCu}), 70000, CutShort, 1, 0},
    };
    // clang-format on
    for (const Case& c : cases) {
        const auto glyphs = std::uint16_t(c.loca.size() / (c.locFormat == 0 ? 2 : 4));
        const Tables tables =
            glyphTables({.glyphs = glyphs, .locFormat = c.locFormat}, c.loca, c.glyfSize);
        Bytes font = build(tables);
        for (std::size_t i = offsetOf(tables, "glyf"); i < font.size(); ++i)
            font[i] = static_cast<std::uint8_t>(i * 7); // a misplaced cut shows
        std::string out = "kept:";
        EXPECT_EQ(convertTTFtoPS42(font, "F", out, Type42Diagnostics::Silent), c.result) << c.what;
        EXPECT_TRUE(out.starts_with("kept:%!PS-TrueTypeFont-")) << c.what;
        EXPECT_EQ(out.ends_with("00>"), c.result == CutShort) << c.what;
        const auto strings = sfntsStrings(out);
        ASSERT_TRUE(strings) << c.what;
        ASSERT_EQ(strings->size(), c.strings) << c.what;
        const std::size_t first = offsetOf(tables, "glyf") + c.firstEndsAfterGlyf;
        EXPECT_EQ(strings->front(), Bytes(font.begin(), font.begin() + first)) << c.what;
        Bytes joined;
        for (const Bytes& string : *strings)
            joined.insert(joined.end(), string.begin(), string.end());
        if (c.result == Converted)
            EXPECT_EQ(joined, font) << c.what;
    }
}

// The font in a heap block of exactly its size, so that AddressSanitizer
// catches any read past its end.
Type42Result convertExact(const Bytes& font, std::string& out,
                          Type42Diagnostics diagnostics = Type42Diagnostics::Silent)
{
    auto copy = std::make_unique<std::uint8_t[]>(font.size());
    std::copy(font.begin(), font.end(), copy.get());
    return convertTTFtoPS42(FontBytes(copy.get(), font.size()), "F", out, diagnostics);
}

// The vital tables without `tag`, or with other contents for it.
Bytes vitalTablesWith(std::string_view tag, std::optional<Bytes> contents)
{
    Tables tables = vitalTables();
    std::erase_if(tables, [&](const auto& table) { return table.first == tag && !contents; });
    for (auto& table : tables)
        table.second = table.first == tag ? *contents : table.second;
    return build(tables);
}

// `font` with `width` bytes at `at` set to `value`; directory record i
// starts at 12 + 16i and holds the offset at +8 and the length at +12.
Bytes patched(Bytes font, std::size_t at, std::uint32_t value, int width = 4)
{
    put(font, at, value, width);
    return font;
}

TEST(Type42Results, FailuresAppendNothingAndSayWhyOnStandardError)
{
    const Bytes minimal = build(vitalTables());
    Bytes cutIndexes = post2({0, 1, 2, 3});
    cutIndexes.resize(cutIndexes.size() - 4);
    Bytes overlongName = post2({0, 258}, {"abc"});
    overlongName[overlongName.size() - 4] = 200;
    const char* vital = "DEBUG: Malformed TrueType file - missing vital table.\n";
    struct Case
    {
        const char* what;
        Bytes font;
        Type42Result result;
        const char* message; // null: any "DEBUG: Malformed TrueType file - " line
    };
    // clang-format off
    const Case cases[] = {
        {"loca and glyf are not required", minimal, Converted, ""},
        {"no maxp", vitalTablesWith("maxp", {}), MissingVitalTable, vital},
        {"no head", vitalTablesWith("head", {}), MissingVitalTable, vital},
        {"no post", vitalTablesWith("post", {}), MissingVitalTable, vital},
        {"no name", vitalTablesWith("name", {}), MissingVitalTable, vital},
        // The message has never had a full stop.
        {"bad magic number", build(vitalTables({.magic = 0})), BadMagicNumber, "DEBUG: Malformed TrueType file - Bad magic number\n"},
        {"post glyph count differs from maxp", build(vitalTables({.glyphs = 3, .post = post2({0, 36})})), GlyphCountMismatch, ""},
        {"name format 1", build(vitalTables({.nameFormat = 1})), UnsupportedNameFormat, ""},
        {"unitsPerEm 0", build(vitalTables({.unitsPerEm = 0})), ZeroUnitsPerEm, "DEBUG: Malformed TrueType file - unitsPerEm is 0.\n"},
        {"directory longer than the file", patched(minimal, 4, 400, 2), TruncatedDirectory},
        {"shorter than a directory", Bytes(minimal.begin(), minimal.begin() + 11), TruncatedDirectory},
        {"head past the end", patched(minimal, 12 + 12, std::uint32_t(minimal.size())), TableOutOfBounds},
        {"offset + length wraps in 32 bits", patched(patched(minimal, 28 + 8, 0xFFFFFFF0u), 28 + 12, 0x20u), TableOutOfBounds},
        {"glyf past the end", patched(build(glyphTables({}, loca({0}), 8)), 92 + 12, 0x7FFFFFFF), TableOutOfBounds},
        {"head too short", vitalTablesWith("head", Bytes(50)), TableTooShort},
        {"maxp too short", vitalTablesWith("maxp", Bytes(4)), TableTooShort},
        {"post too short", vitalTablesWith("post", Bytes(20)), TableTooShort},
        {"name too short", vitalTablesWith("name", Bytes(1)), TableTooShort},
        {"name indexes past post", build(vitalTables({.glyphs = 4, .post = cutIndexes})), TableTooShort},
        {"loca shorter than the glyph count", build(glyphTables({.glyphs = 5}, loca({0, 4, 8}), 16)), TableTooShort},
        {"name index past the strings", build(vitalTables({.glyphs = 2, .post = post2({0, 260}, {"one", "two"})})), GlyphNameOutOfBounds},
        {"last string longer than post", build(vitalTables({.glyphs = 2, .post = overlongName})), GlyphNameOutOfBounds},
    };
    // clang-format on
    for (const Case& c : cases) {
        std::string out = "before";
        testing::internal::CaptureStderr();
        EXPECT_EQ(convertExact(c.font, out, Type42Diagnostics::StandardError), c.result) << c.what;
        const std::string printed = testing::internal::GetCapturedStderr();
        if (c.message)
            EXPECT_EQ(printed, c.message) << c.what;
        else
            EXPECT_TRUE(printed.starts_with("DEBUG: Malformed TrueType file - ") &&
                        printed.ends_with(".\n"))
                << c.what << ": " << printed;
        EXPECT_EQ(out == "before", appendsNothing(c.result)) << c.what;
    }
}

TEST(Type42Results, EveryTruncationOfAFontIsRejectedWithinBounds)
{
    const Bytes font =
        build(glyphTables({.glyphs = 3, .post = post2({0, 258, 259}, {"Euro", "longname"})},
                          loca({0, 4, 8}), 12, 0x5A));
    for (std::size_t length = 0; length < font.size(); ++length) {
        std::string out;
        EXPECT_TRUE(appendsNothing(convertExact(Bytes(font.begin(), font.begin() + length), out)))
            << "length " << length;
        EXPECT_TRUE(out.empty());
    }
    std::string out;
    EXPECT_EQ(convertExact(font, out), Converted);
}

TEST(Type42Font, FindTableTakesTheFirstMatchInDirectoryOrder)
{
    const Tables tables = {{"head", Bytes(54)}, {"abcd", Bytes(8, 1)}, {"abcd", Bytes(4, 2)}};
    const Bytes font = build(tables);
    const auto found = find_table("abcd", font);
    ASSERT_TRUE(found);
    EXPECT_EQ(found->offset, offsetOf(tables, "abcd"));
    EXPECT_EQ(found->length, 8u);
    EXPECT_FALSE(find_table("glyf", font));
    EXPECT_FALSE(find_table("head", build({})));
}

} // namespace
} // namespace orvan
