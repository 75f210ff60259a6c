#include "paperoutput/Separators.h"

#include "printerdesc/PPDAccess.h"
#include "settings/Bundle.h"
#include "settings/SettingMapAccess.h"
#include "settings/SettingMaps.h"
#include "settings/Ticket.h"

namespace orvan {

void SyncSeparatorsFromTicket(const Ticket& ticket, PaperOutputRecord& record)
{
    if (const auto option = ticket.integer(kSeparatorOptionKey);
        option && *option >= kSeparatorNone && *option <= kSeparatorPrinted)
        record.separatorOption = static_cast<std::int32_t>(*option);
    if (const PropertyValue* stock = ticket.dictionary(kSeparatorColorKey))
        record.separatorStock = Stock(stock);
}

Status SyncSeparatorsToTicket(Ticket& ticket, const PaperOutputRecord& record)
{
    const Status status = ticket.setItem(kPanelClient, kSeparatorOptionKey,
                                         PropertyValue::integer(record.separatorOption));
    const Status stockStatus =
        ticket.setItem(kPanelClient, kSeparatorColorKey, record.separatorStock.asTicket());
    return status ? status : stockStatus;
}

QString AppendSeparatorSummary(const Bundle* bundle, const PaperOutputRecord& record)
{
    if (record.jobLevelStock.type() != kTransparencyMediaType)
        return {};
    const auto text = [bundle](const QString& key) {
        return bundle ? bundle->localizedString(key, QStringLiteral("STRING NOT FOUND"),
                                                kDefaultStringTable)
                      : QStringLiteral("STRING NOT FOUND");
    };
    const char* optionKey = LocalizedKeyForTicketValue(_SeparatorOptionMap, record.separatorOption);
    QString value = optionKey ? text(QString::fromLatin1(optionKey))
                              : text(QStringLiteral("Separator Option None"));
    if (record.separatorOption != kSeparatorNone && record.separatorStock.color() != kUnset) {
        if (const char* choice =
                PPDChoiceForTicketValue(kMediaColorKeyword, record.separatorStock.color())) {
            const QString colour =
                PPDCopyChoiceText(PPDGetCurrent(), kMediaColorKeyword, QString::fromLatin1(choice))
                    .value_or(QString::fromLatin1(choice));
            value += QStringLiteral(", ") + colour;
        }
    }
    return text(QStringLiteral("Separator Summary")).arg(value);
}

} // namespace orvan
