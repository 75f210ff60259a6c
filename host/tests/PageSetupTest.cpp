// The page setup without a display: its ticket items as the panels read
// them, the papers of a PPD and of IPP media names, and
// where pages land on a sheet.
#include "host/PageSetupModel.h"
#include "host/PaperSizes.h"
#include "host/SheetLayout.h"
#include "host/tests/HostTestSupport.h"
#include "printerdesc/PpdFile.h"
#include "settings/PageFormat.h"
#include "settings/PrintSession.h"

#include <gtest/gtest.h>

using namespace orvan;
using namespace orvan::testing;

namespace {

const PaperSize kA4{"A4", "A4", QSizeF(595, 842)};
const PaperSize kLetter{"Letter", "Letter", QSizeF(612, 792)};

TEST(PageSetupTickets, WrittenAsThePanelsReadThemAndReadBack)
{
    const struct
    {
        PageSetup setup;
        bool nUp;
    } cases[] = {
        {{kA4, Orientation::Landscape, 2, PageOrder::TopToBottomRightToLeft, false, true}, true},
        {{kLetter, Orientation::Portrait, 1, PageOrder::LeftToRightTopToBottom, true, false},
         false},
        {{kLetter, Orientation::Portrait, 16, PageOrder::RightToLeftTopToBottom, true, false},
         true},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.setup.pagesPerSheet);
        PrintSession session;
        WritePageSetup(session, c.setup, "report.pdf");
        EXPECT_EQ(session.pageFormat().integer(kOrientationKey, NumberType::SInt32),
                  static_cast<int>(c.setup.orientation));
        EXPECT_EQ(PaperSizeFromPageFormat(session.pageFormat()), c.setup.paper.points);
        EXPECT_EQ(session.printSettings().boolean(kLayoutNUpKey), c.nUp);
        EXPECT_EQ(session.printSettings().string(kJobNameKey), "report.pdf");
        EXPECT_EQ(ReadPageSetup(session, {kLetter, kA4}), c.setup);
        EXPECT_EQ(ReadPageSetup(session, {}).paper,
                  c.setup.paper); // a run without a printer's list
    }
}

TEST(PageSetupTickets, UnknownOrMalformedItemsFallBack)
{
    PrintSession session;
    WritePageSetup(session, {kA4, Orientation::Landscape, 4});
    session.pageFormat()
        .ensureSubTicket(kPaperInfoTicketKey)
        .setItem("x", kPaperNameKey, "Tabloid");
    session.pageFormat()
        .ensureSubTicket(kPaperInfoTicketKey)
        .setItem("x", kUnadjustedPaperRectKey, "wide");
    session.printSettings().setItem("x", kLayoutColumnsKey, PropertyValue::integer(5));
    session.pageFormat().setItem("x", kOrientationKey, PropertyValue::integer(7));
    const PageSetup read = ReadPageSetup(session, {kLetter, kA4});
    EXPECT_EQ(read.paper, kLetter);
    EXPECT_EQ(read.orientation, Orientation::Portrait);
    EXPECT_EQ(read.pagesPerSheet, 1);
    EXPECT_FALSE(PaperSizeFromPageFormat(session.pageFormat()));
}

TEST(PageSetupPapers, FromThePpdAndFromMediaNamesDefaultFirst)
{
    const PpdFilePtr ppd = OpenPPDFile(SamplePpdPath());
    ASSERT_TRUE(ppd);
    const std::vector<PaperSize> fromPpd = PapersFromPpd(ppd.get());
    ASSERT_GT(fromPpd.size(), 10u);
    EXPECT_EQ(fromPpd.front(), kLetter);
    EXPECT_NE(std::find(fromPpd.begin(), fromPpd.end(), kA4), fromPpd.end());

    const auto fromIpp = PapersFromMediaNames(
        {"na_letter_8.5x11in", "not-a-size", "iso_a4_210x297mm"}, "iso_a4_210x297mm");
    ASSERT_EQ(fromIpp.size(), 2u);
    EXPECT_EQ(fromIpp[0].name, "iso_a4_210x297mm");
    EXPECT_NEAR(fromIpp[0].points.width(), 595.3, 0.1);
    EXPECT_NEAR(fromIpp[1].points.height(), 792, 0.1);

    // A new printer keeps the paper when it offers it, by name or by size.
    PageSetupModel model;
    model.setPapers(fromPpd);
    model.choosePaper(
        static_cast<int>(std::find(fromPpd.begin(), fromPpd.end(), kA4) - fromPpd.begin()));
    model.setPapers(fromIpp);
    EXPECT_EQ(model.setup().paper.name, "iso_a4_210x297mm");
    model.setPapers({kLetter});
    EXPECT_EQ(model.setup().paper, kLetter);
}

TEST(SheetLayoutTest, CellsFollowTheOrderAndPagesTurnToFit)
{
    const struct
    {
        PageOrder order;
        int pagesPerSheet;
        Orientation orientation;
        int slot;
        QRectF cell; // on a 600 x 800 sheet (or 800 x 600 turned)
    } cases[] = {
        {PageOrder::LeftToRightTopToBottom, 4, Orientation::Portrait, 1, {300, 0, 300, 400}},
        {PageOrder::TopToBottomLeftToRight, 4, Orientation::Portrait, 1, {0, 400, 300, 400}},
        {PageOrder::RightToLeftTopToBottom, 4, Orientation::Portrait, 0, {300, 0, 300, 400}},
        {PageOrder::TopToBottomRightToLeft, 6, Orientation::Portrait, 3, {0, 0, 300, 800.0 / 3}},
        {PageOrder::LeftToRightTopToBottom, 2, Orientation::Landscape, 1, {400, 0, 400, 600}},
        {PageOrder::LeftToRightTopToBottom, 2, Orientation::Portrait, 1, {0, 400, 600, 400}},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.slot);
        const PageSetup setup{
            {"p", "p", QSizeF(600, 800)}, c.orientation, c.pagesPerSheet, c.order};
        EXPECT_EQ(SheetCell(c.slot, setup), c.cell);
    }

    // A portrait page on a landscape sheet, one per sheet: turned, filling the height.
    const PagePlacement turned = PlacePage(0, QSizeF(600, 800), QRectF(0, 0, 800, 600));
    EXPECT_TRUE(turned.quarterTurn);
    EXPECT_DOUBLE_EQ(turned.scale, 1);
    // Two per landscape sheet: upright, centred, scaled down.
    const PagePlacement upright = PlacePage(0, QSizeF(600, 800), QRectF(400, 0, 400, 600));
    EXPECT_FALSE(upright.quarterTurn);
    EXPECT_NEAR(upright.scale, 2.0 / 3, 1e-9);
    EXPECT_EQ(upright.target.center(), QPointF(600, 300));
    EXPECT_NEAR(upright.target.width(), 400, 1e-9);

    // The range clipped to the document (sheets: DocumentPreparerTest).
    EXPECT_EQ(SelectedPages(5, 4, 9), (std::vector<int>{3, 4}));
    EXPECT_TRUE(SelectedPages(5, 6, 9).empty());
}

} // namespace
