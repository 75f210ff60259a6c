#include "watermark/type42/GlyphNames.h"

#include <gtest/gtest.h>

#include <algorithm>

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
}

TEST(GlyphNames, MacintoshOrderAnchors)
{
    EXPECT_EQ(_macGlyphEncoding[0], ".notdef");
    EXPECT_EQ(_macGlyphEncoding[3], "space");
    EXPECT_EQ(_macGlyphEncoding[36], "A");
    EXPECT_EQ(_macGlyphEncoding[68], "a");
    EXPECT_EQ(_macGlyphEncoding[146], "infinity");
    EXPECT_EQ(_macGlyphEncoding[209], "Ocircumflex");
    EXPECT_EQ(_macGlyphEncoding[211], "Ograve");
    EXPECT_EQ(_macGlyphEncoding[256], "ccaron");
}

TEST(GlyphNames, StandardEncodingAssignsItsCodes)
{
    const auto assigned = std::count_if(_StandardEncodings.begin(), _StandardEncodings.end(),
                                        [](std::string_view name) { return name != ".notdef"; });
    EXPECT_EQ(assigned, 149);
    EXPECT_EQ(_StandardEncodings[32], "space");
    EXPECT_EQ(_StandardEncodings[39], "quoteright");
    EXPECT_EQ(_StandardEncodings[96], "quoteleft");
    EXPECT_EQ(_StandardEncodings[127], ".notdef");
    EXPECT_EQ(_StandardEncodings[164], "fraction");
    EXPECT_EQ(_StandardEncodings[169], "quotesingle");
    EXPECT_EQ(_StandardEncodings[208], "emdash");
    EXPECT_EQ(_StandardEncodings[232], "Lslash");
    EXPECT_EQ(_StandardEncodings[245], "dotlessi");
    EXPECT_EQ(_StandardEncodings[255], ".notdef");
}

} // namespace
} // namespace orvan
