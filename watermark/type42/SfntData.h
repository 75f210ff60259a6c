// Big-endian field access and the table directory of an sfnt (TrueType) file.
#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <span>
#include <string_view>

namespace orvan {

using FontBytes = std::span<const std::uint8_t>;

// Reads a big-endian field at `offset`. The caller has checked that the field
// lies inside `bytes`; these helpers do no checking of their own, so every
// call site sits behind a size test.
inline std::uint16_t readU16(FontBytes bytes, std::size_t offset)
{
    return static_cast<std::uint16_t>(bytes[offset] << 8 | bytes[offset + 1]);
}

inline std::int16_t readS16(FontBytes bytes, std::size_t offset)
{
    return static_cast<std::int16_t>(readU16(bytes, offset));
}

inline std::uint32_t readU32(FontBytes bytes, std::size_t offset)
{
    return std::uint32_t{bytes[offset]} << 24 | std::uint32_t{bytes[offset + 1]} << 16 |
           std::uint32_t{bytes[offset + 2]} << 8 | std::uint32_t{bytes[offset + 3]};
}

// True when `length` bytes from `offset` lie inside a buffer of `size` bytes,
// without overflow for any 64-bit inputs.
constexpr bool fitsIn(std::uint64_t size, std::uint64_t offset, std::uint64_t length)
{
    return offset <= size && length <= size - offset;
}

// The table directory: numTables at 4, 16-byte records from 12.
inline constexpr std::size_t kSfntHeaderSize = 12;
inline constexpr std::size_t kTableRecordSize = 16;

// One record of the table directory, as the file states it (not yet checked
// against the file's length).
struct SfntTable
{
    std::uint32_t offset = 0;
    std::uint32_t length = 0;
};

// Number of directory records that lie wholly inside `font` (at most
// numTables); 0 when the file is too short to hold numTables.
std::size_t readableTableCount(FontBytes font);

// Record `index` of the directory; index < readableTableCount(font).
SfntTable tableRecord(FontBytes font, std::size_t index);

// Finds the first directory record, in directory order, whose tag equals the
// 4-byte `tag`. Searches only records that lie inside `font`; none when
// numTables is 0 or no record matches.
std::optional<SfntTable> find_table(std::string_view tag, FontBytes font);

} // namespace orvan
