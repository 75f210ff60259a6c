// The inserts dialog without its widgets: how many sheets, where they go
// (after the typed pages, or before the first page) and on what stock.
#pragma once

#include "settings/Status.h"
#include "specialpages/DialogMode.h"
#include "specialpages/InsertList.h"

#include <QString>

#include <functional>

namespace orvan {

class Bundle;

// Items of the position menu, numbered from 1.
inline constexpr int kInsertAfterPagesItem = 1;
inline constexpr int kInsertBeforeFirstPageItem = 2;
inline const QString kInsertPositionKeys[] = {QStringLiteral("Insert After Pages"),
                                              QStringLiteral("Insert Before Page 1")};

// Quantities the dialog takes.
inline constexpr int kMinimumInsertQuantity = 1;
inline constexpr int kMaximumInsertQuantity = 999;

class InsertsDialogModel
{
public:
    // Adding starts from one sheet after the pages typed, on the job's
    // stock; editing from the edited insert (its page as the text, or the
    // second position for an insert before the first page).
    InsertsDialogModel(const Bundle* bundle, DialogMode mode, const Insert* edited);

    // The insert whose quantity and stock the controls edit; its start page
    // comes from the position and the text on OK.
    Insert& insert() { return m_insert; }
    const Insert& insert() const { return m_insert; }

    int positionItem() const { return m_positionItem; }
    void setPositionItem(int item);
    // The pages field is used only for the first position.
    bool pagesEnabled() const { return m_positionItem == kInsertAfterPagesItem; }
    const QString& pagesText() const { return m_pagesText; }
    void setPagesText(const QString& text) { m_pagesText = text; }

    // OK: one insert per page typed (or one before the first page), added to
    // the list, or replacing the edited insert. saveUndoState runs just
    // before the list changes. A bad text changes nothing, shows its alert
    // and returns its code; the dialog then stays open.
    Status accept(InsertList& inserts, const Insert* edited,
                  const std::function<void()>& saveUndoState) const;

private:
    const Bundle* m_bundle;
    DialogMode m_mode;
    Insert m_insert;
    int m_positionItem = kInsertAfterPagesItem;
    QString m_pagesText;
};

} // namespace orvan
