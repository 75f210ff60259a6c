#include "stock/StockTables.h"

#include <gtest/gtest.h>

using namespace orvan;

TEST(StockTables, RowCountsAndTerminators)
{
    EXPECT_EQ(StockTableRowCount(_PageSizeMap), 56u);
    EXPECT_EQ(StockTableRowCount(_MediaTypeMap), 43u);
    EXPECT_EQ(StockTableRowCount(_MediaColorMap), 22u);
    for (auto table : {_PageSizeMap, _MediaTypeMap, _MediaColorMap}) {
        ASSERT_FALSE(table.empty());
        EXPECT_EQ(table.back().key, nullptr);
        EXPECT_EQ(table.size(), StockTableRowCount(table) + 1);
    }
}

TEST(StockTables, DuplicateRowsStayAndLookupTakesTheFirst)
{
    int threeByFive = 0;
    for (std::size_t i = 0; i < StockTableRowCount(_PageSizeMap); ++i)
        threeByFive += std::string_view(_PageSizeMap[i].key) == "3x5";
    EXPECT_EQ(threeByFive, 2);
    EXPECT_EQ(StockTableValue(_MediaTypeMap, "CardStock"), 12);
    EXPECT_STREQ(StockTableKey(_MediaTypeMap, 43), "CardStock");
    EXPECT_EQ(StockTableValue(_PageSizeMap, "Custom"), 75);
    EXPECT_EQ(StockTableValue(_MediaColorMap, "Clear"), 6);
    EXPECT_FALSE(StockTableValue(_MediaColorMap, "Mauve"));
    EXPECT_EQ(StockTableKey(_MediaColorMap, 10), nullptr); // custom colour is not a row
}
