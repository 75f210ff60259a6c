#include "settings/PageFormat.h"

#include "settings/Ticket.h"

namespace orvan {

std::optional<QSizeF> PaperSizeFromPageFormat(const Ticket& pageFormat)
{
    const Ticket* paperInfo = pageFormat.subTicket(kPaperInfoTicketKey);
    const PropertyValue* rect = paperInfo ? paperInfo->array(kUnadjustedPaperRectKey) : nullptr;
    if (!rect || rect->size() != 4)
        return std::nullopt;
    double sides[4];
    for (int i = 0; i < 4; ++i) {
        const auto side = rect->asArray()[static_cast<std::size_t>(i)].toReal();
        if (!side)
            return std::nullopt;
        sides[i] = *side;
    }
    const QSizeF size(sides[3] - sides[1], sides[2] - sides[0]);
    if (!(size.width() > 0 && size.height() > 0))
        return std::nullopt;
    return size;
}

void WritePaperToPageFormat(Ticket& pageFormat, const QString& client, const QString& paperName,
                            QSizeF size)
{
    Ticket& paperInfo = pageFormat.ensureSubTicket(kPaperInfoTicketKey);
    PropertyArray rect{PropertyValue::real(0), PropertyValue::real(0),
                       PropertyValue::real(size.height()), PropertyValue::real(size.width())};
    paperInfo.setItem(client, kUnadjustedPaperRectKey, PropertyValue(std::move(rect)));
    paperInfo.setItem(client, kPaperNameKey, PropertyValue(paperName));
}

} // namespace orvan
