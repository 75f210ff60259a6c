#include "shell/ShellPane.h"

#include "shell/CommandEvent.h"
#include "ui/Help.h"

#include <QHBoxLayout>
#include <QIcon>
#include <QStackedWidget>
#include <QStyle>
#include <QTabBar>
#include <QToolButton>
#include <QVBoxLayout>

namespace orvan {

namespace {

QIcon bundleIcon(const Bundle* bundle, const QString& name, QStyle::StandardPixmap fallback,
                 const QWidget* widget)
{
    const QString path = bundle ? bundle->resourcePath(name) : QString();
    return path.isEmpty() ? widget->style()->standardIcon(fallback) : QIcon(path);
}

} // namespace

ShellPane::ShellPane(PDEShellContext* context, QWidget* parent)
    : QWidget(parent), m_context(context), m_tabs(new QTabBar(this)),
      m_container(new QStackedWidget(this)), m_previous(new QToolButton(this)),
      m_next(new QToolButton(this)), m_help(new QToolButton(this))
{
    setObjectName(QStringLiteral("PDEShell"));
    m_tabs->setObjectName(QStringLiteral("ShellTabs"));
    m_tabs->setExpanding(false);
    m_tabs->setDrawBase(false);
    m_container->setObjectName(QStringLiteral("ShellContainer"));
    m_container->setFrameShape(QFrame::StyledPanel);
    m_previous->setObjectName(QStringLiteral("PreviousPanelButton"));
    m_next->setObjectName(QStringLiteral("NextPanelButton"));
    m_help->setObjectName(QStringLiteral("ShellHelpButton"));
    m_previous->setIcon(bundleIcon(context->bundle, QStringLiteral("ButtonGraphic_MacUp.png"),
                                   QStyle::SP_ArrowBack, this));
    m_next->setIcon(bundleIcon(context->bundle, QStringLiteral("ButtonGraphic_MacDown.png"),
                               QStyle::SP_ArrowForward, this));
    m_previous->setToolTip(tr("Previous panel"));
    m_next->setToolTip(tr("Next panel"));
    m_help->setText(QStringLiteral("?"));
    m_help->setToolTip(tr("Help"));
    for (QToolButton* button : {m_previous, m_next, m_help})
        button->setAutoRaise(true);

    auto* top = new QHBoxLayout;
    top->setContentsMargins(0, 0, 0, 0);
    top->addWidget(m_tabs, 1);
    top->addWidget(m_previous);
    top->addWidget(m_next);
    top->addWidget(m_help);
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addLayout(top);
    layout->addWidget(m_container, 1);
    if (parent && !parent->layout()) {
        auto* parentLayout = new QVBoxLayout(parent);
        parentLayout->setContentsMargins(0, 0, 0, 0);
        parentLayout->addWidget(this);
    } else if (parent) {
        parent->layout()->addWidget(this);
    }

    connect(m_tabs, &QTabBar::tabBarClicked, this, [this](int index) {
        if (index >= 0)
            ShellHandleControlHit(m_context, kShellTabControlID, index + 1);
    });
    connect(m_previous, &QToolButton::clicked, this,
            [this] { ShellHandleControlHit(m_context, kShellPreviousButtonID, 0); });
    connect(m_next, &QToolButton::clicked, this,
            [this] { ShellHandleControlHit(m_context, kShellNextButtonID, 0); });
    connect(m_help, &QToolButton::clicked, this,
            [this] { DisplayHelp(m_context->bundle, {}, {}); });

    m_context->view = this;
    // The dialog's commands reach the shell through its window.
    if (parent) {
        m_window = parent->window();
        m_window->installEventFilter(this);
    }
}

ShellPane::~ShellPane()
{
    if (m_window)
        m_window->removeEventFilter(this);
    // The host deletes the pane after Terminate has freed the context; only
    // a context that is still the live one may be touched.
    if (m_context && m_context == CurrentShellContext() && m_context->view == this)
        m_context->view = nullptr;
}

QWidget* ShellPane::addPanelPane(const QString& title)
{
    auto* pane = new QWidget(m_container);
    auto* layout = new QVBoxLayout(pane);
    layout->setContentsMargins(12, 12, 12, 12);
    m_container->addWidget(pane);
    m_tabs->addTab(title);
    return pane;
}

void ShellPane::showInitialTab(std::int32_t tabNumber)
{
    for (const LoadedPanel& panel : m_context->panels)
        showPane(panel, panel.tabNumber == tabNumber);
    setTabValue(tabNumber);
}

void ShellPane::setContainerVisible(bool visible)
{
    m_container->setUpdatesEnabled(visible);
}

void ShellPane::showPane(const LoadedPanel& panel, bool shown)
{
    if (!panel.pane)
        return;
    panel.pane->setEnabled(shown);
    if (shown)
        m_container->setCurrentWidget(panel.pane);
}

void ShellPane::setTabValue(std::int32_t tabNumber)
{
    const QSignalBlocker block(m_tabs);
    m_tabs->setCurrentIndex(tabNumber - 1);
}

bool ShellPane::eventFilter(QObject* watched, QEvent* event)
{
    if (watched == m_window && event->type() == CommandEvent::eventType()) {
        auto* command = static_cast<CommandEvent*>(event);
        handleCommand(command->command(), command);
        return command->consumed();
    }
    return QWidget::eventFilter(watched, event);
}

void ShellPane::handleCommand(std::uint32_t command, CommandEvent* event)
{
    switch (command) {
    case kCommandNextPanel:
        ShellHandleControlHit(m_context, kShellNextButtonID, 0);
        event->setConsumed();
        break;
    case kCommandPreviousPanel:
        ShellHandleControlHit(m_context, kShellPreviousButtonID, 0);
        event->setConsumed();
        break;
    case kCommandHelp:
        DisplayHelp(m_context->bundle, {}, {});
        event->setConsumed();
        break;
    case kCommandOK:
        if (ShellOkGuard(m_context) != OkGuardDecision::Print)
            event->setConsumed();
        break;
    default:
        break;
    }
}

} // namespace orvan
