// The Image Options panel's model: the invert-image reading and writing
// rules, resolution and toner saver against real PPDs, pictures and summary.
#include "imagequality/ImageOptionsModel.h"
#include "imagequality/tests/PanelTestSupport.h"
#include "settings/DictionaryAccess.h"
#include "settings/Ticket.h"

#include <gtest/gtest.h>

#include <optional>

namespace orvan {
namespace {

using testing::CurrentPpd;
using testing::PpdChoice;
using testing::SetPpdChoice;

// --- Invert image -------------------------------------------------------------

struct ReadCase
{
    const char* name;
    std::optional<PropertyValue> negative; // nullopt: key absent
    std::optional<PropertyValue> mirror;
    bool expectNegative;
    bool expectMirror;
};

void PrintTo(const ReadCase& c, std::ostream* os)
{
    *os << c.name;
}

class InvertImageRead : public ::testing::TestWithParam<ReadCase>
{
};

TEST_P(InvertImageRead, ReadsEachKeyWithItsOwnTest)
{
    const ReadCase& c = GetParam();
    Ticket ticket;
    PropertyValue dictionary = PropertyValue::dictionary();
    if (c.negative)
        dictionary.insert(kNegativeImageKey, *c.negative);
    if (c.mirror)
        dictionary.insert(kMirrorImageKey, *c.mirror);
    ticket.setItem(kShellClient, kInvertImageOptionsKey, dictionary);

    II_Options options{false, !c.expectNegative, !c.expectMirror};
    InvertImageSetOptionsFromTicket(&options, ticket);
    EXPECT_EQ(options, (II_Options{true, c.expectNegative, c.expectMirror}));
}

INSTANTIATE_TEST_SUITE_P(
    Values, InvertImageRead,
    ::testing::Values(
        ReadCase{"BothOne", PropertyValue::integer(1), PropertyValue::integer(1), true, true},
        ReadCase{"BothZero", PropertyValue::integer(0), PropertyValue::integer(0), false, false},
        // -1: mirror counts any non-zero value, negative only values above 0.
        ReadCase{"MinusOne", PropertyValue::integer(-1), PropertyValue::integer(-1), false, true},
        ReadCase{"Large", PropertyValue::integer(7), PropertyValue::integer(7), true, true},
        ReadCase{"SInt32Numbers", PropertyValue::integer(1, NumberType::SInt32),
                 PropertyValue::integer(1, NumberType::SInt32), true, true},
        ReadCase{"OnlyMirror", std::nullopt, PropertyValue::integer(1), false, true},
        ReadCase{"OnlyNegative", PropertyValue::integer(1), std::nullopt, true, false},
        ReadCase{"Strings", PropertyValue(QStringLiteral("1")), PropertyValue(QStringLiteral("1")),
                 false, false},
        ReadCase{"Booleans", PropertyValue::boolean(true), PropertyValue::boolean(true), false,
                 false}),
    [](const auto& info) { return std::string(info.param.name); });

TEST(InvertImage, TicketWithoutTheItemReadsBothOff)
{
    Ticket ticket;
    II_Options options{false, true, true};
    InvertImageSetOptionsFromTicket(&options, ticket);
    EXPECT_EQ(options, (II_Options{true, false, false}));

    // An item that is not a dictionary reads the same.
    ticket.setItem(kShellClient, kInvertImageOptionsKey, PropertyValue::integer(1));
    options = II_Options{false, true, true};
    InvertImageSetOptionsFromTicket(&options, ticket);
    EXPECT_EQ(options, (II_Options{true, false, false}));
}

// Writing takes each flag from whether its control exists, whatever the
// options held; a headless panel has no controls and writes both as 0.
TEST(InvertImage, WritingTakesTheFlagsFromThePresenceOfTheControls)
{
    struct Case
    {
        InvertImageControls controls;
        II_Options before;
        long negative;
        long mirror;
    };
    const Case cases[] = {
        {{false, false}, {true, true, true}, 0, 0}, // headless: boxes "on" still write 0
        {{true, true}, {true, false, false}, 1, 1}, // with controls: boxes "off" still write 1
        {{true, false}, {true, false, true}, 1, 0},
        {{false, true}, {true, true, false}, 0, 1},
    };
    for (const Case& c : cases) {
        Ticket ticket;
        ticket.setItem(kShellClient, kInvertImageOptionsKey, PropertyValue::integer(99));
        II_Options options = c.before;
        ASSERT_EQ(InvertImageSync(&options, &ticket, false, c.controls), kNoError);
        EXPECT_EQ(options.negativeImage, c.controls.negativeImage);
        EXPECT_EQ(options.mirrorImage, c.controls.mirrorImage);

        const TicketItem* item = ticket.item(kInvertImageOptionsKey);
        ASSERT_NE(item, nullptr);
        EXPECT_EQ(item->client, QStringLiteral("Q"));
        EXPECT_FALSE(item->locked);
        EXPECT_EQ(item->value.size(), 2u);
        long negative = -5, mirror = -5;
        EXPECT_TRUE(GetCFIndexFromCFDictionary(&item->value, kNegativeImageKey, &negative));
        EXPECT_TRUE(GetCFIndexFromCFDictionary(&item->value, kMirrorImageKey, &mirror));
        EXPECT_EQ(negative, c.negative);
        EXPECT_EQ(mirror, c.mirror);
        EXPECT_EQ(item->value.find(kMirrorImageKey)->numberType(), NumberType::CFIndex);
    }
}

TEST(InvertImage, LockedItemIsReported)
{
    Ticket ticket;
    ticket.setItem(kShellClient, kInvertImageOptionsKey, PropertyValue::dictionary(), true);
    II_Options options;
    EXPECT_EQ(InvertImageSync(&options, &ticket, false, {}), kTicketItemLocked);
    EXPECT_EQ(InvertImageSync(nullptr, &ticket, true, {}), kBadParameter);
}

// --- Resolution and toner saver -------------------------------------------------

TEST(ImageOptionsModel, ResolutionMenuListsThePpdChoicesWithTheirValues)
{
    CurrentPpd ppd(testing::SamplePpdPath());
    ImageOptionsModel model;
    model.load(ppd.get());
    const MenuModel& menu = model.resolutionMenu();
    ASSERT_EQ(menu.count(), 7);
    const std::int32_t values[] = {6, 5, 1, 2, 3, 4, 7}; // PPD order
    for (int i = 0; i < 7; ++i)
        EXPECT_EQ(menu.item(i + 1)->referenceValue, values[i]) << i;
    EXPECT_EQ(menu.item(6)->text, QStringLiteral("1200 dpi"));
}

TEST(ImageOptionsModel, ReadsTheTicketChoiceElseThePpdDefault)
{
    CurrentPpd ppd(testing::SamplePpdPath());
    ImageOptionsModel model;
    model.load(ppd.get());
    PrintSession session;

    // Nothing in the ticket: the PPD's defaults (600x600dpi, None).
    model.setTonerSaverOn(true);
    ASSERT_EQ(model.sync(&session, true, {}), kNoError);
    EXPECT_EQ(model.resolution(), 2);
    EXPECT_FALSE(model.tonerSaverOn());

    SetPpdChoice(session, "Resolution", "1200x1200dpi");
    SetPpdChoice(session, "QVEconomode", "Draft");
    ASSERT_EQ(model.sync(&session, true, {}), kNoError);
    EXPECT_EQ(model.resolution(), 4);
    EXPECT_EQ(model.resolutionItem(), 6);
    EXPECT_TRUE(model.tonerSaverOn());

    // A choice the panel does not know selects nothing.
    SetPpdChoice(session, "Resolution", "2400x2400dpi");
    SetPpdChoice(session, "QVEconomode", "Eco");
    ASSERT_EQ(model.sync(&session, true, {}), kNoError);
    EXPECT_EQ(model.resolution(), -1);
    EXPECT_EQ(model.resolutionItem(), 0);
    EXPECT_EQ(model.tonerSaver(), -1);
    EXPECT_FALSE(model.tonerSaverOn());
}

TEST(ImageOptionsModel, WritesTheChoicesAndLeavesAnUnknownChoiceAlone)
{
    CurrentPpd ppd(testing::SamplePpdPath());
    ImageOptionsModel model;
    model.load(ppd.get());
    PrintSession session;

    model.chooseResolution(7);
    model.setTonerSaverOn(true);
    ASSERT_EQ(model.sync(&session, false, {}), kNoError);
    EXPECT_EQ(PpdChoice(session, "Resolution"), QStringLiteral("1800x1800dpi"));
    EXPECT_EQ(PpdChoice(session, "QVEconomode"), QStringLiteral("Draft"));

    model.setTonerSaverOn(false);
    ASSERT_EQ(model.sync(&session, false, {}), kNoError);
    EXPECT_EQ(PpdChoice(session, "QVEconomode"), QStringLiteral("None"));

    // Read an unknown choice, write again: there is no choice for -1, so the
    // ticket keeps what it had.
    SetPpdChoice(session, "Resolution", "2400x2400dpi");
    ASSERT_EQ(model.sync(&session, true, {}), kNoError);
    ASSERT_EQ(model.sync(&session, false, {}), kNoError);
    EXPECT_EQ(PpdChoice(session, "Resolution"), QStringLiteral("2400x2400dpi"));
}

TEST(ImageOptionsModel, PpdWithoutResolutionGivesAnEmptyMenuAndOneDiagnostic)
{
    CurrentPpd ppd(testing::TestPpdPath("no-resolution.ppd"));
    ImageOptionsModel model;
    ::testing::internal::CaptureStderr();
    model.load(ppd.get());
    const std::string diagnostics = ::testing::internal::GetCapturedStderr();
    EXPECT_TRUE(model.resolutionMenu().isEmpty());
    EXPECT_EQ(diagnostics, "Expected PPD option not found: Resolution\n");

    // Its toner saver defaults to Draft; the resolution stays unset and is
    // not written.
    PrintSession session;
    ASSERT_EQ(model.sync(&session, true, {}), kNoError);
    EXPECT_TRUE(model.tonerSaverOn());
    EXPECT_EQ(model.resolution(), -1);
    ASSERT_EQ(model.sync(&session, false, {}), kNoError);
    EXPECT_FALSE(session.printSettings().ppdDictionary().contains(QStringLiteral("Resolution")));
}

TEST(ImageOptionsModel, ChoicesUnknownToTheMapAreLeftOutOfTheMenu)
{
    CurrentPpd ppd(testing::TestPpdPath("odd-resolution.ppd"));
    ImageOptionsModel model;
    ::testing::internal::CaptureStderr();
    model.load(ppd.get());
    EXPECT_EQ(::testing::internal::GetCapturedStderr(),
              "Skipped unrecognized choice in PPD: 2400x2400dpi\n");
    ASSERT_EQ(model.resolutionMenu().count(), 2);
    EXPECT_EQ(model.resolutionMenu().item(2)->referenceValue, 7);

    // The PPD's own default is the unknown choice.
    PrintSession session;
    ASSERT_EQ(model.sync(&session, true, {}), kNoError);
    EXPECT_EQ(model.resolution(), -1);
}

TEST(ImageOptionsModel, WithoutAPpdOnlyTheTicketCounts)
{
    ImageOptionsModel model;
    model.load(nullptr);
    PrintSession session;
    ASSERT_EQ(model.sync(&session, true, {}), kNoError);
    EXPECT_EQ(model.resolution(), -1);
    EXPECT_EQ(model.tonerSaver(), kTonerSaverOff);
    SetPpdChoice(session, "Resolution", "300x300dpi");
    ASSERT_EQ(model.sync(&session, true, {}), kNoError);
    EXPECT_EQ(model.resolution(), 1);
    EXPECT_EQ(model.sync(nullptr, true, {}), kSyncMissingContext);
}

TEST(ImageOptionsModel, LightenDarkenAndHalftoneDoNothing)
{
    ImageOptionsModel model;
    Ticket ticket;
    EXPECT_EQ(model.syncLightenDarkenToTicket(ticket), kNoError);
    EXPECT_EQ(model.syncLightenDarkenToUI(ticket), kNoError);
    EXPECT_EQ(model.updateHalftoneScreenMenu(), kNoError);
    EXPECT_TRUE(ticket.isEmpty());
}

TEST(ImageOptionsModel, PicturesFollowTheState)
{
    ImageOptionsModel model;
    const std::pair<std::int32_t, const char*> resolutions[] = {
        {1, "600"}, {2, "600"}, {3, "1200"}, {4, "1200"},
        {5, "600"}, {6, "600"}, {7, "1800"}, {-1, "600"},
    };
    for (const auto& [value, picture] : resolutions) {
        model.chooseResolution(value);
        EXPECT_EQ(model.resolutionPicture(),
                  QStringLiteral("ImageOptions_Resolution_%1.png").arg(QLatin1String(picture)))
            << value;
    }
    EXPECT_EQ(model.tonerSaverPicture(), QStringLiteral("ImageOptions_TonerSaver_Off.png"));
    model.setTonerSaverOn(true);
    EXPECT_EQ(model.tonerSaverPicture(), QStringLiteral("ImageOptions_TonerSaver_On.png"));
    model.setNegativeImage(true);
    EXPECT_EQ(model.invertImagePicture(), QStringLiteral("ImageOptions_InvertImage_Off.png"));
    model.setMirrorImage(true);
    EXPECT_EQ(model.invertImagePicture(), QStringLiteral("ImageOptions_InvertImage_Mirror.png"));

    // Every picture the model names is in the plug-in's bundle.
    for (const QString& name :
         {model.resolutionPicture(), model.tonerSaverPicture(), model.invertImagePicture()})
        EXPECT_FALSE(
            testing::PluginBundle().resourcePath(QStringLiteral("images/") + name).isEmpty())
            << qPrintable(name);
}

TEST(ImageOptionsModel, SummaryAppendsFourPairsToTheSharedArrays)
{
    CurrentPpd ppd(testing::SamplePpdPath());
    ImageOptionsModel model;
    model.load(ppd.get());
    model.chooseResolution(4);
    model.setTonerSaverOn(true);
    model.setMirrorImage(true);

    PropertyValue titles; // Null: the first panel creates the arrays
    PropertyValue values;
    model.appendSummary(&testing::PluginBundle(), &titles, &values);
    ASSERT_TRUE(titles.isArray());
    ASSERT_EQ(titles.size(), 4u);
    ASSERT_EQ(values.size(), 4u);
    EXPECT_EQ(testing::Strings(titles),
              QStringList({QStringLiteral("Resolution"), QStringLiteral("Toner Saver"),
                           QStringLiteral("Negative Image"), QStringLiteral("Mirror Image")}));
    EXPECT_EQ(testing::Strings(values),
              QStringList({QStringLiteral("1200 dpi"), QStringLiteral("On"), QStringLiteral("Off"),
                           QStringLiteral("On")}));

    // A resolution no item shows is left out; earlier pairs stay.
    model.chooseResolution(-1);
    model.appendSummary(&testing::PluginBundle(), &titles, &values);
    EXPECT_EQ(titles.size(), 7u);
    EXPECT_EQ(testing::Strings(titles).at(4), QStringLiteral("Toner Saver"));
}

} // namespace
} // namespace orvan
