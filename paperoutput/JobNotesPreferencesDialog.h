// The job-notes defaults dialog ("JobNotesPrefs"): three check boxes for the
// names a new job takes automatically, with OK, Cancel and Help.
#pragma once

#include "paperoutput/JobNotesPreferences.h"

#include <QDialog>

class QCheckBox;

namespace orvan {

class Bundle;

inline const QString kJobNotesPreferencesHelpPage =
    QStringLiteral("job_notes_d/db_preferences_d.htm");

// Object names: the dialog "JobNotesPrefs", its check boxes
// "UseDocumentNameCheckBox", "SenderLoginNameCheckBox" and
// "RecipientLoginNameCheckBox", its buttons "OKButton", "CancelButton" and
// "HelpButton".
class JobNotesPreferencesDialog : public QDialog
{
    Q_OBJECT

public:
    JobNotesPreferencesDialog(const Bundle* bundle, const JobNotesPreferencesOptions& preferences,
                              QWidget* parent = nullptr);

    // The check boxes as preferences (1 checked, 0 not).
    JobNotesPreferencesOptions preferences() const;

private:
    QCheckBox* m_useDocumentName;
    QCheckBox* m_senderLoginName;
    QCheckBox* m_recipientLoginName;
};

// Runs the dialog application-modal on a copy of *preferences. OK sets
// *accepted and hands the check boxes back in *preferences; Cancel clears
// *accepted and leaves *preferences alone. Help opens the dialog's help page
// and leaves the dialog open. kBadParameter for a null argument.
Status RunModalJobNotesPreferencesDialog(const Bundle* bundle,
                                         JobNotesPreferencesOptions* preferences, bool* accepted,
                                         QWidget* parent = nullptr);

} // namespace orvan
