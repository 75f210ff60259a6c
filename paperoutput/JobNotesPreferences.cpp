#include "paperoutput/JobNotesPreferences.h"

#include "settings/DictionaryAccess.h"
#include "settings/Preferences.h"

namespace orvan {

namespace {

struct PreferenceField
{
    const QString* key;
    std::int32_t JobNotesPreferencesOptions::*field;
};

const PreferenceField kFields[] = {
    {&kUseDocumentNameAsJobNameKey, &JobNotesPreferencesOptions::useDocumentNameAsJobName},
    {&kUseLoginNameAsSenderNameKey, &JobNotesPreferencesOptions::useLoginNameAsSenderName},
    {&kUseLoginNameAsRecipientNameKey, &JobNotesPreferencesOptions::useLoginNameAsRecipientName},
};

} // namespace

Status RetrieveJobNotesPreferences(JobNotesPreferencesOptions* options)
{
    if (!options)
        return kBadParameter;
    *options = JobNotesPreferencesOptions{};
    const std::optional<PropertyValue> file = CopyUserPreferences(kJobNotesPreferencesFileName);
    if (!file)
        return kNoError;
    for (const PreferenceField& entry : kFields) {
        long value = 1;
        if (GetCFIndexFromCFDictionary(&*file, *entry.key, &value))
            options->*entry.field = static_cast<std::int32_t>(value);
    }
    return kNoError;
}

Status StoreJobNotesPreferences(const JobNotesPreferencesOptions& options)
{
    std::optional<PropertyValue> file = CopyUserPreferences(kJobNotesPreferencesFileName);
    if (!file)
        return kPreferencesNotStored;
    for (const PreferenceField& entry : kFields)
        WriteTicketValue(&*file, *entry.key, options.*entry.field);
    return WriteUserPreferences(kJobNotesPreferencesFileName, *file) ? kNoError
                                                                     : kPreferencesNotStored;
}

} // namespace orvan
