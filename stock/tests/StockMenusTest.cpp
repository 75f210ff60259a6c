// The stock menus as the sample printer fills them, in the job and the
// special-page contexts.
#include "StockTestSupport.h"

#include "stock/StockMenus.h"

#include <QTemporaryDir>

namespace orvan {
namespace {

using testing::SamplePrinterTest;

std::vector<std::int32_t> valuesOf(const MenuModel& menu)
{
    std::vector<std::int32_t> values;
    for (const MenuItem& item : menu.items())
        values.push_back(item.referenceValue);
    return values;
}

bool hasValue(const MenuModel& menu, std::int32_t value)
{
    return menu.findReferenceValue(value) != 0;
}

using StockMenusTest = SamplePrinterTest;

TEST_F(StockMenusTest, JobMenusListThePrintersChoicesWithTheirCommands)
{
    MenuModel sizes, colors, types;
    const int sizeCount = PopulateStockSizeMenu(sizes, bundle.get(), JobContext::Job);
    EXPECT_EQ(sizeCount, sizes.count());
    PopulateStockColorMenu(colors, bundle.get(), JobContext::Job);
    PopulateStockTypeMenu(types, bundle.get(), JobContext::Job);

    ASSERT_EQ(colors.count(), 22);
    EXPECT_EQ(*colors.item(1),
              (MenuItem{QStringLiteral("Printer Default"), kStockColorCommand, 23}));
    EXPECT_EQ(colors.item(colors.findReferenceValue(2))->text, QStringLiteral("Blue"));
    EXPECT_TRUE(hasValue(colors, 22)) << "the job keeps Unspecified";

    EXPECT_EQ(types.item(1)->referenceValue, 23);
    EXPECT_TRUE(hasValue(types, 23));
    EXPECT_EQ(types.item(types.findReferenceValue(1))->text, QStringLiteral("Plain"));
    for (const MenuItem& item : types.items())
        EXPECT_EQ(item.commandId, kStockTypeCommand);

    EXPECT_EQ(*sizes.item(1), (MenuItem{QStringLiteral("Letter"), kStockSizeCommand, 1}));
    EXPECT_TRUE(hasValue(sizes, kCustomPageSize)) << "the printer takes custom sizes";
    EXPECT_FALSE(hasValue(sizes, kUnset));
}

class SpecialPageMenusTest : public SamplePrinterTest,
                             public ::testing::WithParamInterface<JobContext>
{
};

TEST_P(SpecialPageMenusTest, StartWithUseJobSettingAndDropThePrinterDefaults)
{
    MenuModel jobColors, jobTypes, jobSizes;
    PopulateStockColorMenu(jobColors, bundle.get(), JobContext::Job);
    PopulateStockTypeMenu(jobTypes, bundle.get(), JobContext::Job);
    PopulateStockSizeMenu(jobSizes, bundle.get(), JobContext::Job);

    MenuModel colors, types, sizes;
    PopulateStockColorMenu(colors, bundle.get(), GetParam());
    PopulateStockTypeMenu(types, bundle.get(), GetParam());
    PopulateStockSizeMenu(sizes, bundle.get(), GetParam());
    for (auto [menu, command] :
         {std::pair{&colors, kStockColorCommand}, std::pair{&types, kStockTypeCommand},
          std::pair{&sizes, kStockSizeCommand}}) {
        EXPECT_EQ(*menu->item(1), (MenuItem{QStringLiteral("Use Job Setting"), command, kUnset}));
    }
    EXPECT_FALSE(hasValue(colors, 22));
    EXPECT_TRUE(hasValue(types, 22)) << "only Unspecified goes from the colours";
    EXPECT_FALSE(hasValue(types, 23));
    EXPECT_TRUE(hasValue(colors, 23)) << "only SystemDefault goes from the types";

    // Everything else stays in the printer's order.
    auto expectedColors = valuesOf(jobColors);
    std::erase(expectedColors, 22);
    expectedColors.insert(expectedColors.begin(), kUnset);
    EXPECT_EQ(valuesOf(colors), expectedColors);
    EXPECT_EQ(types.count(), jobTypes.count());
    EXPECT_EQ(sizes.count(), jobSizes.count() + 1);
}

INSTANTIATE_TEST_SUITE_P(CoversInsertsExceptions, SpecialPageMenusTest,
                         ::testing::Values(JobContext::Covers, JobContext::Inserts,
                                           JobContext::ExceptionPages));

TEST_F(StockMenusTest, StockMenuOffersTheInserterOnlyToCoversAndInserts)
{
    for (JobContext context :
         {JobContext::Job, JobContext::Covers, JobContext::Inserts, JobContext::ExceptionPages}) {
        StockMenu menu{{{QStringLiteral("left over")}, std::nullopt}};
        PopulateStockMenu(menu, bundle.get(), context);
        const bool inserter = context == JobContext::Covers || context == JobContext::Inserts;
        ASSERT_EQ(menu.size(), inserter ? 5u : 4u) << static_cast<int>(context);
        EXPECT_EQ(menu[0].item.text, QStringLiteral("Other Color"));
        ASSERT_TRUE(menu[0].submenu);
        EXPECT_EQ(menu[0].submenu->item(1)->commandId, kStockColorCommand);
        EXPECT_EQ(menu[1].item.text, QStringLiteral("Other Type"));
        ASSERT_TRUE(menu[1].submenu);
        EXPECT_EQ(menu[1].submenu->item(1)->commandId, kStockTypeCommand);
        EXPECT_TRUE(menu[2].item.separator && menu[3].item.separator);
        if (inserter) {
            EXPECT_EQ(menu[4].item, (MenuItem{QStringLiteral("Post-Print Inserter"),
                                              kStockSourceCommand, kInstalledFeatureSource}));
        }
    }
}

TEST(StockMenus, NoInserterItemWithoutTheInserter)
{
    QTemporaryDir folder;
    testing::CurrentPrinterGuard printer(
        testing::WriteSampleVariant(folder, {{"Option9", "False"}}));
    const auto bundle = testing::PluginBundle();
    StockMenu menu;
    PopulateStockMenu(menu, bundle.get(), JobContext::Covers);
    EXPECT_EQ(menu.size(), 4u);
}

TEST(StockMenus, WithoutAPrinterOnlyUseJobSettingRemains)
{
    PPDCloseCurrent();
    MenuModel colors;
    EXPECT_EQ(PopulateStockColorMenu(colors, nullptr, JobContext::Inserts), 1);
    EXPECT_EQ(*colors.item(1), (MenuItem{kStringNotFound, kStockColorCommand, kUnset}));
    EXPECT_EQ(PopulateStockColorMenu(colors, nullptr, JobContext::Job), 0);
}

TEST_F(StockMenusTest, ButtonMenuAddsSizesDefaultAndAdvanced)
{
    StockMenu menu;
    PopulateStockButtonMenu(menu, bundle.get(), JobContext::Covers);
    ASSERT_EQ(menu.size(), 9u);
    EXPECT_EQ(menu[0].item.text, QStringLiteral("Paper Size"));
    ASSERT_TRUE(menu[0].submenu);
    EXPECT_EQ(menu[0].submenu->item(2)->commandId, kStockSizeCommand);
    EXPECT_EQ(menu[1].item.text, QStringLiteral("Other Color"));
    EXPECT_EQ(menu[5].item.commandId, kStockSourceCommand);
    EXPECT_TRUE(menu[6].item.separator);
    EXPECT_EQ(menu[7].item.commandId, kStockDefaultCommand);
    EXPECT_EQ(menu[8].item.commandId, kStockAdvancedCommand);
}

} // namespace
} // namespace orvan
