#include "paperoutput/JobNotesModel.h"

#include "platform/SystemFacts.h"
#include "settings/PrintSession.h"
#include "settings/SettingMaps.h"
#include "settings/Ticket.h"
#include "shell/PanelText.h"

namespace orvan {

namespace {

// What sets a name up and where it goes in the ticket.
struct NameRow
{
    const _SettingMap* map; // its one row is the automatic item
    const char* historyKey;
    const QString* flagKey;
    const QString* nameKey;
    const QString* labelKey;
    std::int32_t JobNotesPreferencesOptions::*useDefault;
};

const NameRow& rowOf(JobNotesName which)
{
    static const NameRow rows[] = {
        {_JobNameMap, "jobNotesJobName", &kJobNotesUseJobNameKey, &kJobNotesJobNameKey,
         &kJobNameLabelKey, &JobNotesPreferencesOptions::useDocumentNameAsJobName},
        {_LoginNameMap, "jobNotesSenderName", &kJobNotesSenderUseLoginNameKey,
         &kJobNotesSenderNameKey, &kSenderNameLabelKey,
         &JobNotesPreferencesOptions::useLoginNameAsSenderName},
        {_LoginNameMap, "jobNotesRecipientName", &kJobNotesRecipientUseLoginNameKey,
         &kJobNotesRecipientKey, &kRecipientNameLabelKey,
         &JobNotesPreferencesOptions::useLoginNameAsRecipientName},
    };
    return rows[static_cast<int>(which)];
}

std::int32_t automaticValue(JobNotesName which)
{
    return rowOf(which).map[0].ticketValue;
}

// Sets a string item, or removes it when the text is empty; an item already
// absent is no failure.
Status writeOrRemove(Ticket& ticket, const QString& key, const QString& text)
{
    if (!text.isEmpty())
        return ticket.setItem(kPanelClient, key, PropertyValue(text));
    const Status status = ticket.releaseItem(key);
    return status == kTicketItemNotFound ? kNoError : status;
}

} // namespace

void JobNotesModel::applyDefaults(const JobNotesPreferencesOptions& defaults, bool overrideTyped)
{
    m_defaults = defaults;
    for (JobNotesName which : kJobNotesNames) {
        JobNotesNameField& name = field(which);
        if (overrideTyped || name.automatic || name.typed.isEmpty())
            name.automatic = defaults.*rowOf(which).useDefault != 0;
    }
}

void JobNotesModel::loadDefaults()
{
    JobNotesPreferencesOptions defaults;
    RetrieveJobNotesPreferences(&defaults);
    applyDefaults(defaults);
}

Status JobNotesModel::saveDefaults(const JobNotesPreferencesOptions& defaults)
{
    const Status status = StoreJobNotesPreferences(defaults);
    if (status == kNoError)
        applyDefaults(defaults, false);
    return status;
}

const JobNotesNameField& JobNotesModel::name(JobNotesName which) const
{
    return m_names[static_cast<std::size_t>(which)];
}

JobNotesNameField& JobNotesModel::field(JobNotesName which)
{
    return m_names[static_cast<std::size_t>(which)];
}

void JobNotesModel::setName(JobNotesName which, Status status, const PropertyValue& value)
{
    JobNotesNameField& name = field(which);
    if (status == kXComboBoxEmpty) {
        name = JobNotesNameField{};
    } else if (status != kNoError) {
        return;
    } else if (value.isString()) {
        name = JobNotesNameField{value.toString(), false};
    } else if (value.toInteger() == automaticValue(which)) {
        name.automatic = true;
    }
}

PropertyValue JobNotesModel::boxValue(JobNotesName which) const
{
    const JobNotesNameField& name = this->name(which);
    return name.automatic ? PropertyValue::integer(automaticValue(which))
                          : PropertyValue(name.typed);
}

_XComboBoxOptions JobNotesModel::comboBoxOptions(JobNotesName which, const Bundle* bundle)
{
    _XComboBoxOptions options;
    options.kind = XComboBoxKind::Text;
    options.bundle = bundle;
    options.map = rowOf(which).map;
    options.historyKey = QLatin1String(rowOf(which).historyKey);
    options.firstLimit = 1;
    options.secondLimit = kJobNotesNameLimit;
    return options;
}

const QString& JobNotesModel::labelKey(JobNotesName which)
{
    return *rowOf(which).labelKey;
}

Status JobNotesModel::sync(PrintSession* session, bool direction)
{
    if (!session)
        return kSyncMissingContext;
    if (direction) {
        syncFromTicket(session->printSettings());
        return kNoError;
    }
    return syncToTicket(session->printSettings());
}

Status JobNotesModel::syncToTicket(Ticket& ticket) const
{
    Status result = kNoError;
    const auto keep = [&result](Status status) {
        if (result == kNoError)
            result = status;
    };
    keep(writeOrRemove(ticket, kJobNotesMessageKey, m_jobStartMessage));
    keep(writeOrRemove(ticket, kJobNotesSheetMessageKey, m_bannerMessage));
    keep(writeOrRemove(ticket, kJobNotesAdditionalInfoKey, QString()));
    const QString loginName = SessionUserName().value_or(QString());
    for (JobNotesName which : kJobNotesNames) {
        const NameRow& row = rowOf(which);
        const JobNotesNameField& name = this->name(which);
        keep(ticket.setItem(kPanelClient, *row.flagKey, PropertyValue::boolean(name.automatic)));
        keep(writeOrRemove(ticket, *row.nameKey, name.automatic ? loginName : name.typed));
    }
    return result;
}

void JobNotesModel::syncFromTicket(const Ticket& ticket)
{
    m_jobStartMessage = ticket.string(kJobNotesMessageKey).value_or(QString());
    m_bannerMessage = ticket.string(kJobNotesSheetMessageKey).value_or(QString());
    for (JobNotesName which : kJobNotesNames) {
        JobNotesNameField& name = field(which);
        const std::optional<bool> flag = ticket.boolean(*rowOf(which).flagKey);
        const std::optional<QString> text = ticket.string(*rowOf(which).nameKey);
        // A name the ticket gives without its flag was given for this job.
        if (flag || text)
            name.automatic = flag.value_or(false);
        name.typed = text && !name.automatic ? *text : QString();
    }
}

void JobNotesModel::appendSummary(const Bundle* bundle, PropertyValue* titles,
                                  PropertyValue* values) const
{
    for (JobNotesName which : kJobNotesNames) {
        const JobNotesNameField& name = this->name(which);
        const QString shown =
            name.automatic ? PanelText(bundle, QLatin1String(rowOf(which).map[0].key)) : name.typed;
        if (!shown.isEmpty())
            AppendSummaryPair(titles, values, SummaryTitleFromLabel(bundle, labelKey(which)),
                              shown);
    }
    if (!m_bannerMessage.isEmpty())
        AppendSummaryPair(titles, values, SummaryTitleFromLabel(bundle, kBannerMessageLabelKey),
                          m_bannerMessage);
    if (!m_jobStartMessage.isEmpty())
        AppendSummaryPair(titles, values, SummaryTitleFromLabel(bundle, kJobStartMessageLabelKey),
                          m_jobStartMessage);
}

} // namespace orvan
