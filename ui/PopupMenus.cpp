#include "ui/PopupMenus.h"

#include "printerdesc/PPDAccess.h"
#include "settings/SettingMapAccess.h"

#include <QAction>
#include <QComboBox>
#include <QMenu>

namespace orvan {

namespace detail {

// What a pop-up or menu remembers about its last fill, kept as a child of it.
class MenuSource : public QObject
{
    Q_OBJECT

public:
    using QObject::QObject;

    const _SettingMap* map = nullptr;
    int maximum = 0;
};

} // namespace detail

namespace {

using detail::MenuSource;

MenuSource* sourceOf(const QWidget* widget)
{
    return widget ? widget->findChild<MenuSource*>(QString(), Qt::FindDirectChildrenOnly) : nullptr;
}

MenuSource& ensureSource(QWidget* widget)
{
    if (MenuSource* source = sourceOf(widget))
        return *source;
    return *new MenuSource(widget);
}

} // namespace

void FillPopupButton(QComboBox* popup, const MenuModel& model, int maximum)
{
    if (!popup)
        return;
    const QSignalBlocker quiet(popup); // filling is not a user's choice
    popup->clear();
    for (const MenuItem& item : model.items()) {
        if (item.separator)
            popup->insertSeparator(popup->count());
        else
            popup->addItem(item.text);
        const int index = popup->count() - 1;
        popup->setItemData(index, item.referenceValue, TicketValueRole);
        popup->setItemData(index, item.commandId, CommandRole);
    }
    MenuSource& source = ensureSource(popup);
    source.map = model.sourceMap();
    source.maximum = maximum;
}

void AppendMenuModel(QMenu* menu, const MenuModel& model)
{
    if (!menu)
        return;
    for (const MenuItem& item : model.items()) {
        QAction* action = item.separator ? menu->addSeparator() : menu->addAction(item.text);
        action->setData(QVariant::fromValue(MenuActionData{item.referenceValue, item.commandId}));
    }
    ensureSource(menu).map = model.sourceMap();
}

const _SettingMap* MenuSourceMap(const QWidget* popupOrMenu)
{
    const MenuSource* source = sourceOf(popupOrMenu);
    return source ? source->map : nullptr;
}

int PopupButtonMaximum(const QComboBox* popup)
{
    const MenuSource* source = sourceOf(popup);
    return source ? source->maximum : 0;
}

std::int32_t PopupButtonItemTicketValue(const QComboBox* popup, int index)
{
    if (!popup || index < 0 || index >= popup->count())
        return 0;
    return popup->itemData(index, TicketValueRole).toInt();
}

std::uint32_t PopupButtonItemCommand(const QComboBox* popup, int index)
{
    if (!popup || index < 0 || index >= popup->count())
        return 0;
    return popup->itemData(index, CommandRole).toUInt();
}

MenuActionData MenuActionDataOf(const QAction* action)
{
    if (!action || !action->data().canConvert<MenuActionData>())
        return {};
    return action->data().value<MenuActionData>();
}

std::uint16_t PopulateMenuFromMap(const Bundle* bundle, QMenu* menu, const _SettingMap* map,
                                  int jobContext, std::uint32_t commandOverride)
{
    MenuModel model;
    const std::uint16_t visited =
        PopulateMenuFromMap(bundle, model, map, jobContext, commandOverride);
    AppendMenuModel(menu, model);
    return visited;
}

std::uint16_t PopulatePopupButtonFromMap(const Bundle* bundle, QComboBox* popup,
                                         const _SettingMap* map, int jobContext,
                                         std::uint32_t commandOverride)
{
    if (!popup)
        return 0;
    MenuModel model;
    const std::uint16_t maximum =
        PopulatePopupMenuFromMap(bundle, model, map, jobContext, commandOverride);
    FillPopupButton(popup, model, maximum);
    return maximum;
}

std::uint16_t PopulatePopupButtonFromMapAndHistory(const Bundle* bundle, QComboBox* popup,
                                                   const _SettingMap* map, int jobContext,
                                                   const QString& historyKey,
                                                   int firstHistoryPosition,
                                                   std::uint32_t historyCommand,
                                                   std::uint32_t commandOverride)
{
    if (!popup)
        return 0;
    MenuModel model;
    const std::uint16_t maximum =
        PopulatePopupMenuFromMapAndHistory(bundle, model, map, jobContext, historyKey,
                                           firstHistoryPosition, historyCommand, commandOverride);
    FillPopupButton(popup, model, maximum);
    return maximum;
}

int PPDPopulatePopupWithChoices(QComboBox* popup, ppd_file_t* ppd, const QString& mainKeyword,
                                bool checkConstraints)
{
    if (!popup || !ppd || mainKeyword.isEmpty())
        return 0;
    MenuModel choices;
    const int count = PPDPopulateMenuWithChoices(&choices, ppd, mainKeyword, 0, checkConstraints);
    FillPopupButton(popup, choices, count);
    return count;
}

bool SetPopupButtonToTicketValue(QComboBox* popup, std::int32_t value)
{
    if (!popup)
        return false;
    const int index = popup->findData(value, TicketValueRole, Qt::MatchExactly);
    if (index < 0)
        return false;
    popup->setCurrentIndex(index);
    return true;
}

std::int32_t GetPopupButtonTicketValue(const QComboBox* popup)
{
    return popup ? PopupButtonItemTicketValue(popup, popup->currentIndex()) : 0;
}

} // namespace orvan

#include "PopupMenus.moc"
