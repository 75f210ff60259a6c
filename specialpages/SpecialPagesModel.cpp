#include "specialpages/SpecialPagesModel.h"

#include "platform/Alerts.h"
#include "settings/PrintSession.h"
#include "settings/Ticket.h"
#include "shell/PanelText.h"
#include "specialpages/SpecialPageKeys.h"

#include <QFileInfo>

#include <algorithm>

namespace orvan {

const std::array<SpecialPagesCommandEntry, 9> kSpecialPagesCommands{{
    {SpecialPagesCommand::AddCovers, "Add Covers Command", "ButtonGraphic_AddCovers.icns",
     "AddCoversButton"},
    {SpecialPagesCommand::AddInserts, "Add Inserts Command", "ButtonGraphic_AddInserts.icns",
     "AddInsertsButton"},
    {SpecialPagesCommand::AddExceptions, "Add Exceptions Command",
     "ButtonGraphic_AddExceptions.icns", "AddExceptionsButton"},
    {SpecialPagesCommand::Edit, "Edit Command", "ButtonGraphic_Edit.icns", "EditButton"},
    {SpecialPagesCommand::Delete, "Delete Command", "ButtonGraphic_Delete.icns", "DeleteButton"},
    {SpecialPagesCommand::DeleteAll, "Delete All Command", "ButtonGraphic_DeleteAll.icns",
     "DeleteAllButton"},
    {SpecialPagesCommand::Undo, "Undo Command", "ButtonGraphic_Undo.icns", "UndoButton"},
    {SpecialPagesCommand::MoveUp, "Move Up Command", "ButtonGraphic_Move_Up.icns", "MoveUpButton"},
    {SpecialPagesCommand::MoveDown, "Move Down Command", "ButtonGraphic_Move_Down.icns",
     "MoveDownButton"},
}};

QString SpecialPagesImagePath(const QString& imageName)
{
    return QStringLiteral("images/specialpages/") + QFileInfo(imageName).completeBaseName() +
           QStringLiteral(".png");
}

SpecialPagesModel::SpecialPagesModel(const Bundle* bundle) : m_bundle(bundle) {}

SpecialPagesModel::~SpecialPagesModel() = default;

Status SpecialPagesModel::sync(PrintSession* session, bool direction)
{
    if (!session)
        return kSyncMissingContext;
    if (!direction)
        return syncToTicket(session->printSettings());
    syncFromTicket(session->printSettings());
    return kNoError;
}

void SpecialPagesModel::syncFromTicket(const Ticket& ticket)
{
    m_state.readFromTicket(ticket);
    m_coversChanged = false;
    m_undo = {};
    clearSelection();
    updateSpecialPagesUI(ticket);
    updateSpecialPagesSummary();
}

Status SpecialPagesModel::syncToTicket(Ticket& ticket)
{
    const Status status = m_state.writeToTicket(ticket, m_coversChanged);
    if (status == kNoError)
        m_coversChanged = false;
    return status;
}

void SpecialPagesModel::appendSummary(const Bundle* bundle, PropertyValue* titles,
                                      PropertyValue* values) const
{
    if (m_rows.empty()) {
        AppendSummaryPair(titles, values, SpecialPagesText(bundle, kSpecialPagesTitleKey),
                          SpecialPagesText(bundle, QStringLiteral("SpecialPagesNone")));
        return;
    }
    const QString titleFormat = SpecialPagesText(bundle, QStringLiteral("SpecialPageSummaryTitle"));
    for (const SpecialPagesRow& row : m_rows) {
        QString value;
        if (const auto* insert = dynamic_cast<const Insert*>(row.page))
            value = CreateInsertAttributesDescription(bundle, *insert);
        else if (const auto* exception = dynamic_cast<const ExceptionPage*>(row.page))
            value = CreateExceptionAttributesDescription(bundle, *exception);
        else
            value = CopySpecialPageSummary(*row.page, bundle);
        AppendSummaryPair(titles, values,
                          titleFormat.arg(SpecialPageTypeText(bundle, row.kind),
                                          SpecialPagePagesText(bundle, row.kind, *row.page)),
                          value);
    }
}

void SpecialPagesModel::updateSpecialPagesSummary()
{
    m_rows.clear();
    const auto addRow = [this](SpecialPageKind kind, SpecialPage* page) {
        m_rows.push_back({kind, page, SpecialPagePagesText(m_bundle, kind, *page),
                          SpecialPageTypeText(m_bundle, kind),
                          CopySpecialPageSummary(*page, m_bundle)});
    };
    if (m_state.frontCover)
        addRow(SpecialPageKind::FrontCover, m_state.frontCover.get());
    for (long i = 0; i < m_state.inserts.count(); ++i)
        addRow(SpecialPageKind::Insert, m_state.inserts.pageAtIndex(i));
    for (long i = 0; i < m_state.exceptions.count(); ++i)
        addRow(SpecialPageKind::ExceptionPage, m_state.exceptions.pageAtIndex(i));
    if (m_state.backCover)
        addRow(SpecialPageKind::BackCover, m_state.backCover.get());

    // Keep the selected pages that are still listed, in their new order.
    std::vector<const SpecialPage*> kept;
    for (const SpecialPagesRow& row : m_rows) {
        if (std::find(m_selection.begin(), m_selection.end(), row.page) != m_selection.end())
            kept.push_back(row.page);
    }
    m_selection = std::move(kept);
}

void SpecialPagesModel::setSelectedRows(const std::vector<int>& rows)
{
    std::vector<int> sorted = rows;
    std::sort(sorted.begin(), sorted.end());
    sorted.erase(std::unique(sorted.begin(), sorted.end()), sorted.end());
    m_selection.clear();
    for (const int row : sorted) {
        if (row >= 0 && row < static_cast<int>(m_rows.size()))
            m_selection.push_back(m_rows[static_cast<std::size_t>(row)].page);
    }
}

std::vector<int> SpecialPagesModel::selectedRows() const
{
    std::vector<int> rows;
    for (int i = 0; i < static_cast<int>(m_rows.size()); ++i) {
        const SpecialPage* page = m_rows[static_cast<std::size_t>(i)].page;
        if (std::find(m_selection.begin(), m_selection.end(), page) != m_selection.end())
            rows.push_back(i);
    }
    return rows;
}

void SpecialPagesModel::updateSpecialPagesUI(const Ticket& ticket)
{
    const std::optional<bool> nUp = ticket.boolean(kLayoutNUpKey);
    if (!nUp)
        return;
    m_layoutDisablesAdding = *nUp || ticket.boolean(kBookletLayoutKey).value_or(false);
}

const SpecialPagesRow* SpecialPagesModel::lastSelectedRow() const
{
    const std::vector<int> rows = selectedRows();
    return rows.empty() ? nullptr : &m_rows[static_cast<std::size_t>(rows.back())];
}

bool SpecialPagesModel::lastSelectedInsertMoves(bool up) const
{
    // Every selected row is looked at, but the last one's answer is the one
    // that counts.
    bool moves = false;
    for (const int row : selectedRows()) {
        const auto* insert =
            dynamic_cast<const Insert*>(m_rows[static_cast<std::size_t>(row)].page);
        moves = up ? m_state.inserts.canPromote(insert) : m_state.inserts.canDemote(insert);
    }
    return moves;
}

bool SpecialPagesModel::isEnabled(SpecialPagesCommand command) const
{
    const std::size_t selected = m_selection.size();
    switch (command) {
    case SpecialPagesCommand::AddCovers:
        return true;
    case SpecialPagesCommand::AddInserts:
    case SpecialPagesCommand::AddExceptions:
        return !m_layoutDisablesAdding;
    case SpecialPagesCommand::Edit:
        return selected == 1;
    case SpecialPagesCommand::Delete:
        return selected >= 1;
    case SpecialPagesCommand::DeleteAll:
        return !m_rows.empty();
    case SpecialPagesCommand::Undo:
        return hasUndoState();
    case SpecialPagesCommand::MoveUp:
        return selected >= 1 && lastSelectedInsertMoves(true);
    case SpecialPagesCommand::MoveDown:
        return selected >= 1 && lastSelectedInsertMoves(false);
    }
    return false;
}

Status SpecialPagesModel::handleCommand(SpecialPagesCommand command, SpecialPagesAction* action)
{
    SpecialPagesAction ignored;
    SpecialPagesAction& next = action ? *action : ignored;
    next = {};
    if (!isEnabled(command))
        return kNoError;
    switch (command) {
    case SpecialPagesCommand::AddCovers:
        next.dialog = SpecialPagesAction::Dialog::Covers;
        break;
    case SpecialPagesCommand::AddInserts:
        next.dialog = SpecialPagesAction::Dialog::Inserts;
        break;
    case SpecialPagesCommand::AddExceptions:
        next.dialog = SpecialPagesAction::Dialog::Exceptions;
        break;
    case SpecialPagesCommand::Edit: {
        const SpecialPagesRow* row = lastSelectedRow();
        next.mode = DialogMode::Edit;
        next.page = row->page;
        switch (row->kind) {
        case SpecialPageKind::FrontCover:
        case SpecialPageKind::BackCover:
            next.dialog = SpecialPagesAction::Dialog::Covers;
            break;
        case SpecialPageKind::Insert:
            next.dialog = SpecialPagesAction::Dialog::Inserts;
            break;
        case SpecialPageKind::ExceptionPage:
            next.dialog = SpecialPagesAction::Dialog::Exceptions;
            break;
        }
        break;
    }
    case SpecialPagesCommand::Delete:
        deleteRows(false);
        break;
    case SpecialPagesCommand::DeleteAll:
        deleteRows(true);
        break;
    case SpecialPagesCommand::Undo:
        performUndo();
        break;
    case SpecialPagesCommand::MoveUp:
        moveSelected(true);
        break;
    case SpecialPagesCommand::MoveDown:
        moveSelected(false);
        break;
    }
    if (next.dialog == SpecialPagesAction::Dialog::Covers)
        m_coversBeforeDialog = currentAsUndoState();
    updateSpecialPagesSummary();
    return kNoError;
}

void SpecialPagesModel::dialogFinished(const SpecialPagesAction& action, bool accepted)
{
    if (action.dialog == SpecialPagesAction::Dialog::Covers && accepted) {
        m_undo = std::move(m_coversBeforeDialog);
        m_coversChanged = true;
    }
    m_coversBeforeDialog = {};
    if (action.dialog != SpecialPagesAction::Dialog::None && accepted)
        clearSelection();
    updateSpecialPagesSummary();
}

void SpecialPagesModel::deleteRows(bool all)
{
    saveUndoState();
    const Question question{
        {AlertLevel::Caution,
         SpecialPagesText(m_bundle, QStringLiteral("Delete Special Pages Title")),
         SpecialPagesText(m_bundle, all ? QStringLiteral("Delete All Special Pages")
                                        : QStringLiteral("Delete Selected Special Pages"))},
        SpecialPagesText(m_bundle, QStringLiteral("No Command")),
        SpecialPagesText(m_bundle, QStringLiteral("Yes Command")),
    };
    if (AskQuestion(question) != QuestionAnswer::Other)
        return;
    if (all) {
        m_coversChanged = m_coversChanged || m_state.frontCover || m_state.backCover;
        m_state.frontCover.reset();
        m_state.backCover.reset();
        m_state.inserts.clear();
        m_state.exceptions.clear();
    } else {
        for (const int index : selectedRows()) {
            const SpecialPagesRow& row = m_rows[static_cast<std::size_t>(index)];
            switch (row.kind) {
            case SpecialPageKind::FrontCover:
                m_state.frontCover.reset();
                m_coversChanged = true;
                break;
            case SpecialPageKind::BackCover:
                m_state.backCover.reset();
                m_coversChanged = true;
                break;
            case SpecialPageKind::Insert:
                m_state.inserts.remove(row.page);
                break;
            case SpecialPageKind::ExceptionPage:
                m_state.exceptions.remove(row.page);
                break;
            }
        }
    }
    clearSelection();
}

void SpecialPagesModel::moveSelected(bool up)
{
    saveUndoState();
    // Rows that are not inserts are not in the insert list, which ignores them.
    for (const int index : selectedRows()) {
        auto* insert = dynamic_cast<Insert*>(m_rows[static_cast<std::size_t>(index)].page);
        if (up)
            m_state.inserts.promote(insert);
        else
            m_state.inserts.demote(insert);
    }
}

SpecialPagesModel::UndoState SpecialPagesModel::currentAsUndoState() const
{
    UndoState state;
    if (m_state.frontCover)
        state.frontCover = m_state.frontCover->clone();
    if (m_state.backCover)
        state.backCover = m_state.backCover->clone();
    state.inserts = m_state.inserts.clone();
    state.exceptions = m_state.exceptions.clone();
    return state;
}

Status SpecialPagesModel::saveUndoState()
{
    m_undo = currentAsUndoState();
    return kNoError;
}

Status SpecialPagesModel::performUndo()
{
    if (m_undo.isEmpty())
        return kNoError;
    m_state.frontCover = std::move(m_undo.frontCover);
    m_state.backCover = std::move(m_undo.backCover);
    m_state.inserts = m_undo.inserts ? std::move(*m_undo.inserts) : InsertList();
    m_state.exceptions = m_undo.exceptions ? std::move(*m_undo.exceptions) : ExceptionPageList();
    m_undo = {};
    m_coversChanged = true;
    clearSelection();
    return kNoError;
}

bool SpecialPagesModel::hasUndoState() const
{
    return !m_undo.isEmpty();
}

} // namespace orvan
