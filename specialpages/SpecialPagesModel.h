// The Special Pages panel without its widgets: the job's covers, inserts and
// exception pages as one list of rows, the nine commands and when they are
// enabled, the one-level undo, and the panel's ticket sync and summary.
//
// Two rules are kept exactly as users know them:
// - Delete and Delete All save the undo state before asking, so Undo is
//   offered even after the user answered No;
// - Move Up and Move Down are enabled by the last selected row alone (the
//   rows selected before it do not count).
#pragma once

#include "settings/PageFormat.h" // the N-up layout key
#include "settings/PropertyValue.h"
#include "settings/Status.h"
#include "specialpages/DialogMode.h"
#include "specialpages/SpecialPageTexts.h"
#include "specialpages/SpecialPagesTicket.h"

#include <QString>

#include <array>
#include <functional>
#include <vector>

namespace orvan {

class Bundle;
class PrintSession;
class Ticket;

inline const QString kSpecialPagesTitleKey = QStringLiteral("Special Pages");
// The n-up layout flag is kLayoutNUpKey (settings/PageFormat.h); booklet
// layout is kBookletLayoutKey.

enum class SpecialPagesCommand
{
    AddCovers,
    AddInserts,
    AddExceptions,
    Edit,
    Delete,
    DeleteAll,
    Undo,
    MoveUp,
    MoveDown,
};

struct SpecialPagesCommandEntry
{
    SpecialPagesCommand command;
    const char* labelKey;
    const char* imageName; // a picture of the bundle, see SpecialPagesImagePath
    const char* objectName;
};

// The commands in the order their buttons stand.
extern const std::array<SpecialPagesCommandEntry, 9> kSpecialPagesCommands;

// The bundle-relative path of a picture name: the pictures live in
// "images/specialpages/" as PNG files named after the picture's stem
// ("ButtonGraphic_Edit.icns" is "images/specialpages/ButtonGraphic_Edit.png").
QString SpecialPagesImagePath(const QString& imageName);

// One row of the list; its identity is the page object.
struct SpecialPagesRow
{
    SpecialPageKind kind;
    SpecialPage* page;
    QString pages;
    QString type;
    QString attributes;
};

// What the view is to do after a command: run a record dialog.
struct SpecialPagesAction
{
    enum class Dialog
    {
        None,
        Covers,
        Inserts,
        Exceptions,
    };
    Dialog dialog = Dialog::None;
    DialogMode mode = DialogMode::Add;
    SpecialPage* page = nullptr; // the edited page in edit mode
};

class SpecialPagesModel
{
public:
    // The bundle gives every text; null reads "STRING NOT FOUND".
    explicit SpecialPagesModel(const Bundle* bundle = nullptr);
    ~SpecialPagesModel();
    SpecialPagesModel(const SpecialPagesModel&) = delete;
    SpecialPagesModel& operator=(const SpecialPagesModel&) = delete;

    const Bundle* bundle() const { return m_bundle; }
    // Texts made after this come from the bundle.
    void setBundle(const Bundle* bundle) { m_bundle = bundle; }
    // The covers and lists the dialogs edit; call pagesChanged() after
    // changing them from outside.
    SpecialPagesState& state() { return m_state; }
    const SpecialPagesState& state() const { return m_state; }

    // Sync with the session's print-settings ticket: false writes the lists,
    // and the covers when they changed here since they were last read or
    // written (the Paper/Output panel edits them too, and its change must
    // not be overwritten by covers this pane only read); true reads them
    // all (and the job-level stock and layout), forgetting the selection
    // and the undo state. kSyncMissingContext without a session.
    Status sync(PrintSession* session, bool direction);
    void syncFromTicket(const Ticket& ticket);
    Status syncToTicket(Ticket& ticket);

    // Appends one title/value pair per row, or one saying there are none.
    void appendSummary(const Bundle* bundle, PropertyValue* titles, PropertyValue* values) const;

    // Rows: front cover, inserts and exception pages in list order, back
    // cover. Refilled by UpdateSpecialPagesSummary after every change.
    const std::vector<SpecialPagesRow>& rows() const { return m_rows; }
    void updateSpecialPagesSummary();

    // The selected rows' indices, in list order; rows out of range are
    // ignored.
    void setSelectedRows(const std::vector<int>& rows);
    std::vector<int> selectedRows() const;

    // UpdateSpecialPagesUI: with n-up or booklet layout on, Add Inserts and
    // Add Exceptions are disabled; a ticket without the n-up flag changes
    // nothing.
    void updateSpecialPagesUI(const Ticket& ticket);

    // Enabling as UpdateSpecialPagesCommandButtons computes it from the rows,
    // the selection, the layout and the undo state.
    bool isEnabled(SpecialPagesCommand command) const;

    // Runs a command (an enabled one; disabled commands do nothing). Adding
    // and editing ask the view for a dialog; the view runs it and then calls
    // dialogFinished. Returns kNoError.
    Status handleCommand(SpecialPagesCommand command, SpecialPagesAction* action);
    // After the dialog an action asked for: refills the rows and forgets the
    // selection (edited pages are replaced). An accepted covers dialog makes
    // the covers as they were before it the undo state.
    void dialogFinished(const SpecialPagesAction& action, bool accepted);

    // One-level undo of the covers and both lists. Both return kNoError.
    Status saveUndoState();
    Status performUndo();
    bool hasUndoState() const;

private:
    struct UndoState
    {
        std::unique_ptr<Cover> frontCover;
        std::unique_ptr<Cover> backCover;
        std::unique_ptr<InsertList> inserts;
        std::unique_ptr<ExceptionPageList> exceptions;

        bool isEmpty() const { return !frontCover && !backCover && !inserts && !exceptions; }
    };

    UndoState currentAsUndoState() const;
    const SpecialPagesRow* lastSelectedRow() const;
    bool lastSelectedInsertMoves(bool up) const;
    void deleteRows(bool all);
    void moveSelected(bool up);
    void clearSelection() { m_selection.clear(); }

    const Bundle* m_bundle;
    SpecialPagesState m_state;
    UndoState m_undo;
    UndoState m_coversBeforeDialog;
    std::vector<SpecialPagesRow> m_rows;
    std::vector<const SpecialPage*> m_selection; // in list order
    bool m_layoutDisablesAdding = false;
    bool m_coversChanged = false;
};

} // namespace orvan
