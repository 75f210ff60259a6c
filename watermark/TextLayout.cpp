#include "watermark/TextLayout.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <numbers>

namespace orvan {
namespace {

// Collects the extreme points of glyph outlines (on-curve and control
// points, whose hull holds the curve), turned and scaled to points.
struct OutlineBounds
{
    double scale = 1;            // font units to points
    double cosine = 1, sine = 0; // the turn
    double penX = 0, penY = 0;   // glyph origin, points, y up
    double minX = std::numeric_limits<double>::infinity();
    double maxX = -std::numeric_limits<double>::infinity();
    double minY = minX, maxY = maxX; // y down

    void add(float x, float y)
    {
        const double px = penX + x * scale;
        const double py = penY + y * scale;
        const double tx = px * cosine - py * sine;
        const double ty = -(px * sine + py * cosine);
        minX = std::min(minX, tx);
        maxX = std::max(maxX, tx);
        minY = std::min(minY, ty);
        maxY = std::max(maxY, ty);
    }
    bool empty() const { return minX > maxX; }
};

OutlineBounds& boundsOf(void* data)
{
    return *static_cast<OutlineBounds*>(data);
}

hb_draw_funcs_t* outlinePointFunctions()
{
    static hb_draw_funcs_t* const functions = [] {
        hb_draw_funcs_t* f = hb_draw_funcs_create();
        hb_draw_funcs_set_move_to_func(
            f,
            [](hb_draw_funcs_t*, void* data, hb_draw_state_t*, float x, float y, void*) {
                boundsOf(data).add(x, y);
            },
            nullptr, nullptr);
        hb_draw_funcs_set_line_to_func(
            f,
            [](hb_draw_funcs_t*, void* data, hb_draw_state_t*, float x, float y, void*) {
                boundsOf(data).add(x, y);
            },
            nullptr, nullptr);
        hb_draw_funcs_set_quadratic_to_func(
            f,
            [](hb_draw_funcs_t*, void* data, hb_draw_state_t*, float cx, float cy, float x, float y,
               void*) {
                boundsOf(data).add(cx, cy);
                boundsOf(data).add(x, y);
            },
            nullptr, nullptr);
        hb_draw_funcs_set_cubic_to_func(
            f,
            [](hb_draw_funcs_t*, void* data, hb_draw_state_t*, float c1x, float c1y, float c2x,
               float c2y, float x, float y, void*) {
                boundsOf(data).add(c1x, c1y);
                boundsOf(data).add(c2x, c2y);
                boundsOf(data).add(x, y);
            },
            nullptr, nullptr);
        hb_draw_funcs_make_immutable(f);
        return f;
    }();
    return functions;
}

std::int16_t toInt16(double value)
{
    return static_cast<std::int16_t>(std::clamp(value, -32768.0, 32767.0));
}

} // namespace

ShapedLine ShapeLine(const WatermarkFont& font, const QString& text, double fontSize)
{
    ShapedLine line;
    const HbBuffer buffer(hb_buffer_create());
    hb_buffer_add_utf16(buffer.get(), reinterpret_cast<const std::uint16_t*>(text.utf16()),
                        int(text.size()), 0, int(text.size()));
    hb_buffer_guess_segment_properties(buffer.get());
    hb_shape(font.font.get(), buffer.get(), nullptr, 0);
    unsigned count = 0;
    const hb_glyph_info_t* infos = hb_buffer_get_glyph_infos(buffer.get(), &count);
    const hb_glyph_position_t* positions = hb_buffer_get_glyph_positions(buffer.get(), &count);
    const double scale = fontSize / font.unitsPerEm;
    double penX = 0, penY = 0;
    for (unsigned i = 0; i < count; ++i) {
        line.glyphs.push_back(static_cast<std::uint16_t>(infos[i].codepoint));
        line.positions.emplace_back(penX + positions[i].x_offset * scale,
                                    penY + positions[i].y_offset * scale);
        penX += positions[i].x_advance * scale;
        penY += positions[i].y_advance * scale;
    }
    return line;
}

InkBounds MeasureLine(const WatermarkFont& font, const ShapedLine& line, double fontSize,
                      double angle)
{
    OutlineBounds bounds;
    bounds.scale = fontSize / font.unitsPerEm;
    const double radians = angle * std::numbers::pi / 180.0;
    bounds.cosine = std::cos(radians);
    bounds.sine = std::sin(radians);
    for (std::size_t i = 0; i < line.glyphs.size(); ++i) {
        bounds.penX = line.positions[i].x();
        bounds.penY = line.positions[i].y();
        hb_font_get_glyph_shape(font.font.get(), line.glyphs[i], outlinePointFunctions(), &bounds);
    }
    if (bounds.empty())
        return {};
    return {toInt16(std::floor(bounds.minX)), toInt16(std::floor(bounds.minY)),
            toInt16(std::ceil(bounds.maxX)), toInt16(std::ceil(bounds.maxY))};
}

std::int32_t ToFixed(double value)
{
    const double scaled = std::trunc(double(static_cast<float>(value)) * 65536.0);
    if (std::isnan(scaled))
        return 0;
    return static_cast<std::int32_t>(std::clamp<double>(scaled,
                                                        std::numeric_limits<std::int32_t>::min(),
                                                        std::numeric_limits<std::int32_t>::max()));
}

QPointF LineOrigin(const InkBounds& bounds, QSizeF page, float xOffset, float yOffset)
{
    const int halfWidth = (bounds.left + bounds.right) / 2;
    const int halfHeight = (bounds.top + bounds.bottom) / 2;
    const std::int64_t x =
        std::int64_t{ToFixed(xOffset * 72.0 + page.width() / 2)} - std::int64_t{ToFixed(halfWidth)};
    const std::int64_t y = std::int64_t{ToFixed(yOffset * 72.0 + page.height() / 2)} +
                           std::int64_t{ToFixed(halfHeight)};
    return {double(x) / 65536.0, double(y) / 65536.0};
}

} // namespace orvan
