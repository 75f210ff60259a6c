#include "host/WatermarkStampSource.h"

#include "settings/PrintSession.h"
#include "watermark/DrawWatermark.h"
#include "watermark/GraphicsHandles.h"
#include "watermark/WatermarkStore.h"

#include <cairo-pdf.h>

namespace orvan {

namespace {

cairo_status_t appendBytes(void* closure, const unsigned char* data, unsigned int length)
{
    static_cast<QByteArray*>(closure)->append(reinterpret_cast<const char*>(data), length);
    return CAIRO_STATUS_SUCCESS;
}

// The record on a page with nothing else on it, so the document shows
// through wherever the watermark does not draw. Text at its density, as the
// panel's preview draws it; empty when nothing could be drawn.
QByteArray drawOnTransparentPage(_WatermarkData record, QSizeF pageSize)
{
    record.isText = record.textString.empty() ? 0 : 1;
    QByteArray bytes;
    WatermarkDrawn drawn = WatermarkDrawn::Nothing;
    {
        const CairoSurface surface(cairo_pdf_surface_create_for_stream(
            appendBytes, &bytes, pageSize.width(), pageSize.height()));
        if (cairo_surface_status(surface.get()) != CAIRO_STATUS_SUCCESS)
            return {};
        const CairoContext context(cairo_create(surface.get()));
        drawn = DrawWatermark(context.get(), pageSize, record,
                              record.isText ? record.density / 100.0 : 1.0);
        cairo_show_page(context.get());
        cairo_surface_finish(surface.get());
    }
    return drawn == WatermarkDrawn::Drawn ? bytes : QByteArray();
}

} // namespace

std::optional<WatermarkStamp> WatermarkChoiceFromSession(const PrintSession& session)
{
    const Ticket& ticket = session.printSettings();
    const QString name = ticket.string(kJobWatermarkKey).value_or(QString());
    if (name.isEmpty())
        return std::nullopt;
    WatermarkStamp stamp;
    switch (ticket.integer(kJobWatermarkOptionKey, NumberType::SInt32).value_or(2)) {
    case 1:
        stamp.layer = WatermarkLayer::Background;
        break;
    case 3:
        stamp.layer = WatermarkLayer::Foreground;
        break;
    default:
        stamp.layer = WatermarkLayer::Blend;
        break;
    }
    stamp.firstPageOnly =
        ticket.integer(kJobWatermarkFirstPageOnlyKey, NumberType::SInt32).value_or(0) != 0;
    return stamp;
}

std::optional<WatermarkStamp> WatermarkStampForSession(const PrintSession& session, QSizeF pageSize)
{
    std::optional<WatermarkStamp> stamp = WatermarkChoiceFromSession(session);
    if (!stamp || pageSize.isEmpty())
        return std::nullopt;
    // The panel matches the ticket's name without regard to case; so does the job.
    const QString wanted = session.printSettings().string(kJobWatermarkKey).value_or(QString());
    QString name = wanted;
    for (const QString& listed : loadWatermarkList(kWatermarkFile).value_or(QStringList()))
        if (listed.compare(wanted, Qt::CaseInsensitive) == 0) {
            name = listed;
            break;
        }
    _WatermarkData record;
    if (!loadWatermarkData(kWatermarkFile, name, record))
        return std::nullopt;
    stamp->pdf = drawOnTransparentPage(std::move(record), pageSize);
    return stamp->pdf.isEmpty() ? std::nullopt : stamp;
}

} // namespace orvan
