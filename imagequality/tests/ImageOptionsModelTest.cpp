// The Image Options model: the invert-image reading and writing rules, and
// resolution and toner saver against real PPDs.
#include "imagequality/ImageOptionsModel.h"
#include "imagequality/tests/PanelTestSupport.h"

namespace orvan {
namespace {

using testing::CurrentPpd;
using testing::PpdChoice;
using testing::SetPpdChoice;

// "NegativeImage" counts only above 0, "MirrorImage" whenever it is not 0.
TEST(InvertImage, ReadsEachKeyWithItsOwnTest)
{
    const auto n = [](long v) { return PropertyValue::integer(v); };
    const struct
    {
        PropertyValue negative, mirror;
        bool expectNegative, expectMirror;
    } cases[] = {
        {n(7), n(1), true, true},
        {n(0), n(0), false, false},
        {n(-1), n(-1), false, true},
        {PropertyValue(), n(1), false, true},              // absent key
        {"1", PropertyValue::boolean(true), false, false}, // not numbers
    };
    for (const auto& c : cases) {
        II_Options options{false, !c.expectNegative, !c.expectMirror};
        Ticket ticket;
        testing::SetInvertFlags(ticket, c.negative, c.mirror);
        InvertImageSetOptionsFromTicket(&options, ticket);
        EXPECT_EQ(options, (II_Options{true, c.expectNegative, c.expectMirror}))
            << qPrintable(c.negative.debugString()) << qPrintable(c.mirror.debugString());
    }
    II_Options options{false, true, true};
    InvertImageSetOptionsFromTicket(&options, Ticket());
    EXPECT_EQ(options, (II_Options{true, false, false}));
}

// Writing sets each flag whose control exists, whatever the control shows; a
// flag without its control keeps what was read.
TEST(InvertImage, WritingSetsTheFlagsOfTheControlsThatExist)
{
    const struct
    {
        InvertImageControls controls;
        II_Options before;
        long negative, mirror;
    } cases[] = {
        {{false, false}, {true, false, true}, 0, 1},
        {{false, false}, {true, true, false}, 1, 0},
        {{true, false}, {true, false, false}, 1, 0},
    };
    for (const auto& c : cases) {
        Ticket ticket;
        II_Options options = c.before;
        ASSERT_EQ(InvertImageSync(&options, &ticket, false, c.controls), kNoError);
        ASSERT_NE(ticket.item(kInvertImageOptionsKey), nullptr);
        EXPECT_EQ(ticket.item(kInvertImageOptionsKey)->client, "Q");
        EXPECT_EQ(testing::InvertFlags(ticket), std::pair(c.negative, c.mirror));
    }
}

TEST(ImageOptionsModel, ReadsAndWritesTheChoicesLeavingAnUnknownOneAlone)
{
    CurrentPpd ppd;
    ImageOptionsModel model;
    model.load(ppd.get());
    PrintSession session;
    model.setTonerSaverOn(true);
    ASSERT_EQ(model.sync(&session, true, {}), kNoError);
    EXPECT_EQ(model.resolution(), 2); // the PPD's defaults: 600x600dpi, no toner saver
    EXPECT_FALSE(model.tonerSaverOn());

    // An unknown choice selects nothing (-1), which writes nothing back.
    SetPpdChoice(session, "Resolution", "2400x2400dpi");
    ASSERT_EQ(model.sync(&session, true, {}), kNoError);
    EXPECT_EQ(std::pair(model.resolution(), model.resolutionItem()), std::pair(-1, 0));
    ASSERT_EQ(model.sync(&session, false, {}), kNoError);
    EXPECT_EQ(PpdChoice(session, "Resolution"), "2400x2400dpi");
    EXPECT_EQ(model.sync(nullptr, false, {}), kSyncMissingContext);
}

} // namespace
} // namespace orvan
