#include "specialpages/SpecialPagesPanel.h"

#include "shell/PanelPane.h"
#include "specialpages/SpecialPagesDialogParts.h"
#include "specialpages/SpecialPagesDialogs.h"

#include <QHBoxLayout>
#include <QHeaderView>
#include <QIcon>
#include <QPixmap>
#include <QToolButton>
#include <QTreeWidget>
#include <QVBoxLayout>

namespace orvan {

namespace {

enum Column
{
    PagesColumn,
    TypeColumn,
    AttributesColumn,
};

// Where a gap separates the button groups: after adding, after deleting.
bool StartsGroup(SpecialPagesCommand command)
{
    return command == SpecialPagesCommand::Edit || command == SpecialPagesCommand::Undo;
}

} // namespace

SpecialPagesView::SpecialPagesView(SpecialPagesModel& model, const Bundle* bundle, QWidget* parent)
    : QWidget(parent), m_model(model), m_bundle(bundle), m_list(new QTreeWidget(this))
{
    setObjectName(QStringLiteral("SpecialPages"));
    m_list->setObjectName(QStringLiteral("SpecialPagesList"));
    m_list->setColumnCount(3);
    m_list->setHeaderLabels({SpecialPagesText(bundle, QStringLiteral("Page(s)")),
                             SpecialPagesText(bundle, QStringLiteral("Type Title")),
                             SpecialPagesText(bundle, QStringLiteral("Attributes Title"))});
    m_list->setRootIsDecorated(false);
    m_list->setUniformRowHeights(true);
    m_list->setAlternatingRowColors(true);
    m_list->setSelectionMode(QAbstractItemView::ExtendedSelection);
    m_list->setSelectionBehavior(QAbstractItemView::SelectRows);
    m_list->header()->setStretchLastSection(true);
    m_list->header()->setSectionsMovable(false);
    m_list->setColumnWidth(PagesColumn, 110);
    m_list->setColumnWidth(TypeColumn, 80);
    connect(m_list, &QTreeWidget::itemSelectionChanged, this, &SpecialPagesView::selectionChanged);
    connect(m_list, &QTreeWidget::itemDoubleClicked, this,
            [this] { runCommand(SpecialPagesCommand::Edit); });

    auto* buttons = new QVBoxLayout;
    buttons->setSpacing(4);
    for (const SpecialPagesCommandEntry& entry : kSpecialPagesCommands) {
        if (StartsGroup(entry.command))
            buttons->addSpacing(10);
        auto* button = new QToolButton(this);
        button->setObjectName(QLatin1String(entry.objectName));
        button->setText(SpecialPagesText(bundle, QLatin1String(entry.labelKey)));
        button->setIcon(QIcon(SpecialPagesPicture(bundle, QLatin1String(entry.imageName))));
        button->setIconSize(QSize(24, 24));
        button->setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
        button->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
        button->setAutoRaise(false);
        const SpecialPagesCommand command = entry.command;
        connect(button, &QToolButton::clicked, this, [this, command] { runCommand(command); });
        buttons->addWidget(button);
        m_buttons[entry.command] = button;
    }
    buttons->addStretch(1);

    auto* layout = new QHBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(12);
    layout->addWidget(m_list, 1);
    layout->addLayout(buttons);

    PanelPaneLayout(parent)->addWidget(this);
    showModel();
}

QAbstractButton* SpecialPagesView::button(SpecialPagesCommand command) const
{
    const auto found = m_buttons.find(command);
    return found == m_buttons.end() ? nullptr : found->second;
}

void SpecialPagesView::showModel()
{
    m_showing = true;
    m_list->clear();
    for (const SpecialPagesRow& row : m_model.rows())
        new QTreeWidgetItem(m_list, {row.pages, row.type, row.attributes});
    for (const int row : m_model.selectedRows())
        m_list->topLevelItem(row)->setSelected(true);
    for (const auto& [command, button] : m_buttons)
        button->setEnabled(m_model.isEnabled(command));
    m_showing = false;
}

void SpecialPagesView::selectionChanged()
{
    if (m_showing)
        return;
    std::vector<int> rows;
    for (QTreeWidgetItem* item : m_list->selectedItems())
        rows.push_back(m_list->indexOfTopLevelItem(item));
    m_model.setSelectedRows(rows);
    for (const auto& [command, button] : m_buttons)
        button->setEnabled(m_model.isEnabled(command));
}

void SpecialPagesView::runCommand(SpecialPagesCommand command)
{
    SpecialPagesAction action;
    m_model.handleCommand(command, &action);
    if (action.dialog != SpecialPagesAction::Dialog::None)
        m_model.dialogFinished(action, runDialog(action));
    showModel();
}

bool SpecialPagesView::runDialog(const SpecialPagesAction& action)
{
    SpecialPagesState& state = m_model.state();
    const std::function<void()> saveUndoState = [this] { m_model.saveUndoState(); };
    switch (action.dialog) {
    case SpecialPagesAction::Dialog::None:
        return false;
    case SpecialPagesAction::Dialog::Covers:
        return RunModalCoversDialog(m_bundle, action.mode, state.jobLevelStock.get(),
                                    state.frontCover, state.backCover, this);
    case SpecialPagesAction::Dialog::Inserts:
        return RunModalInsertsDialog(m_bundle, action.mode, state.jobLevelStock.get(),
                                     state.inserts, dynamic_cast<const Insert*>(action.page),
                                     saveUndoState, this);
    case SpecialPagesAction::Dialog::Exceptions:
        return RunModalExceptionsDialog(
            m_bundle, action.mode, state.jobLevelStock.get(), state.exceptions,
            dynamic_cast<const ExceptionPage*>(action.page), saveUndoState, this);
    }
    return false;
}

Status SpecialPagesPanel::loadModel(PrintSession*)
{
    model().setBundle(bundle());
    return kNoError;
}

} // namespace orvan
