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

TEST(SpecialPageRecords, DefaultsAndBaseKeys)
{
    const Cover cover;
    const Insert insert;
    const ExceptionPage exception;
    EXPECT_EQ(cover.sidesImaged(), kCoverBlankOrPreprinted);
    EXPECT_EQ(insert.quantity(), 1);
    EXPECT_EQ(exception.endPage(), 0);
    EXPECT_EQ(exception.plex(), kUnset);
    EXPECT_EQ(exception.halftoneScreen(), kUnset);
    EXPECT_EQ(exception.lightenDarken(), kUnset);
    EXPECT_TRUE(exception.imageShift().isUnset());
    for (const SpecialPage* page :
         {static_cast<const SpecialPage*>(&cover), static_cast<const SpecialPage*>(&insert),
          static_cast<const SpecialPage*>(&exception)}) {
        EXPECT_EQ(page->startPage(), 0);
        EXPECT_EQ(page->stock().color(), kWhiteMediaColor);
        const PropertyValue dictionary = page->asTicket();
        EXPECT_EQ(numberAt(dictionary, kStartPageKey), 0);
        EXPECT_EQ(*dictionary.find(kSpecialPageStockKey), Stock().asTicket());
    }
    EXPECT_EQ(keysOf(cover.asTicket()), (QStringList{"SidesImaged", "StartPage", "Stock"}));
    EXPECT_EQ(keysOf(insert.asTicket()), (QStringList{"Quantity", "StartPage", "Stock"}));
    EXPECT_EQ(keysOf(exception.asTicket()), (QStringList{"EndPage", "StartPage", "Stock"}));
}

TEST(SpecialPageRecords, StockWithoutDictionaryHasNoColour)
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

TEST(SpecialPageRecords, CoverAndInsertRoundTrip)
{
    Cover cover;
    cover.setStartPage(7);
    cover.setSidesImaged(kCoverPrintedDuplex);
    cover.stock().setType(12);
    cover.stock().setCustomName("Linen");
    const PropertyValue coverDictionary = cover.asTicket();
    const Cover coverBack(&coverDictionary);
    EXPECT_EQ(coverBack, cover);
    EXPECT_EQ(coverBack.startPage(), 7);

    Insert insert;
    insert.setStartPage(3);
    insert.setQuantity(4);
    insert.stock().setColor(3);
    const PropertyValue dictionary = insert.asTicket();
    const Insert insertBack(&dictionary);
    EXPECT_EQ(insertBack.startPage(), 3);
    EXPECT_EQ(insertBack.quantity(), 4);
    EXPECT_EQ(insertBack.stock(), insert.stock());
}

TEST(SpecialPageRecords, CoverEqualityIgnoresStartPage)
{
    Cover a;
    Cover b;
    b.setStartPage(12);
    EXPECT_EQ(a, b);
    b.stock().setCustomName("Linen");
    EXPECT_FALSE(a == b);
    a.stock().setCustomName("LINEN");
    EXPECT_EQ(a, b);
    a.setSidesImaged(kCoverPrintedSimplex);
    EXPECT_FALSE(a == b);
}

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
    // The plex travels under the cover's key.
    EXPECT_EQ(numberAt(dictionary, "SidesImaged"), kPlexDuplexShort);
    EXPECT_EQ(numberAt(dictionary, "HalftoneScreen"), 2);

    const ExceptionPage back(&dictionary);
    EXPECT_EQ(back.startPage(), 5);
    EXPECT_EQ(back.endPage(), 9);
    EXPECT_EQ(back.plex(), kPlexDuplexShort);
    EXPECT_EQ(back.lightenDarken(), -3);
    EXPECT_EQ(back.imageShift(), page.imageShift());
    EXPECT_EQ(back.halftoneScreen(), kUnset); // written, never read

    // A cover read from an exception page's dictionary takes the plex as its sides.
    EXPECT_EQ(Cover(&dictionary).sidesImaged(), kPlexDuplexShort);
}

TEST(SpecialPageRecords, ClonesKeepTheirKind)
{
    // Field-by-field copying of exception pages is checked where the list
    // splits a range.
    Cover cover;
    cover.setSidesImaged(kCoverPrintedSimplex);
    Insert insert;
    insert.setQuantity(6);
    const ExceptionPage exception;
    for (const SpecialPage* page :
         {static_cast<const SpecialPage*>(&cover), static_cast<const SpecialPage*>(&insert),
          static_cast<const SpecialPage*>(&exception)}) {
        const std::unique_ptr<SpecialPage> clone = page->clone();
        EXPECT_EQ(typeid(*clone), typeid(*page));
        EXPECT_EQ(clone->asTicket(), page->asTicket());
    }
}

TEST(ImageShiftOptions, SpecialPagesWriteOnlyWhatIsSet)
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
    const auto mirrored = options.asTicket(JobContext::ImageShift);
    EXPECT_EQ(keysOf(*mirrored), (QStringList{"BackMirrorsFront", "FrontShiftX"}));
}

TEST(ImageShiftOptions, JobWritesEveryFieldWithZeroForUnset)
{
    ImageShiftOptions options;
    options.tabExtension = 50;
    const auto written = options.asTicket(JobContext::Job);
    ASSERT_TRUE(written);
    EXPECT_EQ(written->size(), 6u);
    EXPECT_EQ(numberAt(*written, "TabExtension"), 50);
    EXPECT_EQ(numberAt(*written, "FrontShiftY"), 0);
    EXPECT_EQ(written->find("BackMirrorsFront")->toBool(), false);

    ImageShiftOptions read;
    read.frontShiftY = 7;
    PropertyValue malformed = PropertyValue::dictionary();
    malformed.insert("FrontShiftY", PropertyValue("7 mm"));
    read.readFromTicket(&malformed);
    EXPECT_EQ(read.frontShiftY, 7);
    read.readFromTicket(nullptr);
    EXPECT_EQ(read.frontShiftY, 7);
}
