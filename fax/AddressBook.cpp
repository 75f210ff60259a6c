#include "fax/AddressBook.h"

#include "fax/VCard.h"
#include "settings/Preferences.h"

#include <QCollator>
#include <QDir>
#include <QFile>
#include <QSaveFile>
#include <QStandardPaths>
#include <QUuid>

#include <algorithm>
#include <cstdio>

namespace orvan {

namespace {

const QString kFaxPreferencesFile = QStringLiteral("com.orvan.print.fax.plist");
const QString kAddressBookFolderKey = QStringLiteral("AddressBookFolder");

LabelledValue labelled(const VCardProperty& property)
{
    QString value = UnescapeVCardText(property.value).trimmed();
    // vCard 4.0 phones are often URIs ("tel:+1-555-0100").
    if (value.startsWith(QStringLiteral("tel:"), Qt::CaseInsensitive))
        value = value.mid(4);
    if (value.startsWith(QStringLiteral("mailto:"), Qt::CaseInsensitive))
        value = value.mid(7);
    return {value, property.parameterValues(QStringLiteral("TYPE"))};
}

VCardProperty textProperty(const QString& name, const QString& value, QStringList types = {})
{
    VCardProperty property;
    property.name = name;
    if (!types.isEmpty())
        property.parameters.emplace_back(QStringLiteral("TYPE"), std::move(types));
    property.value = value;
    return property;
}

void warn(const QString& message)
{
    std::fprintf(stderr, "%s\n", qPrintable(message));
}

} // namespace

std::vector<LabelledValue> AddressBookRecord::faxNumbers() const
{
    std::vector<LabelledValue> numbers;
    for (const LabelledValue& phone : phones)
        if (phone.hasType(QStringLiteral("fax")) && !phone.value.isEmpty())
            numbers.push_back(phone);
    return numbers;
}

QByteArray AddressBookRecordToVCard(const AddressBookRecord& record)
{
    VCard card;
    card.version = QStringLiteral("4.0");
    auto& out = card.properties;
    out.push_back(textProperty(QStringLiteral("UID"), EscapeVCardText(record.uid)));
    if (record.kind == AddressBookRecord::Kind::Group) {
        out.push_back(textProperty(QStringLiteral("KIND"), QStringLiteral("group")));
        out.push_back(textProperty(QStringLiteral("FN"), EscapeVCardText(record.formattedName)));
        for (const QString& member : record.memberUIDs)
            out.push_back(textProperty(QStringLiteral("MEMBER"), EscapeVCardText(member)));
        return SerializeVCard(card);
    }
    out.push_back(textProperty(QStringLiteral("KIND"), QStringLiteral("individual")));
    out.push_back(textProperty(QStringLiteral("FN"), EscapeVCardText(record.formattedName)));
    out.push_back(textProperty(QStringLiteral("N"), EscapeVCardText(record.lastName) + u';' +
                                                        EscapeVCardText(record.firstName) +
                                                        QStringLiteral(";;;")));
    for (const LabelledValue& phone : record.phones)
        out.push_back(
            textProperty(QStringLiteral("TEL"), EscapeVCardText(phone.value), phone.types));
    for (const LabelledValue& email : record.emails)
        out.push_back(
            textProperty(QStringLiteral("EMAIL"), EscapeVCardText(email.value), email.types));
    if (!record.organization.isEmpty())
        out.push_back(textProperty(QStringLiteral("ORG"), EscapeVCardText(record.organization)));
    if (!record.mailbox.isEmpty())
        out.push_back(textProperty(kMailboxProperty, EscapeVCardText(record.mailbox)));
    return SerializeVCard(card);
}

std::optional<AddressBookRecord> AddressBookRecordFromVCard(const VCard& card)
{
    AddressBookRecord record;
    if (const VCardProperty* kind = card.property(QStringLiteral("KIND")))
        if (UnescapeVCardText(kind->value).trimmed().compare(u"group", Qt::CaseInsensitive) == 0)
            record.kind = AddressBookRecord::Kind::Group;
    if (const VCardProperty* uid = card.property(QStringLiteral("UID")))
        record.uid = UnescapeVCardText(uid->value).trimmed();
    if (const VCardProperty* fn = card.property(QStringLiteral("FN")))
        record.formattedName = UnescapeVCardText(fn->value).trimmed();
    if (record.kind == AddressBookRecord::Kind::Group) {
        for (const VCardProperty* member : card.all(QStringLiteral("MEMBER")))
            record.memberUIDs.append(UnescapeVCardText(member->value).trimmed());
        return record;
    }
    if (const VCardProperty* n = card.property(QStringLiteral("N"))) {
        const QStringList parts = SplitVCardValue(n->value, u';');
        record.lastName = parts.value(0).trimmed();
        record.firstName = parts.value(1).trimmed();
    }
    if (record.firstName.isEmpty() && record.lastName.isEmpty())
        record.firstName = record.formattedName;
    if (record.formattedName.isEmpty())
        record.formattedName = (record.firstName + u' ' + record.lastName).trimmed();
    for (const VCardProperty* tel : card.all(QStringLiteral("TEL")))
        record.phones.push_back(labelled(*tel));
    for (const VCardProperty* email : card.all(QStringLiteral("EMAIL")))
        record.emails.push_back(labelled(*email));
    if (const VCardProperty* org = card.property(QStringLiteral("ORG")))
        record.organization = SplitVCardValue(org->value, u';').value(0).trimmed();
    if (const VCardProperty* mailbox = card.property(kMailboxProperty))
        record.mailbox = UnescapeVCardText(mailbox->value);
    // A person with neither a name nor a way to reach them is no contact.
    if (record.formattedName.isEmpty() && record.phones.empty() && record.emails.empty())
        return std::nullopt;
    return record;
}

AddressBook::AddressBook(QString folder) : m_folder(std::move(folder)) {}

QString AddressBook::defaultFolder()
{
    const QString chosen = ChosenAddressBookFolder();
    if (!chosen.isEmpty())
        return chosen;
    return QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation) +
           QStringLiteral("/orvan/contacts");
}

void AddressBook::load()
{
    m_entries.clear();
    m_skipped = 0;
    const QDir dir(m_folder);
    const QStringList files =
        dir.entryList({QStringLiteral("*.vcf"), QStringLiteral("*.VCF")}, QDir::Files, QDir::Name);
    for (const QString& name : files) {
        QFile file(dir.filePath(name));
        if (!file.open(QIODevice::ReadOnly)) {
            warn(QStringLiteral("Address book: cannot read %1: %2")
                     .arg(file.fileName(), file.errorString()));
            ++m_skipped;
            continue;
        }
        int skipped = 0;
        const std::vector<VCard> cards = ParseVCards(file.read(16 << 20), &skipped);
        if (skipped > 0 || cards.empty())
            warn(QStringLiteral("Address book: %1 has %2 unreadable line(s) or card(s)")
                     .arg(file.fileName())
                     .arg(std::max(skipped, 1)));
        m_skipped += skipped + (cards.empty() ? 1 : 0);
        for (std::size_t i = 0; i < cards.size(); ++i) {
            auto record = AddressBookRecordFromVCard(cards[i]);
            if (!record) {
                ++m_skipped;
                continue;
            }
            // A card without an id is still found by one made from its file.
            if (record->uid.isEmpty())
                record->uid = QStringLiteral("file:") + name +
                              (i > 0 ? QStringLiteral("#%1").arg(i) : QString());
            if (entryForUID(record->uid))
                continue; // the first card with an id wins
            m_entries.push_back({std::move(*record), true, false});
        }
    }
}

std::vector<const AddressBookRecord*> AddressBook::records() const
{
    std::vector<const AddressBookRecord*> all;
    for (const Entry& entry : m_entries)
        all.push_back(&entry.record);
    return all;
}

AddressBook::Entry* AddressBook::entryForUID(const QString& uid)
{
    for (Entry& entry : m_entries)
        if (entry.record.uid == uid)
            return &entry;
    return nullptr;
}

std::optional<AddressBookRecord> AddressBook::recordForUID(const QString& uid) const
{
    for (const Entry& entry : m_entries)
        if (entry.record.uid == uid)
            return entry.record;
    return std::nullopt;
}

QString AddressBook::addRecord(AddressBookRecord record)
{
    record.uid = QStringLiteral("urn:uuid:") + QUuid::createUuid().toString(QUuid::WithoutBraces);
    const QString uid = record.uid;
    m_entries.push_back({std::move(record), false, true});
    return uid;
}

bool AddressBook::addMember(const QString& groupUID, const QString& memberUID)
{
    Entry* group = entryForUID(groupUID);
    if (!group || group->fromFile || group->record.kind != AddressBookRecord::Kind::Group)
        return false;
    group->record.memberUIDs.append(memberUID);
    group->unsaved = true;
    return true;
}

Status AddressBook::save()
{
    if (!QDir().mkpath(m_folder)) {
        warn(QStringLiteral("Address book: cannot make the folder %1").arg(m_folder));
        return kAddressBookWriteFailed;
    }
    Status status = kNoError;
    for (Entry& entry : m_entries) {
        if (!entry.unsaved)
            continue;
        QString name = entry.record.uid;
        name.remove(QStringLiteral("urn:uuid:"));
        QSaveFile file(QDir(m_folder).filePath(name + QStringLiteral(".vcf")));
        if (!file.open(QIODevice::WriteOnly) ||
            file.write(AddressBookRecordToVCard(entry.record)) < 0 || !file.commit()) {
            warn(QStringLiteral("Address book: cannot write %1: %2")
                     .arg(file.fileName(), file.errorString()));
            status = kAddressBookWriteFailed;
            continue;
        }
        entry.unsaved = false;
    }
    return status;
}

std::vector<const AddressBookRecord*> AddressBook::search(const QString& text) const
{
    const QString needle = text.trimmed();
    auto holds = [&needle](const QString& haystack) {
        return haystack.contains(needle, Qt::CaseInsensitive);
    };
    std::vector<const AddressBookRecord*> found;
    for (const Entry& entry : m_entries) {
        const AddressBookRecord& r = entry.record;
        bool match = needle.isEmpty() || holds(r.formattedName) || holds(r.firstName) ||
                     holds(r.lastName) || holds(r.organization);
        for (const LabelledValue& each : r.phones)
            match = match || holds(each.value);
        for (const LabelledValue& each : r.emails)
            match = match || holds(each.value);
        if (match)
            found.push_back(&r);
    }
    QCollator collator;
    collator.setCaseSensitivity(Qt::CaseInsensitive);
    std::stable_sort(found.begin(), found.end(), [&collator](auto* a, auto* b) {
        if (a->kind != b->kind)
            return a->kind == AddressBookRecord::Kind::Group;
        return collator.compare(a->formattedName, b->formattedName) < 0;
    });
    return found;
}

QString ChosenAddressBookFolder()
{
    const auto preferences = CopyUserPreferences(kFaxPreferencesFile);
    if (!preferences)
        return {};
    const PropertyValue* folder = preferences->find(kAddressBookFolderKey);
    return folder ? folder->toString() : QString();
}

bool SetChosenAddressBookFolder(const QString& folder)
{
    auto preferences = CopyUserPreferences(kFaxPreferencesFile);
    if (!preferences)
        return false;
    if (folder.isEmpty())
        preferences->remove(kAddressBookFolderKey);
    else
        preferences->insert(kAddressBookFolderKey, folder);
    return WriteUserPreferences(kFaxPreferencesFile, *preferences);
}

} // namespace orvan
