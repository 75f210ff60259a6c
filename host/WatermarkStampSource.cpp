#include "host/WatermarkStampSource.h"

#include "settings/PrintSession.h"

namespace orvan {

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
    (void)pageSize; // drawn once the watermark store is merged
    return stamp && !stamp->pdf.isEmpty() ? stamp : std::nullopt;
}

} // namespace orvan
