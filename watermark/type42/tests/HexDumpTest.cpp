#include "watermark/type42/HexDump.h"

#include <gtest/gtest.h>

#include <cstdio>
#include <string>
#include <vector>

namespace orvan {
namespace {

// The dump written the slow, obvious way.
std::string referenceDump(const std::vector<std::uint8_t>& font, std::size_t begin, std::size_t end,
                          std::size_t shift)
{
    std::string out;
    for (std::size_t i = begin; i < end; ++i) {
        char pair[3];
        std::snprintf(pair, sizeof pair, "%02X", font[i]);
        out += pair;
        if ((i + shift) % 30 == 29)
            out += '\n';
    }
    return out;
}

TEST(HexDump, MatchesTheByteByByteRuleAtEveryPhase)
{
    std::vector<std::uint8_t> font(400);
    for (std::size_t i = 0; i < font.size(); ++i)
        font[i] = static_cast<std::uint8_t>(i * 37 + 11);
    for (std::size_t shift : {0u, 2u, 4u, 28u, 58u}) {
        for (std::size_t begin = 0; begin < 64; ++begin) {
            for (std::size_t end : {begin, begin + 1, begin + 29, begin + 30, begin + 31,
                                    begin + 89, begin + 90, std::size_t{400}}) {
                const std::string expected = referenceDump(font, begin, end, shift);
                std::string actual(hexDumpSize(begin, end, shift), '?');
                char* stop = writeHexDump(actual.data(), font.data(), begin, end, shift);
                ASSERT_EQ(static_cast<std::size_t>(stop - actual.data()), actual.size());
                ASSERT_EQ(actual, expected) << begin << ".." << end << " shift " << shift;
            }
        }
    }
}

TEST(HexDump, UsesUpperCaseDigitsForEveryByteValue)
{
    std::vector<std::uint8_t> font(256);
    for (std::size_t i = 0; i < 256; ++i)
        font[i] = static_cast<std::uint8_t>(i);
    std::string actual(hexDumpSize(0, 256, 0), '?');
    writeHexDump(actual.data(), font.data(), 0, 256, 0);
    EXPECT_EQ(actual, referenceDump(font, 0, 256, 0));
    EXPECT_NE(actual.find("0A0B0C0D0E0F"), std::string::npos);
    EXPECT_EQ(actual.find_first_of("abcdef"), std::string::npos);
}

} // namespace
} // namespace orvan
