// The numbers behind the custom paper size dialog: a stock keeps its custom
// width and length in tenths of a millimetre; the dialog shows them in
// inches to a tenth or in whole millimetres, within the printer's custom
// page size limits.
#pragma once

#include <cstdint>

namespace orvan {

enum class PaperSizeUnit
{
    Inches,
    Millimetres,
};

// The unit's step and decimals as the dialog shows them: 0.1 in, 1 mm.
double PaperSizeUnitStep(PaperSizeUnit unit);
int PaperSizeUnitDecimals(PaperSizeUnit unit);

// Tenths of a millimetre to the unit, rounded to the unit's step
// (2159 -> 8.5 in, 215.9 -> 216 mm).
double TenthsOfMillimetreToUnit(std::int32_t tenths, PaperSizeUnit unit);
// The reverse, rounded to the nearest tenth of a millimetre (8.5 in -> 2159).
std::int32_t UnitToTenthsOfMillimetre(double value, PaperSizeUnit unit);

// The custom size limits in tenths of a millimetre.
struct CustomPaperSizeLimits
{
    std::int32_t minimumWidth;
    std::int32_t minimumLength;
    std::int32_t maximumWidth;
    std::int32_t maximumLength;
};

// From points (1/72 inch) to tenths of a millimetre, minima rounded up and
// maxima down so that every size inside the result is inside the limits.
CustomPaperSizeLimits CustomPaperSizeLimitsFromPoints(double minimumWidth, double minimumHeight,
                                                      double maximumWidth, double maximumHeight);
// The current printer's limits (GetMediaLimits).
CustomPaperSizeLimits CurrentCustomPaperSizeLimits();

// A limit in the unit, kept inside the limits after rounding to the step:
// minima rounded up, maxima down.
double MinimumInUnit(std::int32_t tenths, PaperSizeUnit unit);
double MaximumInUnit(std::int32_t tenths, PaperSizeUnit unit);

// The width and length the dialog starts with: the stock's when both are
// set, Letter (2159 x 2794) otherwise, each brought inside the limits.
struct CustomPaperSize
{
    std::int32_t width;
    std::int32_t length;
};
CustomPaperSize InitialCustomPaperSize(std::int32_t width, std::int32_t length,
                                       const CustomPaperSizeLimits& limits);

} // namespace orvan
