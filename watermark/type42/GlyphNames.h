// Glyph name tables of the Type 42 writer.
#pragma once

#include <array>
#include <string_view>

namespace orvan {

// The 258 standard Macintosh glyph names of post table format 2.0, by
// standard glyph index. Eleven entries carry older spellings ("CR",
// "plusinus", "mu1", "Ohm", "increment", "nbspace", "guilsingleft",
// "applelogo", "overscore", "Idot", "dmacron"); font programs already stored
// by users were written with them, so they stay as they are.
extern const std::array<std::string_view, 258> _macGlyphEncoding;

// The PostScript StandardEncoding vector by character code, ".notdef" at
// every code it leaves unassigned.
extern const std::array<std::string_view, 256> _StandardEncodings;

} // namespace orvan
