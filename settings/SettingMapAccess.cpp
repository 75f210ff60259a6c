#include "settings/SettingMapAccess.h"

#include "printerdesc/InstallableOptions.h"
#include "settings/Bundle.h"
#include "settings/Preferences.h"

#include <cstring>

namespace orvan {

namespace {

bool GateIsOpen(const _SettingMap& row)
{
    return !row.featureKey || getInstalledFeature(row.featureKey) == row.requiredState;
}

// The row where a search by value stops and the item number it gives, or -1.
struct ScanResult
{
    const _SettingMap* row;
    int item;
};

ScanResult ScanForTicketValue(const _SettingMap* map, std::int32_t value)
{
    const _SettingMap* row = map;
    int i = 0;
    while (row->ticketValue != 0) {
        if (row->ticketValue == value && GateIsOpen(*row))
            break;
        ++row;
        ++i;
    }
    if (row->key)
        return {row, i + 1};
    return {row, row->ticketValue == 0 ? -1 : i + 1};
}

} // namespace

int CountMaps(const _SettingMap* map)
{
    if (!map)
        return 0;
    int count = 0;
    while (map[count].key)
        ++count;
    return count;
}

std::int32_t UIToTicket(const _SettingMap* map, int item)
{
    return map[item - 1].ticketValue;
}

int TicketToUI(const _SettingMap* map, std::int32_t value)
{
    if (!map)
        return -1;
    return ScanForTicketValue(map, value).item;
}

const char* LocalizedKeyForTicketValue(const _SettingMap* map, std::int32_t value)
{
    if (!map)
        return nullptr;
    const ScanResult found = ScanForTicketValue(map, value);
    return found.item == -1 ? nullptr : found.row->key;
}

QString MenuTextKeyForRow(const _SettingMap& row, int jobContext)
{
    if (row.ticketValue == kUnset)
        return jobContext == 0 ? QStringLiteral("PrinterDefault") : QStringLiteral("UseJobSetting");
    return QString::fromUtf8(row.key);
}

std::uint16_t PopulateMenuFromMap(const Bundle* bundle, MenuModel& menu, const _SettingMap* map,
                                  int jobContext, std::uint32_t commandOverride)
{
    menu.setSourceMap(map);
    if (!map || !map->key)
        return 0;
    std::uint16_t visited = 0;
    for (const _SettingMap* row = map; row->key; ++row, ++visited) {
        if (!GateIsOpen(*row))
            continue;
        MenuItem item;
        item.separator = std::strcmp(row->key, "-") == 0;
        if (item.separator) {
            item.text = QStringLiteral("-");
        } else {
            const QString textKey = MenuTextKeyForRow(*row, jobContext);
            item.text = bundle
                            ? bundle->localizedString(textKey, kStringNotFound, kDefaultStringTable)
                            : kStringNotFound;
        }
        item.commandId = commandOverride != 0 ? commandOverride : row->commandId;
        item.referenceValue = row->ticketValue;
        menu.append(std::move(item));
    }
    return visited;
}

std::uint16_t PopulatePopupMenuFromMap(const Bundle* bundle, MenuModel& menu,
                                       const _SettingMap* map, int jobContext,
                                       std::uint32_t commandOverride)
{
    menu.clear();
    return PopulateMenuFromMap(bundle, menu, map, jobContext, commandOverride);
}

std::uint16_t InsertHistoryIntoMenu(MenuModel& menu, const PropertyValue& history,
                                    int firstPosition, std::uint32_t historyCommand,
                                    std::uint16_t count)
{
    int position = firstPosition;
    for (const PropertyValue& element : history.asArray()) {
        if (element.isString()) {
            menu.insertAfter(position, MenuItem{element.toString(), historyCommand, 0, false});
            ++count;
        }
        ++position;
    }
    return count;
}

PropertyValue CopyInputHistory(const QString& historyKey)
{
    if (historyKey.isEmpty())
        return PropertyValue::array();
    const std::optional<PropertyValue> file = CopyUserPreferences(kInputHistoryFileName);
    if (!file)
        return PropertyValue::array();
    const PropertyValue* history = file->find(historyKey);
    if (!history || !history->isArray())
        return PropertyValue::array();
    return *history;
}

std::uint16_t PopulatePopupMenuFromMapAndHistory(const Bundle* bundle, MenuModel& menu,
                                                 const _SettingMap* map, int jobContext,
                                                 const QString& historyKey, int firstPosition,
                                                 std::uint32_t historyCommand,
                                                 std::uint32_t commandOverride)
{
    const std::uint16_t count =
        PopulatePopupMenuFromMap(bundle, menu, map, jobContext, commandOverride);
    return InsertHistoryIntoMenu(menu, CopyInputHistory(historyKey), firstPosition, historyCommand,
                                 count);
}

} // namespace orvan
