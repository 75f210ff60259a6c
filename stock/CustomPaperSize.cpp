#include "stock/CustomPaperSize.h"

#include "printerdesc/PPDAccess.h"
#include "stock/Stock.h"

#include <algorithm>
#include <cmath>

namespace orvan {

namespace {

constexpr double kTenthsPerInch = 254.0; // 2.54 cm
constexpr double kTenthsPerMillimetre = 10.0;
constexpr double kTenthsPerPoint = kTenthsPerInch / 72.0;
// Slack for binary fractions when rounding a limit to a step (8.5 in is
// 2159 tenths exactly, but 2159 / 254 is not exactly 8.5).
constexpr double kEpsilon = 1e-9;

double tenthsPerUnit(PaperSizeUnit unit)
{
    switch (unit) {
    case PaperSizeUnit::Inches:
        return kTenthsPerInch;
    case PaperSizeUnit::Millimetres:
        return kTenthsPerMillimetre;
    }
    return kTenthsPerMillimetre;
}

// Counts of the unit's step in the given tenths.
double stepsOf(std::int32_t tenths, PaperSizeUnit unit)
{
    return tenths / tenthsPerUnit(unit) / PaperSizeUnitStep(unit);
}

} // namespace

double PaperSizeUnitStep(PaperSizeUnit unit)
{
    return unit == PaperSizeUnit::Inches ? 0.1 : 1.0;
}

int PaperSizeUnitDecimals(PaperSizeUnit unit)
{
    return unit == PaperSizeUnit::Inches ? 1 : 0;
}

double TenthsOfMillimetreToUnit(std::int32_t tenths, PaperSizeUnit unit)
{
    return std::round(stepsOf(tenths, unit)) * PaperSizeUnitStep(unit);
}

std::int32_t UnitToTenthsOfMillimetre(double value, PaperSizeUnit unit)
{
    return static_cast<std::int32_t>(std::lround(value * tenthsPerUnit(unit)));
}

CustomPaperSizeLimits CustomPaperSizeLimitsFromPoints(double minimumWidth, double minimumHeight,
                                                      double maximumWidth, double maximumHeight)
{
    const auto up = [](double points) {
        return static_cast<std::int32_t>(std::ceil(points * kTenthsPerPoint - kEpsilon));
    };
    const auto down = [](double points) {
        return static_cast<std::int32_t>(std::floor(points * kTenthsPerPoint + kEpsilon));
    };
    return {up(minimumWidth), up(minimumHeight), down(maximumWidth), down(maximumHeight)};
}

CustomPaperSizeLimits CurrentCustomPaperSizeLimits()
{
    double minimumWidth = 0, minimumHeight = 0, maximumWidth = 0, maximumHeight = 0;
    GetMediaLimits(&minimumWidth, &minimumHeight, &maximumWidth, &maximumHeight);
    return CustomPaperSizeLimitsFromPoints(minimumWidth, minimumHeight, maximumWidth,
                                           maximumHeight);
}

double MinimumInUnit(std::int32_t tenths, PaperSizeUnit unit)
{
    return std::ceil(stepsOf(tenths, unit) - kEpsilon) * PaperSizeUnitStep(unit);
}

double MaximumInUnit(std::int32_t tenths, PaperSizeUnit unit)
{
    return std::floor(stepsOf(tenths, unit) + kEpsilon) * PaperSizeUnitStep(unit);
}

CustomPaperSize InitialCustomPaperSize(std::int32_t width, std::int32_t length,
                                       const CustomPaperSizeLimits& limits)
{
    if (width == kUnset || length == kUnset) {
        width = 2159;
        length = 2794;
    }
    return {
        std::clamp(width, limits.minimumWidth, std::max(limits.minimumWidth, limits.maximumWidth)),
        std::clamp(length, limits.minimumLength,
                   std::max(limits.minimumLength, limits.maximumLength))};
}

} // namespace orvan
