// Custom paper sizes (units and limits) and the advanced stock attributes.
#include "StockTestSupport.h"

#include "stock/AdvancedStockOptions.h"
#include "stock/CustomPaperSize.h"

namespace orvan {
namespace {

TEST(CustomPaperSize, ConvertsTenthsOfMillimetresToTheShownUnits)
{
    constexpr auto in = PaperSizeUnit::Inches;
    constexpr auto mm = PaperSizeUnit::Millimetres;
    EXPECT_DOUBLE_EQ(TenthsOfMillimetreToUnit(2159, in), 8.5);
    EXPECT_DOUBLE_EQ(TenthsOfMillimetreToUnit(2794, in), 11.0);
    EXPECT_DOUBLE_EQ(TenthsOfMillimetreToUnit(2100, in), 8.3) << "A4 width to a tenth";
    EXPECT_DOUBLE_EQ(TenthsOfMillimetreToUnit(2159, mm), 216.0);
    EXPECT_DOUBLE_EQ(TenthsOfMillimetreToUnit(2970, mm), 297.0);
    EXPECT_EQ(UnitToTenthsOfMillimetre(8.5, in), 2159);
    EXPECT_EQ(UnitToTenthsOfMillimetre(13.0, in), 3302);
    EXPECT_EQ(UnitToTenthsOfMillimetre(216.0, mm), 2160);
}

TEST(CustomPaperSize, LimitsStayInsideThePrintersRange)
{
    // The sample printer: 3 x 5 in to 13 x 19 in.
    const CustomPaperSizeLimits limits = CustomPaperSizeLimitsFromPoints(216, 360, 936, 1368);
    EXPECT_EQ(limits.minimumWidth, 762);
    EXPECT_EQ(limits.minimumLength, 1270);
    EXPECT_EQ(limits.maximumWidth, 3302);
    EXPECT_EQ(limits.maximumLength, 4826);
    EXPECT_DOUBLE_EQ(MinimumInUnit(limits.minimumWidth, PaperSizeUnit::Inches), 3.0);
    EXPECT_DOUBLE_EQ(MaximumInUnit(limits.maximumLength, PaperSizeUnit::Inches), 19.0);
    // 76.2 mm and 482.6 mm round inwards.
    EXPECT_DOUBLE_EQ(MinimumInUnit(limits.minimumWidth, PaperSizeUnit::Millimetres), 77.0);
    EXPECT_DOUBLE_EQ(MaximumInUnit(limits.maximumLength, PaperSizeUnit::Millimetres), 482.0);
    // A point that is not a whole tenth rounds inwards too.
    const CustomPaperSizeLimits odd = CustomPaperSizeLimitsFromPoints(100, 100, 100, 100);
    EXPECT_EQ(odd.minimumWidth, 353);
    EXPECT_EQ(odd.maximumWidth, 352);

    const CustomPaperSize letter = InitialCustomPaperSize(kUnset, 3000, limits);
    EXPECT_EQ(letter.width, 2159);
    EXPECT_EQ(letter.length, 2794);
    const CustomPaperSize clamped = InitialCustomPaperSize(500, 9000, limits);
    EXPECT_EQ(clamped.width, 762);
    EXPECT_EQ(clamped.length, 4826);
}

TEST(CustomPaperSize, CurrentLimitsComeFromThePrinter)
{
    PPDCloseCurrent();
    const CustomPaperSizeLimits none = CurrentCustomPaperSizeLimits();
    EXPECT_EQ(none.minimumWidth, 1524) << "6 in without a printer";
    EXPECT_EQ(none.maximumLength, 3048);
    testing::CurrentPrinterGuard printer;
    const CustomPaperSizeLimits sample = CurrentCustomPaperSizeLimits();
    EXPECT_EQ(sample.minimumWidth, 762);
    EXPECT_EQ(sample.maximumLength, 4826);
}

TEST(AdvancedStockOptions, ValuesGoBackUnchanged)
{
    Stock stock;
    stock.setType(24);
    stock.setModulus(5);
    stock.setWeight(120);
    stock.setPunched(2);
    stock.setSidesCoated(3);
    stock.setCoatingType(2);
    stock.setFinish(4);
    stock.setGrain(1);
    stock.setDescription(QStringLiteral("Dividers"));
    stock.setComment(QStringLiteral("order more"));
    const AdvancedStockValues values = AdvancedStockValuesOf(stock);
    EXPECT_EQ(values.tabCount, 5);
    EXPECT_TRUE(values.colorName.isEmpty());
    Stock copy = stock;
    ApplyAdvancedStockValues(copy, values, JobContext::Job);
    EXPECT_TRUE(copy == stock);
}

TEST(AdvancedStockOptions, NamesMakeCustomColoursAndTypes)
{
    Stock stock;
    DefaultStock(stock, JobContext::Job);
    AdvancedStockValues values = AdvancedStockValuesOf(stock);
    values.colorName = QStringLiteral("Sky");
    values.typeName = QStringLiteral("Dividers");
    values.tabCount = 8;
    ApplyAdvancedStockValues(stock, values, JobContext::Job);
    EXPECT_EQ(stock.color(), kCustomMediaColor);
    EXPECT_EQ(stock.customColor(), QStringLiteral("Sky"));
    EXPECT_EQ(stock.type(), kNamedTabMediaType);
    EXPECT_EQ(stock.modulus(), 8);

    values.tabCount = 0;
    ApplyAdvancedStockValues(stock, values, JobContext::Job);
    EXPECT_EQ(stock.type(), kNamedMediaType);
    EXPECT_EQ(stock.modulus(), kUnset);

    // Emptied names fall back: the job to White and Standard, a cover to
    // the job's own choice.
    values.colorName.clear();
    values.typeName.clear();
    Stock cover = stock;
    ApplyAdvancedStockValues(stock, values, JobContext::Job);
    EXPECT_EQ(stock.color(), kWhiteMediaColor);
    EXPECT_EQ(stock.type(), kStandardMediaType);
    EXPECT_TRUE(stock.customColor().isEmpty() && stock.customType().isEmpty());
    ApplyAdvancedStockValues(cover, values, JobContext::Covers);
    EXPECT_EQ(cover.color(), kUnset);
    EXPECT_EQ(cover.type(), kUnset);

    // A tab count means nothing for plain paper.
    values.tabCount = 4;
    ApplyAdvancedStockValues(stock, values, JobContext::Job);
    EXPECT_EQ(stock.modulus(), kUnset);
}

} // namespace
} // namespace orvan
