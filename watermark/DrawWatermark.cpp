#include "watermark/DrawWatermark.h"

#include "watermark/GraphicsHandles.h"
#include "watermark/TextLayout.h"
#include "watermark/WatermarkStore.h"

#include <QImage>

#include <algorithm>
#include <cmath>
#include <cstring>
#include <numbers>

namespace orvan {
namespace {

// The picture as a cairo surface of its own (a PDF keeps its sources until
// the page ends, so the pixels must not belong to the QImage).
CairoSurface pictureSurface(const QImage& picture)
{
    const QImage pixels = picture.convertToFormat(QImage::Format_ARGB32_Premultiplied);
    CairoSurface surface(
        cairo_image_surface_create(CAIRO_FORMAT_ARGB32, pixels.width(), pixels.height()));
    if (cairo_surface_status(surface.get()) != CAIRO_STATUS_SUCCESS)
        return nullptr;
    cairo_surface_flush(surface.get());
    unsigned char* data = cairo_image_surface_get_data(surface.get());
    const int stride = cairo_image_surface_get_stride(surface.get());
    for (int row = 0; row < pixels.height(); ++row)
        std::memcpy(data + std::ptrdiff_t(row) * stride, pixels.constScanLine(row),
                    std::size_t(pixels.width()) * 4);
    cairo_surface_mark_dirty(surface.get());
    return surface;
}

WatermarkDrawn drawPicture(cairo_t* context, QSizeF page, const _WatermarkData& record)
{
    if (record.filename.empty())
        return WatermarkDrawn::Nothing;
    const QImage picture(record.filePath.toString());
    if (picture.isNull())
        return WatermarkDrawn::PictureUnreadable;
    const float width = float(picture.width()) * float(record.scale) / 100.0f;
    const float height = float(picture.height()) * float(record.scale) / 100.0f;
    if (!(width > 0 && height > 0) || !std::isfinite(width) || !std::isfinite(height))
        return WatermarkDrawn::Nothing;
    const CairoSurface surface = pictureSurface(picture);
    if (!surface)
        return WatermarkDrawn::PictureUnreadable;
    // Centred on the page; the page's y axis points down here.
    const double left = page.width() / 2 - width / 2.0;
    const double top = page.height() / 2 - height / 2.0;
    cairo_save(context);
    cairo_translate(context, left, top);
    cairo_scale(context, width / picture.width(), height / picture.height());
    cairo_set_source_surface(context, surface.get(), 0, 0);
    cairo_paint(context);
    cairo_restore(context);
    return WatermarkDrawn::Drawn;
}

double unit(float component)
{
    return std::isnan(component) ? 0.0 : std::clamp(double(component), 0.0, 1.0);
}

WatermarkDrawn drawText(cairo_t* context, QSizeF page, _WatermarkData& record, double alpha,
                        const QString& saveToFile)
{
    if (record.fontSize <= 0)
        return WatermarkDrawn::Nothing;
    const std::shared_ptr<const WatermarkFont> font = OpenWatermarkFont(record.fontName.toString());
    if (!font)
        return WatermarkDrawn::FontMissing;
    const double fontSize = record.fontSize;
    const ShapedLine line = ShapeLine(*font, record.textString.toString(), fontSize);
    if (line.glyphs.empty())
        return WatermarkDrawn::FontMissing;
    const InkBounds bounds = MeasureLine(*font, line, fontSize, record.angle);
    const QPointF origin = LineOrigin(bounds, page, record.xOffset, record.yOffset);

    std::vector<cairo_glyph_t> glyphs(line.glyphs.size());
    for (std::size_t i = 0; i < glyphs.size(); ++i)
        glyphs[i] = {line.glyphs[i], line.positions[i].x(), -line.positions[i].y()};
    cairo_save(context);
    cairo_translate(context, origin.x(), page.height() - origin.y());
    cairo_rotate(context, -record.angle * std::numbers::pi / 180.0);
    cairo_set_font_face(context, font->cairoFace.get());
    cairo_set_font_size(context, fontSize);
    cairo_set_source_rgba(context, unit(record.wellColorRed), unit(record.wellColorGreen),
                          unit(record.wellColorBlue),
                          unit(record.wellColorAlpha) * std::clamp(alpha, 0.0, 1.0));
    cairo_show_glyphs(context, glyphs.data(), int(glyphs.size()));
    cairo_restore(context);

    record.glyphs = line.glyphs;
    record.glyphCount = static_cast<std::int32_t>(line.glyphs.size());
    record.xPos = origin.x();
    record.yPos = origin.y();
    if (!saveToFile.isEmpty())
        saveWatermarkData(saveToFile, record);
    return WatermarkDrawn::Drawn;
}

} // namespace

WatermarkDrawn DrawWatermark(cairo_t* context, QSizeF pageSize, _WatermarkData& record,
                             double alpha, const QString& saveToFile)
{
    if (!context || cairo_status(context) != CAIRO_STATUS_SUCCESS || !pageSize.isValid())
        return WatermarkDrawn::Nothing;
    if (record.textString.empty())
        return drawPicture(context, pageSize, record);
    return drawText(context, pageSize, record, alpha, saveToFile);
}

} // namespace orvan
