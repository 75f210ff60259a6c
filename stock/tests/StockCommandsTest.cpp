// What each stock menu command does to the stock.
#include "stock/StockCommands.h"
#include "stock/StockMenus.h"

#include <gtest/gtest.h>

namespace orvan {
namespace {

// Dialogs that answer as told and remember being asked.
class ScriptedDialogs : public StockDialogs
{
public:
    bool accept = true;
    std::int32_t newWidth = 2000;
    std::int32_t newLength = 3000;
    std::int32_t seenWidth = 0;
    std::int32_t seenLength = 0;
    int customSizeRuns = 0;
    int advancedRuns = 0;

    bool runCustomSizeDialog(std::int32_t& width, std::int32_t& length) override
    {
        ++customSizeRuns;
        seenWidth = width;
        seenLength = length;
        if (accept) {
            width = newWidth;
            length = newLength;
        }
        return accept;
    }
    bool runAdvancedStockSelection(Stock& stock, JobContext) override
    {
        ++advancedRuns;
        if (accept)
            stock.setWeight(90);
        return accept;
    }
};

class StockCommandsTest : public ::testing::Test
{
protected:
    StockCommandsTest()
    {
        stock.setSource(kInstalledFeatureSource);
        stock.setCustomName(QStringLiteral("Quarterly report"));
        stock.setCustomNameOnly(true);
        data.stock = &stock;
        data.dialogs = &dialogs;
        data.context = JobContext::Covers;
    }

    Status run(std::uint32_t command, std::int32_t value = 0)
    {
        return StockMenuCommandEventHandler(data, command, value);
    }

    void expectAttributeChoiceReset()
    {
        EXPECT_EQ(stock.source(), kUnset);
        EXPECT_TRUE(stock.customName().isEmpty());
        EXPECT_FALSE(stock.customNameOnly());
    }

    Stock stock;
    ScriptedDialogs dialogs;
    StockMenuHandlerData data;
};

TEST_F(StockCommandsTest, ChoosingSizeColourOrTypeLeavesTheInserterAndTheName)
{
    EXPECT_EQ(run(kStockSizeCommand, 4), kNoError);
    EXPECT_EQ(stock.size(), 4);
    expectAttributeChoiceReset();

    stock.setSource(kInstalledFeatureSource);
    stock.setCustomName(QStringLiteral("Again"));
    EXPECT_EQ(run(kStockColorCommand, 3), kNoError);
    EXPECT_EQ(stock.color(), 3);
    expectAttributeChoiceReset();

    stock.setSource(kInstalledFeatureSource);
    EXPECT_EQ(run(kStockTypeCommand, 2), kNoError);
    EXPECT_EQ(stock.type(), kTransparencyMediaType);
    EXPECT_EQ(stock.color(), kClearMediaColor) << "transparencies are clear";
    expectAttributeChoiceReset();

    EXPECT_EQ(run(kStockColorCommand, kUnset), kNoError) << "Use Job Setting";
    EXPECT_EQ(stock.color(), kUnset);
    EXPECT_EQ(dialogs.customSizeRuns + dialogs.advancedRuns, 0);
}

TEST_F(StockCommandsTest, CustomSizeGoesThroughTheDialog)
{
    stock.setWidth(1000);
    stock.setLength(1500);
    EXPECT_EQ(run(kStockSizeCommand, kCustomPageSize), kNoError);
    EXPECT_EQ(dialogs.customSizeRuns, 1);
    EXPECT_EQ(dialogs.seenWidth, 1000);
    EXPECT_EQ(dialogs.seenLength, 1500);
    EXPECT_EQ(stock.size(), kCustomPageSize);
    EXPECT_EQ(stock.width(), 2000);
    EXPECT_EQ(stock.length(), 3000);
    expectAttributeChoiceReset();

    // Cancel keeps the size (here Letter) but still drops the name.
    stock.setSize(kLetterPageSize);
    stock.setCustomName(QStringLiteral("Named"));
    dialogs.accept = false;
    EXPECT_EQ(run(kStockSizeCommand, kCustomPageSize), kNoError);
    EXPECT_EQ(dialogs.seenWidth, kUnset);
    EXPECT_EQ(stock.size(), kLetterPageSize);
    EXPECT_EQ(stock.width(), kUnset);
    expectAttributeChoiceReset();

    // No dialogs at all counts as Cancel.
    data.dialogs = nullptr;
    EXPECT_EQ(run(kStockSizeCommand, kCustomPageSize), kNoError);
    EXPECT_EQ(stock.size(), kLetterPageSize);
}

TEST_F(StockCommandsTest, AdvancedSelectionDropsTheNameOnlyOnOk)
{
    dialogs.accept = false;
    EXPECT_EQ(run(kStockAdvancedCommand), kNoError);
    EXPECT_EQ(stock.customName(), QStringLiteral("Quarterly report"));
    EXPECT_EQ(stock.source(), kInstalledFeatureSource) << "the source is not the dialog's";

    dialogs.accept = true;
    EXPECT_EQ(run(kStockAdvancedCommand), kNoError);
    EXPECT_EQ(stock.weight(), 90);
    EXPECT_TRUE(stock.customName().isEmpty());
    EXPECT_FALSE(stock.customNameOnly());
    EXPECT_EQ(dialogs.advancedRuns, 2);
}

TEST_F(StockCommandsTest, DefaultDependsOnTheButtonsContext)
{
    stock.setSize(4);
    stock.setColor(2);
    stock.setType(9);
    stock.setComment(QStringLiteral("kept"));
    EXPECT_EQ(run(kStockDefaultCommand), kNoError);
    EXPECT_EQ(stock.size(), kUnset);
    EXPECT_EQ(stock.color(), kUnset);
    EXPECT_EQ(stock.type(), kUnset);
    EXPECT_EQ(stock.comment(), QStringLiteral("kept"));
    EXPECT_EQ(stock.source(), kInstalledFeatureSource) << "DefaultStock leaves the source";

    data.context = JobContext::Job;
    EXPECT_EQ(run(kStockDefaultCommand), kNoError);
    EXPECT_EQ(stock.size(), kLetterPageSize);
    EXPECT_EQ(stock.color(), kWhiteMediaColor);
    EXPECT_EQ(stock.type(), kStandardMediaType);
}

TEST_F(StockCommandsTest, SourceCommandAndOtherEvents)
{
    stock.setSource(kUnset);
    EXPECT_EQ(run(kStockSourceCommand, kInstalledFeatureSource), kNoError);
    EXPECT_EQ(stock.source(), kInstalledFeatureSource);
    EXPECT_EQ(stock.customName(), QStringLiteral("Quarterly report"));

    const Stock before = stock;
    EXPECT_EQ(run(FourCharCode("Qujn"), 1), kEventNotHandled);
    EXPECT_TRUE(stock == before);
    data.stock = nullptr;
    EXPECT_EQ(run(kStockColorCommand, 2), kBadParameter);
}

} // namespace
} // namespace orvan
