#include "paperoutput/PaperOutputPanel.h"

#include "imagequality/PanelPane.h"
#include "imagequality/PanelText.h"
#include "paperoutput/DialogHooks.h"
#include "paperoutput/JobTypeSetups.h"
#include "paperoutput/PaperOutputIcons.h"
#include "paperoutput/SeparatorsDialog.h"
#include "printerdesc/PPDAccess.h"
#include "settings/Bundle.h"
#include "settings/PrintSession.h"
#include "stock/StockButton.h"
#include "ui/LocalizedTitles.h"
#include "ui/PopupMenus.h"
#include "ui/SummaryView.h"

#include <QComboBox>
#include <QGridLayout>
#include <QLabel>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QVBoxLayout>

namespace orvan {

namespace {

constexpr int kIconSize = 48;

struct PopupRow
{
    std::int32_t controlID;
    const char* objectName;
    const QString* labelKey;
};

const PopupRow kFinishingRows[] = {
    {kStapleControlID, "StaplePopup", &kStaplingLabelKey},
    {kPunchControlID, "PunchPopup", &kHolePunchLabelKey},
    {kFoldControlID, "FoldPopup", &kFoldLabelKey},
};

QLabel* IconLabel(QWidget* parent, const char* objectName)
{
    auto* icon = new QLabel(parent);
    icon->setObjectName(QLatin1String(objectName));
    icon->setFixedSize(kIconSize, kIconSize);
    icon->setAlignment(Qt::AlignCenter);
    return icon;
}

} // namespace

PaperOutputView::PaperOutputView(PaperOutputModel& model, const Bundle* bundle, QWidget* parent)
    : QWidget(parent), m_model(model), m_bundle(bundle), m_setup(new QPushButton(this)),
      m_covers(new QPushButton(this)), m_separators(new QPushButton(this)),
      m_stock(new StockButton(bundle, JobContext::Job, this)),
      m_finishingSummary(new QPlainTextEdit(this)), m_jobTypeIcon(IconLabel(this, "JobTypeIcon")),
      m_twoSidedIcon(IconLabel(this, "TwoSidedIcon")),
      m_finishingIcon(IconLabel(this, "FinishingIcon"))
{
    setObjectName(QStringLiteral("PaperOutput"));
    auto* grid = new QGridLayout;
    grid->setHorizontalSpacing(10);
    grid->setVerticalSpacing(8);
    grid->setColumnStretch(3, 1);
    int row = 0;
    const auto addPopup = [&](std::int32_t controlID, const char* objectName,
                              const QString& labelKey) {
        auto* popup = new QComboBox(this);
        popup->setObjectName(QLatin1String(objectName));
        popup->setMinimumWidth(220);
        popup->setSizeAdjustPolicy(QComboBox::AdjustToContents);
        auto* label = new QLabel(this);
        SetLocalizedStaticText(bundle, labelKey, label);
        label->setBuddy(popup);
        grid->addWidget(label, row, 1, Qt::AlignRight | Qt::AlignVCenter);
        grid->addWidget(popup, row, 2, Qt::AlignLeft);
        m_popups[controlID] = popup;
        m_popupLabels[controlID] = label;
        connect(popup, &QComboBox::activated, this,
                [this, controlID](int index) { controlHit(controlID, index + 1); });
        ++row;
    };

    grid->addWidget(m_jobTypeIcon, row, 0, 2, 1, Qt::AlignTop);
    addPopup(kJobTypeControlID, "JobTypePopup", kJobTypeLabelKey);
    m_setup->setObjectName(QStringLiteral("JobTypeSetupButton"));
    SetLocalizedControlTitle(bundle, kSetupButtonKey, m_setup);
    m_setup->setAutoDefault(false);
    grid->addWidget(m_setup, row - 1, 3, Qt::AlignLeft);
    connect(m_setup, &QPushButton::clicked, this,
            [this] { controlHit(kJobTypeSetupControlID, 0); });
    ++row;

    auto* paperLabel = new QLabel(this);
    SetLocalizedStaticText(bundle, kPaperSummaryLabelKey, paperLabel);
    grid->addWidget(paperLabel, row, 1, Qt::AlignRight | Qt::AlignTop);
    grid->addWidget(m_stock, row, 2, 1, 2);
    ++row;
    auto* specialPages = new QHBoxLayout;
    for (auto [button, name, key, code] :
         {std::tuple{m_covers, "CoversButton", &kCoversButtonKey, kCoversCommand},
          std::tuple{m_separators, "SeparatorsButton", &kSeparatorsButtonKey,
                     kSeparatorsCommand}}) {
        button->setObjectName(QLatin1String(name));
        SetLocalizedControlTitle(bundle, *key, button);
        button->setAutoDefault(false);
        specialPages->addWidget(button);
        const std::uint32_t commandCode = code;
        connect(button, &QPushButton::clicked, this, [this, commandCode] { command(commandCode); });
    }
    specialPages->addStretch(1);
    grid->addLayout(specialPages, row++, 2, 1, 2);

    grid->addWidget(m_twoSidedIcon, row, 0, Qt::AlignTop);
    addPopup(kTwoSidedControlID, "TwoSidedPopup", kTwoSidedLabelKey);

    const int finishingTop = row;
    for (const PopupRow& finishing : kFinishingRows)
        if (!model.popup(finishing.controlID).menu.isEmpty())
            addPopup(finishing.controlID, finishing.objectName, *finishing.labelKey);
    auto* finishingLabel = new QLabel(this);
    SetLocalizedStaticText(bundle, kFinishingLabelKey, finishingLabel);
    m_finishingSummary->setObjectName(QStringLiteral("FinishingSummary"));
    m_finishingSummary->setReadOnly(true);
    m_finishingSummary->setFrameShape(QFrame::NoFrame);
    m_finishingSummary->viewport()->setAutoFillBackground(false);
    m_finishingSummary->setFixedHeight(4 * m_finishingSummary->fontMetrics().lineSpacing());
    grid->addWidget(finishingLabel, row, 1, Qt::AlignRight | Qt::AlignTop);
    grid->addWidget(m_finishingSummary, row, 2, 1, 2);
    ++row;
    grid->addWidget(m_finishingIcon, finishingTop, 0, row - finishingTop, 1, Qt::AlignTop);

    addPopup(kOutputDestinationControlID, "OutputDestinationPopup", kOutputDestinationLabelKey);

    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addLayout(grid);
    layout->addStretch(1);

    m_stock->setStock(&m_model.record().jobLevelStock);
    connect(m_stock, &StockButton::stockChanged, this, [this] {
        m_model.refresh();
        showModel();
    });

    PanelPaneLayout(parent)->addWidget(this);
    reloadMenus();
}

QComboBox* PaperOutputView::popup(std::int32_t controlID) const
{
    const auto found = m_popups.find(controlID);
    return found == m_popups.end() ? nullptr : found->second;
}

void PaperOutputView::reloadMenus()
{
    for (const auto& [controlID, popup] : m_popups) {
        const MenuModel& menu = m_model.popup(controlID).menu;
        FillPopupButton(popup, menu, menu.count());
    }
    m_stock->rebuildMenu();
    showModel();
}

void PaperOutputView::showIcon(QLabel* label, const QString& imageName)
{
    const QString path = m_bundle && !imageName.isEmpty()
                             ? m_bundle->resourcePath(PaperOutputImagePath(imageName))
                             : QString();
    QPixmap picture(path);
    if (!picture.isNull())
        picture = picture.scaled(kIconSize * devicePixelRatio(), kIconSize * devicePixelRatio(),
                                 Qt::KeepAspectRatio, Qt::SmoothTransformation);
    picture.setDevicePixelRatio(devicePixelRatio());
    label->setPixmap(picture);
    label->setToolTip(imageName);
}

void PaperOutputView::showModel()
{
    for (const auto& [controlID, popup] : m_popups) {
        const PaperOutputModel::Popup& shown = m_model.popup(controlID);
        const QSignalBlocker quiet(popup);
        popup->setCurrentIndex(shown.selectedItem - 1);
        popup->setEnabled(shown.enabled && !shown.menu.isEmpty());
    }
    const PaperOutputRecord& record = m_model.record();
    m_setup->setEnabled(m_model.setupEnabled());
    m_covers->setEnabled(PaperOutputHooks().runCoversDialog != nullptr);
    m_separators->setEnabled(m_model.separatorsEnabled());
    m_stock->setStock(&m_model.record().jobLevelStock);
    UpdateSummaryTextView(m_stock->summaryView(), m_model.stockSummary());
    UpdateSummaryTextView(m_finishingSummary, m_model.finishingSummary());
    showIcon(m_jobTypeIcon, JobTypeIconName(record.jobType));
    showIcon(m_twoSidedIcon, TwoSidedIconName(record));
    showIcon(m_finishingIcon, FinishingIconName(record));
}

void PaperOutputView::controlHit(std::int32_t controlID, int item)
{
    PaperOutputAction action = PaperOutputAction::None;
    m_model.handleControlHit(controlID, item, &action);
    showModel();
    run(action);
}

void PaperOutputView::command(std::uint32_t code)
{
    PaperOutputAction action = PaperOutputAction::None;
    m_model.handleCommand(code, 0, &action);
    showModel();
    run(action);
}

void PaperOutputView::run(PaperOutputAction action)
{
    PaperOutputRecord& record = m_model.record();
    switch (action) {
    case PaperOutputAction::None:
        return;
    case PaperOutputAction::RunSecurePrintSetup:
        RunModalSecurePrintSetup(m_bundle, record.securePrintPasscode, this);
        break;
    case PaperOutputAction::RunDelayedPrintSetup:
        RunModalDelayedPrintSetup(m_bundle, record.delayedPrintTime, this);
        break;
    case PaperOutputAction::RunSavedJobDialog:
        RunModalSavedJobDialog(m_bundle, record, this);
        break;
    case PaperOutputAction::RunLANFaxSetup:
        m_model.runFaxSetup();
        break;
    case PaperOutputAction::RunBookletCreation: {
        BookletCreationParams params = BookletParamsFromRecord(record);
        if (RunModalBookletCreationDialog(m_bundle, params, this))
            m_model.applyBookletCreation(params);
        break;
    }
    case PaperOutputAction::RunCoversDialog:
        if (const CoversDialogFunction covers = PaperOutputHooks().runCoversDialog;
            covers &&
            covers(m_bundle, record.frontCover, record.backCover, record.jobLevelStock, this))
            m_model.setCoversChanged();
        break;
    case PaperOutputAction::RunSeparatorsDialog:
        RunModalSeparatorsDialog(m_bundle, record.separatorOption, record.separatorStock, this);
        break;
    }
    m_model.refresh();
    showModel();
}

PaperOutputPanel::PaperOutputPanel() : PaperOutputPanel(ShellBundle()) {}

PaperOutputPanel::PaperOutputPanel(const Bundle* bundle) : m_bundle(bundle)
{
    m_model.setFaxSetupRunner([this](PropertyValue& options, PropertyValue& recipients) {
        const LANFaxSetupFunction setup = PaperOutputHooks().runLANFaxSetup;
        return setup && setup(m_bundle, options, recipients, m_view);
    });
}

PaperOutputPanel::~PaperOutputPanel()
{
    delete m_view;
}

PanelBase::Description PaperOutputPanel::describe() const
{
    Description description;
    description.kind = kPaperOutputKind;
    description.title = PanelText(m_bundle, kPaperOutputTitleKey);
    return description;
}

Status PaperOutputPanel::initialize(QWidget* parent, PrintSession* session)
{
    if (!session)
        return kMissingContext;
    m_model.load(m_bundle, PPDGetCurrent());
    Ticket* printSettings = nullptr;
    if (GetTicketFromSession(session, kPrintSettingsTicketKey, &printSettings) == kNoError &&
        printSettings)
        m_model.open(*printSettings);
    if (parent)
        m_view = new PaperOutputView(m_model, m_bundle, parent);
    return kNoError;
}

Status PaperOutputPanel::sync(PrintSession* session, bool direction)
{
    const Status status = m_model.sync(session, direction);
    if (direction && m_view)
        m_view->showModel();
    return status;
}

Status PaperOutputPanel::summaryText(PropertyValue* titles, PropertyValue* values)
{
    if (!titles || !values)
        return kBadParameter;
    m_model.appendSummary(m_bundle, titles, values);
    return kNoError;
}

Status PaperOutputPanel::terminate(Status)
{
    delete m_view;
    return kNoError;
}

} // namespace orvan
