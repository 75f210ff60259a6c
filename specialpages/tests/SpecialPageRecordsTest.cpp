// Covers, inserts and exception pages: defaults, dictionary forms both ways,
// cover equality, clones; and the image-shift record they carry.
#include "settings/DictionaryAccess.h"
#include "specialpages/Cover.h"
#include "specialpages/ExceptionPage.h"
#include "specialpages/Insert.h"
#include "specialpages/SpecialPageKeys.h"

#include <gtest/gtest.h>

#include <QStringList>

#include <typeinfo>

using namespace orvan;

namespace {

QStringList keysOf(const PropertyValue& dictionary)
{
    QStringList keys;
    for (const auto& [key, value] : dictionary.asDictionary())
        keys << key;
    return keys;
}

long numberAt(const PropertyValue& dictionary, const QString& key)
{
    long value = -1;
    EXPECT_TRUE(GetCFIndexFromCFDictionary(&dictionary, key, &value)) << key.toStdString();
    return value;
}

} // namespace

TEST(SpecialPageRecords, DefaultsKeysClonesAndReadingBack)
{
    Cover cover;
    Insert insert;
    const ExceptionPage exception;
    EXPECT_EQ(cover.sidesImaged(), kCoverBlankOrPreprinted);
    EXPECT_EQ(insert.quantity(), 1);
    EXPECT_EQ(exception.endPage(), 0);
    for (std::int32_t unset :
         {exception.plex(), exception.halftoneScreen(), exception.lightenDarken()})
        EXPECT_EQ(unset, kUnset);
    EXPECT_TRUE(exception.imageShift().isUnset());
    EXPECT_EQ(exception.stock().color(), kWhiteMediaColor);
    EXPECT_EQ(*exception.asTicket().find(kSpecialPageStockKey), Stock().asTicket());
    cover.setStartPage(7);
    cover.setSidesImaged(kCoverPrintedSimplex);
    cover.stock().setCustomName("Linen");
    insert.setStartPage(3);
    insert.setQuantity(6);
    insert.stock().setColor(3);
    const std::pair<const SpecialPage*, QStringList> pages[] = {
        {&cover, {"SidesImaged", "StartPage", "Stock"}},
        {&insert, {"Quantity", "StartPage", "Stock"}},
        {&exception, {"EndPage", "StartPage", "Stock"}},
    };
    for (const auto& [page, keys] : pages) {
        const PropertyValue dictionary = page->asTicket();
        EXPECT_EQ(keysOf(dictionary), keys);
        EXPECT_EQ(numberAt(dictionary, kStartPageKey), page->startPage());
        const std::unique_ptr<SpecialPage> clone = page->clone();
        EXPECT_EQ(typeid(*clone), typeid(*page));
        EXPECT_EQ(clone->asTicket(), dictionary);
    }
    const PropertyValue written[] = {cover.asTicket(), insert.asTicket()};
    EXPECT_EQ(Cover(&written[0]).asTicket(), written[0]);
    EXPECT_EQ(Insert(&written[1]).asTicket(), written[1]);
}

// Missing entries keep their defaults; a stock read from no dictionary has
// every attribute unset.
TEST(SpecialPageRecords, ReadFromMissingOrPartialDictionaries)
{
    PropertyValue dictionary = PropertyValue::dictionary();
    WriteTicketValue(&dictionary, kStartPageKey, 4);
    const Insert noStock(&dictionary);
    EXPECT_EQ(noStock.startPage(), 4);
    EXPECT_EQ(noStock.stock().color(), kUnset);
    EXPECT_EQ(noStock.quantity(), 1);
    const Cover fromNothing(nullptr);
    EXPECT_EQ(fromNothing.stock().color(), kUnset);
    EXPECT_EQ(fromNothing.sidesImaged(), kCoverBlankOrPreprinted);
}

TEST(SpecialPageRecords, CoverEqualityIgnoresStartPage)
{
    Cover a, b;
    b.setStartPage(12);
    EXPECT_EQ(a, b);
    a.setSidesImaged(kCoverPrintedSimplex);
    EXPECT_FALSE(a == b);
}

// The plex travels under the cover's key "SidesImaged", and HalftoneScreen is
// written but never read back: both kept so.
TEST(SpecialPageRecords, ExceptionPageKeysAndWhatComesBack)
{
    ExceptionPage page;
    page.setStartPage(5);
    page.setEndPage(9);
    page.setPlex(kPlexDuplexShort);
    page.setHalftoneScreen(2);
    page.setLightenDarken(-3);
    page.imageShift().tabExtension = 60;
    const PropertyValue dictionary = page.asTicket();
    EXPECT_EQ(keysOf(dictionary),
              (QStringList{"EndPage", "HalftoneScreen", "LightenDarken", "SidesImaged", "StartPage",
                           "Stock", "com.orvan.print.ImageShiftOptionsPage"}));

    ExceptionPage back(&dictionary);
    EXPECT_EQ(back.halftoneScreen(), kUnset);
    back.setHalftoneScreen(2);
    EXPECT_EQ(back.asTicket(), dictionary);
    // A cover read from an exception page's dictionary takes the plex as its sides.
    EXPECT_EQ(Cover(&dictionary).sidesImaged(), kPlexDuplexShort);
}

// Special pages write only what is set; the job writes every field, 0 for
// unset. Values that are not numbers, or no dictionary, read nothing.
TEST(ImageShiftOptions, WrittenByContextAndReadBack)
{
    ImageShiftOptions options;
    EXPECT_FALSE(options.asTicket(JobContext::ImageShift));
    EXPECT_FALSE(options.asTicket(JobContext::ExceptionPages));
    options.frontShiftX = -15;
    options.backShiftY = 20;
    const auto written = options.asTicket(JobContext::ImageShift);
    ASSERT_TRUE(written);
    EXPECT_EQ(keysOf(*written), (QStringList{"BackShiftY", "FrontShiftX"}));
    ImageShiftOptions back;
    back.readFromTicket(&*written);
    EXPECT_EQ(back, options);
    options.backMirrorsFront = true;
    EXPECT_EQ(keysOf(*options.asTicket(JobContext::ImageShift)),
              (QStringList{"BackMirrorsFront", "FrontShiftX"}));

    ImageShiftOptions job;
    job.tabExtension = 50;
    const auto all = job.asTicket(JobContext::Job);
    ASSERT_TRUE(all);
    EXPECT_EQ(all->size(), 6u);
    EXPECT_EQ(numberAt(*all, "TabExtension"), 50);
    EXPECT_EQ(numberAt(*all, "FrontShiftY"), 0);
    EXPECT_EQ(all->find("BackMirrorsFront")->toBool(), false);

    job.frontShiftY = 7;
    PropertyValue malformed = PropertyValue::dictionary();
    malformed.insert("FrontShiftY", PropertyValue("7 mm"));
    job.readFromTicket(&malformed);
    job.readFromTicket(nullptr);
    EXPECT_EQ(job.frontShiftY, 7);
}
