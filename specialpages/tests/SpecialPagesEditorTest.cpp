// The Special Pages editor without widgets: the list's rows and texts, the
// commands' enabling, delete and undo, moving inserts, sync, and the OK paths
// of the covers, inserts and exceptions dialogs.
#include "stock/tests/StockTestSupport.h"

#include "platform/Alerts.h"
#include "settings/PrintSession.h"
#include "specialpages/CoversDialogModel.h"
#include "specialpages/ExceptionsDialogModel.h"
#include "specialpages/InsertsDialogModel.h"
#include "specialpages/PageRanges.h"
#include "specialpages/SpecialPageKeys.h"
#include "specialpages/SpecialPagesModel.h"

#include <QStringList>

#include <gtest/gtest.h>

namespace orvan {
namespace {

using Command = SpecialPagesCommand;

class SpecialPagesEditorTest : public ::testing::Test
{
protected:
    SpecialPagesEditorTest()
    {
        previousAlert = SetAlertPresenter([this](const Alert& alert) { alerts.push_back(alert); });
        previousQuestion = SetQuestionPresenter([this](const Question& question) {
            questions.push_back(question);
            return answer;
        });
    }
    ~SpecialPagesEditorTest() override
    {
        SetAlertPresenter(previousAlert);
        SetQuestionPresenter(previousQuestion);
    }

    // Pages as the dialogs make them: every stock attribute from the job.
    void addInsert(std::int32_t page, std::int32_t quantity = 1)
    {
        Insert insert;
        DefaultStock(insert.stock(), JobContext::Inserts);
        insert.setStartPage(page);
        insert.setQuantity(quantity);
        const SpecialPage* pages[] = {&insert};
        model.state().inserts.add(pages);
    }
    void addException(std::int32_t first, std::int32_t last, std::int32_t plex = kUnset)
    {
        ExceptionPage range;
        DefaultStock(range.stock(), JobContext::ExceptionPages);
        range.setStartPage(first);
        range.setEndPage(last);
        range.setPlex(plex);
        const SpecialPage* pages[] = {&range};
        model.state().exceptions.add(pages);
    }
    void refresh() { model.updateSpecialPagesSummary(); }
    // One column of every row, joined with " | ".
    QString column(QString SpecialPagesRow::*field) const
    {
        QStringList texts;
        for (const SpecialPagesRow& row : model.rows())
            texts << row.*field;
        return texts.join(" | ");
    }
    // The enabled commands, by their buttons' names without "Button".
    QString enabled() const
    {
        QStringList on;
        for (const SpecialPagesCommandEntry& entry : kSpecialPagesCommands)
            if (model.isEnabled(entry.command))
                on << QString::fromLatin1(entry.objectName).chopped(6);
        return on.join(' ');
    }

    testing::CurrentPrinterGuard printer;
    std::unique_ptr<Bundle> bundle = testing::EnglishPluginBundle();
    SpecialPagesModel model{bundle.get()};
    std::vector<Alert> alerts;
    std::vector<Question> questions;
    QuestionAnswer answer = QuestionAnswer::Default;
    AlertPresenter previousAlert;
    QuestionPresenter previousQuestion;
};

TEST_F(SpecialPagesEditorTest, RowsListCoversInsertsAndExceptionsWithTheirTexts)
{
    model.state().backCover = std::make_unique<Cover>();
    DefaultStock(model.state().backCover->stock(), JobContext::Covers);
    auto front = std::make_unique<Cover>();
    front->setSidesImaged(kCoverPrintedDuplex);
    front->stock().setCustomName("Linen");
    front->stock().setColor(2);
    front->stock().setSize(kLetterPageSize);
    model.state().frontCover = std::move(front);
    addInsert(7, 3);
    addInsert(0);
    addException(10, 12, kPlexDuplex);
    addException(7, 7);
    refresh();

    EXPECT_EQ(column(&SpecialPagesRow::pages), "Front | Before page 1 | 7 | 7 | 10-12 | Back");
    EXPECT_EQ(column(&SpecialPagesRow::type),
              "Cover | Insert | Insert | Exception | Exception | Cover");
    EXPECT_EQ(column(&SpecialPagesRow::attributes),
              "Paper: Linen; Printed; Letter; Blue | Sheets [1] | Sheets [3] |  | "
              "Two-Sided, Long-Edge Binding | Blank or Preprinted");

    PropertyValue titles, values;
    model.appendSummary(bundle.get(), &titles, &values);
    ASSERT_EQ(titles.size(), 6u);
    EXPECT_EQ(titles.asArray()[1].toString(), "Insert (Before page 1)");
    EXPECT_EQ(values.asArray()[2].toString(), "Sheets 3");
    EXPECT_EQ(values.asArray()[4].toString(), "Two-Sided, Long-Edge Binding");
}

// Rows (inserts by start page, "E" an exception 20-21), the selected rows,
// and the commands that are enabled.
TEST_F(SpecialPagesEditorTest, CommandsEnableByRowsSelectionAndTheLastSelectedRow)
{
    struct Case
    {
        std::vector<std::int32_t> inserts;
        bool exception;
        std::vector<int> selected;
        const char* enabled;
    } cases[] = {
        {{}, false, {}, "AddCovers AddInserts AddExceptions"},
        {{2, 3}, false, {}, "AddCovers AddInserts AddExceptions DeleteAll"},
        {{0, 3}, false, {1}, "AddCovers AddInserts AddExceptions Edit Delete DeleteAll"},
        {{2, 3}, false, {0}, "AddCovers AddInserts AddExceptions Edit Delete DeleteAll MoveDown"},
        // Only the last selected row decides, whichever way the others go.
        {{1, 2}, true, {1, 2}, "AddCovers AddInserts AddExceptions Delete DeleteAll"},
        {{0, 2, 3}, false, {1, 2}, "AddCovers AddInserts AddExceptions Delete DeleteAll MoveUp"},
    };
    for (const Case& c : cases) {
        model.state().inserts.clear();
        model.state().exceptions.clear();
        for (const std::int32_t page : c.inserts)
            addInsert(page);
        if (c.exception)
            addException(20, 21);
        refresh();
        model.setSelectedRows(c.selected);
        EXPECT_EQ(enabled(), c.enabled) << c.inserts.size() << " inserts";
    }
}

// The n-up flag, the booklet flag (nullopt: not in the ticket) and whether
// adding inserts and exceptions stays enabled (it was before the sync).
TEST_F(SpecialPagesEditorTest, NUpOrBookletLayoutDisablesAddingInsertsAndExceptions)
{
    const std::tuple<std::optional<bool>, std::optional<bool>, bool> cases[] = {
        {false, false, true},
        {true, std::nullopt, false},
        {false, true, false},
        {std::nullopt, true, true}, // no n-up flag: nothing changes
    };
    Ticket plain;
    plain.setItem(kPanelClient, kLayoutNUpKey, PropertyValue::boolean(false));
    for (const auto& [nUp, booklet, adding] : cases) {
        model.syncFromTicket(plain);
        Ticket ticket;
        if (nUp)
            ticket.setItem(kPanelClient, kLayoutNUpKey, PropertyValue::boolean(*nUp));
        if (booklet)
            ticket.setItem(kPanelClient, kBookletLayoutKey, PropertyValue::boolean(*booklet));
        model.updateSpecialPagesUI(ticket);
        EXPECT_EQ(model.isEnabled(Command::AddInserts), adding);
        EXPECT_EQ(model.isEnabled(Command::AddExceptions), adding);
        EXPECT_TRUE(model.isEnabled(Command::AddCovers));
    }
}

// The undo state is saved before the question is asked, so answering No
// still leaves Undo on: kept so.
TEST_F(SpecialPagesEditorTest, DeleteAnsweredNoStillOffersUndoAndYesDeletes)
{
    model.state().frontCover = std::make_unique<Cover>();
    addInsert(4);
    addException(8, 9);
    refresh();
    const QString before = column(&SpecialPagesRow::pages);

    model.setSelectedRows({0, 2});
    model.handleCommand(Command::Delete, nullptr);
    ASSERT_EQ(questions.size(), 1u);
    EXPECT_EQ(questions[0].defaultButton, "No");
    EXPECT_EQ(column(&SpecialPagesRow::pages), before);
    EXPECT_TRUE(model.isEnabled(Command::Undo));
    model.handleCommand(Command::Undo, nullptr);
    EXPECT_EQ(column(&SpecialPagesRow::pages), before);
    EXPECT_FALSE(model.isEnabled(Command::Undo));

    answer = QuestionAnswer::Other;
    model.setSelectedRows({0, 2});
    model.handleCommand(Command::Delete, nullptr);
    EXPECT_EQ(column(&SpecialPagesRow::pages), "4");
    EXPECT_TRUE(model.selectedRows().empty());
    model.handleCommand(Command::DeleteAll, nullptr);
    EXPECT_EQ(questions.back().alert.message,
              "All covers, inserts and exception pages will be removed from this job.");
    EXPECT_TRUE(model.rows().empty());
    model.handleCommand(Command::Undo, nullptr);
    EXPECT_EQ(column(&SpecialPagesRow::pages), "4");
}

// The selection follows the moved insert; Undo takes back the last move.
TEST_F(SpecialPagesEditorTest, MovingSwapsInsertsAndKeepsTheSelection)
{
    addInsert(3, 1);
    addInsert(3, 2);
    addInsert(5, 3);
    refresh();
    model.setSelectedRows({1});
    model.handleCommand(Command::MoveUp, nullptr);
    EXPECT_EQ(model.selectedRows(), std::vector<int>{0});
    model.handleCommand(Command::MoveDown, nullptr);
    model.handleCommand(Command::MoveDown, nullptr);
    EXPECT_EQ(column(&SpecialPagesRow::attributes), "Sheets [1] | Sheets [3] | Sheets [2]");
    model.handleCommand(Command::Undo, nullptr);
    EXPECT_EQ(column(&SpecialPagesRow::attributes), "Sheets [1] | Sheets [2] | Sheets [3]");
}

// Covers are written only when changed in this pane: the Paper/Output panel
// edits them too, and its change must survive this pane's later sync.
TEST_F(SpecialPagesEditorTest, SyncWritesTheListsAndOnlyCoversChangedHere)
{
    PrintSession session;
    Ticket& ticket = session.printSettings();
    const Cover blank;
    WriteCoversToTicket(ticket, &blank, nullptr);
    ASSERT_EQ(model.sync(&session, true), kNoError);
    EXPECT_EQ(column(&SpecialPagesRow::pages), "Front");

    WriteCoversToTicket(ticket, nullptr, nullptr); // switched off elsewhere
    addInsert(0);
    addException(2, 4, kPlexSimplex);
    refresh();
    ASSERT_EQ(model.sync(&session, false), kNoError);
    EXPECT_FALSE(ticket.containsItem(kFrontCoverKey));
    EXPECT_TRUE(ticket.containsItem(kInsertListKey));
    EXPECT_TRUE(ticket.containsItem(kExceptionListKey));

    // An accepted covers dialog marks the covers changed, with the covers
    // before it as the undo state.
    SpecialPagesAction covers;
    model.handleCommand(Command::AddCovers, &covers);
    EXPECT_EQ(covers.dialog, SpecialPagesAction::Dialog::Covers);
    model.state().backCover = std::make_unique<Cover>();
    model.dialogFinished(covers, true);
    ASSERT_EQ(model.sync(&session, false), kNoError);
    EXPECT_TRUE(ticket.containsItem(kFrontCoverKey));
    EXPECT_TRUE(ticket.containsItem(kBackCoverKey));

    SpecialPagesModel reread(bundle.get());
    ASSERT_EQ(reread.sync(&session, true), kNoError);
    ASSERT_EQ(reread.rows().size(), model.rows().size());
    for (std::size_t i = 0; i < model.rows().size(); ++i)
        EXPECT_EQ(reread.rows()[i].attributes, model.rows()[i].attributes);
    EXPECT_EQ(model.sync(nullptr, true), kSyncMissingContext);
    model.handleCommand(Command::Undo, nullptr);
    EXPECT_FALSE(model.state().backCover);
}

TEST_F(SpecialPagesEditorTest, CoversDialogSwitchesCoversOnAndOff)
{
    auto existing = std::make_unique<Cover>();
    existing->setSidesImaged(kCoverPrintedDuplex);
    struct Case
    {
        const Cover* front;
        const Cover* back;
        DialogMode mode;
        CoverOption shown;
    } cases[] = {
        {nullptr, nullptr, DialogMode::Add, CoverOption::FrontOnly},
        {nullptr, nullptr, DialogMode::Edit, CoverOption::None},
        {existing.get(), nullptr, DialogMode::Edit, CoverOption::FrontOnly},
        {existing.get(), existing.get(), DialogMode::Add, CoverOption::Same},
        {nullptr, existing.get(), DialogMode::Edit, CoverOption::Same},
    };
    for (const Case& c : cases)
        EXPECT_EQ(CoversDialogModel(bundle.get(), c.mode, c.front, c.back).option(), c.shown);

    CoversDialogModel dialog(bundle.get(), DialogMode::Add, nullptr, nullptr);
    ASSERT_TRUE(dialog.cover());
    EXPECT_EQ(dialog.cover()->sidesImaged(), kCoverBlankOrPreprinted);
    Stock defaults;
    DefaultStock(defaults, JobContext::Covers);
    EXPECT_EQ(dialog.cover()->stock(), defaults);
    dialog.setSidesItem(1);
    dialog.setOption(CoverOption::Same);
    std::unique_ptr<Cover> front, back;
    dialog.accept(front, back);
    ASSERT_TRUE(front && back);
    EXPECT_EQ(front->sidesImaged(), kCoverPrintedDuplex);
    EXPECT_EQ(*back, *front);

    dialog.setOption(CoverOption::None);
    EXPECT_FALSE(dialog.cover());
    dialog.accept(front, back);
    EXPECT_FALSE(front || back);
}

// Pages typed into the inserts dialog (with its position item) or the
// exceptions dialog, and the rows added; a page-range error shows one alert,
// saves no undo state and adds nothing.
TEST_F(SpecialPagesEditorTest, AddDialogsMakeOnePagePerPageOrRange)
{
    constexpr int kExceptions = -1; // in place of a position item
    const std::tuple<int, const char*, Status, const char*> cases[] = {
        {kInsertAfterPagesItem, "1, 4-6", kNoError, "1 | 4 | 5 | 6"},
        {kInsertAfterPagesItem, "0", kNoError, "Before page 1"},
        {kInsertBeforeFirstPageItem, "5-3", kNoError, "Before page 1"}, // the text is not read
        {kExceptions, "4-6, 1", kNoError, "1 | 4-6"},
        {kInsertAfterPagesItem, "100000", kPageNumberLimit, ""},
        {kInsertAfterPagesItem, "4--6", kInvalidPageRanges, ""},
        {kExceptions, " , ", kInvalidPageRanges, ""},
        {kExceptions, "5-3", kInvalidRangeOrder, ""},
        {kExceptions, "3, 0-2", kInvalidPageNumbers, ""},
    };
    for (const auto& [position, text, code, rows] : cases) {
        model.state().inserts.clear();
        model.state().exceptions.clear();
        alerts.clear();
        int undoSaved = 0;
        const auto saveUndo = [&] { ++undoSaved; };
        Status status;
        if (position == kExceptions) {
            ExceptionsDialogModel dialog(bundle.get(), DialogMode::Add, nullptr);
            dialog.setPagesText(text);
            status = dialog.accept(model.state().exceptions, nullptr, saveUndo);
        } else {
            InsertsDialogModel dialog(bundle.get(), DialogMode::Add, nullptr);
            dialog.setPositionItem(position);
            dialog.setPagesText(text);
            status = dialog.accept(model.state().inserts, nullptr, saveUndo);
        }
        refresh();
        EXPECT_EQ(status, code) << text;
        EXPECT_EQ(column(&SpecialPagesRow::pages), rows) << text;
        EXPECT_EQ(alerts.size(), code == kNoError ? 0u : 1u) << text;
        EXPECT_EQ(undoSaved, code == kNoError ? 1 : 0) << text;
    }
}

TEST_F(SpecialPagesEditorTest, EditingReplacesTheEditedPage)
{
    addInsert(0);
    addInsert(9);
    Insert* before = model.state().inserts.pageAtIndex(0);
    InsertsDialogModel inserts(bundle.get(), DialogMode::Edit, before);
    EXPECT_EQ(inserts.positionItem(), kInsertBeforeFirstPageItem);
    inserts.setPositionItem(kInsertAfterPagesItem);
    inserts.setPagesText("12");
    ASSERT_EQ(inserts.accept(model.state().inserts, before, {}), kNoError);
    ASSERT_EQ(model.state().inserts.count(), 2);
    EXPECT_EQ(model.state().inserts.pageAtIndex(1)->startPage(), 12);

    addException(4, 6, kPlexDuplexShort);
    ExceptionPage* range = model.state().exceptions.pageAtIndex(0);
    ExceptionsDialogModel exceptions(bundle.get(), DialogMode::Edit, range);
    EXPECT_EQ(exceptions.pagesText(), "4-6");
    EXPECT_EQ(exceptions.plexMenu().item(exceptions.plexItem())->referenceValue, kPlexDuplexShort);
    exceptions.setPagesText("10-12, 20");
    ASSERT_EQ(exceptions.accept(model.state().exceptions, range, {}), kNoError);
    refresh();
    EXPECT_EQ(column(&SpecialPagesRow::pages), "9 | 12 | 10-12 | 20");
    EXPECT_EQ(model.state().exceptions.pageAtIndex(1)->plex(), kPlexDuplexShort);
}

} // namespace
} // namespace orvan
