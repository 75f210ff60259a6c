// A fax recipient and the ordered recipient list of a LAN fax job, with their
// ticket forms, the address-book link, the display name and the dialing
// string of a typed fax number.
//
// Recipients are shared: the list, the setup dialog's list view and its
// dialogs hold the same record. A holder's reference is a FaxRecipientRef
// (copying it retains, dropping it releases); the record goes away with the
// last reference, and a list made from a ticket owns fresh records.
#pragma once

#include "settings/PropertyValue.h"
#include "settings/Status.h"

#include <QString>

#include <memory>
#include <optional>
#include <vector>

namespace orvan {

class AddressBook;
struct AddressBookRecord;

inline const QString kFaxRecipientListKey = QStringLiteral("com.orvan.print.FaxRecipientList");

// The name and number keys of a recipient's dictionary.
inline const QString kFaxFirstNameKey = QStringLiteral("FirstName");
inline const QString kFaxLastNameKey = QStringLiteral("LastName");
inline const QString kFaxNumberKey = QStringLiteral("FaxNumber");

// The characters a fax number keeps when it is dialled; membership is
// case-sensitive ("a" is dropped, "A" kept).
inline constexpr char16_t kFaxDialingCharacters[] = u"0123456789*#=:!,/S$<>ABCD";

// An optional text field: nullopt is unset, which is not the same as empty.
using FaxField = std::optional<QString>;

class FaxRecipient
{
public:
    FaxRecipient() = default;
    FaxRecipient(FaxField firstName, FaxField lastName, FaxField faxNumber);
    // As fromTicket on an empty recipient.
    explicit FaxRecipient(const PropertyValue& dictionary);

    const FaxField& firstName() const { return m_firstName; }
    const FaxField& lastName() const { return m_lastName; }
    const FaxField& faxNumber() const { return m_faxNumber; }
    const FaxField& faxNumberLabel() const { return m_faxNumberLabel; }
    const FaxField& organization() const { return m_organization; }
    const FaxField& phoneNumber() const { return m_phoneNumber; }
    const FaxField& emailAddress() const { return m_emailAddress; }
    const FaxField& mailbox() const { return m_mailbox; }
    const FaxField& uid() const { return m_uid; }

    // nullopt clears the field.
    void setFirstName(FaxField value) { m_firstName = std::move(value); }
    void setLastName(FaxField value) { m_lastName = std::move(value); }
    void setFaxNumber(FaxField value) { m_faxNumber = std::move(value); }
    void setFaxNumberLabel(FaxField value) { m_faxNumberLabel = std::move(value); }
    void setOrganization(FaxField value) { m_organization = std::move(value); }
    void setPhoneNumber(FaxField value) { m_phoneNumber = std::move(value); }
    void setEmailAddress(FaxField value) { m_emailAddress = std::move(value); }
    void setMailbox(FaxField value) { m_mailbox = std::move(value); }
    void setUID(FaxField value) { m_uid = std::move(value); }

    // A recipient dictionary: one string per set field, nothing for the rest.
    PropertyValue toTicket() const;
    // Sets every field from its key; an absent key (or one that does not hold
    // a string) clears the field. A value that is not a dictionary changes
    // nothing.
    void fromTicket(const PropertyValue& dictionary);

    // Writes the recipient into the address book as a new person (first name
    // only: the last name is left out on purpose), saves it and sets uid to
    // the person's id. The save's status is returned; uid is set either way.
    Status commitToAddressBook(AddressBook& book);
    // The address-book record with this recipient's uid; none when uid is
    // unset or the book has no such record.
    std::optional<AddressBookRecord> abRecord(const AddressBook& book) const;

    // Same first name, last name and fax number: set values by exact text,
    // unset only equals unset. The other fields are not compared.
    bool matches(const FaxRecipient& other) const;

    friend bool operator==(const FaxRecipient&, const FaxRecipient&) = default;

private:
    friend struct FaxRecipientFields;
    FaxField m_firstName;
    FaxField m_lastName;
    FaxField m_faxNumber;
    FaxField m_faxNumberLabel;
    FaxField m_organization;
    FaxField m_phoneNumber;
    FaxField m_emailAddress;
    FaxField m_mailbox;
    FaxField m_uid;
};

using FaxRecipientRef = std::shared_ptr<FaxRecipient>;

class FaxRecipientList
{
public:
    int count() const { return static_cast<int>(m_recipients.size()); }
    // Null outside 0...count()-1.
    FaxRecipientRef recipientAtIndex(int index) const;
    void append(FaxRecipientRef recipient);
    // An index past the end appends; a negative one inserts first.
    void insertAtIndex(FaxRecipientRef recipient, int index);
    void removeAtIndex(int index);
    // Removes the first entry that is this very record (not an equal one).
    void remove(const FaxRecipient* recipient);
    void removeAll() { m_recipients.clear(); }

    // True when an entry matches the candidate (FaxRecipient::matches).
    bool containsRecipient(const FaxRecipient& candidate) const;
    // The index of the first matching entry, or -1.
    int indexOfMatch(const FaxRecipient& candidate) const;

    // An array of recipient dictionaries in list order.
    PropertyValue toTicket() const;
    // Empties the list, then appends a fresh record for each dictionary of
    // the array, in order. A value that is not an array leaves it empty.
    void fromTicket(const PropertyValue& array);

    // Writes a group of the members under the name: the group is saved
    // first, then members without a uid are committed, then the group gets
    // its members. kAddressBookWriteFailed, with no member touched, when the
    // group cannot be saved; else the status of the final save.
    Status saveAsABGroupWithName(AddressBook& book, const QString& name);

    const std::vector<FaxRecipientRef>& recipients() const { return m_recipients; }

private:
    std::vector<FaxRecipientRef> m_recipients;
};

// First and last name, those that are set, joined by one space; empty when
// neither is set.
QString DisplayNameFromRecipient(const FaxRecipient& recipient);

// The characters of the number that belong to kFaxDialingCharacters, in
// order: "+1 (555) 2-3" gives "15553".
QString CopyDialingStringFromFaxNumber(const QString& number);

} // namespace orvan
