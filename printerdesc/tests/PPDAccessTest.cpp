// PPD access: choices and ticket values, the ticket's PPD dictionary, texts
// and their encodings, menus filled from a PPD option, and the current PPD.
#include "PpdTestSupport.h"

#include "settings/PrintSession.h"
#include "settings/Ticket.h"

namespace orvan {
namespace {

using testing::kSamplePpd;
using testing::OpenOrFail;
using testing::TestPpdPath;

// Both directions scan the keyword's choice map in order: the first matching
// row wins.
TEST(PPDChoiceValues, FirstMatchingRowWinsBothWays)
{
    const std::tuple<const char*, const char*, std::int32_t> toValue[] = {
        // clang-format off
        {"InputSlot", "Bypass", 100}, {"PageSize", "Custom", 75}, {"OutputBin", "PrinterDefault", kUnset},
        {"MediaType", "CardStock", 12}, // the second "CardStock" row (43) is never reached
        {"Duplex", "Simplex", -1}, {"Option4", "True", -1}, {nullptr, "True", -1}, {"JCLBanner", nullptr, -1},
        // clang-format on
    };
    for (const auto& [keyword, choice, value] : toValue)
        EXPECT_EQ(PPDTicketValueForChoice(keyword, choice), value) << keyword << " " << choice;

    const std::tuple<const char*, std::int32_t, const char*> toChoice[] = {
        {"OutputBin", 5, "Upper"},          {"MediaType", 43, "CardStock"},
        {"QVImageQuality", -1, "Lighten1"}, {"OutputBin", 99, nullptr},
        {"NoSuchKeyword", 1, nullptr},
    };
    for (const auto& [keyword, value, choice] : toChoice)
        EXPECT_STREQ(PPDChoiceForTicketValue(keyword, value), choice) << keyword << " " << value;
}

TEST(PPDTicketChoices, ChoicesThePrinterDoesNotOfferAreDropped)
{
    PpdFilePtr ppd = OpenOrFail(kSamplePpd);
    Ticket ticket;
    for (const auto& [keyword, choice] :
         {std::pair{"Resolution", "9999x9999dpi"}, std::pair{"NoSuchOption", "True"},
          std::pair{"PageSize", "Custom.612x1008"}, std::pair{"Jog", "EndOfSet"}})
        PPDSetCurrentChoice(&ticket, keyword, choice);
    ::testing::internal::CaptureStderr();
    EXPECT_EQ(PPDDropChoicesNotOffered(ppd.get(), &ticket), 2);
    EXPECT_EQ(::testing::internal::GetCapturedStderr(),
              "orvan: the printer does not offer NoSuchOption=True; the choice is dropped\n"
              "orvan: the printer does not offer Resolution=9999x9999dpi; the choice is dropped\n");
    EXPECT_EQ(ticket.ppdDictionary().size(), 2u) << "a custom size and a real choice stay";
    EXPECT_EQ(PPDDropChoicesNotOffered(nullptr, &ticket), 0);
}

// Choices live in the ticket's PPD dictionary, not among its items; a value
// is read from the ticket's choice, else from the PPD's default.
TEST(PPDTicketChoices, TicketChoiceOrThePPDsDefault)
{
    PpdFilePtr ppd = OpenOrFail(kSamplePpd);
    const std::tuple<const char*, const char*, bool, std::int32_t> cases[] = {
        {nullptr, "OutputBin", true, 1},       // the PPD's default, Auto
        {"Center", "OutputBin", true, 5},      // the ticket's choice
        {"Nowhere", "OutputBin", true, -1},    // an unknown choice is still stored
        {nullptr, "NotAnOption", false, 1234}, // neither: the output is untouched
    };
    for (const auto& [ticketChoice, keyword, found, expected] : cases) {
        Ticket ticket;
        if (ticketChoice)
            PPDSetCurrentChoice(&ticket, keyword, ticketChoice);
        PPDSetCurrentChoice(&ticket, keyword, QString()); // changes nothing
        EXPECT_EQ(PPDCopyCurrentChoice(&ticket, keyword),
                  ticketChoice ? std::optional<QString>(ticketChoice) : std::nullopt);
        EXPECT_FALSE(ticket.containsItem(keyword));
        std::int32_t value = 1234;
        EXPECT_EQ(PPDGetTicketValueForChoiceOrDefault(ppd.get(), &ticket, keyword, &value), found);
        EXPECT_EQ(value, expected) << keyword;
    }
    EXPECT_EQ(PPDCopyCurrentChoice(nullptr, "OutputBin"), std::nullopt);
}

TEST(PPDTexts, DefaultsChoiceTextsAndEncodings)
{
    PpdFilePtr sample = OpenOrFail(kSamplePpd);
    EXPECT_EQ(PPDCopyDefaultChoice(sample.get(), "Option1"), "Tray3HiCap");
    EXPECT_EQ(PPDCopyDefaultChoice(sample.get(), "Nothing"), std::nullopt);
    EXPECT_EQ(PPDCopyChoiceText(sample.get(), "OutputBin", "Bottom"), "Bottom Tray");
    EXPECT_EQ(PPDCopyChoiceText(sample.get(), "OutputBin", "Nowhere"), std::nullopt);

    const QString graveA = QString::fromUtf8("Agrafe \u00e0 gauche");
    const std::tuple<const char*, TextEncoding, QString> cases[] = {
        {"utf8.ppd", TextEncoding::UTF8, graveA},
        {"utf8-nohyphen.ppd", TextEncoding::UTF8, graveA},
        {"latin1.ppd", TextEncoding::ISOLatin1, graveA},
        // Outside the known list: read as Mac Roman, where byte E0 is a double dagger.
        {"latin9.ppd", TextEncoding::MacRoman, QString::fromUtf8("Agrafe \u2021 gauche")},
        // libcups reads these two otherwise (Cyrillic, Latin 1); the file's bytes decide.
        {"latin5.ppd", TextEncoding::ISOLatin5,
         QString::fromUtf8("Z\u0131mba \u011f sol \u00fcst")},
        {"no-encoding.ppd", TextEncoding::MacRoman, QString::fromUtf8("Agrafe \u00e4\u00f6")},
    };
    for (const auto& [file, encoding, stapleText] : cases) {
        PpdFilePtr ppd = OpenOrFail(TestPpdPath(file));
        EXPECT_EQ(PPDGetEncoding(ppd.get()), encoding) << file;
        EXPECT_EQ(PPDCopyChoiceText(ppd.get(), "StapleLocation", "SinglePortrait"), stapleText);
    }
    EXPECT_EQ(PPDGetEncoding(nullptr), TextEncoding::MacRoman);
}

TEST(PPDMenus, ChoicesBecomeItemsWithTheirValues)
{
    PpdFilePtr ppd = OpenOrFail(kSamplePpd);
    MenuModel menu;
    constexpr std::uint32_t kCommand = FourCharCode("Styp");
    EXPECT_EQ(PPDPopulateMenuWithChoices(&menu, ppd.get(), "MediaType", kCommand, false), 42);
    EXPECT_EQ(*menu.item(1), (MenuItem{"Printer Default", kCommand, 23, false}));
    // The page sizes include the custom size libcups adds for a PPD with custom sizes.
    EXPECT_EQ(PPDPopulateMenuWithChoices(&menu, ppd.get(), "PageSize", 0, false), 55);
    EXPECT_EQ(menu.item(55)->referenceValue, 75);
    // Checking leaves out the trays the sample printer lacks (it has 1, 2 and
    // a high-capacity 3).
    EXPECT_EQ(PPDPopulateMenuWithChoices(&menu, ppd.get(), "InputSlot", 0, false), 8);
    EXPECT_EQ(PPDPopulateMenuWithChoices(&menu, ppd.get(), "InputSlot", 0, true), 5);
    std::vector<std::int32_t> values;
    for (const MenuItem& item : menu.items())
        values.push_back(item.referenceValue);
    EXPECT_EQ(values, (std::vector<std::int32_t>{0, 1, 2, 3, 100}));
}

// The last choice tried stays marked although it conflicts; kept so.
TEST(PPDMenus, CheckingLeavesTheLastTriedChoiceMarked)
{
    // No finisher installed: single and multiple staples conflict with it.
    PpdFilePtr ppd = OpenOrFail(TestPpdPath("latin1.ppd"));
    MenuModel menu;
    ::testing::internal::CaptureStderr();
    EXPECT_EQ(PPDPopulateMenuWithChoices(&menu, ppd.get(), "StapleLocation", 0, true), 1);
    EXPECT_EQ(::testing::internal::GetCapturedStderr(),
              "Skipped unrecognized choice in PPD: Saddle\n");
    EXPECT_EQ(menu.item(1)->referenceValue, 1);
    EXPECT_EQ(PpdMarkedChoice(ppd.get(), "StapleLocation"), QByteArray("MultipleStaples"));
    EXPECT_GT(PpdMarkOption(ppd.get(), "Option4", "False"), 0);
}

// Menus are rebuilt, not appended to, and say on stderr what they leave out.
TEST(PPDMenus, DiagnosticsForMissingOptionsAndUnknownChoices)
{
    PpdFilePtr sample = OpenOrFail(kSamplePpd);
    PpdFilePtr noResolution = OpenOrFail(TestPpdPath("no-resolution.ppd"));
    const std::tuple<ppd_file_t*, const char*, bool, int, const char*> cases[] = {
        {noResolution.get(), "Resolution", true, 0, "Expected PPD option not found: Resolution\n"},
        // A keyword without a choice map: every choice is unknown.
        {sample.get(), "Option4", false, 0,
         "Skipped unrecognized choice in PPD: True\nSkipped unrecognized choice in PPD: False\n"},
        // "Lighten1" maps to -1, which reads as unknown.
        {sample.get(), "QVImageQuality", false, 10,
         "Skipped unrecognized choice in PPD: Lighten1\n"},
    };
    for (const auto& [ppd, keyword, check, items, printed] : cases) {
        MenuModel menu;
        menu.append({"old", 0, 0, false});
        ::testing::internal::CaptureStderr();
        EXPECT_EQ(PPDPopulateMenuWithChoices(&menu, ppd, keyword, 0, check), items);
        EXPECT_EQ(::testing::internal::GetCapturedStderr(), printed);
        EXPECT_EQ(menu.count(), items);
    }
    MenuModel kept;
    kept.append({"kept", 0, 0, false});
    EXPECT_EQ(PPDPopulateMenuWithChoices(&kept, nullptr, "Duplex", 0, false), 0);
    EXPECT_EQ(PPDPopulateMenuWithChoices(&kept, sample.get(), QString(), 0, false), 0);
    EXPECT_EQ(kept.count(), 1) << "the menu is not touched";
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
    void usePPD(const QString& path) { m_session.setCurrentPrinter(Printer{"queue", path}); }

    PrintSession m_session;
};

TEST_F(CurrentPPDTest, OpenedOnceFromTheSessionsPrinterOrNull)
{
    for (const QString& path :
         {QString("/nonexistent/printer.ppd"), "/tmp/" + QString(1100, 'x')}) {
        usePPD(path);
        EXPECT_EQ(PPDGetCurrent(), nullptr) << path.size();
    }
    usePPD(kSamplePpd);
    ppd_file_t* first = PPDGetCurrent();
    ASSERT_NE(first, nullptr);
    EXPECT_TRUE(PPDIsOrvanPrinter(first));
    usePPD(TestPpdPath("orvan-systems.ppd"));
    EXPECT_EQ(PPDGetCurrent(), first) << "changing printers does not reopen";
    PPDCloseCurrent();
    EXPECT_EQ(PpdManufacturer(PPDGetCurrent()), QByteArray("Orvan Systems"));
    EXPECT_FALSE(PPDIsOrvanPrinter(PPDGetCurrent())) << "only exactly \"Orvan\"";
    PPDCloseCurrent();
    SetCurrentPrintSession(nullptr);
    EXPECT_EQ(PPDGetCurrent(), nullptr) << "no session";
}

} // namespace
} // namespace orvan
