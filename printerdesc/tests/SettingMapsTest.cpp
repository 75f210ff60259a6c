// Setting maps: row counts and texts, the lookups by item and by value with
// their gates, menus built from them, and input history in menus.
#include "PpdTestSupport.h"

#include "settings/Bundle.h"
#include "settings/Preferences.h"
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

struct NamedMap
{
    const char* name;
    const _SettingMap* map;
    int rows;
};
#define MAP(table, rows)                                                                           \
    NamedMap                                                                                       \
    {                                                                                              \
#table, table, rows                                                                        \
    }

QStringList textsOf(const MenuModel& menu)
{
    QStringList texts;
    for (const MenuItem& item : menu.items())
        texts << item.text;
    return texts;
}

// clang-format off
const NamedMap kSettingMaps[] = {
    MAP(_BookletLayoutOrderMap, 2), MAP(_RotateImageMap, 3), MAP(_OutputOptionsMap, 2),
    MAP(_PrinterEmulationMap, 3), MAP(_OPISubsitutionMap, 3), MAP(_OPIPrescanMap, 4),
    MAP(_OnOffMap, 2), MAP(_WatermarkMap, 6), MAP(_WatermarkOptionsMap, 6),
    MAP(_EnabledDisabledMap, 2), MAP(_PageBordersMap, 2), MAP(_BookletWatermarkBackgroundFormsMap, 3),
    MAP(_CoverSheetMap, 2), MAP(_ConfirmationSheetMap, 2), MAP(_FaxSendSpeedMap, 3),
    MAP(_FaxResolutionMap, 3), MAP(_CoverSheetImageMap, 6), MAP(_CoverSheetSenderMap, 2),
    MAP(_CoverSheetRecipientMap, 3), MAP(_TabStockRadioMap, 2), MAP(_TabStockSetupMap, 4),
    MAP(_PrintQualityMap, 2), MAP(_PrintingOptimizationMap, 2), MAP(_AdvancedMirrorImageMap, 2),
    MAP(_CoverSidesSimplexImagedMap, 2), MAP(_CoverSidesDuplexImagedMap, 2), MAP(_CoverSidesImagedMap, 2),
    MAP(_FolderNameMap, 1), MAP(_SavedJobSaveOptionRadioMap, 2), MAP(_JobNameMap, 1),
    MAP(_LoginNameMap, 1), MAP(_PlexMap, 3), MAP(_ResolutionMap, 1),
    MAP(_JobTypeMap, 6), MAP(_SeparatorOptionMap, 3), MAP(_FaxCoverSizeMap, 2),
};
// clang-format on

// The counts catch a row lost or added; the terminator's value 0 is what ends
// a search by value. Every key must have an English text.
TEST(SettingMaps, RowCountsTerminatorsAndTexts)
{
    const Bundle bundle(ORVAN_PLUGIN_DIR, "en");
    for (const NamedMap& entry : kSettingMaps) {
        EXPECT_EQ(CountMaps(entry.map), entry.rows) << entry.name;
        EXPECT_EQ(entry.map[entry.rows].ticketValue, 0) << entry.name;
        for (const _SettingMap* row = entry.map; row->key; ++row)
            EXPECT_TRUE(bundle.localizedString(row->key)) << entry.name << ": " << row->key;
    }
    for (const char* key : {"PrinterDefault", "UseJobSetting"})
        EXPECT_TRUE(bundle.localizedString(key)) << key;
    for (const _InstalledFeatureMap* row = _InstalledFeatures; row->featureKey; ++row)
        EXPECT_TRUE(!row->textKey || bundle.localizedString(row->textKey)) << row->textKey;
}

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
        {"the separator's own value", _WatermarkOptionsMap, -5, 4, "-"},
        {"first row 0 answers any value", _OutputOptionsMap, 1, 1, "Face Down"},
        {"first row 0, value absent", _OutputOptionsMap, 77, 1, "Face Down"},
        {"both rows 0", _SavedJobSaveOptionRadioMap, 0, 1, "Save"},
        {"same value in every row: the first wins", _OPIPrescanMap, qujn, 1, "PrinterDefault"},
        {"duplicate keys across maps", _CoverSidesDuplexImagedMap, 1, 2, "CoverBlankorPreprinted"},
        {"action rows are negative", _CoverSheetImageMap, -8, 5, "Edit..."},
        {"a value-0 row ends the search", zeroInTheMiddle, 2, 2, "Stop"},
        {"rows before it still match", zeroInTheMiddle, 1, 1, "One"},
        // clang-format on
    };
    for (const auto& [what, map, value, item, key] : cases) {
        EXPECT_EQ(TicketToUI(map, value), item) << what;
        EXPECT_STREQ(LocalizedKeyForTicketValue(map, value), key) << what;
    }
    EXPECT_EQ(UIToTicket(_PlexMap, 3), 3);
    EXPECT_EQ(UIToTicket(_JobTypeMap, 5), 3) << "no gating by item";
    EXPECT_EQ(UIToTicket(_WatermarkMap, 2), -5);
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
        {"fax after it", kSamplePpd, _JobTypeMap, 5, 6, "Fax"},
        {"no job storage: the terminator follows", noStorage, _JobTypeMap, 3, -1, nullptr},
        {"a closed gate does not hide the fax row", noStorage, _JobTypeMap, 5, 6, "Fax"},
        {"nothing loaded", {}, _JobTypeMap, 3, -1, nullptr},
        {"nothing loaded, ungated row", {}, _JobTypeMap, 7, 4, "DelayedPrint"},
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

TEST(MapMenus, ItemsFromEveryKindOfRow)
{
    const Bundle bundle(ORVAN_PLUGIN_DIR, "en");
    InstalledOptionsGuard nothingInstalled;
    MenuModel menu;
    menu.append({"kept", 0, 0, false});
    // The gated row is visited, and so counted, but left out; items are appended.
    EXPECT_EQ(PopulateMenuFromMap(&bundle, menu, kRowKinds, 0, 0), 5);
    EXPECT_EQ(menu.sourceMap(), kRowKinds);
    EXPECT_EQ(menu.items(), (std::vector<MenuItem>{{"kept", 0, 0, false},
                                                   {"Printer Default", kRowCommand, -7, false},
                                                   {"-", 0, -5, true},
                                                   {"Printer Default", 0, kUnset, false},
                                                   {kStringNotFound, 0, 2, false}}));
    // The pop-up form starts afresh; an override replaces every command.
    EXPECT_EQ(PopulatePopupMenuFromMap(&bundle, menu, kRowKinds, 0, kOverride), 5);
    ASSERT_EQ(menu.count(), 4);
    for (const MenuItem& item : menu.items())
        EXPECT_EQ(item.commandId, kOverride);
    // Any context but the job's names the default row "Use Job Setting".
    for (int context : {1, 2, 3, 4}) {
        PopulatePopupMenuFromMap(&bundle, menu, kRowKinds, context, 0);
        EXPECT_EQ(menu.item(3)->text, "Use Job Setting") << context;
    }
    constexpr _SettingMap empty[] = {{}};
    EXPECT_EQ(PopulatePopupMenuFromMap(&bundle, menu, empty, 0, 0), 0);
    EXPECT_TRUE(menu.isEmpty());
    EXPECT_EQ(menu.sourceMap(), empty);
    PopulateMenuFromMap(nullptr, menu, _PlexMap, 0, 0);
    EXPECT_EQ(menu.item(1)->text, kStringNotFound);
}

TEST(MapMenus, JobTypesWithoutStorageOrFaxKeepTheirCount)
{
    const Bundle bundle(ORVAN_PLUGIN_DIR, "en");
    QTemporaryDir folder;
    InstalledOptionsGuard neither(
        WriteSampleVariant(folder, {{"Option8", "False"}, {"Option5", "False"}}));
    MenuModel menu;
    EXPECT_EQ(PopulateMenuFromMap(&bundle, menu, _JobTypeMap, 0, 0), 6);
    EXPECT_EQ(textsOf(menu),
              (QStringList{"Normal Print", "Secure Print", "Sample Set", "Delayed Print"}));
}

TEST(MapMenus, HistoryPositionsGrowForNullElementsToo)
{
    MenuModel menu;
    for (int i = 1; i <= 4; ++i)
        menu.append({QString::number(i), 0, i, false});
    PropertyValue history = PropertyValue::array();
    for (const PropertyValue& element : {PropertyValue("A"), PropertyValue(), PropertyValue("B")})
        history.append(element);
    constexpr std::uint32_t kHistory = FourCharCode("Hist");
    // "A" after item 3; the null moves the position on; "B" after item 5.
    EXPECT_EQ(InsertHistoryIntoMenu(menu, history, 3, kHistory, 4), 6);
    EXPECT_EQ(textsOf(menu), (QStringList{"1", "2", "3", "A", "4", "B"}));
    EXPECT_EQ(menu.item(4)->commandId, kHistory);

    MenuModel untouched;
    EXPECT_EQ(InsertHistoryIntoMenu(untouched, PropertyValue("not an array"), 0, 0, 7), 7);
    EXPECT_TRUE(untouched.isEmpty());
}

TEST(MapMenus, HistoryComesFromTheUsersInputHistoryFile)
{
    QTemporaryDir config;
    qputenv("XDG_CONFIG_HOME", config.path().toUtf8());
    PropertyValue names = PropertyValue::array(), file = PropertyValue::dictionary();
    names.append(PropertyValue("Quarterly report"));
    names.append(PropertyValue("Minutes"));
    file.insert("JobName", names);
    ASSERT_TRUE(WriteUserPreferences(kInputHistoryFileName, file));

    const Bundle bundle(ORVAN_PLUGIN_DIR, "en");
    MenuModel menu;
    menu.append({"stale", 0, 0, false});
    EXPECT_EQ(PopulatePopupMenuFromMapAndHistory(&bundle, menu, _JobNameMap, 0, "JobName", 1, 0, 0),
              3);
    EXPECT_EQ(textsOf(menu), (QStringList{"Use Job Name", "Quarterly report", "Minutes"}));
    EXPECT_EQ(PopulatePopupMenuFromMapAndHistory(&bundle, menu, _JobNameMap, 0, "Absent", 1, 0, 0),
              1);
    qunsetenv("XDG_CONFIG_HOME");
}

} // namespace
} // namespace orvan
