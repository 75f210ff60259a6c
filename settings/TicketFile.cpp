#include "settings/TicketFile.h"

#include "settings/Preferences.h"
#include "settings/PropertyList.h"

#include <QFile>

namespace orvan {

namespace {

const QString kVersionKey = QStringLiteral("OrvanTicketFileVersion");
const QString kPrinterKey = QStringLiteral("Printer");
const QString kItemsKey = QStringLiteral("Items");
const QString kPpdKey = QStringLiteral("PPD");
const QString kSubTicketsKey = QStringLiteral("SubTickets");
const QString kValueKey = QStringLiteral("Value");
const QString kClientKey = QStringLiteral("Client");
const QString kLockedKey = QStringLiteral("Locked");
const QString kNumberTypeKey = QStringLiteral("NumberType");

const QString kTicketKeys[] = {kPrintSettingsTicketKey, kPageFormatTicketKey, kPrinterInfoTicketKey};

bool fail(QString* error, const QString& why)
{
    if (error)
        *error = why;
    return false;
}

} // namespace

PropertyValue ticketToPropertyList(const Ticket& ticket)
{
    PropertyValue items = PropertyValue::dictionary();
    for (const auto& [key, item] : ticket.items()) {
        PropertyValue entry = PropertyValue::dictionary();
        entry.insert(kValueKey, item.value);
        entry.insert(kClientKey, item.client);
        entry.insert(kLockedKey, PropertyValue::boolean(item.locked));
        if (const auto type = item.value.numberType())
            entry.insert(kNumberTypeKey, PropertyValue::integer(static_cast<int>(*type)));
        items.insert(key, std::move(entry));
    }
    PropertyValue result = PropertyValue::dictionary();
    result.insert(kItemsKey, std::move(items));
    result.insert(kPpdKey, ticket.ppdDictionary());
    if (!ticket.subTickets().empty()) {
        PropertyValue subs = PropertyValue::dictionary();
        for (const auto& [key, sub] : ticket.subTickets())
            subs.insert(key, ticketToPropertyList(*sub));
        result.insert(kSubTicketsKey, std::move(subs));
    }
    return result;
}

std::optional<Ticket> ticketFromPropertyList(const PropertyValue& value, QString* error)
{
    if (!value.isDictionary()) {
        fail(error, QStringLiteral("a ticket must be a dictionary"));
        return std::nullopt;
    }
    Ticket ticket;
    if (const PropertyValue* items = value.find(kItemsKey)) {
        if (!items->isDictionary()) {
            fail(error, QStringLiteral("\"Items\" must be a dictionary"));
            return std::nullopt;
        }
        for (const auto& [key, entry] : items->asDictionary()) {
            const PropertyValue* itemValue = entry.find(kValueKey);
            if (!itemValue || itemValue->isNull()) {
                fail(error, QStringLiteral("the item \"%1\" has no \"Value\"").arg(key));
                return std::nullopt;
            }
            PropertyValue stored = *itemValue;
            if (const PropertyValue* type = entry.find(kNumberTypeKey); type && stored.isNumber()) {
                const auto code = type->toInteger().value_or(0);
                if (code >= 1 && code <= 14) {
                    const auto numberType = static_cast<NumberType>(code);
                    stored = isFloatingNumberType(numberType)
                                 ? PropertyValue::real(*stored.toReal(), numberType)
                                 : PropertyValue::integer(stored.toInteger().value_or(0), numberType);
                }
            }
            const PropertyValue* client = entry.find(kClientKey);
            const PropertyValue* locked = entry.find(kLockedKey);
            ticket.setItem(client ? client->toString() : QString(), key, std::move(stored),
                           locked && locked->toBool().value_or(false));
        }
    }
    if (const PropertyValue* ppd = value.find(kPpdKey)) {
        if (!ppd->isDictionary()) {
            fail(error, QStringLiteral("\"PPD\" must be a dictionary"));
            return std::nullopt;
        }
        ticket.ppdDictionary() = *ppd;
    }
    if (const PropertyValue* subs = value.find(kSubTicketsKey)) {
        for (const auto& [key, sub] : subs->asDictionary()) {
            auto subTicket = ticketFromPropertyList(sub, error);
            if (!subTicket)
                return std::nullopt;
            ticket.ensureSubTicket(key) = std::move(*subTicket);
        }
    }
    return ticket;
}

PropertyValue sessionToPropertyList(const PrintSession& session)
{
    PropertyValue root = PropertyValue::dictionary();
    root.insert(kVersionKey, PropertyValue::integer(1));
    if (const auto& printer = session.currentPrinter()) {
        PropertyValue p = PropertyValue::dictionary();
        p.insert(QStringLiteral("Queue"), printer->queueName);
        p.insert(QStringLiteral("PPD"), printer->ppdPath);
        root.insert(kPrinterKey, std::move(p));
    }
    for (const QString& key : kTicketKeys)
        root.insert(key, ticketToPropertyList(*session.ticket(key)));
    return root;
}

bool sessionFromPropertyList(const PropertyValue& value, PrintSession& session, QString* error)
{
    if (!value.isDictionary())
        return fail(error, QStringLiteral("a ticket file must hold a dictionary"));
    if (!value.contains(kVersionKey))
        return fail(error, QStringLiteral("not a ticket file (no \"%1\")").arg(kVersionKey));
    Ticket loaded[3];
    for (int i = 0; i < 3; ++i) {
        if (const PropertyValue* t = value.find(kTicketKeys[i])) {
            QString why;
            auto ticket = ticketFromPropertyList(*t, &why);
            if (!ticket)
                return fail(error, kTicketKeys[i] + QStringLiteral(": ") + why);
            loaded[i] = std::move(*ticket);
        }
    }
    for (int i = 0; i < 3; ++i)
        *session.ticket(kTicketKeys[i]) = std::move(loaded[i]);
    if (const PropertyValue* p = value.find(kPrinterKey); p && p->isDictionary()) {
        const PropertyValue* queue = p->find(QStringLiteral("Queue"));
        const PropertyValue* ppd = p->find(QStringLiteral("PPD"));
        session.setCurrentPrinter(Printer{queue ? queue->toString() : QString(), ppd ? ppd->toString() : QString()});
    }
    return true;
}

bool saveTicketFile(const QString& path, const PrintSession& session, QString* error)
{
    int code = 0;
    QString why;
    // A job's own ticket holds its passcode: it is the user's alone.
    if (WritePropertyListFile(path, sessionToPropertyList(session), &code, &why,
                              FilePrivacy::OwnerOnly))
        return true;
    return fail(error, QStringLiteral("cannot write %1: %2").arg(path, why));
}

bool loadTicketFile(const QString& path, PrintSession& session, QString* error)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return fail(error, QStringLiteral("cannot read %1: %2").arg(path, file.errorString()));
    PropertyListError parseError;
    const auto value = readPropertyList(file.readAll(), &parseError);
    if (!value)
        return fail(error, QStringLiteral("%1: %2").arg(path, parseError.toString()));
    QString why;
    if (!sessionFromPropertyList(*value, session, &why))
        return fail(error, QStringLiteral("%1: %2").arg(path, why));
    return true;
}

} // namespace orvan
