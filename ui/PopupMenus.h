// Pop-up buttons (QComboBox) and menus (QMenu) filled from setting maps, as
// mirrors of a MenuModel. Each item carries its ticket value (the model's
// reference value) and its command; separators stand for "-" rows; the
// pop-up or menu remembers the map it was built from and, for a pop-up, its
// maximum (the count the fill returned, which counts gated rows that were
// left out).
#pragma once

#include "settings/MenuModel.h"
#include "settings/SettingMap.h"

#include <QMetaType>
#include <QString>
#include <QtCore/qnamespace.h>

#include <cstdint>

struct ppd_file_s;
typedef struct ppd_file_s ppd_file_t;

class QAction;
class QComboBox;
class QMenu;
class QWidget;

namespace orvan {

class Bundle;

// Item data roles of a pop-up button's items.
enum MenuItemRole : int
{
    TicketValueRole = Qt::UserRole + 1, // int: the item's ticket (reference) value
    CommandRole,                        // uint: the item's command, 0 for none
};

// What a menu action carries in QAction::data().
struct MenuActionData
{
    std::int32_t ticketValue = 0;
    std::uint32_t commandId = 0;
};

// --- Mirrors of a menu model -------------------------------------------------

// Replaces the pop-up's items by the model's, in order; the pop-up's map
// becomes the model's source map and its maximum the given count. Emits no
// signals: filling is not a choice.
void FillPopupButton(QComboBox* popup, const MenuModel& model, int maximum);

// Appends the model's items to the menu as actions (separators for separator
// items); the menu's map becomes the model's source map.
void AppendMenuModel(QMenu* menu, const MenuModel& model);

// The map a pop-up or menu was last filled from; null when none.
const _SettingMap* MenuSourceMap(const QWidget* popupOrMenu);

// The pop-up's maximum as its last fill set it; 0 for a pop-up never filled.
int PopupButtonMaximum(const QComboBox* popup);

// An item's ticket value and command; 0 for an index out of range.
std::int32_t PopupButtonItemTicketValue(const QComboBox* popup, int index);
std::uint32_t PopupButtonItemCommand(const QComboBox* popup, int index);

// An action's data; a default MenuActionData for an action that has none.
MenuActionData MenuActionDataOf(const QAction* action);

// --- Filling from setting maps -------------------------------------------------

// Appends the map's items to the menu (see the MenuModel overload in
// settings/SettingMapAccess.h) and returns the rows visited.
std::uint16_t PopulateMenuFromMap(const Bundle* bundle, QMenu* menu, const _SettingMap* map,
                                  int jobContext, std::uint32_t commandOverride);

// Deletes the pop-up's items, fills it from the map and sets its maximum to
// the rows visited, which it returns. Nothing happens for a null pop-up.
std::uint16_t PopulatePopupButtonFromMap(const Bundle* bundle, QComboBox* popup,
                                         const _SettingMap* map, int jobContext,
                                         std::uint32_t commandOverride);

// As PopulatePopupButtonFromMap, then the strings of the history under the
// key in the user's input-history file are inserted with the history command:
// each after item p (numbered from 1), p starting at firstHistoryPosition and
// growing by one for every element. The maximum (and result) grows by one
// for each inserted string.
std::uint16_t PopulatePopupButtonFromMapAndHistory(const Bundle* bundle, QComboBox* popup,
                                                   const _SettingMap* map, int jobContext,
                                                   const QString& historyKey,
                                                   int firstHistoryPosition,
                                                   std::uint32_t historyCommand,
                                                   std::uint32_t commandOverride);

// --- Filling from the printer's PPD --------------------------------------------

// The pop-up counterpart of PPDPopulateMenuWithChoices: the pop-up's items
// become the option's choices (command 0) and its maximum their count, which
// it returns. 0, with the pop-up untouched, when any argument is missing.
int PPDPopulatePopupWithChoices(QComboBox* popup, ppd_file_t* ppd, const QString& mainKeyword,
                                bool checkConstraints);

// --- Selection by ticket value -------------------------------------------------

// Selects the first item whose ticket value equals the value and returns
// true; returns false with the selection unchanged when no item does or the
// pop-up is null.
// Like every programmatic change, it emits currentIndexChanged but not
// activated: panels take the user's choices from activated.
bool SetPopupButtonToTicketValue(QComboBox* popup, std::int32_t value);

// The ticket value of the selected item; 0 when nothing is selected or the
// pop-up is null.
std::int32_t GetPopupButtonTicketValue(const QComboBox* popup);

} // namespace orvan

Q_DECLARE_METATYPE(orvan::MenuActionData)
