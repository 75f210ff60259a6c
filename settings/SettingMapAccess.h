// Reading setting maps: counting rows, translating between item numbers and
// ticket values, finding an item's text key, and turning a map (plus the
// user's input history) into a menu model.
#pragma once

#include "settings/MenuModel.h"
#include "settings/PropertyValue.h"
#include "settings/SettingMap.h"

#include <QString>

#include <cstdint>

namespace orvan {

class Bundle;

// The user's input-history file: history key -> array of earlier entries.
inline const QString kInputHistoryFileName = QStringLiteral("com.orvan.print.inputhistory.plist");

// Rows before the first row whose key is null.
int CountMaps(const _SettingMap* map);

// The ticket value of item `item` (numbered from 1). No gating and no bounds
// check: the caller passes an item number the map has.
std::int32_t UIToTicket(const _SettingMap* map, int item);

// The item number (from 1) of the first row carrying the value whose gate, if
// any, is open (getInstalledFeature equals the row's required state), or -1.
// A row with value 0 ends the search and is itself the answer, whatever value
// was sought (so a map whose first row is 0 always answers 1); a gated row
// that is closed is passed over, so a later row with the same value can match.
int TicketToUI(const _SettingMap* map, std::int32_t value);

// The key of the row TicketToUI finds; null where it answers -1.
const char* LocalizedKeyForTicketValue(const _SettingMap* map, std::int32_t value);

// The text key a row shows: its own key, or for the default row (value
// kUnset) "PrinterDefault" at job context 0 and "UseJobSetting" in any
// other context.
QString MenuTextKeyForRow(const _SettingMap& row, int jobContext);

// Appends the map's rows to the menu: each row's text from the bundle's
// "Localizable" table ("STRING NOT FOUND" when missing or with no bundle),
// its command (commandOverride when not 0), its value as the reference, and a
// separator for the key "-". A gated row whose gate is closed is left out.
// Sets the menu's own reference to the map. Returns the number of rows
// visited, closed gated rows included, so the count can exceed the items
// appended; a map whose first key is null gives 0.
std::uint16_t PopulateMenuFromMap(const Bundle* bundle, MenuModel& menu, const _SettingMap* map,
                                  int jobContext, std::uint32_t commandOverride);

// Empties the menu, then PopulateMenuFromMap: what a pop-up shows; the result
// is the pop-up's maximum.
std::uint16_t PopulatePopupMenuFromMap(const Bundle* bundle, MenuModel& menu,
                                       const _SettingMap* map, int jobContext,
                                       std::uint32_t commandOverride);

// Inserts the history entries into the menu: each string element goes after
// item p, where p starts at firstPosition and grows by one for every element,
// null (and non-string) elements included. Returns count plus the number of
// elements inserted. A history that is not an array inserts nothing.
std::uint16_t InsertHistoryIntoMenu(MenuModel& menu, const PropertyValue& history,
                                    int firstPosition, std::uint32_t historyCommand,
                                    std::uint16_t count);

// The array under the key in the user's input-history file; an empty array
// when the file, the key or the array is missing.
PropertyValue CopyInputHistory(const QString& historyKey);

// PopulatePopupMenuFromMap, then the history under the key inserted from
// firstPosition on. Returns the pop-up's new maximum.
std::uint16_t PopulatePopupMenuFromMapAndHistory(const Bundle* bundle, MenuModel& menu,
                                                 const _SettingMap* map, int jobContext,
                                                 const QString& historyKey, int firstPosition,
                                                 std::uint32_t historyCommand,
                                                 std::uint32_t commandOverride);

} // namespace orvan
