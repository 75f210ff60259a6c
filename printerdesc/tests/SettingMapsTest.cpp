// Setting maps: their texts, the lookups by item and by value with their
// gates, menus built from them, and input history in menus.
#include "PpdTestSupport.h"

#include "settings/Bundle.h"
#include "settings/SettingMapAccess.h"
#include "settings/SettingMaps.h"

namespace orvan {

void PrintTo(const MenuItem& item, std::ostream* os)
{
    *os << '{' << item.text.toStdString() << ", " << item.commandId << ", " << item.referenceValue
        << (item.separator ? ", separator}" : "}");
}

namespace {

using testing::InstalledOptionsGuard;
using testing::kSamplePpd;
using testing::WriteSampleVariant;

TEST(SettingMapLookup, ScanRules)
{
    InstalledOptionsGuard nothingInstalled;
    constexpr _SettingMap zeroInTheMiddle[] = {
        {"One", 1, 0, nullptr, 0}, {"Stop", 0, 0, nullptr, 0}, {"Two", 2, 0, nullptr, 0}, {}};
    const auto qujn = static_cast<std::int32_t>(FourCharCode("Qujn"));
    const std::tuple<const char*, const _SettingMap*, std::int32_t, int, const char*> cases[] = {
        // clang-format off
        {"plain match", _PlexMap, 2, 2, "Duplex"},
        {"no such value", _PlexMap, 9, -1, nullptr},
        {"0 sought, no zero row", _PlexMap, 0, -1, nullptr},
        {"a separator counts as an item", _WatermarkOptionsMap, 4, 5, "WatermarkPrintOnAllPages"},
        {"first row 0 answers any value", _OutputOptionsMap, 77, 1, "Face Down"},
        {"same value in every row: the first wins", _OPIPrescanMap, qujn, 1, "PrinterDefault"},
        {"a value-0 row ends the search", zeroInTheMiddle, 2, 2, "Stop"},
        {"rows before it still match", zeroInTheMiddle, 1, 1, "One"},
        // clang-format on
    };
    for (const auto& [what, map, value, item, key] : cases) {
        EXPECT_EQ(TicketToUI(map, value), item) << what;
        EXPECT_STREQ(LocalizedKeyForTicketValue(map, value), key) << what;
    }
    EXPECT_EQ(UIToTicket(_JobTypeMap, 5), 3) << "no gating by item";
}

// A gated row counts only when its installed option is in the row's state; a
// later row with the same value can then match.
TEST(SettingMapLookup, GatesFollowTheInstalledOptions)
{
    constexpr _SettingMap gated[] = {{"Gated", 3, 0, "JobStorage", 1},
                                     {"Fallback", 3, 0, nullptr, 0},
                                     {"NeedsMissing", 4, 0, "JobStorage", 0},
                                     {}};
    QTemporaryDir folder;
    const QString noStorage = WriteSampleVariant(folder, {{"Option8", "False"}});
    const std::tuple<const char*, QString, const _SettingMap*, std::int32_t, int, const char*>
        cases[] = {
            // clang-format off
        {"job storage installed", kSamplePpd, _JobTypeMap, 3, 5, "SavedJob"},
        {"no job storage: the terminator follows", noStorage, _JobTypeMap, 3, -1, nullptr},
        {"a closed gate does not hide the fax row", noStorage, _JobTypeMap, 5, 6, "Fax"},
        {"nothing loaded", {}, _JobTypeMap, 3, -1, nullptr},
        {"gate closed: the later row", {}, gated, 3, 2, "Fallback"},
        {"state 0 shows when the feature is absent", {}, gated, 4, 3, "NeedsMissing"},
        {"gate open: the gated row", kSamplePpd, gated, 3, 1, "Gated"},
        {"state 0 hidden when present", kSamplePpd, gated, 4, -1, nullptr},
            // clang-format on
        };
    for (const auto& [what, ppd, map, value, item, key] : cases) {
        InstalledOptionsGuard options(ppd);
        EXPECT_EQ(TicketToUI(map, value), item) << what;
        EXPECT_STREQ(LocalizedKeyForTicketValue(map, value), key) << what;
    }
}

constexpr std::uint32_t kRowCommand = FourCharCode("Wnew"), kOverride = FourCharCode("Sclr");

// A row of every kind: its own command, a separator, a default row, a key
// without a text, a row gated on job storage.
constexpr _SettingMap kRowKinds[] = {{"PrinterDefault", -7, kRowCommand, nullptr, 0},
                                     {"-", -5, 0, nullptr, 0},
                                     {"Ignored", kUnset, 0, nullptr, 0},
                                     {"NoSuchKeyAnywhere", 2, 0, nullptr, 0},
                                     {"SavedJob", 3, 0, "JobStorage", 1},
                                     {}};

// (How each kind of row shows: PopupMenusTest.) The plain form appends, the
// pop-up form starts afresh; an override replaces every command.
TEST(MapMenus, AppendedOrRebuiltWithTheirCommands)
{
    const Bundle bundle(ORVAN_PLUGIN_DIR, "en");
    InstalledOptionsGuard nothingInstalled;
    MenuModel menu;
    menu.append({"kept", 0, 0, false});
    EXPECT_EQ(PopulateMenuFromMap(&bundle, menu, kRowKinds, 0, 0), 5);
    EXPECT_EQ(menu.sourceMap(), kRowKinds);
    ASSERT_EQ(menu.count(), 5);
    EXPECT_EQ(*menu.item(2),
              (MenuItem{"Printer Default", kRowCommand, -7, false})); // items count from 1
    EXPECT_EQ(PopulatePopupMenuFromMap(&bundle, menu, kRowKinds, 3, kOverride), 5);
    ASSERT_EQ(menu.count(), 4);
    for (const MenuItem& item : menu.items())
        EXPECT_EQ(item.commandId, kOverride);
    constexpr _SettingMap empty[] = {{}};
    EXPECT_EQ(PopulatePopupMenuFromMap(&bundle, menu, empty, 0, 0), 0);
    EXPECT_TRUE(menu.isEmpty());
    EXPECT_EQ(menu.sourceMap(), empty);
}

// Each history entry goes after a position that every element moves on,
// null ones too.
TEST(MapMenus, HistoryPositionsGrowForNullElementsToo)
{
    MenuModel menu;
    for (int i = 1; i <= 4; ++i)
        menu.append({QString::number(i), 0, i, false});
    PropertyValue history = PropertyValue::array();
    for (const PropertyValue& element : {PropertyValue("A"), PropertyValue(), PropertyValue("B")})
        history.append(element);
    EXPECT_EQ(InsertHistoryIntoMenu(menu, history, 3, 0, 4), 6);
    QStringList texts;
    for (const MenuItem& item : menu.items())
        texts << item.text;
    EXPECT_EQ(texts, (QStringList{"1", "2", "3", "A", "4", "B"}));
    EXPECT_EQ(InsertHistoryIntoMenu(menu, PropertyValue("not an array"), 0, 0, 7), 7);
    EXPECT_EQ(menu.count(), 6);
}

} // namespace
} // namespace orvan
