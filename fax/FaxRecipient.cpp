#include "fax/FaxRecipient.h"

#include "fax/AddressBook.h"

#include <algorithm>
#include <array>

namespace orvan {

namespace {

using Field = FaxField FaxRecipient::*;

} // namespace

// The fields with their ticket keys, in ticket order.
struct FaxRecipientFields
{
    struct Row
    {
        QString key;
        Field field;
    };
    static const std::array<Row, 9>& rows()
    {
        static const std::array<Row, 9> kRows{{
            {kFaxFirstNameKey, &FaxRecipient::m_firstName},
            {kFaxLastNameKey, &FaxRecipient::m_lastName},
            {kFaxNumberKey, &FaxRecipient::m_faxNumber},
            {QStringLiteral("FaxNumberLabel"), &FaxRecipient::m_faxNumberLabel},
            {QStringLiteral("Organization"), &FaxRecipient::m_organization},
            {QStringLiteral("PhoneNumber"), &FaxRecipient::m_phoneNumber},
            {QStringLiteral("EmailAddress"), &FaxRecipient::m_emailAddress},
            {QStringLiteral("Mailbox"), &FaxRecipient::m_mailbox},
            {QStringLiteral("UID"), &FaxRecipient::m_uid},
        }};
        return kRows;
    }
};

FaxRecipient::FaxRecipient(FaxField firstName, FaxField lastName, FaxField faxNumber)
    : m_firstName(std::move(firstName)), m_lastName(std::move(lastName)),
      m_faxNumber(std::move(faxNumber))
{
}

FaxRecipient::FaxRecipient(const PropertyValue& dictionary)
{
    fromTicket(dictionary);
}

PropertyValue FaxRecipient::toTicket() const
{
    PropertyValue dictionary = PropertyValue::dictionary();
    for (const auto& row : FaxRecipientFields::rows())
        if (const FaxField& value = this->*row.field)
            dictionary.insert(row.key, *value);
    return dictionary;
}

void FaxRecipient::fromTicket(const PropertyValue& dictionary)
{
    if (!dictionary.isDictionary())
        return;
    for (const auto& row : FaxRecipientFields::rows()) {
        const PropertyValue* value = dictionary.find(row.key);
        this->*row.field = value && value->isString() ? FaxField(value->toString()) : FaxField();
    }
}

Status FaxRecipient::commitToAddressBook(AddressBook& book)
{
    AddressBookRecord person;
    person.firstName = m_firstName.value_or(QString());
    // Only the first name goes into the book; the last name is left out.
    person.formattedName = person.firstName;
    if (person.formattedName.isEmpty())
        person.formattedName = m_organization.value_or(m_faxNumber.value_or(QString()));
    person.phones.push_back(
        {m_faxNumber.value_or(QString()), {QStringLiteral("work"), QStringLiteral("fax")}});
    if (m_phoneNumber)
        person.phones.push_back({*m_phoneNumber, {QStringLiteral("work")}});
    if (m_emailAddress)
        person.emails.push_back({*m_emailAddress, {QStringLiteral("work")}});
    person.organization = m_organization.value_or(QString());
    person.mailbox = m_mailbox.value_or(QString());
    m_uid = book.addRecord(std::move(person));
    return book.save();
}

std::optional<AddressBookRecord> FaxRecipient::abRecord(const AddressBook& book) const
{
    if (!m_uid)
        return std::nullopt;
    return book.recordForUID(*m_uid);
}

bool FaxRecipient::matches(const FaxRecipient& other) const
{
    // optional's equality is the rule: unset equals unset, set never equals
    // unset, texts compare exactly.
    return m_firstName == other.m_firstName && m_lastName == other.m_lastName &&
           m_faxNumber == other.m_faxNumber;
}

FaxRecipientRef FaxRecipientList::recipientAtIndex(int index) const
{
    if (index < 0 || index >= count())
        return nullptr;
    return m_recipients[static_cast<std::size_t>(index)];
}

void FaxRecipientList::append(FaxRecipientRef recipient)
{
    if (recipient)
        m_recipients.push_back(std::move(recipient));
}

void FaxRecipientList::insertAtIndex(FaxRecipientRef recipient, int index)
{
    if (!recipient)
        return;
    const auto at = static_cast<std::ptrdiff_t>(std::clamp(index, 0, count()));
    m_recipients.insert(m_recipients.begin() + at, std::move(recipient));
}

void FaxRecipientList::removeAtIndex(int index)
{
    if (index >= 0 && index < count())
        m_recipients.erase(m_recipients.begin() + index);
}

void FaxRecipientList::remove(const FaxRecipient* recipient)
{
    const auto found =
        std::find_if(m_recipients.begin(), m_recipients.end(),
                     [recipient](const auto& each) { return each.get() == recipient; });
    if (found != m_recipients.end())
        m_recipients.erase(found);
}

int FaxRecipientList::indexOfMatch(const FaxRecipient& candidate) const
{
    for (int i = 0; i < count(); ++i)
        if (m_recipients[static_cast<std::size_t>(i)]->matches(candidate))
            return i;
    return -1;
}

bool FaxRecipientList::containsRecipient(const FaxRecipient& candidate) const
{
    return indexOfMatch(candidate) >= 0;
}

PropertyValue FaxRecipientList::toTicket() const
{
    PropertyValue array = PropertyValue::array();
    for (const FaxRecipientRef& recipient : m_recipients)
        array.append(recipient->toTicket());
    return array;
}

void FaxRecipientList::fromTicket(const PropertyValue& array)
{
    m_recipients.clear();
    for (const PropertyValue& dictionary : array.asArray())
        m_recipients.push_back(std::make_shared<FaxRecipient>(dictionary));
}

Status FaxRecipientList::saveAsABGroupWithName(AddressBook& book, const QString& name)
{
    AddressBookRecord group;
    group.kind = AddressBookRecord::Kind::Group;
    group.formattedName = name;
    const QString groupUID = book.addRecord(std::move(group));
    if (const Status added = book.save(); added != kNoError)
        return added;
    for (const FaxRecipientRef& recipient : m_recipients) {
        if (!recipient->uid())
            recipient->commitToAddressBook(book);
        book.addMember(groupUID, *recipient->uid());
    }
    return book.save();
}

QString DisplayNameFromRecipient(const FaxRecipient& recipient)
{
    QStringList parts;
    if (recipient.firstName())
        parts.append(*recipient.firstName());
    if (recipient.lastName())
        parts.append(*recipient.lastName());
    return parts.join(u' ');
}

QString CopyDialingStringFromFaxNumber(const QString& number)
{
    static const QString dialing = QString::fromUtf16(kFaxDialingCharacters);
    QString result;
    for (QChar c : number)
        if (dialing.contains(c, Qt::CaseSensitive))
            result += c;
    return result;
}

} // namespace orvan
