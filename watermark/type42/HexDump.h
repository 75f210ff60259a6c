// The hexadecimal body of one sfnts string: the hot loop of the Type 42 writer.
#pragma once

#include <cstddef>
#include <cstdint>

namespace orvan {

// Bytes a line of the dump holds; a line feed follows the byte at file
// position i when (i + shift) % kHexBytesPerLine == kHexBytesPerLine - 1.
inline constexpr std::size_t kHexBytesPerLine = 30;

// Number of characters writeHexDump produces for `font[begin, end)`.
std::size_t hexDumpSize(std::size_t begin, std::size_t end, std::size_t shift);

// Writes font[begin, end) as pairs of upper-case hexadecimal digits to `out`,
// with the line feeds placed as described above, and returns the end of what
// it wrote. `out` must have room for hexDumpSize(begin, end, shift) chars.
char* writeHexDump(char* out, const std::uint8_t* font, std::size_t begin, std::size_t end,
                   std::size_t shift);

} // namespace orvan
