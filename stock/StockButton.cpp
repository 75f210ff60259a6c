#include "stock/StockButton.h"

#include "stock/AdvancedStockDialog.h"
#include "stock/CustomSizeDialog.h"
#include "stock/StockIconView.h"
#include "stock/StockSummary.h"
#include "ui/PopupMenus.h"
#include "ui/SummaryView.h"

#include <QGridLayout>
#include <QMenu>
#include <QPlainTextEdit>
#include <QToolButton>

namespace orvan {

namespace {

QString submenuName(const MenuModel& submenu)
{
    for (const MenuItem& item : submenu.items()) {
        switch (item.commandId) {
        case kStockSizeCommand:
            return QStringLiteral("StockSizeMenu");
        case kStockColorCommand:
            return QStringLiteral("StockColorMenu");
        case kStockTypeCommand:
            return QStringLiteral("StockTypeMenu");
        default:
            break;
        }
    }
    return {};
}

} // namespace

Status ShowStockSummary(const Bundle* bundle, QPlainTextEdit* view, const Stock* stock,
                        JobContext context)
{
    if (!bundle || !view)
        return kBadParameter;
    UpdateSummaryTextView(view,
                          stock ? StockSummaryText(bundle, stock, context) : QStringLiteral(""));
    return kNoError;
}

bool WidgetStockDialogs::runCustomSizeDialog(std::int32_t& width, std::int32_t& length)
{
    return RunModalCustomSizeDialog(m_bundle, width, length, m_parent);
}

bool WidgetStockDialogs::runAdvancedStockSelection(Stock& stock, JobContext context)
{
    return RunModalAdvancedStockDialog(m_bundle, stock, context, m_parent);
}

StockButton::StockButton(const Bundle* bundle, JobContext context, QWidget* parent)
    : QWidget(parent), m_bundle(bundle),
      m_widgetDialogs(std::make_unique<WidgetStockDialogs>(bundle, this)),
      m_button(new QToolButton(this)), m_menu(new QMenu(this)), m_summary(new QPlainTextEdit(this)),
      m_icon(new StockIconView(bundle, this))
{
    setObjectName(QStringLiteral("StockButton"));
    m_data.bundle = bundle;
    m_data.context = context;
    m_data.dialogs = m_widgetDialogs.get();

    m_button->setObjectName(QStringLiteral("StockMenuButton"));
    m_button->setText(LocalizedStockText(bundle, QStringLiteral("StockMenuTitle")));
    m_button->setPopupMode(QToolButton::InstantPopup);
    m_button->setMenu(m_menu);
    m_menu->setObjectName(QStringLiteral("StockMenu"));
    m_summary->setObjectName(QStringLiteral("StockSummary"));
    m_summary->setReadOnly(true);
    m_summary->setFrameShape(QFrame::NoFrame);
    // Lines wrap at the view's width; a horizontal bar would only flash while laying out.
    m_summary->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    m_summary->setMinimumWidth(160);
    m_summary->setMaximumHeight(5 * m_summary->fontMetrics().lineSpacing());
    m_icon->setFixedSize(m_icon->sizeHint());

    auto* layout = new QGridLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(m_icon, 0, 0, 2, 1, Qt::AlignTop);
    layout->addWidget(m_button, 0, 1, Qt::AlignLeft);
    layout->addWidget(m_summary, 1, 1);

    rebuildMenu();
    refresh();
}

StockButton::~StockButton() = default;

void StockButton::setStock(Stock* stock)
{
    m_data.stock = stock;
    m_icon->setStock(stock);
    m_button->setEnabled(stock != nullptr);
    refresh();
}

void StockButton::setDialogs(StockDialogs* dialogs)
{
    m_data.dialogs = dialogs ? dialogs : m_widgetDialogs.get();
}

void StockButton::rebuildMenu()
{
    m_menu->clear();
    for (QMenu* old : m_menu->findChildren<QMenu*>(Qt::FindDirectChildrenOnly))
        delete old;

    StockMenu contents;
    PopulateStockButtonMenu(contents, m_bundle, m_data.context);
    for (const StockMenuEntry& entry : contents) {
        if (entry.submenu) {
            auto* submenu = new QMenu(entry.item.text, m_menu);
            submenu->setObjectName(submenuName(*entry.submenu));
            AppendMenuModel(submenu, *entry.submenu);
            m_menu->addMenu(submenu);
        } else {
            MenuModel single;
            single.append(entry.item);
            AppendMenuModel(m_menu, single);
        }
    }
    // Each action runs its own command, so a command runs once whether it
    // comes from a click in a submenu or from QAction::trigger().
    for (QAction* action : m_menu->findChildren<QAction*>()) {
        const MenuActionData data = MenuActionDataOf(action);
        if (action->isSeparator() || action->menu() || data.commandId == 0)
            continue;
        connect(action, &QAction::triggered, this,
                [this, data] { runCommand(data.commandId, data.ticketValue); });
    }
}

void StockButton::refresh()
{
    ShowStockSummary(m_bundle, m_summary, m_data.stock, m_data.context);
    m_icon->update();
}

void StockButton::runCommand(std::uint32_t command, std::int32_t value)
{
    if (StockMenuCommandEventHandler(m_data, command, value) != kNoError)
        return;
    refresh();
    emit stockChanged();
}

} // namespace orvan
