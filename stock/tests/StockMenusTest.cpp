// The stock menus as the sample printer fills them, in the job and the
// special-page contexts.
#include "StockTestSupport.h"

#include "stock/StockMenus.h"

namespace orvan {
namespace {

std::vector<std::int32_t> ValuesOf(const MenuModel& menu)
{
    std::vector<std::int32_t> values;
    for (const MenuItem& item : menu.items())
        values.push_back(item.referenceValue);
    return values;
}

// A stock menu as text: submenus end in ">", separators are "-".
QString Describe(const StockMenu& menu)
{
    QStringList items;
    for (const auto& [item, submenu] : menu)
        items << (item.separator ? "-" : item.text + (submenu ? ">" : ""));
    return items.join(", ");
}

using StockMenusTest = testing::SamplePrinterTest;

TEST_F(StockMenusTest, JobMenusListThePrintersChoicesWithTheirCommands)
{
    MenuModel sizes, colors, types;
    PopulateStockSizeMenu(sizes, bundle.get(), JobContext::Job);
    EXPECT_EQ(PopulateStockColorMenu(colors, bundle.get(), JobContext::Job), 22);
    PopulateStockTypeMenu(types, bundle.get(), JobContext::Job);
    for (const auto& [menu, command] : {std::pair{&sizes, kStockSizeCommand},
                                        {&colors, kStockColorCommand},
                                        {&types, kStockTypeCommand}})
        for (const MenuItem& item : menu->items())
            EXPECT_EQ(item.commandId, command);
    EXPECT_EQ(*colors.item(1), (MenuItem{"Printer Default", kStockColorCommand, 23}));
    EXPECT_EQ(colors.item(colors.findReferenceValue(2))->text, "Blue");
    EXPECT_TRUE(colors.findReferenceValue(22)) << "the job keeps Unspecified";
    EXPECT_EQ(types.item(1)->referenceValue, 23);
    EXPECT_EQ(types.item(types.findReferenceValue(1))->text, "Plain");
    EXPECT_EQ(*sizes.item(1), (MenuItem{"Letter", kStockSizeCommand, 1}));
    EXPECT_TRUE(sizes.findReferenceValue(kCustomPageSize)) << "the printer takes custom sizes";
    EXPECT_FALSE(sizes.findReferenceValue(kUnset));
}

TEST_F(StockMenusTest, SpecialPageMenusStartWithUseJobSettingAndDropThePrinterDefaults)
{
    MenuModel jobColors, jobTypes, jobSizes;
    PopulateStockColorMenu(jobColors, bundle.get(), JobContext::Job);
    PopulateStockTypeMenu(jobTypes, bundle.get(), JobContext::Job);
    PopulateStockSizeMenu(jobSizes, bundle.get(), JobContext::Job);
    // The job's colours without Unspecified (22) after "Use Job Setting".
    std::vector<std::int32_t> expectedColors = ValuesOf(jobColors);
    std::erase(expectedColors, 22);
    expectedColors.insert(expectedColors.begin(), kUnset);
    for (const JobContext context :
         {JobContext::Covers, JobContext::Inserts, JobContext::ExceptionPages}) {
        SCOPED_TRACE(static_cast<int>(context));
        MenuModel colors, types, sizes;
        PopulateStockColorMenu(colors, bundle.get(), context);
        PopulateStockTypeMenu(types, bundle.get(), context);
        PopulateStockSizeMenu(sizes, bundle.get(), context);
        for (const auto& [menu, command] : {std::pair{&colors, kStockColorCommand},
                                            {&types, kStockTypeCommand},
                                            {&sizes, kStockSizeCommand}})
            EXPECT_EQ(*menu->item(1), (MenuItem{"Use Job Setting", command, kUnset}));
        EXPECT_EQ(ValuesOf(colors), expectedColors);
        // Only SystemDefault (23) goes from the types, and it alone.
        EXPECT_FALSE(types.findReferenceValue(23));
        EXPECT_TRUE(types.findReferenceValue(22));
        EXPECT_EQ(types.count(), jobTypes.count());
        EXPECT_EQ(sizes.count(), jobSizes.count() + 1);
    }
}

TEST(StockMenus, StockAndButtonMenusPerContextAndInstalledInserter)
{
    QTemporaryDir folder;
    const QString noInserter = testing::WriteSampleVariant(folder, {{"Option9", "False"}});
    const auto bundle = testing::EnglishPluginBundle();
    const QString stock = "Other Color>, Other Type>, -, -";
    const QString inserter = stock + ", Post-Print Inserter";
    const std::tuple<JobContext, bool, QString> cases[] = {
        {JobContext::Job, true, stock},        {JobContext::Covers, true, inserter},
        {JobContext::Inserts, true, inserter}, {JobContext::ExceptionPages, true, stock},
        {JobContext::Covers, false, stock},
    };
    for (const auto& [context, installed, expected] : cases) {
        SCOPED_TRACE(static_cast<int>(context));
        testing::CurrentPrinterGuard printer(installed ? testing::kSamplePpd : noInserter);
        StockMenu menu{{{"left over"}, std::nullopt}};
        PopulateStockMenu(menu, bundle.get(), context);
        EXPECT_EQ(Describe(menu), expected);
        if (expected == inserter)
            EXPECT_EQ(menu[4].item, (MenuItem{"Post-Print Inserter", kStockSourceCommand,
                                              kInstalledFeatureSource}));
        PopulateStockButtonMenu(menu, bundle.get(), context);
        EXPECT_EQ(Describe(menu), "Paper Size>, " + expected +
                                      ", -, Default Stock, Advanced Stock Selection\u2026");
        EXPECT_EQ(menu.back().item.commandId, kStockAdvancedCommand);
    }
}

TEST(StockMenus, WithoutAPrinterOnlyUseJobSettingRemains)
{
    PPDCloseCurrent();
    MenuModel colors;
    EXPECT_EQ(PopulateStockColorMenu(colors, nullptr, JobContext::Inserts), 1);
    EXPECT_EQ(*colors.item(1), (MenuItem{kStringNotFound, kStockColorCommand, kUnset}));
    EXPECT_EQ(PopulateStockColorMenu(colors, nullptr, JobContext::Job), 0);
}

} // namespace
} // namespace orvan
