// Laying out a watermark's line of text: shaping, the ink bounds of the
// turned line, and the origin that centres them on the page.
#pragma once

#include "watermark/WatermarkFont.h"

#include <QPointF>
#include <QSizeF>
#include <QString>

#include <cstdint>
#include <vector>

namespace orvan {

struct ShapedLine
{
    std::vector<std::uint16_t> glyphs;
    // Each glyph's origin in points, pen at (0, 0), y up.
    std::vector<QPointF> positions;
};

ShapedLine ShapeLine(const WatermarkFont& font, const QString& text, double fontSize);

// Ink bounds of the line turned `angle` degrees counter-clockwise about the
// pen at (0, 0), in whole points in a y-down space (top is above the
// baseline, so negative), rounded outward and held to 16-bit integers. All
// zero for a line without ink.
struct InkBounds
{
    std::int16_t left = 0, top = 0, right = 0, bottom = 0;
};

InkBounds MeasureLine(const WatermarkFont& font, const ShapedLine& line, double fontSize,
                      double angle);

// The 16.16 fixed value of a real: rounded to single precision, times 65536,
// truncated (held to the range of the type).
std::int32_t ToFixed(double value);

// Where to put the pen (points, y up) so the centre of `bounds` lands on the
// page centre moved by the offsets (inches), computed in 16.16 fixed point
// with the bounds' halves divided as integers (toward zero).
QPointF LineOrigin(const InkBounds& bounds, QSizeF page, float xOffset, float yOffset);

} // namespace orvan
