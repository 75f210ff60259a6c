#include "paperoutput/JobNotesPreferencesDialog.h"

#include "ui/DialogButtons.h"
#include "ui/LocalizedTitles.h"

#include <QCheckBox>
#include <QDialogButtonBox>
#include <QLabel>
#include <QVBoxLayout>

namespace orvan {

namespace {

QCheckBox* makeCheckBox(const Bundle* bundle, const char* objectName, const QString& key,
                        std::int32_t value, QWidget* parent)
{
    auto* box = new QCheckBox(parent);
    box->setObjectName(QLatin1String(objectName));
    SetLocalizedControlTitle(bundle, key, box);
    box->setChecked(value != 0);
    return box;
}

} // namespace

JobNotesPreferencesDialog::JobNotesPreferencesDialog(const Bundle* bundle,
                                                     const JobNotesPreferencesOptions& preferences,
                                                     QWidget* parent)
    : QDialog(parent), m_useDocumentName(makeCheckBox(bundle, "UseDocumentNameCheckBox",
                                                      QStringLiteral("UseDocumentNameAsJobName"),
                                                      preferences.useDocumentNameAsJobName, this)),
      m_senderLoginName(makeCheckBox(bundle, "SenderLoginNameCheckBox",
                                     QStringLiteral("UseLoginNameAsSenderName"),
                                     preferences.useLoginNameAsSenderName, this)),
      m_recipientLoginName(makeCheckBox(bundle, "RecipientLoginNameCheckBox",
                                        QStringLiteral("UseLoginNameAsRecipientName"),
                                        preferences.useLoginNameAsRecipientName, this))
{
    setObjectName(QStringLiteral("JobNotesPrefs"));
    SetLocalizedWindowTitle(bundle, QStringLiteral("JobNotesDefaultsTitle"), this);
    setWindowModality(Qt::ApplicationModal);

    auto* intro = new QLabel(this);
    intro->setObjectName(QStringLiteral("JobNotesDefaultsIntro"));
    SetLocalizedStaticText(bundle, QStringLiteral("JobNotesDefaultsIntro"), intro);
    intro->setWordWrap(true);
    intro->setMinimumWidth(320);

    QDialogButtonBox* buttons = NewOkCancelHelpButtons(this, bundle, kJobNotesPreferencesHelpPage);

    auto* layout = new QVBoxLayout(this);
    layout->setSpacing(10);
    layout->addWidget(intro);
    layout->addSpacing(4);
    for (QCheckBox* box : {m_useDocumentName, m_senderLoginName, m_recipientLoginName})
        layout->addWidget(box);
    layout->addSpacing(8);
    layout->addWidget(buttons);
    layout->setSizeConstraint(QLayout::SetFixedSize);
}

JobNotesPreferencesOptions JobNotesPreferencesDialog::preferences() const
{
    return JobNotesPreferencesOptions{m_useDocumentName->isChecked() ? 1 : 0,
                                      m_senderLoginName->isChecked() ? 1 : 0,
                                      m_recipientLoginName->isChecked() ? 1 : 0};
}

Status RunModalJobNotesPreferencesDialog(const Bundle* bundle,
                                         JobNotesPreferencesOptions* preferences, bool* accepted,
                                         QWidget* parent)
{
    if (!preferences || !accepted)
        return kBadParameter;
    JobNotesPreferencesDialog dialog(bundle, *preferences, parent);
    *accepted = dialog.exec() == QDialog::Accepted;
    if (*accepted)
        *preferences = dialog.preferences();
    return kNoError;
}

} // namespace orvan
