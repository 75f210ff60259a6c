// The Encoding vector of a Type 42 font program.
#pragma once

#include <array>
#include <span>
#include <string_view>

namespace orvan {

using Type42Encoding = std::array<std::string_view, 256>;

// Builds the Encoding from StandardEncoding and the font's glyph names (one
// per glyph, by glyph index; may be empty):
//  1. every code whose name no glyph carries takes glyph 0's name;
//  2. every glyph, in order, whose name is not yet in the vector goes to the
//     lowest code from 32 up that reads ".notdef"; when none is left it stays
//     unencoded.
// Names compare byte for byte. The result refers to `glyphNames` and to the
// static name tables.
Type42Encoding buildEncoding(std::span<const std::string_view> glyphNames);

} // namespace orvan
