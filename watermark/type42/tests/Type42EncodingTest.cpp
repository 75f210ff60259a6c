// The Encoding vector built from post format 2.0 glyph names.

#include "watermark/type42/Type42Encoding.h"
#include "SfntBuilder.h"
#include "Type42Program.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace orvan {
namespace {

using namespace orvan::test;

Type42Encoding encodingFor(const std::vector<std::string_view>& names)
{
    return buildEncoding(names);
}

int codeOf(const Type42Encoding& encoding, std::string_view name)
{
    for (std::size_t code = 0; code < encoding.size(); ++code) {
        if (encoding[code] == name)
            return static_cast<int>(code);
    }
    return -1;
}

TEST(Type42Encoding, CodesWithoutAGlyphTakeGlyphZerosName)
{
    const Type42Encoding encoding = encodingFor({".notdef", "A", "space", "quoteright"});
    EXPECT_EQ(encoding[65], "A");
    EXPECT_EQ(encoding[32], "space");
    EXPECT_EQ(encoding[39], "quoteright");
    EXPECT_EQ(encoding[66], ".notdef");
    EXPECT_EQ(encoding[97], ".notdef");
}

TEST(Type42Encoding, GlyphZerosOwnNameFillsTheGapsEvenWhenItIsNotNotdef)
{
    // No code is left reading ".notdef", so the custom glyph finds no place.
    const Type42Encoding encoding = encodingFor({"blank", "A", "Euro"});
    EXPECT_EQ(encoding[0], "blank");
    EXPECT_EQ(encoding[32], "blank");
    EXPECT_EQ(encoding[65], "A");
    EXPECT_EQ(encoding[255], "blank");
    EXPECT_EQ(codeOf(encoding, "Euro"), -1);
}

TEST(Type42Encoding, NamesCompareByteForByte)
{
    const Type42Encoding encoding = encodingFor({".notdef", "a", "Space"});
    EXPECT_EQ(encoding[97], "a");
    EXPECT_EQ(encoding[65], ".notdef");
    // "Space" is not "space": code 32 is freed first, then taken by "Space".
    EXPECT_EQ(encoding[32], "Space");
}

TEST(Type42Encoding, EuroTakesCode32WhenSpaceHasNoGlyph)
{
    const Type42Encoding encoding = encodingFor({".notdef", "A", "Euro"});
    EXPECT_EQ(encoding[32], "Euro");
}

TEST(Type42Encoding, EuroTakesTheFirstFreeCodeAboveSpaceOtherwise)
{
    // space and exclam have glyphs; quotedbl (34) is the first free code.
    const Type42Encoding encoding = encodingFor({".notdef", "space", "exclam", "Euro", "A"});
    EXPECT_EQ(encoding[32], "space");
    EXPECT_EQ(encoding[33], "exclam");
    EXPECT_EQ(encoding[34], "Euro");
    EXPECT_EQ(codeOf(encoding, "Euro"), 34);
}

TEST(Type42Encoding, CodesBelowSpaceAreNeverGiven)
{
    const Type42Encoding encoding = encodingFor({".notdef", "uni0001", "uni0002"});
    for (int code = 0; code < 32; ++code)
        EXPECT_EQ(encoding[code], ".notdef") << code;
    EXPECT_EQ(encoding[32], "uni0001");
    EXPECT_EQ(encoding[33], "uni0002");
}

TEST(Type42Encoding, EachNameIsPlacedOnceAndOverflowStaysUnencoded)
{
    std::vector<std::string> owned = {".notdef", "Euro", "Euro"};
    for (int i = 0; i < 300; ++i)
        owned.push_back("g" + std::to_string(i));
    const std::vector<std::string_view> names(owned.begin(), owned.end());
    const Type42Encoding encoding = buildEncoding(names);
    EXPECT_EQ(encoding[32], "Euro");
    EXPECT_EQ(encoding[33], "g0");
    EXPECT_EQ(encoding[255], "g222");
    EXPECT_EQ(codeOf(encoding, "g223"), -1);
    EXPECT_EQ(codeOf(encoding, ".notdef"), 0);
}

TEST(Type42Encoding, ProgramCarriesTheEncodingOfAPostFormat2Font)
{
    const std::string program = convertQuietly(
        namedFont({standardName(0), standardName(3), standardName(36), customName("Euro")})
            .build());
    const auto encoding = encodingOf(program);
    ASSERT_EQ(encoding.size(), 256u);
    EXPECT_EQ(encoding.at(32), "space");
    EXPECT_EQ(encoding.at(65), "A");
    EXPECT_EQ(encoding.at(33), "Euro");
    EXPECT_EQ(encoding.at(66), ".notdef");
}

} // namespace
} // namespace orvan
