#include "paperoutput/JobNotesView.h"

#include "paperoutput/JobNotesPreferencesDialog.h"
#include "platform/Alerts.h"
#include "settings/Bundle.h"
#include "shell/CommandEvent.h"
#include "shell/PDEShell.h"
#include "shell/PanelPane.h"
#include "shell/PanelText.h"
#include "ui/InputLimitValidator.h"
#include "ui/LocalizedTitles.h"
#include "ui/XComboBox.h"

#include <QComboBox>
#include <QFrame>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPixmap>
#include <QPushButton>
#include <QSignalBlocker>
#include <QVBoxLayout>

namespace orvan {

namespace {

const char* const kNameBoxNames[] = {"JobNameBox", "SenderNameBox", "RecipientNameBox"};

QLabel* makeLabel(const Bundle* bundle, const QString& key, QWidget* buddy, QWidget* parent)
{
    auto* label = new QLabel(parent);
    SetLocalizedStaticText(bundle, key, label);
    label->setBuddy(buddy);
    label->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    return label;
}

QLabel* makeIcon(const Bundle* bundle, const QString& name, QWidget* parent)
{
    auto* icon = new QLabel(parent);
    const QString path =
        bundle ? bundle->resourcePath(QStringLiteral("images/") + name) : QString();
    if (!path.isEmpty())
        icon->setPixmap(QPixmap(path));
    icon->setFixedSize(32, 32);
    return icon;
}

QLineEdit* makeMessageField(const char* objectName, int limit, QWidget* parent)
{
    auto* field = new QLineEdit(parent);
    field->setObjectName(QLatin1String(objectName));
    LimitInputLengthAndCharacters(field, 0, limit, std::nullopt);
    field->setMinimumWidth(320);
    return field;
}

} // namespace

JobNotesView::JobNotesView(JobNotesModel& model, const Bundle* bundle, QWidget* parent)
    : QWidget(parent), m_model(model), m_bundle(bundle),
      m_bannerMessage(makeMessageField("BannerMessageField", kBannerMessageLimit, this)),
      m_jobStartMessage(makeMessageField("JobStartMessageField", kJobStartMessageLimit, this)),
      m_defaults(new QPushButton(this)), m_window(parent->window())
{
    setObjectName(QStringLiteral("JobNotesEnhanced"));
    auto* grid = new QGridLayout;
    grid->setHorizontalSpacing(10);
    grid->setVerticalSpacing(10);
    grid->setColumnStretch(2, 1);
    int row = 0;
    for (JobNotesName which : kJobNotesNames) {
        auto* box = new QComboBox(this);
        box->setObjectName(QLatin1String(kNameBoxNames[static_cast<int>(which)]));
        box->setMinimumWidth(260);
        XComboBoxInitializeWithMapAndHistory(box, JobNotesModel::comboBoxOptions(which, bundle));
        m_nameBoxes[static_cast<std::size_t>(which)] = box;
        grid->addWidget(makeLabel(bundle, JobNotesModel::labelKey(which), box, this), row, 1);
        grid->addWidget(box, row, 2);
        connect(box, &QComboBox::editTextChanged, this, [this, which] { nameEdited(which); });
        ++row;
    }

    auto* rule = new QFrame(this);
    rule->setFrameShape(QFrame::HLine);
    rule->setFrameShadow(QFrame::Sunken);
    grid->addWidget(rule, row++, 0, 1, 3);
    grid->setRowMinimumHeight(row - 1, 16);

    const struct
    {
        QLineEdit* field;
        const QString& labelKey;
        const QString& icon;
    } messages[] = {
        {m_bannerMessage, kBannerMessageLabelKey, kBannerMessageIcon},
        {m_jobStartMessage, kJobStartMessageLabelKey, kJobStartMessageIcon},
    };
    for (const auto& message : messages) {
        grid->addWidget(makeIcon(bundle, message.icon, this), row, 0);
        grid->addWidget(makeLabel(bundle, message.labelKey, message.field, this), row, 1);
        grid->addWidget(message.field, row, 2);
        ++row;
    }
    connect(m_bannerMessage, &QLineEdit::textChanged, this,
            [this](const QString& text) { m_model.setBannerMessage(text); });
    connect(m_jobStartMessage, &QLineEdit::textChanged, this,
            [this](const QString& text) { m_model.setJobStartMessage(text); });

    m_defaults->setObjectName(QStringLiteral("JobNotesDefaultsButton"));
    SetLocalizedControlTitle(bundle, QStringLiteral("JobNotesDefaults..."), m_defaults);
    m_defaults->setAutoDefault(false);
    connect(m_defaults, &QPushButton::clicked, this, &JobNotesView::editDefaults);
    auto* bottom = new QHBoxLayout;
    bottom->addStretch(1);
    bottom->addWidget(m_defaults);

    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addLayout(grid);
    layout->addStretch(1);
    layout->addLayout(bottom);

    PanelPaneLayout(parent)->addWidget(this);
    m_window->installEventFilter(this);
    showModel();
}

bool JobNotesView::eventFilter(QObject* watched, QEvent* event)
{
    // Only noted: the command goes on to whoever handles it.
    if (watched == m_window && event->type() == CommandEvent::eventType() &&
        static_cast<CommandEvent*>(event)->command() == kCommandOK)
        m_printRequested = true;
    return QWidget::eventFilter(watched, event);
}

void JobNotesView::showModel()
{
    for (JobNotesName which : kJobNotesNames) {
        QComboBox* box = nameBox(which);
        const QSignalBlocker quiet(box);
        XComboBoxSetValue(box, m_model.boxValue(which));
    }
    const QSignalBlocker quietBanner(m_bannerMessage);
    const QSignalBlocker quietStart(m_jobStartMessage);
    m_bannerMessage->setText(m_model.bannerMessage());
    m_jobStartMessage->setText(m_model.jobStartMessage());
}

void JobNotesView::finalize(bool save)
{
    for (QComboBox* box : m_nameBoxes)
        XComboBoxFinalize(box, save);
}

void JobNotesView::nameEdited(JobNotesName which)
{
    PropertyValue value;
    const Status status = XComboBoxCopyValue(nameBox(which), value);
    m_model.setName(which, status, value);
}

void JobNotesView::editDefaults()
{
    JobNotesPreferencesOptions defaults = m_model.defaults();
    bool accepted = false;
    RunModalJobNotesPreferencesDialog(m_bundle, &defaults, &accepted, window());
    if (!accepted)
        return;
    if (m_model.saveDefaults(defaults) != kNoError) {
        ShowAlert(Alert{AlertLevel::Caution,
                        PanelText(m_bundle, QStringLiteral("JobNotesDefaultsNotSaved")),
                        PanelText(m_bundle, QStringLiteral("JobNotesDefaultsNotSavedMessage"))});
        return;
    }
    showModel();
}

} // namespace orvan
