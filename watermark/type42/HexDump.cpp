#include "watermark/type42/HexDump.h"

#include <array>
#include <cstring>

#if defined(__SSE2__)
#include <emmintrin.h>
#endif

namespace orvan {
namespace {

// Both digits of every byte value, so that a byte costs one load and one
// two-byte store.
constexpr std::array<char, 512> kHexPairs = [] {
    constexpr char digits[] = "0123456789ABCDEF";
    std::array<char, 512> pairs{};
    for (std::size_t value = 0; value < 256; ++value) {
        pairs[2 * value] = digits[value >> 4];
        pairs[2 * value + 1] = digits[value & 15];
    }
    return pairs;
}();

inline char* writePairs(char* out, const std::uint8_t* bytes, std::size_t count)
{
    for (std::size_t i = 0; i < count; ++i)
        std::memcpy(out + 2 * i, &kHexPairs[2 * std::size_t{bytes[i]}], 2);
    return out + 2 * count;
}

#if defined(__SSE2__)
// Sixteen bytes to thirty-two digits: split into nibbles, interleave them
// high before low, then map 0-9 to '0'-'9' and 10-15 to 'A'-'F'.
inline void writeSixteen(char* out, const std::uint8_t* bytes)
{
    const __m128i lowNibbles = _mm_set1_epi8(0x0F);
    const __m128i value = _mm_loadu_si128(reinterpret_cast<const __m128i*>(bytes));
    const __m128i low = _mm_and_si128(value, lowNibbles);
    const __m128i high = _mm_and_si128(_mm_srli_epi16(value, 4), lowNibbles);
    const auto toDigits = [](__m128i nibbles) {
        const __m128i letters = _mm_cmpgt_epi8(nibbles, _mm_set1_epi8(9));
        return _mm_add_epi8(_mm_add_epi8(nibbles, _mm_set1_epi8('0')),
                            _mm_and_si128(letters, _mm_set1_epi8('A' - '0' - 10)));
    };
    _mm_storeu_si128(reinterpret_cast<__m128i*>(out), toDigits(_mm_unpacklo_epi8(high, low)));
    _mm_storeu_si128(reinterpret_cast<__m128i*>(out + 16), toDigits(_mm_unpackhi_epi8(high, low)));
}

// One full line: bytes 0-15, then 14-29 (the overlap rewrites four digits
// with the same values), then the line feed.
inline char* writeLine(char* out, const std::uint8_t* bytes)
{
    static_assert(kHexBytesPerLine == 30);
    writeSixteen(out, bytes);
    writeSixteen(out + 28, bytes + 14);
    out[2 * kHexBytesPerLine] = '\n';
    return out + 2 * kHexBytesPerLine + 1;
}
#else
// One full line: a fixed trip count the compiler unrolls.
inline char* writeLine(char* out, const std::uint8_t* bytes)
{
    for (std::size_t i = 0; i < kHexBytesPerLine; ++i)
        std::memcpy(out + 2 * i, &kHexPairs[2 * std::size_t{bytes[i]}], 2);
    out[2 * kHexBytesPerLine] = '\n';
    return out + 2 * kHexBytesPerLine + 1;
}
#endif

// Bytes from `begin` up to and including the first one followed by a line feed.
std::size_t firstLineLength(std::size_t begin, std::size_t shift)
{
    const std::size_t phase = (begin + shift) % kHexBytesPerLine;
    return kHexBytesPerLine - phase;
}

} // namespace

std::size_t hexDumpSize(std::size_t begin, std::size_t end, std::size_t shift)
{
    if (end <= begin)
        return 0;
    const std::size_t count = end - begin;
    const std::size_t first = firstLineLength(begin, shift);
    const std::size_t lineFeeds = count < first ? 0 : 1 + (count - first) / kHexBytesPerLine;
    return 2 * count + lineFeeds;
}

char* writeHexDump(char* out, const std::uint8_t* font, std::size_t begin, std::size_t end,
                   std::size_t shift)
{
    if (end <= begin)
        return out;
    std::size_t i = begin;
    const std::size_t first = firstLineLength(begin, shift);
    if (end - i < first)
        return writePairs(out, font + i, end - i);
    out = writePairs(out, font + i, first);
    *out++ = '\n';
    i += first;
    while (end - i >= kHexBytesPerLine) {
        out = writeLine(out, font + i);
        i += kHexBytesPerLine;
    }
    return writePairs(out, font + i, end - i);
}

} // namespace orvan
