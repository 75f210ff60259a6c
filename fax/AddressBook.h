// The user's address book: a folder of vCard files, one contact a file,
// people and groups (KIND:group with MEMBER:<uid> entries). By default
// $XDG_DATA_HOME/orvan/contacts/; the user may point it at any folder of .vcf
// files, such as a synced contacts folder.
//
// New records are kept in memory until save(), which writes each to its own
// file "<uuid>.vcf" atomically. Files already in the folder are only read,
// never rewritten, so a synced folder loses nothing it holds.
#pragma once

#include "settings/Status.h"

#include <QString>
#include <QStringList>

#include <optional>
#include <vector>

namespace orvan {

// A phone number or e-mail address with its vCard types ("work", "fax").
struct LabelledValue
{
    QString value;
    QStringList types; // lower case

    bool hasType(const QString& type) const { return types.contains(type); }
    friend bool operator==(const LabelledValue&, const LabelledValue&) = default;
};

struct AddressBookRecord
{
    enum class Kind
    {
        Person,
        Group
    };
    Kind kind = Kind::Person;
    QString uid;
    QString formattedName; // FN: the person's full name or the group's name
    QString firstName;
    QString lastName;
    QString organization;
    QString mailbox;
    std::vector<LabelledValue> phones;
    std::vector<LabelledValue> emails;
    QStringList memberUIDs; // groups only, in order

    // The numbers typed as fax, in order.
    std::vector<LabelledValue> faxNumbers() const;
    friend bool operator==(const AddressBookRecord&, const AddressBookRecord&) = default;
};

// The vCard property of the mailbox a person's faxes go to.
inline const QString kMailboxProperty = QStringLiteral("X-ORVAN-MAILBOX");

class AddressBook
{
public:
    // An empty book on the folder; load() reads it.
    explicit AddressBook(QString folder);

    // $XDG_DATA_HOME/orvan/contacts, or the folder the user chose
    // (SetChosenAddressBookFolder).
    static QString defaultFolder();

    const QString& folder() const { return m_folder; }

    // Reads every *.vcf file of the folder (a missing folder is an empty
    // book). Cards without a UID get one made from their file name, so they
    // can still be found and referred to. Unreadable cards are skipped and
    // counted; a message per bad file goes to the standard error stream.
    void load();
    int skippedCards() const { return m_skipped; }

    // Every record, in the order read and added.
    std::vector<const AddressBookRecord*> records() const;
    std::optional<AddressBookRecord> recordForUID(const QString& uid) const;

    // Adds a record with a fresh "urn:uuid:" id and returns the id.
    QString addRecord(AddressBookRecord record);
    // Appends a member to a group added since the last load; false for an
    // unknown group or one read from a file.
    bool addMember(const QString& groupUID, const QString& memberUID);

    // Writes the records changed since load or the last save.
    // kAddressBookWriteFailed (with a message on the standard error stream)
    // when the folder cannot be made or a file cannot be written.
    Status save();

    // People and groups whose name, organisation, fax number or e-mail holds
    // the text (case-insensitive); everything for an empty text. Groups
    // first, then people, each by name.
    std::vector<const AddressBookRecord*> search(const QString& text) const;

private:
    struct Entry
    {
        AddressBookRecord record;
        bool fromFile = false; // read from the folder: never written
        bool unsaved = false;
    };
    Entry* entryForUID(const QString& uid);

    QString m_folder;
    std::vector<Entry> m_entries;
    int m_skipped = 0;
};

// The address-book folder the user chose, kept in the per-user preferences;
// empty when none was chosen. Choosing an empty path returns to the default.
QString ChosenAddressBookFolder();
bool SetChosenAddressBookFolder(const QString& folder);

// A record as a vCard 4.0 and back. A person's name is N (last;first) and FN;
// its phones TEL, e-mails EMAIL, organisation ORG and mailbox X-ORVAN-MAILBOX.
QByteArray AddressBookRecordToVCard(const AddressBookRecord& record);
std::optional<AddressBookRecord> AddressBookRecordFromVCard(const struct VCard& card);

} // namespace orvan
