// TrueType to PostScript Type 42 font program conversion.
#pragma once

#include "watermark/type42/SfntData.h"
#include "watermark/type42/Type42Encoding.h"

#include <span>

#include <string>
#include <string_view>

namespace orvan {

enum class Type42Result
{
    Converted,
    // The program stops after the last complete sfnts string: a stretch of
    // 65534 bytes held no break point. Callers keep what was appended.
    CutShort,
    // "maxp", "head", "post" or "name" is missing.
    MissingVitalTable,
    // head.magicNumber is not 0x5F0F3CF5.
    BadMagicNumber,
    // post format 2.0 names a different number of glyphs than maxp.
    GlyphCountMismatch,
    // The name table's format is not 0.
    UnsupportedNameFormat,
    // The file is shorter than its table directory.
    TruncatedDirectory,
    // A table the converter reads extends past the end of the file.
    TableOutOfBounds,
    // A table the converter reads is too short for the fields it must hold.
    TableTooShort,
    // head.unitsPerEm is 0, so the bounding box cannot be scaled.
    ZeroUnitsPerEm,
    // A post format 2.0 name index points past the names the table holds.
    GlyphNameOutOfBounds,
};

// True when the result left the output buffer exactly as it was.
constexpr bool appendsNothing(Type42Result result)
{
    return result != Type42Result::Converted && result != Type42Result::CutShort;
}

// One-line description for users, without a line end.
std::string_view describe(Type42Result result);

// Where the converter's diagnostics go.
enum class Type42Diagnostics
{
    // A missing vital table, a bad magic number or a malformed file is
    // reported on standard error, prefixed "DEBUG: ".
    StandardError,
    // Nothing is printed; the result says what happened.
    Silent,
};

// Appends to `out` the Type 42 program of the TrueType font `font` under the
// PostScript name `postScriptName` (UTF-8, used up to a NUL byte and at most
// 511 bytes of it, cut on a character boundary). On every result for which
// appendsNothing() is true `out` is left untouched; on CutShort it ends after
// the last complete sfnts string. Never reads outside `font`.
Type42Result convertTTFtoPS42(FontBytes font, std::string_view postScriptName, std::string& out,
                              Type42Diagnostics diagnostics = Type42Diagnostics::StandardError);

// One CharStrings entry: a glyph name and the glyph index it draws.
struct Type42Glyph
{
    std::string_view name;
    std::uint16_t glyph = 0;
};

// The same program with the caller's Encoding and CharStrings instead of the
// ones made from the font's post table: what a subset font needs, whose
// glyph names and codes are chosen by its maker. `charStrings` is written in
// order and should start with ".notdef" at glyph 0; names are used as they
// are (the caller gives PostScript name characters).
Type42Result convertTTFtoPS42(FontBytes font, std::string_view postScriptName,
                              const Type42Encoding& encoding,
                              std::span<const Type42Glyph> charStrings, std::string& out,
                              Type42Diagnostics diagnostics = Type42Diagnostics::StandardError);

} // namespace orvan
