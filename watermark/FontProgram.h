// Font programs for the printing side: the watermark's font (or a subset of
// it holding the watermark's glyphs) as a Type 42 program, stored in the
// watermark file.
#pragma once

#include "watermark/WatermarkData.h"

#include <QByteArray>
#include <QString>

#include <optional>
#include <span>

namespace orvan {

// "QV-<PostScript name>-QV"
QString SubsetFontName(const QString& postScriptName);

// A Type 42 program named `subsetName` of the font `postScriptName` holding
// `glyphs` (glyph ids kept as in the font) with the encoding: glyph
// glyphs[i] at code i for the first 256, every other code glyph 0. Empty when
// the font can't be found, read or subset. Glyphs that a character of `text`
// maps to are named "uniXXXX" after it, so text extraction recovers the
// text; others are named "g<id>".
QByteArray MakeSubsetFontProgram(const QString& postScriptName, const QString& subsetName,
                                 std::span<const std::uint16_t> glyphs, const QString& text = {});

// Makes and stores the font program of the saved text watermark `name`:
// the subset program under its subset font name, which is returned. On
// systems older than 10.4 the whole font's program is stored under the
// PostScript name instead, and no subset name is returned. Nothing for a
// picture watermark or a font that can't be found or subset.
std::optional<QString> convertFont(const QString& watermarkFile, const QString& name);

} // namespace orvan
