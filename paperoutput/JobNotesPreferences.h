// The job-notes defaults: which of the three names a new job takes
// automatically. Kept in the per-user file "com.orvan.print.jobnotes.plist"
// as three ticket integers, 1 (use) or 0.
#pragma once

#include "settings/Status.h"

#include <QString>

#include <cstdint>

namespace orvan {

inline const QString kJobNotesPreferencesFileName =
    QStringLiteral("com.orvan.print.jobnotes.plist");
inline const QString kUseDocumentNameAsJobNameKey = QStringLiteral("useDocumentNameAsJobName");
inline const QString kUseLoginNameAsSenderNameKey = QStringLiteral("useLoginNameAsSenderName");
inline const QString kUseLoginNameAsRecipientNameKey =
    QStringLiteral("useLoginNameAsRecipientName");

struct JobNotesPreferencesOptions
{
    std::int32_t useDocumentNameAsJobName = 1;
    std::int32_t useLoginNameAsSenderName = 1;
    std::int32_t useLoginNameAsRecipientName = 1;

    friend bool operator==(const JobNotesPreferencesOptions&,
                           const JobNotesPreferencesOptions&) = default;
};

// Reads the defaults. A missing, unreadable or corrupt file, and any key it
// lacks or holds as something other than an integer, gives 1; nothing is
// reported, since a user who never saved defaults has no file. kBadParameter
// for a null record.
Status RetrieveJobNotesPreferences(JobNotesPreferencesOptions* options);

// Writes the three values into the file (read-modify-write, so other keys
// stay). kPreferencesNotStored when there is no preferences folder to hold
// the file or it cannot be written; an unreadable file is set aside first.
Status StoreJobNotesPreferences(const JobNotesPreferencesOptions& options);

} // namespace orvan
