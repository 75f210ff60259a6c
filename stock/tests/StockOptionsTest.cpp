// Custom paper sizes (units and limits) and the advanced stock attributes.
#include "StockTestSupport.h"

#include "stock/AdvancedStockOptions.h"
#include "stock/CustomPaperSize.h"

namespace orvan {
namespace {

constexpr auto kInches = PaperSizeUnit::Inches;
constexpr auto kMillimetres = PaperSizeUnit::Millimetres;

TEST(CustomPaperSize, ConvertsTenthsOfMillimetresToTheShownUnits)
{
    // Inches to a tenth, whole millimetres.
    const std::tuple<std::int32_t, PaperSizeUnit, double> shown[] = {
        {2159, kInches, 8.5}, {2100, kInches, 8.3}, {2159, kMillimetres, 216.0}};
    for (const auto& [tenths, unit, value] : shown)
        EXPECT_DOUBLE_EQ(TenthsOfMillimetreToUnit(tenths, unit), value) << tenths;
    EXPECT_EQ(UnitToTenthsOfMillimetre(8.5, kInches), 2159);
    EXPECT_EQ(UnitToTenthsOfMillimetre(216.0, kMillimetres), 2160);
}

TEST(CustomPaperSize, LimitsStayInsideThePrintersRange)
{
    // The sample printer: 3 x 5 in to 13 x 19 in.
    const CustomPaperSizeLimits limits = CustomPaperSizeLimitsFromPoints(216, 360, 936, 1368);
    EXPECT_EQ(std::tuple(limits.minimumWidth, limits.minimumLength, limits.maximumWidth,
                         limits.maximumLength),
              std::tuple(762, 1270, 3302, 4826));
    EXPECT_DOUBLE_EQ(MinimumInUnit(limits.minimumWidth, kInches), 3.0);
    // 76.2 mm and 482.6 mm round inwards, and so does a point that is not a
    // whole tenth.
    EXPECT_DOUBLE_EQ(MinimumInUnit(limits.minimumWidth, kMillimetres), 77.0);
    EXPECT_DOUBLE_EQ(MaximumInUnit(limits.maximumLength, kMillimetres), 482.0);
    const CustomPaperSizeLimits odd = CustomPaperSizeLimitsFromPoints(100, 100, 100, 100);
    EXPECT_EQ(std::pair(odd.minimumWidth, odd.maximumWidth), std::pair(353, 352));

    const CustomPaperSize letter = InitialCustomPaperSize(kUnset, 3000, limits);
    EXPECT_EQ(std::pair(letter.width, letter.length), std::pair(2159, 2794));
    const CustomPaperSize clamped = InitialCustomPaperSize(500, 9000, limits);
    EXPECT_EQ(std::pair(clamped.width, clamped.length), std::pair(762, 4826));

    PPDCloseCurrent();
    EXPECT_EQ(CurrentCustomPaperSizeLimits().minimumWidth, 1524) << "6 in without a printer";
    testing::CurrentPrinterGuard printer;
    EXPECT_EQ(CurrentCustomPaperSizeLimits().maximumLength, 4826);
}

TEST(AdvancedStockOptions, ValuesGoBackUnchanged)
{
    const PropertyValue dictionary = testing::Unflat(
        "Type=24; Modulus=5; Weight=120; Punched=2; SidesCoated=3; kCoatingType=2; Finish=4; "
        "kGrain=1; Description=Dividers; CustomComment=order more");
    Stock stock(&dictionary);
    stock.setModulus(5); // read back for the pre-cut and named tab types only
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
    values.colorName = "Sky";
    values.typeName = "Dividers";
    values.tabCount = 8;
    ApplyAdvancedStockValues(stock, values, JobContext::Job);
    EXPECT_EQ(std::tuple(stock.color(), stock.customColor(), stock.type(), stock.modulus()),
              std::tuple(kCustomMediaColor, "Sky", kNamedTabMediaType, 8));
    values.tabCount = 0;
    ApplyAdvancedStockValues(stock, values, JobContext::Job);
    EXPECT_EQ(std::pair(stock.type(), stock.modulus()), std::pair(kNamedMediaType, kUnset));

    // Emptied names fall back: the job to White and Standard, a cover to
    // the job's own choice.
    values.colorName.clear();
    values.typeName.clear();
    Stock cover = stock;
    ApplyAdvancedStockValues(stock, values, JobContext::Job);
    EXPECT_EQ(std::pair(stock.color(), stock.type()),
              std::pair(kWhiteMediaColor, kStandardMediaType));
    EXPECT_TRUE(stock.customColor().isEmpty() && stock.customType().isEmpty());
    ApplyAdvancedStockValues(cover, values, JobContext::Covers);
    EXPECT_EQ(std::pair(cover.color(), cover.type()), std::pair(kUnset, kUnset));
    // A tab count means nothing for plain paper.
    values.tabCount = 4;
    ApplyAdvancedStockValues(stock, values, JobContext::Job);
    EXPECT_EQ(stock.modulus(), kUnset);
}

} // namespace
} // namespace orvan
