// What a Type 42 program needs from a TrueType file, read and checked.
#pragma once

#include "watermark/type42/SfntData.h"
#include "watermark/type42/Type42Converter.h"

#include <cstdint>
#include <string_view>
#include <vector>

namespace orvan {

struct Type42Font
{
    FontBytes bytes;
    std::uint32_t version = 0;  // head, 16.16 fixed
    std::uint32_t revision = 0; // head, 16.16 fixed
    std::uint32_t minMemType42 = 0;
    std::uint32_t maxMemType42 = 0;
    std::uint16_t unitsPerEm = 0;
    std::int16_t xMin = 0, yMin = 0, xMax = 0, yMax = 0;
    std::uint16_t numGlyphs = 0;
    // Glyph names by glyph index, only for post format 2.0; each is used up
    // to its first NUL byte, as the names are C strings in the program.
    bool hasGlyphNames = false;
    std::vector<std::string_view> glyphNames;
    // Where sfnts strings may end: every table's offset in directory order,
    // then the start of each glyph whose loca offset is a multiple of 4.
    std::vector<std::uint64_t> breakPoints;
    // How many of breakPoints are table offsets, and whether the glyph starts
    // after them ascend (they do in any font whose loca is well formed).
    std::size_t tableBreakPoints = 0;
    bool glyphStartsAscend = true;
};

// The largest break point b of `font` with from < b <= from + reach; 0 when
// there is none.
std::uint64_t lastBreakPointWithin(const Type42Font& font, std::uint64_t from, std::uint64_t reach);

// Reads `bytes` into `font`. Returns Converted when the font can be written;
// otherwise the first failure, in the order: directory, vital tables, table
// extents and sizes, magic number, post glyph count and names, name format,
// unitsPerEm, loca size. `font` refers to `bytes`, which must outlive it.
Type42Result readType42Font(FontBytes bytes, Type42Font& font);

} // namespace orvan
