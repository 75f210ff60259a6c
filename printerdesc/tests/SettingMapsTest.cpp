// Setting maps: their rows, the lookups by item and by value, and the menus
// built from them.
#include "PpdTestSupport.h"

#include "settings/Bundle.h"
#include "settings/Preferences.h"
#include "settings/SettingMapAccess.h"
#include "settings/SettingMaps.h"

#include <QTemporaryDir>

#include <cstring>

namespace orvan {
namespace {

using testing::InstalledOptionsGuard;
using testing::SamplePpdPath;
using testing::WriteSampleVariant;

struct NamedMap
{
    const char* name;
    const _SettingMap* map;
    int rows;
};

const NamedMap kSettingMaps[] = {
    {"_BookletLayoutOrderMap", _BookletLayoutOrderMap, 2},
    {"_RotateImageMap", _RotateImageMap, 3},
    {"_OutputOptionsMap", _OutputOptionsMap, 2},
    {"_PrinterEmulationMap", _PrinterEmulationMap, 3},
    {"_OPISubsitutionMap", _OPISubsitutionMap, 3},
    {"_OPIPrescanMap", _OPIPrescanMap, 4},
    {"_OnOffMap", _OnOffMap, 2},
    {"_WatermarkMap", _WatermarkMap, 6},
    {"_WatermarkOptionsMap", _WatermarkOptionsMap, 6},
    {"_EnabledDisabledMap", _EnabledDisabledMap, 2},
    {"_PageBordersMap", _PageBordersMap, 2},
    {"_BookletWatermarkBackgroundFormsMap", _BookletWatermarkBackgroundFormsMap, 3},
    {"_CoverSheetMap", _CoverSheetMap, 2},
    {"_ConfirmationSheetMap", _ConfirmationSheetMap, 2},
    {"_FaxSendSpeedMap", _FaxSendSpeedMap, 3},
    {"_FaxResolutionMap", _FaxResolutionMap, 3},
    {"_CoverSheetImageMap", _CoverSheetImageMap, 6},
    {"_CoverSheetSenderMap", _CoverSheetSenderMap, 2},
    {"_CoverSheetRecipientMap", _CoverSheetRecipientMap, 3},
    {"_TabStockRadioMap", _TabStockRadioMap, 2},
    {"_TabStockSetupMap", _TabStockSetupMap, 4},
    {"_PrintQualityMap", _PrintQualityMap, 2},
    {"_PrintingOptimizationMap", _PrintingOptimizationMap, 2},
    {"_AdvancedMirrorImageMap", _AdvancedMirrorImageMap, 2},
    {"_CoverSidesSimplexImagedMap", _CoverSidesSimplexImagedMap, 2},
    {"_CoverSidesDuplexImagedMap", _CoverSidesDuplexImagedMap, 2},
    {"_CoverSidesImagedMap", _CoverSidesImagedMap, 2},
    {"_FolderNameMap", _FolderNameMap, 1},
    {"_SavedJobSaveOptionRadioMap", _SavedJobSaveOptionRadioMap, 2},
    {"_JobNameMap", _JobNameMap, 1},
    {"_LoginNameMap", _LoginNameMap, 1},
    {"_PlexMap", _PlexMap, 3},
    {"_ResolutionMap", _ResolutionMap, 1},
    {"_JobTypeMap", _JobTypeMap, 6},
    {"_SeparatorOptionMap", _SeparatorOptionMap, 3},
    {"_FaxCoverSizeMap", _FaxCoverSizeMap, 2},
};

TEST(SettingMapRows, CountsAndTerminators)
{
    for (const NamedMap& entry : kSettingMaps) {
        SCOPED_TRACE(entry.name);
        EXPECT_EQ(CountMaps(entry.map), entry.rows);
        // The terminator's value 0 is what ends a search by value.
        EXPECT_EQ(entry.map[entry.rows].ticketValue, 0);
    }
}

TEST(SettingMapLookup, UIToTicketIgnoresGates)
{
    InstalledOptionsGuard nothingInstalled;
    EXPECT_EQ(UIToTicket(_PlexMap, 3), 3);
    EXPECT_EQ(UIToTicket(_JobTypeMap, 5), 3);
    EXPECT_EQ(UIToTicket(_WatermarkMap, 2), -5);
}

TEST(SettingMapLookup, TicketToUIFollowsTheScanRules)
{
    InstalledOptionsGuard nothingInstalled;
    struct Case
    {
        const char* what;
        const _SettingMap* map;
        std::int32_t value;
        int item;
        const char* key;
    } const cases[] = {
        {"plain match", _PlexMap, 2, 2, "Duplex"},
        {"no such value", _PlexMap, 9, -1, nullptr},
        {"0 sought, no zero row", _PlexMap, 0, -1, nullptr},
        {"separator counts as an item", _WatermarkOptionsMap, 4, 5, "WatermarkPrintOnAllPages"},
        {"separator value itself", _WatermarkOptionsMap, -5, 4, "-"},
        {"first row 0 answers any value", _OutputOptionsMap, 1, 1, "Face Down"},
        {"first row 0, value absent", _OutputOptionsMap, 77, 1, "Face Down"},
        {"both rows 0", _SavedJobSaveOptionRadioMap, 0, 1, "Save"},
        {"same value in every row: first wins", _OPIPrescanMap,
         static_cast<std::int32_t>(FourCharCode("Qujn")), 1, "PrinterDefault"},
        {"duplicate keys, distinct maps", _CoverSidesDuplexImagedMap, 1, 2,
         "CoverBlankorPreprinted"},
        {"action rows are negative", _CoverSheetImageMap, -8, 5, "Edit..."},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.what);
        EXPECT_EQ(TicketToUI(c.map, c.value), c.item);
        const char* key = LocalizedKeyForTicketValue(c.map, c.value);
        if (c.key)
            EXPECT_STREQ(key, c.key);
        else
            EXPECT_EQ(key, nullptr);
    }
}

TEST(SettingMapLookup, ZeroRowInTheMiddleEndsTheSearch)
{
    constexpr _SettingMap map[] = {
        {"One", 1, 0, nullptr, 0},
        {"Stop", 0, 0, nullptr, 0},
        {"Two", 2, 0, nullptr, 0},
        {nullptr, 0, 0, nullptr, 0},
    };
    EXPECT_EQ(TicketToUI(map, 1), 1);
    EXPECT_EQ(TicketToUI(map, 2), 2) << "the value-0 row answers before the row with 2 is reached";
    EXPECT_STREQ(LocalizedKeyForTicketValue(map, 2), "Stop");
}

TEST(SettingMapLookup, GatedJobTypesFollowTheInstalledOptions)
{
    QTemporaryDir folder;
    {
        InstalledOptionsGuard installed(SamplePpdPath()); // job storage and fax installed
        EXPECT_EQ(TicketToUI(_JobTypeMap, 3), 5);
        EXPECT_EQ(TicketToUI(_JobTypeMap, 5), 6);
        EXPECT_STREQ(LocalizedKeyForTicketValue(_JobTypeMap, 3), "SavedJob");
    }
    {
        InstalledOptionsGuard noStorage(WriteSampleVariant(folder, {{"Option8", "False"}}));
        EXPECT_EQ(TicketToUI(_JobTypeMap, 3), -1) << "the terminator follows the gated rows";
        EXPECT_EQ(LocalizedKeyForTicketValue(_JobTypeMap, 3), nullptr);
        EXPECT_EQ(TicketToUI(_JobTypeMap, 5), 6)
            << "a closed gate before it does not hide the fax row";
    }
    {
        InstalledOptionsGuard nothingLoaded;
        EXPECT_EQ(TicketToUI(_JobTypeMap, 3), -1);
        EXPECT_EQ(TicketToUI(_JobTypeMap, 7), 4);
    }
}

TEST(SettingMapLookup, LaterRowWithSameValueMatchesWhenGateIsClosed)
{
    constexpr _SettingMap map[] = {
        {"Gated", 3, 0, "JobStorage", 1},
        {"Fallback", 3, 0, nullptr, 0},
        {"NeedsMissing", 4, 0, "JobStorage", 0},
        {nullptr, 0, 0, nullptr, 0},
    };
    {
        InstalledOptionsGuard nothingLoaded;
        EXPECT_EQ(TicketToUI(map, 3), 2);
        EXPECT_EQ(TicketToUI(map, 4), 3)
            << "a row requiring state 0 shows when the feature is absent";
    }
    InstalledOptionsGuard installed(SamplePpdPath());
    EXPECT_EQ(TicketToUI(map, 3), 1);
    EXPECT_EQ(TicketToUI(map, 4), -1);
}

class MapMenuTest : public ::testing::Test
{
protected:
    Bundle m_bundle{QStringLiteral(ORVAN_PLUGIN_DIR), QStringLiteral("en")};
};

TEST_F(MapMenuTest, GatedRowsAreVisitedButLeftOut)
{
    QTemporaryDir folder;
    MenuModel menu;
    {
        InstalledOptionsGuard neither(
            WriteSampleVariant(folder, {{"Option8", "False"}, {"Option5", "False"}}));
        EXPECT_EQ(PopulateMenuFromMap(&m_bundle, menu, _JobTypeMap, 0, 0), 6);
        ASSERT_EQ(menu.count(), 4);
        EXPECT_EQ(menu.item(4)->referenceValue, 7);
        EXPECT_EQ(menu.item(4)->text, QStringLiteral("Delayed Print"));
    }
    {
        InstalledOptionsGuard both(SamplePpdPath());
        MenuModel full;
        EXPECT_EQ(PopulatePopupMenuFromMap(&m_bundle, full, _JobTypeMap, 0, 0), 6);
        ASSERT_EQ(full.count(), 6);
        EXPECT_EQ(full.item(5)->text, QStringLiteral("Saved Job"));
        EXPECT_EQ(full.item(6)->referenceValue, 5);
    }
}

TEST_F(MapMenuTest, ItemsCarryTextsValuesSeparatorsAndTheMap)
{
    InstalledOptionsGuard nothingLoaded;
    MenuModel menu;
    EXPECT_EQ(PopulateMenuFromMap(&m_bundle, menu, _WatermarkOptionsMap, 0, 0), 6);
    EXPECT_EQ(menu.sourceMap(), _WatermarkOptionsMap);
    ASSERT_EQ(menu.count(), 6);
    EXPECT_TRUE(menu.item(4)->separator);
    EXPECT_EQ(menu.item(4)->referenceValue, -5);
    EXPECT_FALSE(menu.item(5)->separator);
    EXPECT_EQ(menu.item(6)->text, QStringLiteral("Print on First Page Only"));
    EXPECT_EQ(menu.item(6)->referenceValue, 5);
    EXPECT_EQ(menu.findReferenceValue(4), 5);

    // PopulateMenuFromMap appends; the pop-up form starts afresh.
    EXPECT_EQ(PopulateMenuFromMap(&m_bundle, menu, _PlexMap, 0, 0), 3);
    EXPECT_EQ(menu.count(), 9);
    EXPECT_EQ(menu.sourceMap(), _PlexMap);
    EXPECT_EQ(PopulatePopupMenuFromMap(&m_bundle, menu, _PlexMap, 0, 0), 3);
    EXPECT_EQ(menu.count(), 3);
}

TEST_F(MapMenuTest, DefaultRowTextDependsOnJobContext)
{
    constexpr _SettingMap map[] = {
        {"Ignored", kUnsetValue, 0, nullptr, 0},
        {"Simplex", 1, 0, nullptr, 0},
        {nullptr, 0, 0, nullptr, 0},
    };
    MenuModel jobLevel;
    PopulateMenuFromMap(&m_bundle, jobLevel, map, 0, 0);
    EXPECT_EQ(jobLevel.item(1)->text, QStringLiteral("Printer Default"));
    EXPECT_EQ(jobLevel.item(1)->referenceValue, kUnsetValue);
    for (int context : {1, 2, 3, 4}) {
        MenuModel special;
        PopulateMenuFromMap(&m_bundle, special, map, context, 0);
        EXPECT_EQ(special.item(1)->text, QStringLiteral("Use Job Setting")) << context;
    }
}

TEST_F(MapMenuTest, CommandsAndMissingTexts)
{
    constexpr std::uint32_t kRowCommand = FourCharCode("Wnew");
    constexpr std::uint32_t kOverride = FourCharCode("Sclr");
    constexpr _SettingMap map[] = {
        {"New...", -7, kRowCommand, nullptr, 0},
        {"NoSuchKeyAnywhere", 2, 0, nullptr, 0},
        {nullptr, 0, 0, nullptr, 0},
    };
    MenuModel own;
    PopulateMenuFromMap(&m_bundle, own, map, 0, 0);
    EXPECT_EQ(own.item(1)->commandId, kRowCommand);
    EXPECT_EQ(own.item(2)->commandId, 0u);
    EXPECT_EQ(own.item(2)->text, kStringNotFound);

    MenuModel overridden;
    PopulateMenuFromMap(&m_bundle, overridden, map, 0, kOverride);
    EXPECT_EQ(overridden.item(1)->commandId, kOverride);
    EXPECT_EQ(overridden.item(2)->commandId, kOverride);

    MenuModel noBundle;
    PopulateMenuFromMap(nullptr, noBundle, _PlexMap, 0, 0);
    EXPECT_EQ(noBundle.item(1)->text, kStringNotFound);
}

TEST_F(MapMenuTest, EmptyMapGivesNoItemsButSetsTheMenuReference)
{
    constexpr _SettingMap empty[] = {{nullptr, 0, 0, nullptr, 0}};
    MenuModel menu;
    EXPECT_EQ(PopulateMenuFromMap(&m_bundle, menu, empty, 0, 0), 0);
    EXPECT_TRUE(menu.isEmpty());
    EXPECT_EQ(menu.sourceMap(), empty);
}

TEST(MapMenuHistory, PositionsGrowForNullElementsToo)
{
    MenuModel menu;
    for (int i = 1; i <= 4; ++i)
        menu.append(MenuItem{QString::number(i), 0, i, false});
    PropertyValue history = PropertyValue::array();
    history.append(QStringLiteral("A"));
    history.append(PropertyValue());
    history.append(QStringLiteral("B"));

    constexpr std::uint32_t kHistoryCommand = FourCharCode("Hist");
    EXPECT_EQ(InsertHistoryIntoMenu(menu, history, 3, kHistoryCommand, 4), 6);
    QStringList texts;
    for (const MenuItem& item : menu.items())
        texts << item.text;
    // "A" after item 3; the null moves the position on; "B" after item 5.
    EXPECT_EQ(texts, (QStringList{"1", "2", "3", "A", "4", "B"}));
    EXPECT_EQ(menu.item(4)->commandId, kHistoryCommand);

    MenuModel untouched;
    EXPECT_EQ(InsertHistoryIntoMenu(untouched, QStringLiteral("not an array"), 0, 0, 7), 7);
    EXPECT_TRUE(untouched.isEmpty());
}

TEST(MapMenuHistory, ReadsTheUsersInputHistoryFile)
{
    QTemporaryDir config;
    qputenv("XDG_CONFIG_HOME", config.path().toUtf8());
    PropertyValue names = PropertyValue::array();
    names.append(QStringLiteral("Quarterly report"));
    names.append(QStringLiteral("Minutes"));
    PropertyValue file = PropertyValue::dictionary();
    file.insert(QStringLiteral("JobName"), names);
    ASSERT_TRUE(WriteUserPreferences(kInputHistoryFileName, file));

    Bundle bundle(QStringLiteral(ORVAN_PLUGIN_DIR), QStringLiteral("en"));
    MenuModel menu;
    menu.append(MenuItem{QStringLiteral("stale"), 0, 0, false});
    EXPECT_EQ(PopulatePopupMenuFromMapAndHistory(&bundle, menu, _JobNameMap, 0,
                                                 QStringLiteral("JobName"), 1, 0, 0),
              3);
    ASSERT_EQ(menu.count(), 3);
    EXPECT_EQ(menu.item(1)->text, QStringLiteral("Use Job Name"));
    EXPECT_EQ(menu.item(2)->text, QStringLiteral("Quarterly report"));
    EXPECT_EQ(menu.item(3)->text, QStringLiteral("Minutes"));

    EXPECT_EQ(PopulatePopupMenuFromMapAndHistory(&bundle, menu, _JobNameMap, 0,
                                                 QStringLiteral("Absent"), 1, 0, 0),
              1);
    qunsetenv("XDG_CONFIG_HOME");
}

TEST(SettingMapTexts, EveryKeyHasAnEnglishText)
{
    Bundle bundle(QStringLiteral(ORVAN_PLUGIN_DIR), QStringLiteral("en"));
    QStringList missing;
    for (const NamedMap& entry : kSettingMaps) {
        for (const _SettingMap* row = entry.map; row->key; ++row) {
            if (!bundle.localizedString(QString::fromUtf8(row->key)))
                missing << QStringLiteral("%1: %2").arg(entry.name, row->key);
        }
    }
    for (const char* key : {"PrinterDefault", "UseJobSetting"}) {
        if (!bundle.localizedString(QString::fromUtf8(key)))
            missing << key;
    }
    for (const _InstalledFeatureMap* row = _InstalledFeatures; row->featureKey; ++row) {
        if (row->textKey && !bundle.localizedString(QString::fromUtf8(row->textKey)))
            missing << row->textKey;
    }
    EXPECT_TRUE(missing.isEmpty()) << qPrintable(missing.join(QStringLiteral(", ")));
}

} // namespace
} // namespace orvan
