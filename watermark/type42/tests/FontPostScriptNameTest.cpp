// The PostScript name a font gives itself: which record wins, decoding, and
// records that cannot be used.
#include "Type42TestSupport.h"

#include "watermark/type42/FontPostScriptName.h"

#include <gtest/gtest.h>

namespace orvan {
namespace {

using namespace orvan::test;

struct NameRecord
{
    std::uint32_t platform, encoding, language;
    Bytes text;
    std::uint32_t nameId = 6;
};

Tables withNames(const std::vector<NameRecord>& records)
{
    Bytes name = table(
        6, {{2, std::uint32_t(records.size()), 2}, {4, std::uint32_t(6 + 12 * records.size()), 2}});
    Bytes strings;
    for (const NameRecord& r : records) {
        for (std::uint32_t field : {r.platform, r.encoding, r.language, r.nameId,
                                    std::uint32_t(r.text.size()), std::uint32_t(strings.size())})
            append(name, field, 2);
        strings.insert(strings.end(), r.text.begin(), r.text.end());
    }
    name.insert(name.end(), strings.begin(), strings.end());
    return {{"head", Bytes(54)}, {"name", name}};
}

Bytes utf16(std::u16string_view text)
{
    Bytes bytes;
    for (char16_t unit : text)
        append(bytes, unit, 2);
    return bytes;
}

Bytes ascii(std::string_view text)
{
    return Bytes(text.begin(), text.end());
}

TEST(FontPostScriptName, PreferenceDecodingAndUnusableRecords)
{
    const NameRecord mac{1, 0, 0, ascii("MacName")}, unicode{0, 3, 0, utf16(u"UnicodeName")};
    const NameRecord german{3, 1, 0x0407, utf16(u"GermanName")}, us{3, 1, 0x0409, utf16(u"UsName")};
    const NameRecord fallback{1, 0, 0, ascii("Fallback")};
    Bytes loneSurrogate = utf16(u"A");
    append(loneSurrogate, 0xD800, 2);
    const struct
    {
        const char* what;
        std::vector<NameRecord> records;
        std::optional<std::string> expected;
    } cases[] = {
        // clang-format off
        {"US English Windows first", {mac, unicode, german, us}, "UsName"},
        {"then other Windows", {german, mac, unicode}, "GermanName"},
        {"then Unicode", {mac, unicode}, "UnicodeName"},
        {"then Mac Roman", {mac}, "MacName"},
        {"Mac Roman decoded", {{1, 0, 0, {'C', 'a', 0x8E, 0xDB}}}, "Ca\xC3\xA9\xE2\x82\xAC"},
        {"UTF-16 decoded", {{3, 10, 0x0409, utf16(u"N\u00e9\U0001F600")}}, "N\xC3\xA9\xF0\x9F\x98\x80"},
        {"lone surrogate", {{3, 1, 0x0409, loneSurrogate}, fallback}, "Fallback"},
        {"odd UTF-16 length", {{3, 1, 0x0409, {0, 'A', 0}}, fallback}, "Fallback"},
        {"empty", {{3, 1, 0x0409, {}}, fallback}, "Fallback"},
        {"Mac encodings other than Roman", {{1, 1, 0, ascii("Japanese")}, fallback}, "Fallback"},
        {"only a family name", {{3, 1, 0x0409, utf16(u"Family"), 1}}, std::nullopt},
        // clang-format on
    };
    for (const auto& c : cases)
        EXPECT_EQ(fontPostScriptName(build(withNames(c.records))), c.expected) << c.what;
}

TEST(FontPostScriptName, RecordsOutsideTheTableArePassedOver)
{
    const Tables tables = withNames({{3, 1, 0x0409, utf16(u"Name")}, {1, 0, 0, ascii("Mac")}});
    const std::size_t name = offsetOf(tables, "name");
    Bytes font = build(tables);
    put(font, name + 6 + 10, 0xFFF0, 2); // the first record's string offset
    EXPECT_EQ(fontPostScriptName(font), "Mac");
    put(font, name + 2, 0xFFFF, 2); // the record count
    EXPECT_EQ(fontPostScriptName(font), "Mac");
    EXPECT_EQ(fontPostScriptName(Bytes(font.begin(), font.begin() + name + 3)), std::nullopt);
}

} // namespace
} // namespace orvan
