// The glyph name tables, and the Encoding vector built from post format 2.0
// glyph names.
#include "watermark/type42/Type42Encoding.h"
#include "watermark/type42/GlyphNames.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <string>
#include <vector>

namespace orvan {
namespace {

// Stored font programs carry these spellings; correcting them would change
// every program written from a post format 2.0 font that uses them.
TEST(GlyphNames, MacintoshOrderKeepsItsHistoricalSpellings)
{
    const std::pair<int, std::string_view> kept[] = {
        {2, "CR"},          {147, "plusinus"}, {151, "mu1"},          {159, "Ohm"},
        {168, "increment"}, {172, "nbspace"},  {190, "guilsingleft"}, {210, "applelogo"},
        {218, "overscore"}, {250, "Idot"},     {257, "dmacron"},
    };
    for (const auto& [index, name] : kept)
        EXPECT_EQ(_macGlyphEncoding[index], name) << "index " << index;
    // StandardEncoding assigns 149 codes.
    EXPECT_EQ(std::count(_StandardEncodings.begin(), _StandardEncodings.end(), ".notdef"), 107);
}

TEST(Type42Encoding, FromGlyphNames)
{
    struct Case
    {
        const char* what;
        std::vector<std::string_view> glyphs;
        std::vector<std::pair<int, std::string_view>> codes;
        std::string_view unencoded; // a glyph left without a code
    };
    // clang-format off
    const Case cases[] = {
        {"codes without a glyph take glyph 0's name", {".notdef", "A", "space", "quoteright"},
         {{65, "A"}, {32, "space"}, {39, "quoteright"}, {66, ".notdef"}, {97, ".notdef"}}},
        {"glyph 0's own name fills every gap, leaving no room", {"blank", "A", "Euro"},
         {{0, "blank"}, {32, "blank"}, {65, "A"}, {255, "blank"}}, "Euro"},
        {"names compare byte for byte: Space frees code 32 and takes it", {".notdef", "a", "Space"},
         {{97, "a"}, {65, ".notdef"}, {32, "Space"}}},
        {"Euro at 32 when space has no glyph", {".notdef", "A", "Euro"}, {{32, "Euro"}}},
        {"Euro at the first free code above 32", {".notdef", "space", "exclam", "Euro", "A"},
         {{32, "space"}, {33, "exclam"}, {34, "Euro"}}},
        {"codes below 32 are never given", {".notdef", "uni0001", "uni0002"},
         {{0, ".notdef"}, {31, ".notdef"}, {32, "uni0001"}, {33, "uni0002"}}},
    };
    // clang-format on
    for (const Case& c : cases) {
        const Type42Encoding encoding = buildEncoding(c.glyphs);
        for (const auto& [code, name] : c.codes)
            EXPECT_EQ(encoding[code], name) << c.what << ", code " << code;
        if (!c.unencoded.empty())
            EXPECT_EQ(std::count(encoding.begin(), encoding.end(), c.unencoded), 0) << c.what;
    }
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
    EXPECT_EQ(std::count(encoding.begin(), encoding.end(), std::string_view("g223")), 0);
}

} // namespace
} // namespace orvan
