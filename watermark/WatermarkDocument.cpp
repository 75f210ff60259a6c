#include "watermark/WatermarkDocument.h"

#include "watermark/DrawWatermark.h"
#include "watermark/GraphicsHandles.h"
#include "watermark/WatermarkStore.h"

#include <cairo-pdf.h>

#include <cmath>

namespace orvan {
namespace {

cairo_status_t putBytes(void* closure, const unsigned char* data, unsigned int length)
{
    auto& document = *static_cast<MemoryDocument*>(closure);
    return MemoryConsumerPutBytes(document, data, length) == length || length == 0
               ? CAIRO_STATUS_SUCCESS
               : CAIRO_STATUS_WRITE_ERROR;
}

// Initial size of a buffer made here; a text watermark's page is ~15 KB.
constexpr std::size_t kInitialDocumentSize = 32 * 1024;

} // namespace

bool RenderWatermarkDocument(_WatermarkData& record, QSizeF pageSize, MemoryDocument& document,
                             const QString& watermarkFile)
{
    if (!(pageSize.width() > 0 && pageSize.height() > 0) || !std::isfinite(pageSize.width()) ||
        !std::isfinite(pageSize.height()))
        return false;
    if (document.buffer.empty())
        CreateMemoryConsumer(kInitialDocumentSize, document);
    document.cursor = 0;
    const CairoSurface surface(cairo_pdf_surface_create_for_stream(
        putBytes, &document, pageSize.width(), pageSize.height()));
    if (cairo_surface_status(surface.get()) != CAIRO_STATUS_SUCCESS)
        return false;
    {
        const CairoContext context(cairo_create(surface.get()));
        // White, given out of range as it always was; cairo holds colour
        // components to 1.0.
        cairo_set_source_rgba(context.get(), 255.0, 255.0, 255.0, 1.0);
        cairo_rectangle(context.get(), 0, 0, pageSize.width(), pageSize.height());
        cairo_fill(context.get());
        DrawWatermark(context.get(), pageSize, record, WatermarkAlpha(record), watermarkFile);
    }
    cairo_surface_finish(surface.get());
    record.glyphs.reset();
    return cairo_surface_status(surface.get()) == CAIRO_STATUS_SUCCESS;
}

bool renderWatermark(const QString& watermarkFile, const QString& selectedName, QSizeF paperSize,
                     MemoryDocument& document)
{
    _WatermarkData record;
    if (!selectedName.isEmpty() && loadWatermarkData(watermarkFile, selectedName, record) &&
        !record.textString.empty())
        record.isText = 1;
    return RenderWatermarkDocument(record, paperSize, document, watermarkFile);
}

bool renderWatermarkIfNecessary(_WatermarkData& record, const WatermarkEditorValues& values,
                                bool force, MemoryDocument& document, const QString& watermarkFile)
{
    bool changed = false;
    const auto take = [&changed](auto& field, auto value) {
        if (field != value) {
            field = value;
            changed = true;
        }
    };
    take(record.angle, std::int32_t(values.angle));
    take(record.scale, std::int32_t(values.scale));
    take(record.density, std::int32_t(values.density));
    const double perInch = record.units == 1 ? 25.4 : 10.0;
    take(record.xOffset, float(values.xOffsetField / perInch));
    take(record.yOffset, float(values.yOffsetField / perInch));
    if (record.isText == 1) {
        FixedText<kWatermarkTextCapacity> text;
        text.assignTruncated(values.text);
        take(record.textString, text);
    } else if (values.pictureName != record.filename.toString()) {
        changed = true;
    }
    if (!changed && !force)
        return false;
    return RenderWatermarkDocument(record, QSizeF(record.paperWidth, record.paperHeight), document,
                                   watermarkFile);
}

QByteArray RenderWatermarkPdf(_WatermarkData record, QSizeF pageSize)
{
    record.isText = record.textString.empty() ? 0 : 1;
    MemoryDocument document;
    if (!RenderWatermarkDocument(record, pageSize, document))
        return {};
    return document.written();
}

} // namespace orvan
