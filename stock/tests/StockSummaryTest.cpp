// Stock summaries with the sample printer's texts, in the job and the
// special-page contexts.
#include "StockTestSupport.h"

#include "stock/StockSummary.h"

namespace orvan {
namespace {

class StockSummaryTest : public testing::SamplePrinterTest
{
protected:
    QString summary(const Stock& stock, JobContext context = JobContext::Covers)
    {
        return GenerateStockSummary(bundle.get(), context, stock, QStringLiteral(" | "));
    }
};

TEST_F(StockSummaryTest, JobListsColourAndTypeButNeverTheSize)
{
    Stock stock;
    DefaultStock(stock, JobContext::Job);
    EXPECT_EQ(summary(stock, JobContext::Job), QStringLiteral("- White | - Plain"));
    EXPECT_EQ(summary(stock, JobContext::Covers), QStringLiteral("- Letter | - White | - Plain"));

    // Unset attributes: the job still names them, a special page leaves them out.
    const Stock inherited(nullptr);
    EXPECT_EQ(summary(inherited, JobContext::Job),
              QStringLiteral("- Printer Default | - Printer Default"));
    EXPECT_EQ(summary(inherited, JobContext::Inserts), QString());
    Stock sizeOnly(nullptr);
    sizeOnly.setSize(4);
    EXPECT_EQ(summary(sizeOnly, JobContext::ExceptionPages), QStringLiteral("- A4"));
}

TEST_F(StockSummaryTest, CustomNameAloneOrFirst)
{
    Stock stock;
    DefaultStock(stock, JobContext::Job);
    stock.setCustomName(QStringLiteral("Quarterly"));
    EXPECT_EQ(summary(stock, JobContext::Job),
              QStringLiteral("Stock Name: Quarterly | - White | - Plain"));
    stock.setCustomNameOnly(true);
    EXPECT_EQ(summary(stock, JobContext::Job), QStringLiteral("Stock Name: Quarterly"));
    stock.setCustomName(QString());
    EXPECT_EQ(summary(stock, JobContext::Job), QString()) << "name only, but no name";
}

TEST_F(StockSummaryTest, CustomColourAndNamedTypes)
{
    Stock stock(nullptr);
    stock.setColor(kCustomMediaColor);
    stock.setCustomColor(QStringLiteral("Sky"));
    stock.setType(kNamedMediaType);
    stock.setCustomType(QStringLiteral("Linen Bond"));
    EXPECT_EQ(summary(stock), QStringLiteral("Color: Sky | - Linen Bond"));

    stock.setType(kNamedTabMediaType);
    stock.setModulus(8);
    EXPECT_EQ(summary(stock), QStringLiteral("Color: Sky | - Linen Bond (8)"));
    stock.setType(kPrecutTabMediaType);
    EXPECT_EQ(summary(stock), QStringLiteral("Color: Sky | - Pre-Cut Tab Stock (8)"));
}

TEST_F(StockSummaryTest, TabStocksShowTheirCountOnlyAboveZero)
{
    Stock stock(nullptr);
    stock.setType(24);
    stock.setModulus(5);
    EXPECT_EQ(summary(stock), QStringLiteral("- Tab Stock (5)"));
    stock.setModulus(0);
    EXPECT_EQ(summary(stock), QStringLiteral("- Tab Stock"));
    stock.setModulus(kUnset);
    EXPECT_EQ(summary(stock), QStringLiteral("- Tab Stock"));
    stock.setType(33);
    stock.setModulus(3);
    EXPECT_EQ(summary(stock), QStringLiteral("- Heavy Tab Stock (3)"));
    stock.setType(12);
    EXPECT_EQ(summary(stock), QStringLiteral("- Card Stock")) << "no count for other types";
}

TEST_F(StockSummaryTest, SourceDecidesFirst)
{
    Stock stock;
    DefaultStock(stock, JobContext::Covers);
    stock.setColor(2);
    stock.setCustomName(QStringLiteral("Hidden"));
    stock.setSource(kInstalledFeatureSource);
    EXPECT_EQ(summary(stock), QStringLiteral("- Post-Print Inserter"));
    EXPECT_EQ(summary(stock, JobContext::Job), QStringLiteral("- Post-Print Inserter"));
    stock.setSource(3); // a tray: not described here
    EXPECT_EQ(summary(stock), QString());
}

TEST_F(StockSummaryTest, ShownTextFallsBackByContext)
{
    Stock stock(nullptr);
    EXPECT_EQ(StockSummaryText(bundle.get(), &stock, JobContext::Covers),
              QStringLiteral("Use Job Setting"));
    stock.setSource(3);
    EXPECT_EQ(StockSummaryText(bundle.get(), &stock, JobContext::Job),
              QStringLiteral("Printer Default"));
    stock.setSource(kUnset);
    stock.setColor(5);
    stock.setType(10);
    EXPECT_EQ(StockSummaryText(bundle.get(), &stock, JobContext::Inserts),
              QStringLiteral("- Pink\n- Recycled"));
    EXPECT_EQ(StockSummaryText(bundle.get(), nullptr, JobContext::Job), QString());
}

} // namespace
} // namespace orvan
