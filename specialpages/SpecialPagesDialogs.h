// The covers, inserts and exceptions dialogs: modal dialogs over a parent
// that edit copies of the records and hand them back on OK. The Special
// Pages panel opens all three; the Paper/Output panel's covers command opens
// the covers dialog.
#pragma once

#include "specialpages/Cover.h"
#include "specialpages/DialogMode.h"
#include "specialpages/ExceptionPageList.h"
#include "specialpages/InsertList.h"
#include "stock/Stock.h"

#include <functional>
#include <memory>

class QWidget;

namespace orvan {

class Bundle;

// Chooses no covers, a front cover only, or the same cover front and back,
// with its printed sides and stock. On OK both covers are replaced (either
// may become null) and the result is true; Cancel leaves them alone. The
// job's stock (may be null) is shown as what unset attributes inherit.
// Object name "CoversDialog".
bool RunModalCoversDialog(const Bundle* bundle, DialogMode mode, const Stock* jobStock,
                          std::unique_ptr<Cover>& frontCover, std::unique_ptr<Cover>& backCover,
                          QWidget* parent);

// Adds inserts after the typed pages (or before page 1), or in edit mode
// replaces the edited insert (one of the list's). saveUndoState (may be
// empty) runs just before the list changes. A bad page text shows its alert
// and keeps the dialog open with the text as typed. True on OK.
// Object name "InsertsDialog".
bool RunModalInsertsDialog(const Bundle* bundle, DialogMode mode, const Stock* jobStock,
                           InsertList& inserts, const Insert* edited,
                           const std::function<void()>& saveUndoState, QWidget* parent);

// Adds exception ranges for the typed pages, or in edit mode replaces the
// edited range (one of the list's); as for inserts otherwise.
// Object name "ExceptionsDialog".
bool RunModalExceptionsDialog(const Bundle* bundle, DialogMode mode, const Stock* jobStock,
                              ExceptionPageList& exceptions, const ExceptionPage* edited,
                              const std::function<void()>& saveUndoState, QWidget* parent);

} // namespace orvan
