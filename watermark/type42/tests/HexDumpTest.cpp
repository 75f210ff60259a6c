// The hexadecimal body of an sfnts string against the rule written out byte
// by byte, at every phase of the line and of the string count.
#include "watermark/type42/HexDump.h"

#include <gtest/gtest.h>

#include <cstdio>
#include <string>
#include <vector>

namespace orvan {
namespace {

TEST(HexDump, MatchesTheByteByByteRuleAtEveryPhase)
{
    std::vector<std::uint8_t> font(400); // every byte value occurs
    for (std::size_t i = 0; i < font.size(); ++i)
        font[i] = static_cast<std::uint8_t>(i * 37 + 11);
    for (std::size_t shift : {0u, 2u, 4u, 28u, 58u}) {
        for (std::size_t begin = 0; begin < 64; ++begin) {
            for (std::size_t end : {begin, begin + 1, begin + 29, begin + 30, begin + 31,
                                    begin + 89, begin + 90, std::size_t{400}}) {
                std::string expected;
                for (std::size_t i = begin; i < end; ++i) {
                    char pair[3];
                    std::snprintf(pair, sizeof pair, "%02X", font[i]);
                    expected += pair + std::string((i + shift) % 30 == 29 ? "\n" : "");
                }
                std::string actual(hexDumpSize(begin, end, shift), '?');
                char* stop = writeHexDump(actual.data(), font.data(), begin, end, shift);
                ASSERT_EQ(static_cast<std::size_t>(stop - actual.data()), actual.size());
                ASSERT_EQ(actual, expected) << begin << ".." << end << " shift " << shift;
            }
        }
    }
}

} // namespace
} // namespace orvan
