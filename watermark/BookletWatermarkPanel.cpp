#include "watermark/BookletWatermarkPanel.h"

#include "settings/PrintSession.h"
#include "shell/PDEShell.h"
#include "shell/PanelPane.h"
#include "shell/PanelText.h"
#include "ui/LocalizedFormat.h"
#include "ui/LocalizedTitles.h"
#include "ui/PopupMenus.h"
#include "watermark/WatermarkEditorDialog.h"
#include "watermark/WatermarkPreview.h"
#include "watermark/WatermarkStore.h"

#include <QComboBox>
#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QMenu>
#include <QMessageBox>
#include <QPixmap>
#include <QPushButton>
#include <QToolButton>
#include <QVBoxLayout>

namespace orvan {

namespace {

// The preview area: a page shape that fits the pane beside the menus.
constexpr QSize kPanelPreviewArea(170, 220);

} // namespace

BookletWatermarkView::BookletWatermarkView(BookletWatermarkModel& model, const Bundle* bundle,
                                           QWidget* parent)
    : QWidget(parent), m_model(model), m_bundle(bundle), m_watermarkPopup(new QComboBox(this)),
      m_optionsButton(new QToolButton(this)), m_optionsMenu(new QMenu(this)),
      m_optionsText(new QLabel(this)), m_preview(new QLabel(this)),
      m_bookletButton(new QPushButton(this))
{
    setObjectName(QStringLiteral("BookletWatermarkPanel"));

    auto* watermarkGroup = new QGroupBox(this);
    SetLocalizedControlTitle(bundle, QStringLiteral("Watermark"), watermarkGroup);
    m_watermarkPopup->setObjectName(QStringLiteral("WatermarkPopup"));
    m_watermarkPopup->setMinimumWidth(200);
    auto* label = new QLabel(watermarkGroup);
    SetLocalizedStaticText(bundle, kWatermarkLabelKey, label);
    label->setBuddy(m_watermarkPopup);
    connect(m_watermarkPopup, &QComboBox::activated, this,
            [this](int index) { chooseWatermarkItem(index + 1); });

    m_optionsButton->setObjectName(QStringLiteral("WatermarkOptionsButton"));
    SetLocalizedControlTitle(bundle, QStringLiteral("Options"), m_optionsButton);
    m_optionsButton->setPopupMode(QToolButton::InstantPopup);
    m_optionsButton->setToolButtonStyle(Qt::ToolButtonTextOnly);
    m_optionsButton->setMenu(m_optionsMenu);
    m_optionsMenu->setObjectName(QStringLiteral("WatermarkOptionsMenu"));
    AppendMenuModel(m_optionsMenu, m_model.optionsMenu());
    const QList<QAction*> actions = m_optionsMenu->actions();
    for (int i = 0; i < actions.size(); ++i) {
        actions[i]->setCheckable(!actions[i]->isSeparator());
        connect(actions[i], &QAction::triggered, this, [this, i] {
            m_model.chooseOptionsItem(i + 1);
            showModel();
        });
    }

    m_preview->setObjectName(QStringLiteral("WatermarkPreview"));
    m_preview->setFixedSize(kPanelPreviewArea);

    auto* controls = new QGridLayout;
    controls->addWidget(label, 0, 0, Qt::AlignRight);
    controls->addWidget(m_watermarkPopup, 0, 1);
    controls->addWidget(m_optionsButton, 1, 1, Qt::AlignLeft);
    m_optionsText->setObjectName(QStringLiteral("WatermarkOptionsText"));
    m_optionsText->setWordWrap(true);
    controls->addWidget(m_optionsText, 2, 1);
    controls->setRowStretch(3, 1);
    auto* watermarkLayout = new QHBoxLayout(watermarkGroup);
    watermarkLayout->addLayout(controls, 1);
    watermarkLayout->addWidget(m_preview, 0, Qt::AlignTop);

    auto* bookletGroup = new QGroupBox(this);
    SetLocalizedControlTitle(bundle, QStringLiteral("Booklet"), bookletGroup);
    m_bookletButton->setObjectName(QStringLiteral("BookletCreationButton"));
    SetLocalizedControlTitle(bundle, kBookletCreationButtonKey, m_bookletButton);
    m_bookletButton->setAutoDefault(false);
    m_bookletButton->setEnabled(ShellBookletCreationSource(CurrentShellContext()) != nullptr);
    connect(m_bookletButton, &QPushButton::clicked, this,
            [this] { run(WatermarkPanelAction::RunBookletCreation); });
    auto* bookletText = new QLabel(bookletGroup);
    bookletText->setWordWrap(true);
    SetLocalizedStaticText(bundle, QStringLiteral("Booklet Creation Hint"), bookletText);
    auto* bookletLayout = new QHBoxLayout(bookletGroup);
    bookletLayout->addWidget(bookletText, 1);
    bookletLayout->addWidget(m_bookletButton, 0, Qt::AlignVCenter);

    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(watermarkGroup);
    layout->addWidget(bookletGroup);
    layout->addStretch(1);
    PanelPaneLayout(parent)->addWidget(this);
    showModel();
}

void BookletWatermarkView::showModel()
{
    const MenuModel& menu = m_model.watermarkMenu();
    FillPopupButton(m_watermarkPopup, menu, menu.count());
    {
        const QSignalBlocker quiet(m_watermarkPopup);
        m_watermarkPopup->setCurrentIndex(m_model.selectedItem() - 1);
    }
    const QList<QAction*> actions = m_optionsMenu->actions();
    QStringList marked;
    for (int i = 0; i < actions.size(); ++i) {
        actions[i]->setChecked(m_model.isMarked(i + 1));
        if (m_model.isMarked(i + 1))
            marked << actions[i]->text();
    }
    m_optionsText->setText(marked.join(QStringLiteral("\n")));
    m_optionsText->setEnabled(!m_model.selectedName().isEmpty());
    if (m_shownPreview != m_model.previewVersion()) {
        m_shownPreview = m_model.previewVersion();
        m_preview->setPixmap(
            QPixmap::fromImage(DrawWatermarkPreview(m_model.preview(), kPanelPreviewArea)));
    }
}

void BookletWatermarkView::chooseWatermarkItem(int item)
{
    const MenuItem* chosen = m_model.watermarkMenu().item(item);
    if (chosen && chosen->referenceValue == -6 && chosen->commandId != kSavedWatermarkCommand) {
        // "Options" in the pop-up opens the options menu under it.
        showModel();
        m_optionsMenu->popup(m_watermarkPopup->mapToGlobal(QPoint(0, m_watermarkPopup->height())));
        return;
    }
    run(m_model.chooseWatermarkItem(item));
}

void BookletWatermarkView::run(WatermarkPanelAction action)
{
    switch (action) {
    case WatermarkPanelAction::None:
        break;
    case WatermarkPanelAction::RunNewEditor: {
        _WatermarkData record = m_model.newRecord();
        if (runEditor(record))
            m_model.addWatermark(record);
        break;
    }
    case WatermarkPanelAction::RunEditEditor: {
        _WatermarkData record;
        if (m_model.loadSelectedForEdit(record) && runEditor(record))
            m_model.replaceSelected(record);
        break;
    }
    case WatermarkPanelAction::ConfirmDelete:
        if (confirmDelete())
            m_model.deleteSelected();
        break;
    case WatermarkPanelAction::RunBookletCreation:
        if (BookletCreationSource* source = ShellBookletCreationSource(CurrentShellContext()))
            source->runBookletCreation(this);
        break;
    }
    showModel();
}

bool BookletWatermarkView::runEditor(_WatermarkData& record)
{
    int result = kWatermarkEditorCancel;
    RunModalWatermarkEditorDialog(m_bundle, record, this,
                                  PanelText(m_bundle, kWatermarkEditorTitleKey), &result);
    return result == kWatermarkEditorOK;
}

bool BookletWatermarkView::confirmDelete()
{
    QMessageBox box(QMessageBox::Warning, PanelText(m_bundle, kDeleteWatermarkHeaderKey),
                    LocalizedFormat(m_bundle, kDeleteWatermarkMessageKey, {m_model.selectedName()}),
                    QMessageBox::NoButton, this);
    box.setObjectName(QStringLiteral("DeleteWatermarkAlert"));
    QPushButton* yes = box.addButton(PanelText(m_bundle, kYesCommandKey), QMessageBox::YesRole);
    QPushButton* no = box.addButton(PanelText(m_bundle, kNoCommandKey), QMessageBox::NoRole);
    box.setDefaultButton(yes);
    box.setEscapeButton(no);
    box.setWindowModality(Qt::ApplicationModal);
    box.exec();
    return box.clickedButton() == yes;
}

PanelBase::Description BookletWatermarkPanel::describe() const
{
    return describeAs(kBookletWatermarkTitleKey);
}

Status BookletWatermarkPanel::loadModel(PrintSession* session)
{
    model().load(bundle(), kWatermarkFile);
    if (session && session->ticket(kPrintSettingsTicketKey))
        return model().sync(session, true);
    return kNoError;
}

} // namespace orvan
