// The Job Notes panel without its widgets: the job name, sender and
// recipient (each typed or taken automatically), the banner message and the
// job start message, their ticket items and the panel's summary.
//
// When the defaults choose the automatic items: the panel loads the user's
// defaults whenever it is set up, and a ticket that already carries job notes
// (a saved ticket, a preset, the same dialog after a printer change) then
// overrides them, because those are choices the user made for this job. So
// every new job starts from the defaults and no job loses what was chosen
// for it.
#pragma once

#include "paperoutput/JobNotesPreferences.h"
#include "settings/PropertyValue.h"
#include "settings/Status.h"
#include "ui/XComboBoxModel.h"

#include <QString>

#include <array>
#include <cstdint>

namespace orvan {

class Bundle;
class PrintSession;
class Ticket;

inline const QString kJobNotesTitleKey = QStringLiteral("JobNotes");

inline const QString kJobNotesMessageKey = QStringLiteral("com.orvan.print.JobNotesMessage");
inline const QString kJobNotesSheetMessageKey =
    QStringLiteral("com.orvan.print.JobNotesSheetMessage");
inline const QString kJobNotesAdditionalInfoKey =
    QStringLiteral("com.orvan.print.JobNotesAdditionalInfo");
inline const QString kJobNotesUseJobNameKey = QStringLiteral("com.orvan.print.JobNotesUseJobName");
inline const QString kJobNotesJobNameKey = QStringLiteral("com.orvan.print.JobNotesJobName");
inline const QString kJobNotesSenderUseLoginNameKey =
    QStringLiteral("com.orvan.print.JobNotesSenderUseLoginName");
inline const QString kJobNotesSenderNameKey = QStringLiteral("com.orvan.print.JobNotesSenderName");
inline const QString kJobNotesRecipientUseLoginNameKey =
    QStringLiteral("com.orvan.print.JobNotesRecipientUseLoginName");
inline const QString kJobNotesRecipientKey = QStringLiteral("com.orvan.print.JobNotesRecipient");

// Field lengths. The two messages are free text printed on the banner sheet
// and shown at the printer when the job starts; a name is kept by the print
// server beside the job, which takes at most 255 characters.
inline constexpr int kBannerMessageLimit = 1000;
inline constexpr int kJobStartMessageLimit = 1000;
inline constexpr int kJobNotesNameLimit = 255;

inline const QString kJobNameLabelKey = QStringLiteral("Job Name:");
inline const QString kSenderNameLabelKey = QStringLiteral("Sender Name:");
inline const QString kRecipientNameLabelKey = QStringLiteral("Recipient Name:");
inline const QString kBannerMessageLabelKey = QStringLiteral("Banner Message:");
inline const QString kJobStartMessageLabelKey = QStringLiteral("Job Start Message:");
inline const QString kBannerMessageIcon = QStringLiteral("JobNotes_BannerMessage.png");
inline const QString kJobStartMessageIcon = QStringLiteral("JobNotes_SpecialInstructions.png");

// The three names, in the panel's order.
enum class JobNotesName
{
    Job,
    Sender,
    Recipient,
};
inline constexpr std::array kJobNotesNames{JobNotesName::Job, JobNotesName::Sender,
                                           JobNotesName::Recipient};

// One name: the text last typed and whether the automatic item is chosen
// instead (the document's name for the job, the login name for the others).
struct JobNotesNameField
{
    QString typed;
    bool automatic = false;

    friend bool operator==(const JobNotesNameField&, const JobNotesNameField&) = default;
};

class JobNotesModel
{
public:
    // Each name takes the automatic item as the defaults say; a name with
    // typed text is left alone unless `overrideTyped`.
    void applyDefaults(const JobNotesPreferencesOptions& defaults, bool overrideTyped = true);
    // Reads the user's defaults (RetrieveJobNotesPreferences) and applies them.
    void loadDefaults();
    const JobNotesPreferencesOptions& defaults() const { return m_defaults; }
    // Stores new defaults; on success they also apply to the names the user
    // has not typed yet, as they would to a new job.
    Status saveDefaults(const JobNotesPreferencesOptions& defaults);

    const JobNotesNameField& name(JobNotesName which) const;
    // What a name's combo box gave (XComboBoxCopyValue's status and value):
    // the automatic item's number chooses it, a string is typed text, an
    // empty box is an empty typed name.
    void setName(JobNotesName which, Status status, const PropertyValue& value);
    // The value the name's combo box shows: the automatic item's number, or
    // the typed text.
    PropertyValue boxValue(JobNotesName which) const;
    // The combo box of a name: the automatic item from its map, the user's
    // earlier entries under its history key, any characters up to the limit.
    static _XComboBoxOptions comboBoxOptions(JobNotesName which, const Bundle* bundle);
    static const QString& labelKey(JobNotesName which);

    const QString& bannerMessage() const { return m_bannerMessage; }
    const QString& jobStartMessage() const { return m_jobStartMessage; }
    void setBannerMessage(const QString& text) { m_bannerMessage = text; }
    void setJobStartMessage(const QString& text) { m_jobStartMessage = text; }

    // Sync with the session's print-settings ticket: false writes, true reads.
    // kSyncMissingContext without a session, and nothing changes.
    Status sync(PrintSession* session, bool direction);
    // Messages are written when not empty and removed otherwise, the
    // additional information is always removed; each name writes its flag,
    // then the typed text, or the login name of the session's user when the
    // automatic item is chosen. For the job name too: its flag tells the
    // printer to take the job's own name (the document's), and the name item
    // beside it carries the login name as it always has. A name with nothing
    // to write (empty typed text, no login name) removes its item. The first
    // failure is returned; the other items are still written.
    Status syncToTicket(Ticket& ticket) const;
    // Reads the flags that are present, both messages (empty when absent) and
    // the names: absent, the field is empty; present with its flag true, the
    // field is empty and the automatic item chosen; otherwise (flag false or
    // absent) the ticket's text is the typed name. A name with neither item
    // keeps the defaults' choice.
    void syncFromTicket(const Ticket& ticket);

    // One pair per name and message that holds something, titled by its label.
    void appendSummary(const Bundle* bundle, PropertyValue* titles, PropertyValue* values) const;

private:
    JobNotesNameField& field(JobNotesName which);

    JobNotesPreferencesOptions m_defaults;
    std::array<JobNotesNameField, 3> m_names;
    QString m_bannerMessage;
    QString m_jobStartMessage;
};

} // namespace orvan
