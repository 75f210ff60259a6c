// The stock menu of a stock button: size, colour and type submenus filled
// from the printer description's "PageSize", "MediaColor" and "MediaType"
// choices, and the commands that act on the stock. Each item carries its
// command and the value it applies; StockCommands.h does the rest.
#pragma once

#include "settings/MenuModel.h"
#include "settings/SettingMap.h"
#include "stock/Stock.h"

#include <cstdint>
#include <optional>
#include <vector>

namespace orvan {

class Bundle;

inline constexpr std::uint32_t kStockSizeCommand = FourCharCode("Ssiz");
inline constexpr std::uint32_t kStockColorCommand = FourCharCode("Sclr");
inline constexpr std::uint32_t kStockTypeCommand = FourCharCode("Styp");
inline constexpr std::uint32_t kStockDefaultCommand = FourCharCode("Sdef");
inline constexpr std::uint32_t kStockAdvancedCommand = FourCharCode("Sadv");
inline constexpr std::uint32_t kStockSourceCommand = FourCharCode("Ssrc");

// The installed feature whose paper a special page may take instead of a tray.
inline constexpr char kPostPrintInserterFeature[] = "PostPrintInserterKey";

// One item of a stock menu; items that open a submenu carry it.
struct StockMenuEntry
{
    MenuItem item;
    std::optional<MenuModel> submenu;
};
using StockMenu = std::vector<StockMenuEntry>;

// True for the contexts of a special page's stock (covers, inserts,
// exception pages), whose menus offer "UseJobSetting".
bool IsSpecialPageContext(JobContext context);

// The localised text of a stock key in the bundle's default table,
// "STRING NOT FOUND" when missing or without a bundle.
QString LocalizedStockText(const Bundle* bundle, const QString& key);

// Each fills the submenu from the current PPD's choices of its main keyword
// with its command ('Ssiz', 'Sclr', 'Styp'), each item's value being the
// choice's ticket value. In special-page contexts the first item reads
// "UseJobSetting" with the unset value, and the colour menu leaves out
// "Unspecified" (22), the type menu "SystemDefault" (23). Without a PPD only
// the "UseJobSetting" item (if any) is there. Returns the item count.
int PopulateStockSizeMenu(MenuModel& menu, const Bundle* bundle, JobContext context);
int PopulateStockColorMenu(MenuModel& menu, const Bundle* bundle, JobContext context);
int PopulateStockTypeMenu(MenuModel& menu, const Bundle* bundle, JobContext context);

// Empties the menu and appends "OtherColor" (colour submenu), "OtherType"
// (type submenu) and two separators; for covers and inserts, when the
// post-print inserter is installed, also an item with the feature's name,
// command 'Ssrc' and value 10.
void PopulateStockMenu(StockMenu& menu, const Bundle* bundle, JobContext context);

// What a stock button shows: "PaperSize" with the size submenu, the stock
// menu above, then a separator, "DefaultStock" ('Sdef') and
// "AdvancedStockSelectionMenu" ('Sadv').
void PopulateStockButtonMenu(StockMenu& menu, const Bundle* bundle, JobContext context);

} // namespace orvan
