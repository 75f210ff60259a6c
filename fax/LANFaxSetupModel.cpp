#include "fax/LANFaxSetupModel.h"

#include "ui/LocalizedFormat.h"

#include <QLocale>

#include <algorithm>

namespace orvan {

namespace {

FaxField fieldOf(const QString& text)
{
    const QString trimmed = text.trimmed().left(kMaxFaxFieldLength);
    return trimmed.isEmpty() ? FaxField() : FaxField(trimmed);
}

QString nameOrNumber(const FaxRecipient& recipient)
{
    const QString name = DisplayNameFromRecipient(recipient);
    return name.isEmpty() ? recipient.faxNumber().value_or(QString()) : name;
}

} // namespace

LANFaxSetupModel::LANFaxSetupModel(const Bundle* bundle, const PropertyValue& options,
                                   const FaxRecipientList& recipients, AddressBook book)
    : m_bundle(bundle), m_recipients(recipients), m_controls(ReadFaxOptions(options)),
      m_book(std::move(book))
{
}

QString LANFaxSetupModel::text(const QString& key) const
{
    return LocalizedFormat(m_bundle, key);
}

FaxRecipientRef LANFaxSetupModel::recipientFromTypedName(const QString& name,
                                                         const QString& faxNumber)
{
    const QString typed = name.simplified();
    QString first = typed;
    QString last;
    if (const qsizetype comma = typed.indexOf(u','); comma >= 0) {
        last = typed.left(comma);
        first = typed.mid(comma + 1);
    } else if (const qsizetype space = typed.lastIndexOf(u' '); space >= 0) {
        first = typed.left(space);
        last = typed.mid(space + 1);
    }
    return std::make_shared<FaxRecipient>(fieldOf(first), fieldOf(last), fieldOf(faxNumber));
}

QString LANFaxSetupModel::activePrefix() const
{
    return m_controls.dialingPrefixOn ? m_controls.dialingPrefix : QString();
}

std::optional<Alert> LANFaxSetupModel::checkRecipient(const FaxRecipient& recipient) const
{
    const QString number = recipient.faxNumber().value_or(QString());
    if (number.trimmed().isEmpty())
        return Alert{AlertLevel::Caution, text(QStringLiteral("FaxNoNumberHeader")),
                     text(QStringLiteral("FaxNoNumberMessage"))};
    if (CopyDialingStringFromFaxNumber(number).isEmpty())
        return Alert{
            AlertLevel::Caution, text(QStringLiteral("FaxNoNumberHeader")),
            LocalizedFormat(m_bundle, QStringLiteral("FaxNothingToDialMessage"), {number})};
    const QString dialing = CopyDialingStringFromFaxNumber(activePrefix() + number);
    if (dialing.size() > kMaxDialingStringLength)
        return Alert{
            AlertLevel::Caution, text(QStringLiteral("FaxDialingTooLongHeader")),
            LocalizedFormat(m_bundle, QStringLiteral("FaxDialingTooLongMessage"),
                            {nameOrNumber(recipient), QString::number(kMaxDialingStringLength),
                             QString::number(dialing.size())})};
    return std::nullopt;
}

std::optional<Alert> LANFaxSetupModel::duplicateQuestion(const FaxRecipient& recipient) const
{
    if (!m_controls.promptDuplicate || !m_recipients.containsRecipient(recipient))
        return std::nullopt;
    return Alert{
        AlertLevel::Caution, text(QStringLiteral("FaxDuplicateHeader")),
        LocalizedFormat(m_bundle, QStringLiteral("FaxDuplicateMessage"),
                        {nameOrNumber(recipient), recipient.faxNumber().value_or(QString())})};
}

std::optional<Alert> LANFaxSetupModel::removeQuestion(int count) const
{
    if (!m_controls.promptRemove || count <= 0)
        return std::nullopt;
    return Alert{AlertLevel::Caution, text(QStringLiteral("FaxRemoveHeader")),
                 LocalizedFormat(m_bundle,
                                 count == 1 ? QStringLiteral("FaxRemoveOneMessage")
                                            : QStringLiteral("FaxRemoveManyMessage"),
                                 {QString::number(count)})};
}

void LANFaxSetupModel::addRecipient(FaxRecipientRef recipient)
{
    m_recipients.append(std::move(recipient));
}

void LANFaxSetupModel::replaceRecipient(int row, FaxRecipientRef edited)
{
    if (row < 0 || row >= m_recipients.count() || !edited)
        return;
    m_recipients.removeAtIndex(row);
    m_recipients.insertAtIndex(std::move(edited), row);
}

void LANFaxSetupModel::removeRecipients(std::vector<int> rows)
{
    std::sort(rows.begin(), rows.end(), std::greater<>());
    rows.erase(std::unique(rows.begin(), rows.end()), rows.end());
    for (int row : rows)
        m_recipients.removeAtIndex(row);
}

std::vector<AddressBookChoice> LANFaxSetupModel::addressBookChoices(const QString& search) const
{
    std::vector<AddressBookChoice> choices;
    for (const AddressBookRecord* record : m_book.search(search)) {
        if (record->kind == AddressBookRecord::Kind::Group) {
            AddressBookChoice group{record->uid, record->formattedName, {}, {}, {}, true};
            group.detail = LocalizedFormat(m_bundle, QStringLiteral("FaxGroupMembers"),
                                           {QString::number(record->memberUIDs.size())});
            choices.push_back(group);
            continue;
        }
        for (const LabelledValue& fax : record->faxNumbers()) {
            QStringList kinds = fax.types;
            kinds.removeAll(QStringLiteral("fax"));
            kinds.removeAll(QStringLiteral("voice"));
            const QString label =
                (kinds.isEmpty() ? QString() : kinds.first() + u' ') + QStringLiteral("fax");
            QString title = record->formattedName;
            if (!record->organization.isEmpty() && record->organization != title)
                title += QStringLiteral(" (") + record->organization + u')';
            choices.push_back({record->uid, title, fax.value + QStringLiteral("  ·  ") + label,
                               fax.value, label, false});
        }
    }
    return choices;
}

std::vector<FaxRecipientRef>
LANFaxSetupModel::recipientsForChoice(const AddressBookChoice& choice) const
{
    auto fromPerson = [](const AddressBookRecord& person, const LabelledValue& fax,
                         const QString& label) {
        auto recipient = std::make_shared<FaxRecipient>(
            fieldOf(person.firstName), fieldOf(person.lastName), fieldOf(fax.value));
        recipient->setFaxNumberLabel(fieldOf(label));
        recipient->setOrganization(fieldOf(person.organization));
        for (const LabelledValue& phone : person.phones)
            if (!phone.hasType(QStringLiteral("fax"))) {
                recipient->setPhoneNumber(fieldOf(phone.value));
                break;
            }
        if (!person.emails.empty())
            recipient->setEmailAddress(fieldOf(person.emails.front().value));
        recipient->setMailbox(fieldOf(person.mailbox));
        recipient->setUID(person.uid);
        return recipient;
    };

    std::vector<FaxRecipientRef> recipients;
    const auto record = m_book.recordForUID(choice.uid);
    if (!record)
        return recipients;
    if (!choice.group) {
        recipients.push_back(fromPerson(*record, {choice.faxNumber, {}}, choice.faxLabel));
        return recipients;
    }
    for (const QString& memberUID : record->memberUIDs) {
        const auto member = m_book.recordForUID(memberUID);
        if (!member || member->kind != AddressBookRecord::Kind::Person)
            continue;
        const auto faxes = member->faxNumbers();
        if (!faxes.empty())
            recipients.push_back(fromPerson(*member, faxes.front(), QStringLiteral("fax")));
    }
    return recipients;
}

Alert LANFaxSetupModel::saveAsGroup(const QString& name)
{
    const Status status = m_recipients.saveAsABGroupWithName(m_book, name.trimmed());
    if (status != kNoError)
        return {
            AlertLevel::Stop, text(QStringLiteral("FaxGroupFailedHeader")),
            LocalizedFormat(m_bundle, QStringLiteral("FaxGroupFailedMessage"), {m_book.folder()})};
    return {AlertLevel::Note, text(QStringLiteral("FaxGroupSavedHeader")),
            LocalizedFormat(m_bundle, QStringLiteral("FaxGroupSavedMessage"),
                            {name.trimmed(), QString::number(m_recipients.count())})};
}

std::optional<Alert> LANFaxSetupModel::checkBeforeOK(const QDateTime& now) const
{
    if (m_controls.sendLater && (!m_controls.sendTime.isValid() || m_controls.sendTime <= now))
        return Alert{
            AlertLevel::Caution, text(QStringLiteral("FaxSendTimePastHeader")),
            LocalizedFormat(m_bundle, QStringLiteral("FaxSendTimePastMessage"),
                            {QLocale().toString(m_controls.sendTime, QLocale::ShortFormat)})};
    for (const FaxRecipientRef& recipient : m_recipients.recipients())
        if (auto refused = checkRecipient(*recipient))
            return refused;
    return std::nullopt;
}

LANFaxSetupEnabling LANFaxSetupModel::enabling(int selectedCount, const QString& typedNumber) const
{
    LANFaxSetupEnabling enabling;
    enabling.addTyped = !typedNumber.trimmed().isEmpty();
    enabling.edit = selectedCount == 1;
    enabling.remove = selectedCount > 0;
    enabling.saveGroup = m_recipients.count() > 0;
    enabling.sendTime = m_controls.sendLater;
    enabling.dialingPrefix = m_controls.dialingPrefixOn;
    enabling.creditCard = m_controls.creditCardOn;
    enabling.coverNotes = m_controls.coverSheet == kPrintCoverSheet;
    return enabling;
}

void LANFaxSetupModel::commit(PropertyValue* options, FaxRecipientList* recipients) const
{
    WriteFaxOptions(m_controls, text(QStringLiteral("FaxCoverNotesLabel")), options);
    if (recipients)
        *recipients = m_recipients;
}

} // namespace orvan
