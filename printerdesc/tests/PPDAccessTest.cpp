// PPD access: the current PPD, choices and ticket values, texts and their
// encodings, menus filled from a PPD option and the constraint check.
#include "PpdTestSupport.h"

#include "settings/PrintSession.h"
#include "settings/Ticket.h"

#include <QTemporaryDir>

namespace orvan {
namespace {

using testing::OpenOrFail;
using testing::SamplePpdPath;
using testing::TestPpdPath;

TEST(PPDChoiceValues, FirstMatchingRowWins)
{
    struct Case
    {
        const char* keyword;
        const char* choice;
        std::int32_t value;
    } const cases[] = {
        {"InputSlot", "Bypass", 100},
        {"OutputBin", "Bottom", 5},
        {"OutputBin", "PrinterDefault", kUnsetValue},
        {"PageSize", "Custom", 75},
        {"PageSize", "3x5", 80},
        {"MediaType", "CardStock", 12}, // the second "CardStock" row (43) is never reached
        {"QVSlipSheetType", "CardStockF", 43},
        {"QVFrontCoverSheet", "Tray3", 3},
        {"QVImageQuality", "Darken5", 5},
        {"Duplex", "Simplex", -1},     // not a choice of the map
        {"NoSuchKeyword", "True", -1}, // not in the main keyword map
        {"Option4", "True", -1},
    };
    for (const Case& c : cases) {
        EXPECT_EQ(
            PPDTicketValueForChoice(QString::fromUtf8(c.keyword), QString::fromUtf8(c.choice)),
            c.value)
            << c.keyword << " " << c.choice;
    }
    EXPECT_EQ(PPDTicketValueForChoice(QString(), QStringLiteral("True")), -1);
    EXPECT_EQ(PPDTicketValueForChoice(QStringLiteral("JCLBanner"), QString()), -1);
}

TEST(PPDChoiceValues, ChoiceForValueTakesTheFirstRow)
{
    struct Case
    {
        const char* keyword;
        std::int32_t value;
        const char* choice;
    } const cases[] = {
        {"OutputBin", 5, "Upper"},
        {"MediaType", 43, "CardStock"},
        {"QVFrontCoverSheet", 0, "Auto"},
        {"QVSlipSheetSource", 100, "Bypass"},
        {"Jog", 0, "None"},
        {"QVImageQuality", -1, "Lighten1"},
        {"OutputBin", kUnsetValue, "PrinterDefault"},
        {"PageSize", 80, "3x5"},
        {"OutputBin", 99, nullptr},
        {"NoSuchKeyword", 1, nullptr},
    };
    for (const Case& c : cases) {
        const char* choice = PPDChoiceForTicketValue(QString::fromUtf8(c.keyword), c.value);
        if (c.choice)
            EXPECT_STREQ(choice, c.choice) << c.keyword << " " << c.value;
        else
            EXPECT_EQ(choice, nullptr) << c.keyword << " " << c.value;
    }
}

TEST(PPDTicketChoices, SetAndCopyThroughThePPDDictionary)
{
    Ticket ticket;
    PPDSetCurrentChoice(&ticket, QStringLiteral("InputSlot"), QStringLiteral("Tray2"));
    EXPECT_EQ(PPDCopyCurrentChoice(&ticket, QStringLiteral("InputSlot")), QStringLiteral("Tray2"));
    EXPECT_EQ(ticket.ppdDictionary().find(QStringLiteral("InputSlot"))->toString(),
              QStringLiteral("Tray2"));
    EXPECT_FALSE(ticket.containsItem(QStringLiteral("InputSlot")))
        << "PPD choices are not ticket items";

    EXPECT_EQ(PPDCopyCurrentChoice(&ticket, QStringLiteral("OutputBin")), std::nullopt);
    EXPECT_EQ(PPDCopyCurrentChoice(nullptr, QStringLiteral("InputSlot")), std::nullopt);
    EXPECT_EQ(PPDCopyCurrentChoice(&ticket, QString()), std::nullopt);
    PPDSetCurrentChoice(nullptr, QStringLiteral("InputSlot"), QStringLiteral("Tray1"));
    PPDSetCurrentChoice(&ticket, QStringLiteral("InputSlot"), QString());
    EXPECT_EQ(PPDCopyCurrentChoice(&ticket, QStringLiteral("InputSlot")), QStringLiteral("Tray2"));
}

TEST(PPDTicketChoices, TicketChoiceOrPPDDefault)
{
    PpdFilePtr ppd = OpenOrFail(SamplePpdPath());
    Ticket ticket;
    std::int32_t value = 1234;

    EXPECT_TRUE(PPDGetTicketValueForChoiceOrDefault(ppd.get(), &ticket, QStringLiteral("OutputBin"),
                                                    &value));
    EXPECT_EQ(value, 1) << "the PPD's default, Auto";

    PPDSetCurrentChoice(&ticket, QStringLiteral("OutputBin"), QStringLiteral("Center"));
    EXPECT_TRUE(PPDGetTicketValueForChoiceOrDefault(ppd.get(), &ticket, QStringLiteral("OutputBin"),
                                                    &value));
    EXPECT_EQ(value, 5);

    PPDSetCurrentChoice(&ticket, QStringLiteral("OutputBin"), QStringLiteral("Nowhere"));
    EXPECT_TRUE(PPDGetTicketValueForChoiceOrDefault(ppd.get(), &ticket, QStringLiteral("OutputBin"),
                                                    &value));
    EXPECT_EQ(value, -1) << "an unknown choice is still stored, as -1";

    value = 1234;
    EXPECT_FALSE(PPDGetTicketValueForChoiceOrDefault(ppd.get(), &ticket,
                                                     QStringLiteral("NotAnOption"), &value));
    EXPECT_FALSE(
        PPDGetTicketValueForChoiceOrDefault(nullptr, nullptr, QStringLiteral("OutputBin"), &value));
    EXPECT_EQ(value, 1234);
}

TEST(PPDTexts, DefaultsAndChoiceTextsOfTheSamplePrinter)
{
    PpdFilePtr ppd = OpenOrFail(SamplePpdPath());
    EXPECT_EQ(PPDCopyDefaultChoice(ppd.get(), QStringLiteral("Option1")),
              QStringLiteral("Tray3HiCap"));
    EXPECT_EQ(PPDCopyDefaultChoice(ppd.get(), QStringLiteral("PageSize")),
              QStringLiteral("Letter"));
    EXPECT_EQ(PPDCopyDefaultChoice(ppd.get(), QStringLiteral("Nothing")), std::nullopt);
    EXPECT_EQ(PPDCopyDefaultChoice(nullptr, QStringLiteral("PageSize")), std::nullopt);

    EXPECT_EQ(PPDCopyChoiceText(ppd.get(), QStringLiteral("OutputBin"), QStringLiteral("Bottom")),
              QStringLiteral("Bottom Tray"));
    EXPECT_EQ(PPDCopyChoiceText(ppd.get(), QStringLiteral("OutputBin"), QStringLiteral("Nowhere")),
              std::nullopt);
    EXPECT_EQ(PPDCopyChoiceText(ppd.get(), QStringLiteral("Nothing"), QStringLiteral("Bottom")),
              std::nullopt);
}

TEST(PPDTexts, EncodingsFromTheLanguageEncodingEntry)
{
    const QString graveA = QString::fromUtf8("Agrafe \u00e0 gauche");
    struct Case
    {
        const char* file;
        TextEncoding encoding;
        QString stapleText;
    } const cases[] = {
        {"utf8.ppd", TextEncoding::UTF8, graveA},
        {"utf8-nohyphen.ppd", TextEncoding::UTF8, graveA},
        {"latin1.ppd", TextEncoding::ISOLatin1, graveA},
        // Outside the known list: read as Mac Roman, where byte E0 is a double dagger.
        {"latin9.ppd", TextEncoding::MacRoman, QString::fromUtf8("Agrafe \u2021 gauche")},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.file);
        PpdFilePtr ppd = OpenOrFail(TestPpdPath(c.file));
        EXPECT_EQ(PPDGetEncoding(ppd.get()), c.encoding);
        EXPECT_EQ(PPDCopyChoiceText(ppd.get(), QStringLiteral("StapleLocation"),
                                    QStringLiteral("SinglePortrait")),
                  c.stapleText);
    }
    EXPECT_EQ(PPDGetEncoding(nullptr), TextEncoding::MacRoman);
    EXPECT_EQ(PPDGetEncoding(OpenOrFail(SamplePpdPath()).get()), TextEncoding::ISOLatin1);
}

TEST(PPDMenus, ChoicesBecomeItemsWithTheirValues)
{
    PpdFilePtr ppd = OpenOrFail(SamplePpdPath());
    MenuModel menu;
    constexpr std::uint32_t kCommand = FourCharCode("Styp");
    EXPECT_EQ(
        PPDPopulateMenuWithChoices(&menu, ppd.get(), QStringLiteral("MediaType"), kCommand, false),
        42);
    EXPECT_EQ(menu.item(1)->text, QStringLiteral("Printer Default"));
    EXPECT_EQ(menu.item(1)->referenceValue, 23);
    EXPECT_EQ(menu.item(1)->commandId, kCommand);
    const int cardStock = menu.findReferenceValue(12);
    ASSERT_GT(cardStock, 0);
    EXPECT_EQ(menu.item(cardStock)->text, QStringLiteral("Card Stock"));
    EXPECT_EQ(menu.findReferenceValue(43), menu.findReferenceValue(12) + 3)
        << "CardStockF carries 43";

    // Rebuilt, not appended.
    EXPECT_EQ(PPDPopulateMenuWithChoices(&menu, ppd.get(), QStringLiteral("Duplex"), 0, false), 3);
    EXPECT_EQ(menu.item(3)->referenceValue, 3);

    // The page sizes include the custom size libcups adds for a PPD with custom sizes.
    EXPECT_EQ(PPDPopulateMenuWithChoices(&menu, ppd.get(), QStringLiteral("PageSize"), 0, false),
              55);
    EXPECT_EQ(menu.item(55)->referenceValue, 75);
}

TEST(PPDMenus, ConflictingChoicesAreLeftOutWhenChecking)
{
    // The sample printer has trays 1 and 2 and a high-capacity tray 3.
    PpdFilePtr ppd = OpenOrFail(SamplePpdPath());
    MenuModel menu;
    EXPECT_EQ(PPDPopulateMenuWithChoices(&menu, ppd.get(), QStringLiteral("InputSlot"), 0, false),
              8);
    EXPECT_EQ(PPDPopulateMenuWithChoices(&menu, ppd.get(), QStringLiteral("InputSlot"), 0, true),
              5);
    std::vector<std::int32_t> values;
    for (const MenuItem& item : menu.items())
        values.push_back(item.referenceValue);
    EXPECT_EQ(values, (std::vector<std::int32_t>{0, 1, 2, 3, 100}));
}

TEST(PPDMenus, CheckingLeavesTheLastTriedChoiceMarked)
{
    // No finisher installed: single and multiple staples conflict with it.
    PpdFilePtr ppd = OpenOrFail(TestPpdPath("latin1.ppd"));
    MenuModel menu;
    ::testing::internal::CaptureStderr();
    EXPECT_EQ(
        PPDPopulateMenuWithChoices(&menu, ppd.get(), QStringLiteral("StapleLocation"), 0, true), 1);
    const std::string diagnostics = ::testing::internal::GetCapturedStderr();
    EXPECT_EQ(menu.item(1)->referenceValue, 1);
    EXPECT_EQ(diagnostics, "Skipped unrecognized choice in PPD: Saddle\n");
    // The last choice tried stays marked although it conflicts.
    EXPECT_EQ(PpdMarkedChoice(ppd.get(), "StapleLocation"), QByteArray("MultipleStaples"));
    EXPECT_GT(PpdMarkOption(ppd.get(), "Option4", "False"), 0);

    ::testing::internal::CaptureStderr();
    EXPECT_EQ(
        PPDPopulateMenuWithChoices(&menu, ppd.get(), QStringLiteral("StapleLocation"), 0, false),
        3);
    ::testing::internal::GetCapturedStderr();
}

TEST(PPDMenus, DiagnosticsForMissingOptionsAndUnknownChoices)
{
    PpdFilePtr noResolution = OpenOrFail(TestPpdPath("no-resolution.ppd"));
    MenuModel menu;
    menu.append(MenuItem{QStringLiteral("old"), 0, 0, false});
    ::testing::internal::CaptureStderr();
    EXPECT_EQ(PPDPopulateMenuWithChoices(&menu, noResolution.get(), QStringLiteral("Resolution"), 0,
                                         true),
              0);
    EXPECT_EQ(::testing::internal::GetCapturedStderr(),
              "Expected PPD option not found: Resolution\n");
    EXPECT_TRUE(menu.isEmpty());

    // A keyword without a choice map: every choice is unknown.
    PpdFilePtr sample = OpenOrFail(SamplePpdPath());
    ::testing::internal::CaptureStderr();
    EXPECT_EQ(PPDPopulateMenuWithChoices(&menu, sample.get(), QStringLiteral("Option4"), 0, false),
              0);
    EXPECT_EQ(
        ::testing::internal::GetCapturedStderr(),
        "Skipped unrecognized choice in PPD: True\nSkipped unrecognized choice in PPD: False\n");

    // "Lighten1" maps to -1, which reads as unknown.
    ::testing::internal::CaptureStderr();
    EXPECT_EQ(
        PPDPopulateMenuWithChoices(&menu, sample.get(), QStringLiteral("QVImageQuality"), 0, false),
        10);
    EXPECT_EQ(::testing::internal::GetCapturedStderr(),
              "Skipped unrecognized choice in PPD: Lighten1\n");

    menu.append(MenuItem{QStringLiteral("kept"), 0, 0, false});
    EXPECT_EQ(PPDPopulateMenuWithChoices(&menu, nullptr, QStringLiteral("Duplex"), 0, false), 0);
    EXPECT_EQ(PPDPopulateMenuWithChoices(&menu, sample.get(), QString(), 0, false), 0);
    EXPECT_EQ(PPDPopulateMenuWithChoices(nullptr, sample.get(), QStringLiteral("Duplex"), 0, false),
              0);
    EXPECT_EQ(menu.count(), 11) << "the menu is not touched";
}

class CurrentPPDTest : public ::testing::Test
{
protected:
    void SetUp() override
    {
        PPDCloseCurrent();
        SetCurrentPrintSession(&m_session);
    }
    void TearDown() override
    {
        PPDCloseCurrent();
        SetCurrentPrintSession(nullptr);
    }
    void usePPD(const QString& path)
    {
        m_session.setCurrentPrinter(Printer{QStringLiteral("queue"), path});
    }

    PrintSession m_session;
};

TEST_F(CurrentPPDTest, OpenedOnceFromTheSessionsPrinter)
{
    EXPECT_EQ(PPDGetCurrent(), nullptr) << "no printer yet";
    usePPD(SamplePpdPath());
    ppd_file_t* first = PPDGetCurrent();
    ASSERT_NE(first, nullptr);
    EXPECT_TRUE(PPDIsOrvanPrinter(first));

    usePPD(TestPpdPath("orvan-systems.ppd"));
    EXPECT_EQ(PPDGetCurrent(), first) << "changing printers does not reopen";
    PPDCloseCurrent();
    EXPECT_EQ(PpdManufacturer(PPDGetCurrent()), QByteArray("Orvan Systems"));
    EXPECT_FALSE(PPDIsOrvanPrinter(PPDGetCurrent())) << "only exactly \"Orvan\"";
    EXPECT_FALSE(PPDIsOrvanPrinter(nullptr));
}

TEST_F(CurrentPPDTest, UnusablePathsGiveNull)
{
    usePPD(QStringLiteral("/nonexistent/printer.ppd"));
    EXPECT_EQ(PPDGetCurrent(), nullptr);
    usePPD(QStringLiteral("/tmp/") + QString(1100, QLatin1Char('x')));
    EXPECT_EQ(PPDGetCurrent(), nullptr);
    SetCurrentPrintSession(nullptr);
    EXPECT_EQ(PPDGetCurrent(), nullptr);
}

TEST_F(CurrentPPDTest, MediaLimitsComeFromTheCustomSizeRange)
{
    double limits[4] = {};
    GetMediaLimits(&limits[0], &limits[1], &limits[2], &limits[3]);
    EXPECT_EQ((std::vector<double>(limits, limits + 4)), (std::vector<double>{432, 432, 864, 864}));

    PPDSetCurrent(OpenOrFail(SamplePpdPath()));
    GetMediaLimits(&limits[0], &limits[1], &limits[2], &limits[3]);
    EXPECT_EQ((std::vector<double>(limits, limits + 4)),
              (std::vector<double>{216, 360, 936, 1368}));

    PPDSetCurrent(OpenOrFail(TestPpdPath("utf8.ppd"))); // no custom sizes
    GetMediaLimits(&limits[0], &limits[1], &limits[2], &limits[3]);
    EXPECT_EQ((std::vector<double>(limits, limits + 4)), (std::vector<double>{432, 432, 864, 864}));
}

} // namespace
} // namespace orvan
