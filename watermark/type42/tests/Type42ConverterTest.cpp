// The program text: header, sfnts strings and their break points, CharStrings
// and the closing lines, on fonts built in memory.

#include "watermark/type42/Type42Converter.h"
#include "SfntBuilder.h"
#include "Type42Program.h"

#include <gtest/gtest.h>

namespace orvan {
namespace {

using namespace orvan::test;

bool startsWith(std::string_view text, std::string_view prefix)
{
    return text.substr(0, prefix.size()) == prefix;
}

bool endsWith(std::string_view text, std::string_view suffix)
{
    return text.size() >= suffix.size() && text.substr(text.size() - suffix.size()) == suffix;
}

TEST(Type42Header, OpensWithVersionsNameAndEncoding)
{
    HeadFields head;
    head.version = 0x00010000;
    head.revision = 0x00028000; // 2.5
    const std::string program = convertQuietly(minimalFont(1, head).build(), "Orvan-Sans");
    EXPECT_TRUE(startsWith(program, "%!PS-TrueTypeFont-1.0000-2.5000\n"
                                    "11 dict begin\n"
                                    "/FontName /Orvan-Sans def\n"
                                    "/Encoding 256 array\n"
                                    "dup 0 /.notdef put\n"
                                    "dup 1 /.notdef put\n"))
        << program.substr(0, 200);
}

TEST(Type42Header, VersionsAreSigned16Dot16)
{
    HeadFields head;
    head.version = 0xFFFF0000;  // -1.0
    head.revision = 0x0001199A; // 1.1000
    const std::string program = convertQuietly(minimalFont(1, head).build());
    EXPECT_TRUE(startsWith(program, "%!PS-TrueTypeFont--1.0000-1.1000\n")) << program.substr(0, 40);
}

TEST(Type42Header, VMUsageOnlyWhenTheFontStatesAMaximum)
{
    FontBuilder withUsage;
    withUsage.add("head", headTable())
        .add("maxp", maxpTable(1))
        .add("post", postTable3(4096, 4294967295u))
        .add("name", nameTable());
    EXPECT_NE(
        convertQuietly(withUsage.build()).find("-1.0000\n%%VMUsage: 4096 4294967295\n11 dict"),
        std::string::npos);

    FontBuilder minimumOnly;
    minimumOnly.add("head", headTable())
        .add("maxp", maxpTable(1))
        .add("post", postTable3(4096, 0))
        .add("name", nameTable());
    EXPECT_EQ(convertQuietly(minimumOnly.build()).find("VMUsage"), std::string::npos);
}

// "readonly def" closing the Encoding and "/PaintType 0 def" have always
// shared a line in stored programs.
TEST(Type42Header, EncodingCloseSharesItsLineWithPaintType)
{
    const std::string program = convertQuietly(minimalFont().build());
    EXPECT_NE(program.find("dup 255 /.notdef put\n"
                           "readonly def/PaintType 0 def\n"
                           "/FontMatrix [1 0 0 1 0 0] def\n"),
              std::string::npos);
}

TEST(Type42Header, BoundingBoxIsScaledWithTruncatingIntegerDivision)
{
    HeadFields head;
    head.unitsPerEm = 1000;
    head.xMin = -7; // -0.007 in reals; the integer division gives -0.006989
    head.yMin = -250;
    head.xMax = 1003;
    head.yMax = 32767;
    const std::string program = convertQuietly(minimalFont(1, head).build());
    EXPECT_NE(program.find("/FontMatrix [1 0 0 1 0 0] def\n"
                           "/FontBBox [-0.006989 -0.250000 1.002991 32.766998] def\n"
                           "/FontType 42 def\n"
                           "/FontInfo 8 dict dup begin\n"
                           "end readonly def\n"
                           "/sfnts [\n<"),
              std::string::npos);

    head.unitsPerEm = 2048;
    head.xMin = -2090;
    head.yMin = -483;
    head.xMax = 3673;
    head.yMax = 2000;
    EXPECT_NE(convertQuietly(minimalFont(1, head).build())
                  .find("/FontBBox [-1.020508 -0.235840 1.793457 0.976562] def\n"),
              std::string::npos);
}

TEST(Type42Header, PostScriptNameIsCutAtNulAnd511BytesOnACharacterBoundary)
{
    const Bytes font = minimalFont().build();
    EXPECT_NE(convertQuietly(font, std::string_view("Name\0Rest", 9)).find("/FontName /Name def\n"),
              std::string::npos);

    const std::string fits(511, 'N');
    EXPECT_NE(convertQuietly(font, fits).find("/FontName /" + fits + " def\n"), std::string::npos);
    EXPECT_NE(convertQuietly(font, fits + "X").find("/FontName /" + fits + " def\n"),
              std::string::npos);

    // 510 ASCII bytes and a two-byte character: the character would straddle
    // the limit, so it goes whole.
    const std::string straddling = std::string(510, 'N') + "\xC3\xA9";
    EXPECT_NE(
        convertQuietly(font, straddling).find("/FontName /" + std::string(510, 'N') + " def\n"),
        std::string::npos);
}

TEST(Type42Closing, EndsWithCharStringsAndDefinefont)
{
    const std::string program = convertQuietly(minimalFont(7).build());
    EXPECT_TRUE(endsWith(program, "00>] def\n"
                                  "/CharStrings 7 dict dup begin\n"
                                  "end readonly def\n"
                                  "FontName currentdict end definefont pop\n"));
}

// Without post format 2.0 names the dictionary stays empty and the encoding
// is StandardEncoding as it stands; stored programs were written so.
TEST(Type42CharStrings, PostFormat3GivesStandardEncodingAndAnEmptyDictionary)
{
    const std::string program = convertQuietly(minimalFont(3).build());
    EXPECT_TRUE(charStringsOf(program).empty());
    const auto encoding = encodingOf(program);
    ASSERT_EQ(encoding.size(), 256u);
    EXPECT_EQ(encoding.at(0), ".notdef");
    EXPECT_EQ(encoding.at(32), "space");
    EXPECT_EQ(encoding.at(39), "quoteright");
    EXPECT_EQ(encoding.at(65), "A");
    EXPECT_EQ(encoding.at(251), "germandbls");
}

TEST(Type42CharStrings, Format2NamesEveryGlyphAndCallsGlyphZeroNotdef)
{
    const std::string program =
        convertQuietly(namedFont({customName("zeroglyph"), standardName(36), standardName(2),
                                  standardName(147), customName("Euro"), customName("")})
                           .build());
    const std::vector<std::pair<std::string, int>> expected = {
        {".notdef", 0}, {"A", 1}, {"CR", 2}, {"plusinus", 3}, {"Euro", 4}};
    EXPECT_EQ(charStringsOf(program), expected);
    EXPECT_NE(program.find("/CharStrings 6 dict dup begin\n/.notdef 0 def\n/A 1 def\n"),
              std::string::npos);
}

TEST(Type42CharStrings, CustomNamesStopAtANulByte)
{
    FontBuilder font;
    font.add("head", headTable())
        .add("maxp", maxpTable(2))
        .add("post", postTable2({0, 258}, {std::string("ab\0cd", 5)}))
        .add("name", nameTable());
    const std::string program = convertQuietly(font.build());
    EXPECT_NE(program.find("/ab 1 def\n"), std::string::npos);
    EXPECT_NE(program.find("dup 32 /ab put\n"), std::string::npos);
    EXPECT_EQ(program.find('\0'), std::string::npos);
}

TEST(Type42Sfnts, SmallFontIsOneStringHoldingTheWholeFile)
{
    FontBuilder builder = minimalFont();
    builder.add("glyf", Bytes(65000, 0xA5));
    const Bytes font = builder.build();
    ASSERT_LT(font.size(), 65534u);
    const std::string program = convertQuietly(font);
    const auto strings = sfntsStrings(program);
    ASSERT_TRUE(strings);
    ASSERT_EQ(strings->size(), 1u);
    EXPECT_EQ(strings->front(), font);
}

// A 100 000-byte font whose largest break point within 65534 bytes is the
// glyph starting at 60 000.
Bytes splitFont()
{
    FontBuilder probe = minimalFont(3);
    probe.add("loca", locaLong({0, 0, 0})).add("glyf", {});
    const std::size_t glyf = probe.offsetOf("glyf");

    FontBuilder builder = minimalFont(3);
    const auto start = [glyf](std::size_t position) {
        return static_cast<std::uint32_t>(position - glyf);
    };
    // Glyph 2 starts past the window, glyph 1 at 60 000.
    builder.add("loca", locaLong({0, start(60000), start(70000)}));
    builder.add("glyf", Bytes(100000 - glyf, 0));
    Bytes font = builder.build();
    for (std::size_t i = glyf; i < font.size(); ++i)
        font[i] = static_cast<std::uint8_t>(i * 7);
    return font;
}

TEST(Type42Sfnts, HundredThousandBytesSplitAtTheLastBreakPointInReach)
{
    const Bytes font = splitFont();
    ASSERT_EQ(font.size(), 100000u);
    const std::string program = convertQuietly(font);
    const auto strings = sfntsStrings(program);
    ASSERT_TRUE(strings);
    ASSERT_EQ(strings->size(), 2u);
    EXPECT_EQ(strings->at(0), Bytes(font.begin(), font.begin() + 60000));
    EXPECT_EQ(strings->at(1), Bytes(font.begin() + 60000, font.end()));
}

// Lines hold 30 bytes counted from the start of the file, shifted by two
// for every string already written, and strings follow each other with no
// separator.
TEST(Type42Sfnts, LineBreaksShiftAtEachStringBoundary)
{
    const Bytes font = splitFont();
    const std::string program = convertQuietly(font);
    const std::string_view sfnts = sfntsText(program);
    // Byte 59 999 ends a line of the first string; the second string's first
    // line holds 28 bytes (60 000 to 60 027) and the next line 30.
    const std::size_t boundary = sfnts.find("00><");
    ASSERT_NE(boundary, std::string_view::npos);
    EXPECT_EQ(sfnts[boundary - 1], '\n');
    const std::size_t firstLineEnd = sfnts.find('\n', boundary);
    EXPECT_EQ(firstLineEnd - (boundary + 4), 2 * 28u);
    EXPECT_EQ(sfnts.find('\n', firstLineEnd + 1) - (firstLineEnd + 1), 60u);
    EXPECT_TRUE(startsWith(sfnts, "/sfnts [\n<"));
    EXPECT_EQ(sfnts.find('\n', 10) - 10, 60u);
    EXPECT_TRUE(endsWith(sfnts, "00>] def\n"));
}

// No break point within 65534 bytes of the current position: the program
// stops after the last complete string, without closing the array.
TEST(Type42Sfnts, StopsAbruptlyWhenNoBreakPointIsInReach)
{
    FontBuilder builder = minimalFont();
    builder.add("glyf", Bytes(140000, 0x11));
    const Bytes font = builder.build();
    std::string out = "kept:";
    EXPECT_EQ(convertTTFtoPS42(font, "F", out, Type42Diagnostics::Silent), Type42Result::CutShort);
    EXPECT_TRUE(startsWith(out, "kept:%!PS-TrueTypeFont-"));
    EXPECT_TRUE(endsWith(out, "00>"));
    EXPECT_EQ(out.find("00>] def"), std::string::npos);
    EXPECT_EQ(out.find("/CharStrings"), std::string::npos);
    const auto strings = sfntsStrings(out);
    ASSERT_TRUE(strings);
    ASSERT_EQ(strings->size(), 1u);
    EXPECT_EQ(strings->at(0), Bytes(font.begin(), font.begin() + builder.offsetOf("glyf")));
}

// Glyph starts count only when their loca offset is a multiple of 4; in the
// short format the offset is twice the entry.
TEST(Type42Sfnts, GlyphStartsBreakOnlyAtOffsetsThatAreMultiplesOfFour)
{
    HeadFields shortLoca;
    shortLoca.indexToLocFormat = 0;
    FontBuilder probe = minimalFont(3, shortLoca);
    probe.add("loca", locaShort({0, 0, 0})).add("glyf", {});
    const std::size_t glyf = probe.offsetOf("glyf");

    FontBuilder builder = minimalFont(3, shortLoca);
    // Glyph 1 at glyf + 40 000 (entry 20 000), glyph 2 at glyf + 50 002
    // (entry 25 001: not a multiple of 4, so not a break point).
    builder.add("loca", locaShort({0, 20000, 25001}));
    builder.add("glyf", Bytes(90000, 0x22));
    const Bytes font = builder.build();
    const auto strings = sfntsStrings(convertQuietly(font));
    ASSERT_TRUE(strings);
    ASSERT_EQ(strings->size(), 2u);
    EXPECT_EQ(strings->at(0).size(), glyf + 40000);
}

// Glyph data need not follow glyph order; the largest break point in reach
// counts wherever it stands in the list.
TEST(Type42Sfnts, GlyphStartsOutOfOrderStillGiveTheLargestBreakPoint)
{
    FontBuilder probe = minimalFont(4);
    probe.add("loca", locaLong({0, 0, 0, 0})).add("glyf", {});
    const std::size_t glyf = probe.offsetOf("glyf");

    FontBuilder builder = minimalFont(4);
    builder.add("loca", locaLong({0, 50000, 20000, 30000})).add("glyf", Bytes(100000, 0x44));
    const auto strings = sfntsStrings(convertQuietly(builder.build()));
    ASSERT_TRUE(strings);
    ASSERT_EQ(strings->size(), 2u);
    EXPECT_EQ(strings->at(0).size(), glyf + 50000);
}

TEST(Type42Sfnts, UnknownLocaFormatPutsEveryGlyphAtTheStartOfGlyf)
{
    HeadFields oddLoca;
    oddLoca.indexToLocFormat = 2;
    FontBuilder builder = minimalFont(2, oddLoca);
    builder.add("loca", locaLong({40000, 50000}));
    builder.add("glyf", Bytes(65400, 0x33));
    const Bytes font = builder.build();
    const auto strings = sfntsStrings(convertQuietly(font));
    ASSERT_TRUE(strings);
    ASSERT_EQ(strings->size(), 2u);
    EXPECT_EQ(strings->at(0).size(), builder.offsetOf("glyf"));
}

TEST(Type42VitalTables, EachMissingVitalTableStopsWithTheDiagnostic)
{
    for (std::string_view missing : {"maxp", "head", "post", "name"}) {
        FontBuilder builder;
        for (std::string_view tag : {"head", "maxp", "post", "name"}) {
            const std::string_view used = tag == missing ? std::string_view("xxxx") : tag;
            if (tag == "head")
                builder.add(used, headTable());
            else if (tag == "maxp")
                builder.add(used, maxpTable(1));
            else if (tag == "post")
                builder.add(used, postTable3());
            else
                builder.add(used, nameTable());
        }
        std::string out = "before";
        testing::internal::CaptureStderr();
        EXPECT_EQ(convertTTFtoPS42(builder.build(), "F", out), Type42Result::MissingVitalTable);
        EXPECT_EQ(testing::internal::GetCapturedStderr(),
                  "DEBUG: Malformed TrueType file - missing vital table.\n")
            << missing;
        EXPECT_EQ(out, "before");
    }
}

TEST(Type42VitalTables, LocaAndGlyfAreNotRequired)
{
    std::string out;
    testing::internal::CaptureStderr();
    EXPECT_EQ(convertTTFtoPS42(minimalFont().build(), "F", out), Type42Result::Converted);
    EXPECT_EQ(testing::internal::GetCapturedStderr(), "");
    EXPECT_FALSE(out.empty());
}

TEST(Type42VitalTables, BadMagicNumberStopsWithTheDiagnostic)
{
    HeadFields head;
    head.magicNumber = 0;
    std::string out = "before";
    testing::internal::CaptureStderr();
    EXPECT_EQ(convertTTFtoPS42(minimalFont(1, head).build(), "F", out),
              Type42Result::BadMagicNumber);
    // The message has never had a full stop.
    EXPECT_EQ(testing::internal::GetCapturedStderr(),
              "DEBUG: Malformed TrueType file - Bad magic number\n");
    EXPECT_EQ(out, "before");
}

TEST(Type42VitalTables, GlyphCountMismatchAndNameFormatStopSilently)
{
    FontBuilder mismatch;
    mismatch.add("head", headTable())
        .add("maxp", maxpTable(3))
        .add("post", postTable2({0, 36}, {}))
        .add("name", nameTable());
    FontBuilder nameFormat1;
    nameFormat1.add("head", headTable())
        .add("maxp", maxpTable(1))
        .add("post", postTable3())
        .add("name", nameTable(1));

    const std::pair<Bytes, Type42Result> cases[] = {
        {mismatch.build(), Type42Result::GlyphCountMismatch},
        {nameFormat1.build(), Type42Result::UnsupportedNameFormat},
    };
    for (const auto& [font, expected] : cases) {
        std::string out;
        testing::internal::CaptureStderr();
        EXPECT_EQ(convertTTFtoPS42(font, "F", out), expected);
        EXPECT_EQ(testing::internal::GetCapturedStderr(), "");
        EXPECT_TRUE(out.empty());
    }
}

TEST(Type42VitalTables, FindTableTakesTheFirstMatchInDirectoryOrder)
{
    FontBuilder builder;
    builder.add("head", headTable()).add("abcd", Bytes(8, 1)).add("abcd", Bytes(4, 2));
    const Bytes font = builder.build();
    const auto found = find_table("abcd", font);
    ASSERT_TRUE(found);
    EXPECT_EQ(found->offset, builder.offsetOf("abcd"));
    EXPECT_EQ(found->length, 8u);
    EXPECT_FALSE(find_table("glyf", font));
    EXPECT_FALSE(find_table("head", FontBuilder().build()));
}

} // namespace
} // namespace orvan
