#include "watermark/type42/FontPostScriptName.h"
#include "SfntBuilder.h"
#include "Type42Program.h"

#include <gtest/gtest.h>

namespace orvan {
namespace {

using namespace orvan::test;

Bytes fontWithNames(const std::vector<NameRecord>& records)
{
    FontBuilder builder;
    builder.add("head", headTable()).add("name", nameTable(0, records));
    return builder.build();
}

NameRecord record(std::uint16_t platform, std::uint16_t encoding, std::uint16_t language,
                  Bytes text, std::uint16_t nameId = 6)
{
    return {platform, encoding, language, nameId, std::move(text)};
}

Bytes ascii(std::string_view text)
{
    return Bytes(text.begin(), text.end());
}

TEST(FontPostScriptName, PrefersUsEnglishWindowsThenOtherWindowsThenUnicodeThenMacRoman)
{
    const NameRecord mac = record(1, 0, 0, ascii("MacName"));
    const NameRecord unicode = record(0, 3, 0, utf16BE(u"UnicodeName"));
    const NameRecord windowsOther = record(3, 1, 0x0407, utf16BE(u"GermanName"));
    const NameRecord windowsUs = record(3, 1, 0x0409, utf16BE(u"UsName"));

    EXPECT_EQ(fontPostScriptName(fontWithNames({mac, unicode, windowsOther, windowsUs})), "UsName");
    EXPECT_EQ(fontPostScriptName(fontWithNames({windowsOther, mac, unicode})), "GermanName");
    EXPECT_EQ(fontPostScriptName(fontWithNames({mac, unicode})), "UnicodeName");
    EXPECT_EQ(fontPostScriptName(fontWithNames({mac})), "MacName");
}

TEST(FontPostScriptName, DecodesMacRomanAndUtf16ToUtf8)
{
    EXPECT_EQ(fontPostScriptName(fontWithNames({record(1, 0, 0, Bytes{'C', 'a', 0x8E, 0xDB})})),
              "Ca\xC3\xA9\xE2\x82\xAC");
    EXPECT_EQ(
        fontPostScriptName(fontWithNames({record(3, 10, 0x0409, utf16BE(u"N\u00e9\U0001F600"))})),
        "N\xC3\xA9\xF0\x9F\x98\x80");
}

TEST(FontPostScriptName, PassesOverUnusableRecords)
{
    Bytes loneSurrogate = utf16BE(u"A");
    appendU16(loneSurrogate, 0xD800);
    const NameRecord good = record(1, 0, 0, ascii("Fallback"));
    EXPECT_EQ(fontPostScriptName(fontWithNames({record(3, 1, 0x0409, loneSurrogate), good})),
              "Fallback");
    EXPECT_EQ(fontPostScriptName(fontWithNames({record(3, 1, 0x0409, Bytes{0, 'A', 0}), good})),
              "Fallback"); // odd length
    EXPECT_EQ(fontPostScriptName(fontWithNames({record(3, 1, 0x0409, {}), good})), "Fallback");
    EXPECT_EQ(fontPostScriptName(fontWithNames({record(1, 1, 0, ascii("Japanese")), good})),
              "Fallback"); // Mac encodings other than Roman are not decoded
    EXPECT_EQ(fontPostScriptName(fontWithNames({record(3, 1, 0x0409, utf16BE(u"Family"), 1)})),
              std::nullopt);
}

TEST(FontPostScriptName, RecordsOutsideTheTableAreIgnored)
{
    Bytes font =
        fontWithNames({record(3, 1, 0x0409, utf16BE(u"Name")), record(1, 0, 0, ascii("Mac"))});
    // Push the first record's string offset past the end of the table.
    FontBuilder layout;
    layout.add("head", headTable()).add("name", {});
    const std::size_t name = layout.offsetOf("name");
    storeU16(font, name + 6 + 10, 0xFFF0);
    EXPECT_EQ(fontPostScriptName(font), "Mac");
    // A record count far beyond the table.
    storeU16(font, name + 2, 0xFFFF);
    EXPECT_EQ(fontPostScriptName(font), "Mac");
    EXPECT_EQ(fontPostScriptName(Bytes(font.begin(), font.begin() + name + 3)), std::nullopt);
}

TEST(FontPostScriptName, RealFontsNameThemselves)
{
    const Bytes dejavu = readFileBytes("/usr/share/fonts/truetype/dejavu/DejaVuSans.ttf");
    const Bytes liberation =
        readFileBytes("/usr/share/fonts/truetype/liberation/LiberationSans-Regular.ttf");
    ASSERT_FALSE(dejavu.empty()) << "fonts-dejavu-core is a test dependency";
    ASSERT_FALSE(liberation.empty()) << "fonts-liberation is a test dependency";
    EXPECT_EQ(fontPostScriptName(dejavu), "DejaVuSans");
    EXPECT_EQ(fontPostScriptName(liberation), "LiberationSans");
}

} // namespace
} // namespace orvan
