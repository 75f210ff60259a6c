// The stock button: the menu button whose menu chooses a stock's size,
// colour and type and runs the stock commands, the summary of the stock and
// its picture. The Paper/Output panel shows one for the job's stock, the
// covers, inserts and exceptions dialogs one for their page's stock.
#pragma once

#include "settings/Status.h"
#include "stock/StockCommands.h"
#include "stock/StockMenus.h"

#include <QWidget>

#include <memory>

class QMenu;
class QPlainTextEdit;
class QToolButton;

namespace orvan {

class Bundle;
class StockIconView;

// Shows the stock's summary in a summary view: kBadParameter without a
// bundle or view; an empty view without a stock; otherwise the summary
// (StockSummaryText). kNoError.
Status ShowStockSummary(const Bundle* bundle, QPlainTextEdit* view, const Stock* stock,
                        JobContext context);

// The dialogs of the stock commands as real modal dialogs over a parent.
class WidgetStockDialogs : public StockDialogs
{
public:
    WidgetStockDialogs(const Bundle* bundle, QWidget* parent) : m_bundle(bundle), m_parent(parent)
    {
    }
    bool runCustomSizeDialog(std::int32_t& width, std::int32_t& length) override;
    bool runAdvancedStockSelection(Stock& stock, JobContext context) override;

private:
    const Bundle* m_bundle;
    QWidget* m_parent;
};

// Object names: the button "StockMenuButton", its menu "StockMenu" (the
// submenus "StockSizeMenu", "StockColorMenu", "StockTypeMenu"), the summary
// "StockSummary", the icon "StockIcon".
class StockButton : public QWidget
{
    Q_OBJECT

public:
    StockButton(const Bundle* bundle, JobContext context, QWidget* parent = nullptr);
    ~StockButton() override;

    // The stock the button edits (not owned; may be null). Shows it.
    void setStock(Stock* stock);
    Stock* stock() const { return m_data.stock; }
    JobContext context() const { return m_data.context; }

    // The dialogs the commands open; the widget dialogs unless replaced (a
    // test or a host may supply its own). Not owned; null restores the
    // widget dialogs.
    void setDialogs(StockDialogs* dialogs);

    // Fills the menu again from the current PPD and installed options.
    void rebuildMenu();
    // Shows the stock's summary and redraws its icon.
    void refresh();

    QMenu* menu() const { return m_menu; }
    QPlainTextEdit* summaryView() const { return m_summary; }
    StockIconView* iconView() const { return m_icon; }

signals:
    // A menu command changed (or may have changed) the stock.
    void stockChanged();

private:
    void runCommand(std::uint32_t command, std::int32_t value);

    const Bundle* m_bundle;
    StockMenuHandlerData m_data;
    std::unique_ptr<WidgetStockDialogs> m_widgetDialogs;
    QToolButton* m_button;
    QMenu* m_menu;
    QPlainTextEdit* m_summary;
    StockIconView* m_icon;
};

} // namespace orvan
