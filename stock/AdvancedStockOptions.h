// The stock attributes the advanced stock selection dialog edits beyond
// size, colour and type: weight, punching, coating, finish, grain, the
// user's colour and type names with the tab count, description and comment.
// The dialog works on these values and applies them to the stock on OK.
#pragma once

#include "settings/SettingMap.h"
#include "stock/Stock.h"

#include <QString>

#include <cstdint>

namespace orvan {

// Menus of the attributes. The first row of each but the coating type is
// the unset value ("PrinterDefault" for the job, "UseJobSetting" for a
// special page).
extern const _SettingMap _StockPunchedMap[];     // 1 not punched, 2 pre-punched
extern const _SettingMap _StockSidesCoatedMap[]; // 0 none, 1 front, 2 back, 3 both
extern const _SettingMap _StockCoatingTypeMap[]; // 1 gloss, 2 matte, 3 satin
extern const _SettingMap _StockFinishMap[];      // 1 smooth, 2 vellum, 3 linen, 4 laid
extern const _SettingMap _StockGrainMap[];       // 1 long, 2 short

// Weight in grams per square metre; 0 in the dialog stands for unset.
inline constexpr std::int32_t kMaximumStockWeight = 400;
// Most tabs in a tab-stock set.
inline constexpr std::int32_t kMaximumTabCount = 99;

struct AdvancedStockValues
{
    std::int32_t weight = kUnset;
    std::int32_t punched = kUnset;
    std::int32_t sidesCoated = kUnset;
    std::int32_t coatingType = 1;
    std::int32_t finish = kUnset;
    std::int32_t grain = kUnset;
    // A colour name makes the colour custom (10).
    QString colorName;
    // A type name makes the type user-named: a tab stock (6) with a tab
    // count above 0, else a plain named type (7).
    QString typeName;
    // Tabs in a set, 0 for none; kept for the tab types (4, 6, 24, 33).
    std::int32_t tabCount = 0;
    QString description;
    QString comment;

    friend bool operator==(const AdvancedStockValues&, const AdvancedStockValues&) = default;
};

// The values as the stock holds them (names only when the colour or type
// uses them).
AdvancedStockValues AdvancedStockValuesOf(const Stock& stock);

// Writes the values into the stock. Emptying a name that the colour or type
// used falls back to White / Standard for the job and to unset (inherited)
// for a special page.
void ApplyAdvancedStockValues(Stock& stock, const AdvancedStockValues& values, JobContext context);

// True for the types whose summary shows a tab count.
bool IsTabMediaType(std::int32_t type);

} // namespace orvan
