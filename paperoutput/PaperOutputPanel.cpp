#include "paperoutput/PaperOutputPanel.h"

#include "paperoutput/DialogHooks.h"
#include "paperoutput/JobTypeSetups.h"
#include "paperoutput/PaperOutputIcons.h"
#include "paperoutput/SeparatorsDialog.h"
#include "printerdesc/PPDAccess.h"
#include "settings/Bundle.h"
#include "settings/PrintSession.h"
#include "shell/PanelPane.h"
#include "shell/PanelText.h"
#include "stock/StockButton.h"
#include "ui/LocalizedTitles.h"
#include "ui/PopupMenus.h"
#include "ui/SummaryView.h"

#include <QComboBox>
#include <QGridLayout>
#include <QGroupBox>
#include <QLabel>
#include <QPixmapCache>
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

PaperOutputDialogHooks& PaperOutputHooks()
{
    static PaperOutputDialogHooks hooks;
    return hooks;
}

PaperOutputView::PaperOutputView(PaperOutputModel& model, const Bundle* bundle, QWidget* parent)
    : QWidget(parent), m_model(model), m_bundle(bundle), m_setup(new QPushButton(this)),
      m_covers(new QPushButton(this)), m_separators(new QPushButton(this)),
      m_stock(new StockButton(bundle, JobContext::Job, this)),
      m_finishingSummary(new QPlainTextEdit(this)), m_jobTypeIcon(IconLabel(this, "JobTypeIcon")),
      m_twoSidedIcon(IconLabel(this, "TwoSidedIcon")),
      m_finishingIcon(IconLabel(this, "FinishingIcon"))
{
    setObjectName(QStringLiteral("PaperOutput"));
    const auto makePopup = [this](std::int32_t controlID, const char* objectName) {
        auto* popup = new QComboBox(this);
        popup->setObjectName(QLatin1String(objectName));
        popup->setMinimumWidth(240);
        popup->setSizeAdjustPolicy(QComboBox::AdjustToContents);
        m_popups[controlID] = popup;
        connect(popup, &QComboBox::activated, this,
                [this, controlID](int index) { controlHit(controlID, index + 1); });
        return popup;
    };
    const auto label = [this, bundle](const QString& key, QWidget* buddy) {
        auto* text = new QLabel(this);
        SetLocalizedStaticText(bundle, key, text);
        text->setBuddy(buddy);
        return text;
    };
    const auto group = [this, bundle](const QString& labelKey) {
        return new QGroupBox(SummaryTitleFromLabel(bundle, labelKey), this);
    };

    // Job type, its setup and picture.
    QGroupBox* jobBox = group(kJobTypeLabelKey);
    auto* jobRow = new QHBoxLayout(jobBox);
    jobRow->addWidget(makePopup(kJobTypeControlID, "JobTypePopup"));
    m_setup->setObjectName(QStringLiteral("JobTypeSetupButton"));
    SetLocalizedControlTitle(bundle, kSetupButtonKey, m_setup);
    m_setup->setAutoDefault(false);
    connect(m_setup, &QPushButton::clicked, this,
            [this] { controlHit(kJobTypeSetupControlID, 0); });
    jobRow->addWidget(m_setup);
    jobRow->addStretch(1);
    jobRow->addWidget(m_jobTypeIcon);

    // The job's stock, with the special sheets beside it.
    QGroupBox* paperBox = group(kPaperSummaryLabelKey);
    auto* paperRow = new QHBoxLayout(paperBox);
    paperRow->addWidget(m_stock, 1);
    auto* sheets = new QVBoxLayout;
    for (auto [button, name, key, code] :
         {std::tuple{m_covers, "CoversButton", &kCoversButtonKey, kCoversCommand},
          std::tuple{m_separators, "SeparatorsButton", &kSeparatorsButtonKey,
                     kSeparatorsCommand}}) {
        button->setObjectName(QLatin1String(name));
        SetLocalizedControlTitle(bundle, *key, button);
        button->setAutoDefault(false);
        sheets->addWidget(button);
        const std::uint32_t commandCode = code;
        connect(button, &QPushButton::clicked, this, [this, commandCode] { command(commandCode); });
    }
    sheets->addStretch(1);
    paperRow->addLayout(sheets);

    // Two-sided printing and office finishing, each with its picture.
    QGroupBox* finishingBox = group(kFinishingLabelKey);
    auto* finishing = new QGridLayout(finishingBox);
    finishing->setColumnStretch(2, 1);
    int row = 0;
    QComboBox* twoSided = makePopup(kTwoSidedControlID, "TwoSidedPopup");
    finishing->addWidget(label(kTwoSidedLabelKey, twoSided), row, 0, Qt::AlignRight);
    finishing->addWidget(twoSided, row, 1);
    finishing->addWidget(m_twoSidedIcon, row++, 3, Qt::AlignRight);
    const int finishingTop = row;
    for (const PopupRow& finishingRow : kFinishingRows) {
        if (model.popup(finishingRow.controlID).menu.isEmpty())
            continue;
        QComboBox* popup = makePopup(finishingRow.controlID, finishingRow.objectName);
        finishing->addWidget(label(*finishingRow.labelKey, popup), row, 0, Qt::AlignRight);
        finishing->addWidget(popup, row++, 1);
    }
    m_finishingSummary->setObjectName(QStringLiteral("FinishingSummary"));
    m_finishingSummary->setReadOnly(true);
    m_finishingSummary->setFrameShape(QFrame::NoFrame);
    m_finishingSummary->viewport()->setAutoFillBackground(false);
    m_finishingSummary->setFixedHeight(3 * m_finishingSummary->fontMetrics().lineSpacing() + 4);
    finishing->addWidget(m_finishingSummary, row++, 1, 1, 2);
    finishing->addWidget(m_finishingIcon, finishingTop, 3, row - finishingTop, 1,
                         Qt::AlignRight | Qt::AlignTop);

    // Where the job goes.
    auto* output = new QHBoxLayout;
    QComboBox* destination = makePopup(kOutputDestinationControlID, "OutputDestinationPopup");
    output->addWidget(label(kOutputDestinationLabelKey, destination));
    output->addWidget(destination);
    output->addStretch(1);

    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(8);
    layout->addWidget(jobBox);
    layout->addWidget(paperBox);
    layout->addWidget(finishingBox);
    layout->addLayout(output);
    layout->addStretch(1);

    // The stock summary reads as text beside the button, like the finishing one.
    m_stock->summaryView()->viewport()->setAutoFillBackground(false);
    m_stock->summaryView()->setFixedHeight(4 * m_stock->summaryView()->fontMetrics().lineSpacing() +
                                           4);
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
    showModel();
}

void PaperOutputView::showIcon(QLabel* label, const QString& imageName)
{
    if (label->toolTip() == imageName && !imageName.isEmpty())
        return; // already shown
    const qreal ratio = devicePixelRatio();
    const QString path = m_bundle && !imageName.isEmpty()
                             ? m_bundle->resourcePath(PaperOutputImagePath(imageName))
                             : QString();
    const QString cacheKey = QStringLiteral("orvan-paper-output:%1@%2").arg(path).arg(ratio);
    QPixmap picture;
    if (!path.isEmpty() && !QPixmapCache::find(cacheKey, &picture)) {
        picture = QPixmap(path);
        if (!picture.isNull()) {
            picture = picture.scaled(qRound(kIconSize * ratio), qRound(kIconSize * ratio),
                                     Qt::KeepAspectRatio, Qt::SmoothTransformation);
            picture.setDevicePixelRatio(ratio);
            QPixmapCache::insert(cacheKey, picture);
        }
    }
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
        BookletCreationParams params = m_model.bookletCreationParams();
        if (RunModalBookletCreationDialog(m_bundle, params, this, m_model.bookletFoldEnabled()))
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

PaperOutputPanel::PaperOutputPanel(const Bundle* bundle) : ModelPanel(bundle)
{
    model().setFaxSetupRunner([this](PropertyValue& options, PropertyValue& recipients) {
        const LANFaxSetupFunction setup = PaperOutputHooks().runLANFaxSetup;
        return setup && setup(this->bundle(), options, recipients, view());
    });
}

PanelBase::Description PaperOutputPanel::describe() const
{
    return describeAs(kPaperOutputTitleKey);
}

bool PaperOutputPanel::runBookletCreation(QWidget* parent)
{
    BookletCreationParams params = model().bookletCreationParams();
    if (!RunModalBookletCreationDialog(bundle(), params, parent, model().bookletFoldEnabled()))
        return false;
    model().applyBookletCreation(params);
    if (view())
        view()->showModel();
    return true;
}

Status PaperOutputPanel::loadModel(PrintSession* session)
{
    if (!session)
        return kMissingContext;
    model().load(bundle(), PPDGetCurrent());
    Ticket* printSettings = nullptr;
    if (GetTicketFromSession(session, kPrintSettingsTicketKey, &printSettings) == kNoError &&
        printSettings)
        model().open(*printSettings);
    return kNoError;
}

} // namespace orvan
