// The size, type and colour tables a stock's values come from are the
// printer description's choice maps for "PageSize", "MediaType" and
// "MediaColor": the stock menus and summaries translate through them.
#include "printerdesc/PPDAccess.h"
#include "settings/SettingMaps.h"

#include <gtest/gtest.h>

#include <string_view>

using namespace orvan;

namespace {

std::size_t rowCount(const PPDChoiceMap* table)
{
    std::size_t rows = 0;
    while (table[rows].choice)
        ++rows;
    return rows;
}

} // namespace

TEST(StockTables, RowCountsAndTerminators)
{
    EXPECT_EQ(rowCount(ppdmaps::_PageSizeMap), 56u);
    EXPECT_EQ(rowCount(ppdmaps::_MediaTypeMap), 43u);
    EXPECT_EQ(rowCount(ppdmaps::_MediaColorMap), 22u);
}

TEST(StockTables, DuplicateRowsStayAndLookupTakesTheFirst)
{
    int threeByFive = 0;
    for (const PPDChoiceMap* row = ppdmaps::_PageSizeMap; row->choice; ++row)
        threeByFive += std::string_view(row->choice) == "3x5";
    EXPECT_EQ(threeByFive, 2);
    EXPECT_EQ(PPDTicketValueForChoice(QStringLiteral("MediaType"), QStringLiteral("CardStock")),
              12);
    EXPECT_STREQ(PPDChoiceForTicketValue(QStringLiteral("MediaType"), 43), "CardStock");
    EXPECT_EQ(PPDTicketValueForChoice(QStringLiteral("PageSize"), QStringLiteral("Custom")), 75);
    EXPECT_EQ(PPDTicketValueForChoice(QStringLiteral("MediaColor"), QStringLiteral("Clear")), 6);
    EXPECT_EQ(PPDTicketValueForChoice(QStringLiteral("MediaColor"), QStringLiteral("Mauve")), -1);
    // The custom colour is no row: it names the stock's customColor string.
    EXPECT_EQ(PPDChoiceForTicketValue(QStringLiteral("MediaColor"), 10), nullptr);
}
