// The shell's pane: a tab bar with one tab per loaded panel, previous/next
// and help buttons, and the container that holds each panel's pane. It only
// shows the shell's state and forwards clicks and commands to the shell.
#pragma once

#include "shell/PDEShell.h"

#include <QWidget>

class QTabBar;
class QStackedWidget;
class QToolButton;

namespace orvan {

class ShellPane : public QWidget, public ShellView
{
    Q_OBJECT
public:
    ShellPane(PDEShellContext* context, QWidget* parent);
    ~ShellPane() override;

    // A new pane for a panel, in the container, with a tab titled `title`.
    QWidget* addPanelPane(const QString& title);
    // Shows the panel with the given tab number without syncing (the pane's
    // first appearance).
    void showInitialTab(std::int32_t tabNumber);

    void setContainerVisible(bool visible) override;
    void showPane(const LoadedPanel& panel, bool shown) override;
    void setTabValue(std::int32_t tabNumber) override;

protected:
    // Handles the dialog's commands ('ok  ', 'help', 'QFup', 'QFdn').
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void handleCommand(std::uint32_t command, class CommandEvent* event);

    PDEShellContext* m_context;
    QTabBar* m_tabs;
    QStackedWidget* m_container;
    QToolButton* m_previous;
    QToolButton* m_next;
    QToolButton* m_help;
    QWidget* m_window = nullptr;
};

} // namespace orvan
