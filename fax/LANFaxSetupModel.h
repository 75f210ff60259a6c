// The LAN fax setup without its widgets: a working copy of the job's
// recipient list and fax options, the edits the dialog offers, the checks
// that guard them, and the hand-back on OK. Cancel simply drops the model:
// the job's list, its recipients and its dictionary are untouched until
// commit().
#pragma once

#include "fax/AddressBook.h"
#include "fax/FaxOptions.h"
#include "fax/FaxRecipient.h"
#include "platform/Alerts.h"

#include <QDateTime>
#include <QString>

#include <optional>
#include <vector>

namespace orvan {

class Bundle;

// The longest dialing string (prefix plus number) a recipient may have. The
// printer's fax unit keeps 40 dialing characters a destination: enough for an
// outside-line prefix, an international access code, the 15 digits of the
// longest international number and a few pauses (",").
inline constexpr int kMaxDialingStringLength = 40;
// Names and other typed fields are cut to this many characters.
inline constexpr int kMaxFaxFieldLength = 64;

// One row the address-book picker offers: a group, or one fax number of a
// person (a person with two fax numbers gives two rows).
struct AddressBookChoice
{
    QString uid;       // of the person or group
    QString title;     // the name shown
    QString detail;    // the fax number with its label, or the member count
    QString faxNumber; // empty for groups
    QString faxLabel;
    bool group = false;
};

// Which of the dialog's controls take input.
struct LANFaxSetupEnabling
{
    bool addTyped = false;  // a fax number is typed
    bool edit = false;      // exactly one recipient selected
    bool remove = false;    // at least one selected
    bool saveGroup = false; // the list is not empty
    bool sendTime = false;
    bool dialingPrefix = false;
    bool creditCard = false;
    bool coverNotes = false;

    friend bool operator==(const LANFaxSetupEnabling&, const LANFaxSetupEnabling&) = default;
};

class LANFaxSetupModel
{
public:
    // Copies the list (the same records) and reads the controls from the
    // options dictionary.
    LANFaxSetupModel(const Bundle* bundle, const PropertyValue& options,
                     const FaxRecipientList& recipients, AddressBook book);

    const FaxRecipientList& recipients() const { return m_recipients; }
    FaxOptionControls& controls() { return m_controls; }
    const FaxOptionControls& controls() const { return m_controls; }
    AddressBook& addressBook() { return m_book; }

    // A recipient from what the user typed: "First Last" or "Last, First"
    // (one word is a first name), trimmed; empty fields stay unset.
    static FaxRecipientRef recipientFromTypedName(const QString& name, const QString& faxNumber);
    // The alert that refuses a recipient: no fax number, nothing to dial in
    // it, or a dialing string (with the prefix when it is on) longer than
    // kMaxDialingStringLength. nullopt when the recipient may be added.
    std::optional<Alert> checkRecipient(const FaxRecipient& recipient) const;

    // The question to ask before adding a recipient that matches one in the
    // list; nullopt when the prompt is off or there is no match.
    std::optional<Alert> duplicateQuestion(const FaxRecipient& recipient) const;
    // The question to ask before removing `count` recipients; nullopt when
    // the prompt is off.
    std::optional<Alert> removeQuestion(int count) const;

    void addRecipient(FaxRecipientRef recipient);
    // Puts an edited copy in place of the row's record, so the job's record
    // is only changed by commit.
    void replaceRecipient(int row, FaxRecipientRef edited);
    // Removes the rows (any order, duplicates ignored).
    void removeRecipients(std::vector<int> rows);

    // Address-book rows matching the search text (see AddressBook::search).
    std::vector<AddressBookChoice> addressBookChoices(const QString& search) const;
    // The recipients a chosen row stands for: the person with that fax number
    // (uid set), or every member of the group with a fax number, in order.
    std::vector<FaxRecipientRef> recipientsForChoice(const AddressBookChoice& choice) const;
    // Saves the working list as an address-book group; the alert to show on
    // failure, or on success a note naming the group.
    Alert saveAsGroup(const QString& name);

    // What refuses OK: a send time that is not in the future (compared with
    // now), or a recipient whose dialing string the prefix makes too long.
    std::optional<Alert> checkBeforeOK(const QDateTime& now) const;
    // Hands the list back (the job's list becomes the working list) and
    // writes the options into the dictionary.
    void commit(PropertyValue* options, FaxRecipientList* recipients) const;

    LANFaxSetupEnabling enabling(int selectedCount, const QString& typedNumber) const;

    QString text(const QString& key) const;

private:
    QString activePrefix() const;

    const Bundle* m_bundle;
    FaxRecipientList m_recipients;
    FaxOptionControls m_controls;
    AddressBook m_book;
};

} // namespace orvan
