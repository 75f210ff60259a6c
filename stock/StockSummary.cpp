#include "stock/StockSummary.h"

#include "printerdesc/InstallableOptions.h"
#include "printerdesc/PPDAccess.h"
#include "settings/Bundle.h"
#include "stock/StockMenus.h"

#include <QStringList>

namespace orvan {

namespace {

const QString kDash = QStringLiteral("- ");

QString withCount(const QString& text, std::int32_t count)
{
    return text + QStringLiteral(" (") + QString::number(count) + QLatin1Char(')');
}

} // namespace

QString StockChoiceText(const Bundle* bundle, const char* mainKeyword, std::int32_t value)
{
    const QString keyword = QString::fromLatin1(mainKeyword);
    const char* choice = PPDChoiceForTicketValue(keyword, value);
    if (!choice)
        return LocalizedStockText(bundle, QStringLiteral("PrinterDefault"));
    const QString choiceName = QString::fromLatin1(choice);
    return PPDCopyChoiceText(PPDGetCurrent(), keyword, choiceName).value_or(choiceName);
}

QString StockTypeText(const Bundle* bundle, const Stock& stock)
{
    switch (stock.type()) {
    case kNamedTabMediaType:
        return withCount(stock.customType(), stock.modulus());
    case kPrecutTabMediaType:
        return withCount(LocalizedStockText(bundle, QStringLiteral("StockTypePrecutTab")),
                         stock.modulus());
    case kNamedMediaType:
        return stock.customType();
    case 24: // TabStock
    case 33: // HeavyTabStock
        if (stock.modulus() > 0)
            return withCount(StockChoiceText(bundle, "MediaType", stock.type()), stock.modulus());
        break;
    default:
        break;
    }
    return StockChoiceText(bundle, "MediaType", stock.type());
}

QString GenerateStockSummary(const Bundle* bundle, JobContext context, const Stock& stock,
                             const QString& separator)
{
    QStringList items;
    const bool job = context == JobContext::Job;
    const QString colon = LocalizedStockText(bundle, QStringLiteral(":"));
    if (stock.source() == kUnset) {
        if (!stock.customName().isEmpty())
            items << LocalizedStockText(bundle, QStringLiteral("StockName")) + colon +
                         stock.customName();
        if (!stock.customNameOnly()) {
            if (stock.size() != kUnset && !job)
                items << kDash + StockChoiceText(bundle, "PageSize", stock.size());
            if (!(stock.color() == kUnset && !job)) {
                if (stock.color() == kCustomMediaColor)
                    items << LocalizedStockText(bundle, QStringLiteral("StockColor")) + colon +
                                 stock.customColor();
                else
                    items << kDash + StockChoiceText(bundle, "MediaColor", stock.color());
            }
            if (!(stock.type() == kUnset && !job))
                items << kDash + StockTypeText(bundle, stock);
        }
    } else if (stock.source() == kInstalledFeatureSource) {
        items << kDash + CopyLocalizedStringForInstalledFeatureFromPlugin(kPostPrintInserterFeature,
                                                                          bundle)
                             .value_or(kStringNotFound);
    }
    return items.join(separator);
}

QString StockSummaryText(const Bundle* bundle, const Stock* stock, JobContext context)
{
    if (!stock)
        return QString();
    const QString summary = GenerateStockSummary(bundle, context, *stock, QStringLiteral("\n"));
    if (!summary.isEmpty())
        return summary;
    return LocalizedStockText(bundle, context == JobContext::Job ? QStringLiteral("PrinterDefault")
                                                                 : QStringLiteral("UseJobSetting"));
}

} // namespace orvan
