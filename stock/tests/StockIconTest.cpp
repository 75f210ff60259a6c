// The layers of a stock's picture, and that the bundle holds every one.
#include "stock/StockIcon.h"

#include <QFileInfo>

#include <gtest/gtest.h>

namespace orvan {
namespace {

struct IconCase
{
    const char* name;
    std::int32_t type;
    std::int32_t color;
    std::int32_t punched;
    QStringList images;
};

class StockIconLayers : public ::testing::TestWithParam<IconCase>
{
};

TEST_P(StockIconLayers, BaseThenOverlaysInOrder)
{
    const IconCase& c = GetParam();
    Stock stock(nullptr);
    stock.setType(c.type); // Transparency turns the colour Clear first
    if (c.color != 0)
        stock.setColor(c.color);
    stock.setPunched(c.punched);
    EXPECT_EQ(StockIconImageNames(stock), c.images);
}

INSTANTIATE_TEST_SUITE_P(
    Stocks, StockIconLayers,
    ::testing::Values(
        IconCase{"ClearTransparency", 2, 0, kUnset, {"Paper_Plain-Clear.gif"}},
        IconCase{"BlueTransparency",
                 2,
                 2,
                 kUnset,
                 {"Paper_Plain-Blue.gif", "Paper_Overlay-LightweightGloss.gif"}},
        IconCase{"PunchedEnvelope",
                 8,
                 1,
                 2,
                 {"Paper_Envelope-White.gif", "Paper_Overlay-HolePunchedEnvelope.gif"}},
        IconCase{"Archival",
                 45,
                 11,
                 kUnset,
                 {"Paper_Plain-Ivory.gif", "Paper_Overlay-Archival.gif",
                  "Paper_Overlay-Heavyweight.gif"}},
        IconCase{"HeavyweightLabels",
                 25,
                 3,
                 kUnset,
                 {"Paper_Plain-Yellow.gif", "Paper_Overlay-Labels.gif",
                  "Paper_Overlay-LablesHeavyweight.gif"}},
        IconCase{"PunchedRecycled",
                 10,
                 4,
                 2,
                 {"Paper_Plain-Green.gif", "Paper_Overlay-Recycled.gif",
                  "Paper_Overlay-HolePunched.gif"}},
        IconCase{"PrepunchedType",
                 11,
                 12,
                 kUnset,
                 {"Paper_Plain-Gray.gif", "Paper_Overlay-HolePunched.gif"}},
        IconCase{"TabStock", 24, 13, 1, {"Paper_Pre-CutTab-Orange.gif"}},
        IconCase{"FullCutTab", 5, 9, kUnset, {"Paper_FullCutTab-Red.gif"}},
        IconCase{"GlossSecondSide",
                 30,
                 8,
                 kUnset,
                 {"Paper_Reloaded-Goldenrod.gif", "Paper_Overlay-LightweightGlossReloaded.gif"}},
        IconCase{
            "CustomType3", 17, 7, kUnset, {"Paper_Plain-Buff.gif", "Paper_Overlay-Custom3.gif"}},
        IconCase{"CustomColourIsWhite", 1, kCustomMediaColor, kUnset, {"Paper_Plain-White.gif"}},
        IconCase{"Unset", kUnset, kUnset, kUnset, {"Paper_Plain-White.gif"}}),
    [](const ::testing::TestParamInfo<IconCase>& info) { return info.param.name; });

TEST(StockIcon, BundleHoldsEveryImageAsPng)
{
    EXPECT_EQ(StockIconImagePath(QStringLiteral("Paper_Overlay-LablesHeavyweight.gif")),
              QStringLiteral("images/stock/Paper_Overlay-LablesHeavyweight.png"));
    const QString folder = QStringLiteral(ORVAN_SOURCE_DIR "/resources/bundle/");
    Stock stock;
    for (std::int32_t punched : {kUnset, 2})
        for (std::int32_t type = 0; type <= 50; ++type)
            for (std::int32_t color = 0; color <= 25; ++color) {
                stock.setType(type);
                stock.setColor(color);
                stock.setPunched(punched);
                for (const QString& name : StockIconImageNames(stock))
                    ASSERT_TRUE(QFileInfo::exists(folder + StockIconImagePath(name)))
                        << name.toStdString();
            }
}

} // namespace
} // namespace orvan
