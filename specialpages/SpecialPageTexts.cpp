#include "specialpages/SpecialPageTexts.h"

#include "printerdesc/InstallableOptions.h"
#include "settings/Bundle.h"
#include "settings/SettingMapAccess.h"
#include "settings/SettingMaps.h"
#include "stock/StockMenus.h"
#include "stock/StockSummary.h"

#include <QStringList>

namespace orvan {

namespace {

QString keyText(const Bundle* bundle, const char* key)
{
    return SpecialPagesText(bundle, QString::fromLatin1(key));
}

QString keyOf(const _SettingMap* map, std::int32_t value)
{
    const char* key = LocalizedKeyForTicketValue(map, value);
    return key ? QString::fromLatin1(key) : QString();
}

// The stock's own attributes as the list shows them: its paper source's
// name, or what is set of size, colour and type.
void appendStockItems(const Bundle* bundle, const Stock& stock, QStringList& items)
{
    if (stock.source() == kInstalledFeatureSource) {
        items << CopyLocalizedStringForInstalledFeatureFromPlugin(kPostPrintInserterFeature, bundle)
                     .value_or(kStringNotFound);
        return;
    }
    if (stock.source() != kUnset)
        return;
    if (stock.size() != kUnset)
        items << StockChoiceText(bundle, "PageSize", stock.size());
    if (stock.color() == kCustomMediaColor)
        items << stock.customColor();
    else if (stock.color() != kUnset)
        items << StockChoiceText(bundle, "MediaColor", stock.color());
    if (stock.type() != kUnset)
        items << StockTypeText(bundle, stock);
}

QString joinedWithStockSummary(const Bundle* bundle, JobContext context, QStringList items,
                               const Stock& stock)
{
    const QString summary = GenerateStockSummary(bundle, context, stock, QStringLiteral(", "));
    if (!summary.isEmpty())
        items << summary;
    return items.join(QStringLiteral(";  "));
}

} // namespace

QString SpecialPagesText(const Bundle* bundle, const QString& key)
{
    return bundle ? bundle->localizedString(key, kStringNotFound, kDefaultStringTable)
                  : kStringNotFound;
}

QString CoverSidesKey(std::int32_t sidesImaged)
{
    // Printed simplex (2) is only in the simplex table.
    const QString key = keyOf(_CoverSidesImagedMap, sidesImaged);
    return key.isEmpty() ? keyOf(_CoverSidesSimplexImagedMap, sidesImaged) : key;
}

QString PlexKey(std::int32_t plex)
{
    return plex == kUnset ? QString() : keyOf(_PlexMap, plex);
}

QString SpecialPagePagesText(const Bundle* bundle, SpecialPageKind kind, const SpecialPage& page)
{
    switch (kind) {
    case SpecialPageKind::FrontCover:
        return keyText(bundle, "SpecialPageSummaryFront");
    case SpecialPageKind::BackCover:
        return keyText(bundle, "SpecialPageSummaryBack");
    case SpecialPageKind::Insert:
        return page.startPage() == 0 ? keyText(bundle, "SpecialPageSummaryBefore1")
                                     : QString::number(page.startPage());
    case SpecialPageKind::ExceptionPage: {
        const auto* exception = dynamic_cast<const ExceptionPage*>(&page);
        const std::int32_t last = exception ? exception->endPage() : page.startPage();
        if (last == page.startPage())
            return QString::number(last);
        return QStringLiteral("%1-%2").arg(page.startPage()).arg(last);
    }
    }
    return QString();
}

QString SpecialPageTypeText(const Bundle* bundle, SpecialPageKind kind)
{
    switch (kind) {
    case SpecialPageKind::FrontCover:
    case SpecialPageKind::BackCover:
        return keyText(bundle, "SpecialPageSummaryCover");
    case SpecialPageKind::Insert:
        return keyText(bundle, "SpecialPageSummaryInsert");
    case SpecialPageKind::ExceptionPage:
        return keyText(bundle, "SpecialPageSummaryException");
    }
    return QString();
}

QString CopySpecialPageSummary(const SpecialPage& page, const Bundle* bundle)
{
    QStringList items;
    const Stock& stock = page.stock();
    if (!stock.customName().isEmpty())
        items << keyText(bundle, "Paper Name Label") + QLatin1Char(' ') + stock.customName();
    if (const auto* cover = dynamic_cast<const Cover*>(&page)) {
        const QString key = CoverSidesKey(cover->sidesImaged());
        if (!key.isEmpty())
            items << SpecialPagesText(bundle, key);
    } else if (const auto* insert = dynamic_cast<const Insert*>(&page)) {
        items << QStringLiteral("%1 [%2]")
                     .arg(keyText(bundle, "InsertSummaryQuantity"))
                     .arg(insert->quantity());
    } else if (const auto* exception = dynamic_cast<const ExceptionPage*>(&page)) {
        const QString key = PlexKey(exception->plex());
        if (!key.isEmpty())
            items << SpecialPagesText(bundle, key);
    }
    appendStockItems(bundle, stock, items);
    return items.join(QStringLiteral("; "));
}

QString CreateInsertAttributesDescription(const Bundle* bundle, const Insert& insert)
{
    const QString quantity = QStringLiteral("%1 %2")
                                 .arg(keyText(bundle, "InsertSummaryQuantity"))
                                 .arg(insert.quantity());
    return joinedWithStockSummary(bundle, JobContext::Inserts, {quantity}, insert.stock());
}

QString CreateExceptionAttributesDescription(const Bundle* bundle, const ExceptionPage& page)
{
    QStringList items;
    const QString plex = PlexKey(page.plex());
    if (!plex.isEmpty())
        items << SpecialPagesText(bundle, plex);
    return joinedWithStockSummary(bundle, JobContext::ExceptionPages, items, page.stock());
}

} // namespace orvan
