// What each stock menu command does to the stock.
#include "stock/StockCommands.h"
#include "stock/StockMenus.h"

#include <gtest/gtest.h>

namespace orvan {
namespace {

// Dialogs that answer as told and remember what they were shown.
class ScriptedDialogs : public StockDialogs
{
public:
    bool accept = true;
    std::pair<std::int32_t, std::int32_t> seenSize;
    int runs = 0;

    bool runCustomSizeDialog(std::int32_t& width, std::int32_t& length) override
    {
        ++runs;
        seenSize = {width, length};
        if (accept)
            width = 2000, length = 3000;
        return accept;
    }
    bool runAdvancedStockSelection(Stock& stock, JobContext) override
    {
        ++runs;
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
        data = {.stock = &stock, .context = JobContext::Covers, .dialogs = &dialogs};
    }

    // A cover stock from the inserter under a name only, then the command.
    Status run(std::uint32_t command, std::int32_t value = 0)
    {
        stock.setSource(kInstalledFeatureSource);
        stock.setCustomName("Quarterly report");
        stock.setCustomNameOnly(true);
        return StockMenuCommandEventHandler(data, command, value);
    }

    // Whether the command left the inserter and the name behind.
    bool choiceReset() const
    {
        return stock.source() == kUnset && stock.customName().isEmpty() && !stock.customNameOnly();
    }

    Stock stock;
    ScriptedDialogs dialogs;
    StockMenuHandlerData data;
};

TEST_F(StockCommandsTest, ChoosingSizeColourOrTypeLeavesTheInserterAndTheName)
{
    using Field = std::int32_t (Stock::*)() const;
    const std::tuple<std::uint32_t, std::int32_t, Field, std::int32_t> cases[] = {
        {kStockSizeCommand, 4, &Stock::size, 4},
        {kStockColorCommand, 3, &Stock::color, 3},
        {kStockTypeCommand, kTransparencyMediaType, &Stock::type, kTransparencyMediaType},
        {kStockColorCommand, kUnset, &Stock::color, kUnset}, // Use Job Setting
    };
    for (const auto& [command, value, field, expected] : cases) {
        EXPECT_EQ(run(command, value), kNoError);
        EXPECT_EQ((stock.*field)(), expected) << value;
        EXPECT_TRUE(choiceReset()) << value;
    }
    EXPECT_EQ(dialogs.runs, 0);
}

TEST_F(StockCommandsTest, CustomSizeGoesThroughTheDialog)
{
    stock.setWidth(1000);
    stock.setLength(1500);
    EXPECT_EQ(run(kStockSizeCommand, kCustomPageSize), kNoError);
    EXPECT_EQ(dialogs.seenSize, std::pair(1000, 1500));
    EXPECT_EQ(stock.size(), kCustomPageSize);
    EXPECT_EQ(std::pair(stock.width(), stock.length()), std::pair(2000, 3000));
    EXPECT_TRUE(choiceReset());

    // Cancel keeps the size (here Letter) but still drops the name.
    stock.setSize(kLetterPageSize);
    dialogs.accept = false;
    EXPECT_EQ(run(kStockSizeCommand, kCustomPageSize), kNoError);
    EXPECT_EQ(dialogs.seenSize, std::pair(kUnset, kUnset));
    EXPECT_EQ(stock.size(), kLetterPageSize);
    EXPECT_TRUE(choiceReset());
    // No dialogs at all counts as Cancel.
    data.dialogs = nullptr;
    EXPECT_EQ(run(kStockSizeCommand, kCustomPageSize), kNoError);
    EXPECT_EQ(stock.size(), kLetterPageSize);
    EXPECT_EQ(dialogs.runs, 2);
}

TEST_F(StockCommandsTest, AdvancedSelectionDropsTheNameOnlyOnOk)
{
    dialogs.accept = false;
    EXPECT_EQ(run(kStockAdvancedCommand), kNoError);
    EXPECT_EQ(stock.customName(), "Quarterly report");
    dialogs.accept = true;
    EXPECT_EQ(run(kStockAdvancedCommand), kNoError);
    EXPECT_EQ(stock.weight(), 90);
    EXPECT_TRUE(stock.customName().isEmpty() && !stock.customNameOnly());
    EXPECT_EQ(stock.source(), kInstalledFeatureSource) << "the source is not the dialog's";
}

// Default Stock follows the button's context and leaves the source; the
// source command leaves the rest.
TEST_F(StockCommandsTest, DefaultSourceAndOtherEvents)
{
    stock.setColor(2);
    EXPECT_EQ(run(kStockDefaultCommand), kNoError);
    EXPECT_EQ(std::pair(stock.color(), stock.source()), std::pair(kUnset, kInstalledFeatureSource));
    data.context = JobContext::Job;
    EXPECT_EQ(run(kStockDefaultCommand), kNoError);
    EXPECT_EQ(stock.color(), kWhiteMediaColor);

    stock.setSource(kUnset);
    stock.setCustomName("Kept");
    EXPECT_EQ(StockMenuCommandEventHandler(data, kStockSourceCommand, kInstalledFeatureSource),
              kNoError);
    EXPECT_EQ(stock.source(), kInstalledFeatureSource);
    EXPECT_EQ(stock.customName(), "Kept");

    const Stock before = stock;
    EXPECT_EQ(StockMenuCommandEventHandler(data, FourCharCode("Qujn"), 1), kEventNotHandled);
    EXPECT_TRUE(stock == before);
    data.stock = nullptr;
    EXPECT_EQ(run(kStockColorCommand, 2), kBadParameter);
}

} // namespace
} // namespace orvan
