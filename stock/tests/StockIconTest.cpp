// The layers of a stock's picture, and that the bundle holds every one.
#include "stock/StockIcon.h"

#include <QFileInfo>

#include <gtest/gtest.h>

namespace orvan {
namespace {

TEST(StockIcon, BaseThenOverlaysInOrder)
{
    const struct
    {
        std::int32_t type, color, punched;
        const char* images; // separated by spaces
    } cases[] = {
        // A transparency turns the colour Clear first.
        {2, 0, kUnset, "Paper_Plain-Clear.gif"},
        {2, 2, kUnset, "Paper_Plain-Blue.gif Paper_Overlay-LightweightGloss.gif"},
        {8, 1, 2, "Paper_Envelope-White.gif Paper_Overlay-HolePunchedEnvelope.gif"},
        {45, 11, kUnset,
         "Paper_Plain-Ivory.gif Paper_Overlay-Archival.gif Paper_Overlay-Heavyweight.gif"},
        {25, 3, kUnset,
         "Paper_Plain-Yellow.gif Paper_Overlay-Labels.gif Paper_Overlay-LablesHeavyweight.gif"},
        {10, 4, 2,
         "Paper_Plain-Green.gif Paper_Overlay-Recycled.gif Paper_Overlay-HolePunched.gif"},
        {11, 12, kUnset, "Paper_Plain-Gray.gif Paper_Overlay-HolePunched.gif"}, // pre-punched
        {24, 13, 1, "Paper_Pre-CutTab-Orange.gif"},
        {5, 9, kUnset, "Paper_FullCutTab-Red.gif"},
        {30, 8, kUnset, "Paper_Reloaded-Goldenrod.gif Paper_Overlay-LightweightGlossReloaded.gif"},
        {17, 7, kUnset, "Paper_Plain-Buff.gif Paper_Overlay-Custom3.gif"},
        {1, kCustomMediaColor, kUnset, "Paper_Plain-White.gif"},
        {kUnset, kUnset, kUnset, "Paper_Plain-White.gif"},
    };
    for (const auto& c : cases) {
        Stock stock(nullptr);
        stock.setType(c.type);
        if (c.color != 0)
            stock.setColor(c.color);
        stock.setPunched(c.punched);
        EXPECT_EQ(StockIconImageNames(stock).join(' ').toStdString(), c.images) << c.type;
    }
}

TEST(StockIcon, BundleHoldsEveryImageAsPng)
{
    EXPECT_EQ(StockIconImagePath("Paper_Overlay-LablesHeavyweight.gif"),
              "images/stock/Paper_Overlay-LablesHeavyweight.png");
    Stock stock;
    for (std::int32_t punched : {kUnset, 2})
        for (std::int32_t type = 0; type <= 50; ++type)
            for (std::int32_t color = 0; color <= 25; ++color) {
                stock.setType(type);
                stock.setColor(color);
                stock.setPunched(punched);
                for (const QString& name : StockIconImageNames(stock))
                    ASSERT_TRUE(QFileInfo::exists(ORVAN_SOURCE_DIR "/resources/bundle/" +
                                                  StockIconImagePath(name)))
                        << name.toStdString();
            }
}

} // namespace
} // namespace orvan
