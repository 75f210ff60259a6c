#include "settings/TicketFile.h"

#include "settings/Preferences.h"
#include "settings/PropertyList.h"

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
const QString kNumberTypesKey = QStringLiteral("NumberTypes");

const QString kTicketKeys[] = {kPrintSettingsTicketKey, kPageFormatTicketKey,
                               kPrinterInfoTicketKey};

bool fail(QString* error, const QString& why)
{
    if (error)
        *error = why;
    return false;
}

// The type tree of a value (see the header); Null when it holds no number.
PropertyValue numberTypeTree(const PropertyValue& value)
{
    if (const auto type = value.numberType())
        return PropertyValue(numberTypeName(*type));
    if (value.isDictionary()) {
        PropertyValue tree;
        for (const auto& [key, child] : value.asDictionary())
            if (PropertyValue sub = numberTypeTree(child); !sub.isNull())
                tree.insert(key, std::move(sub));
        return tree;
    }
    if (value.isArray()) {
        PropertyValue tree = PropertyValue::array();
        bool holdsNumber = false;
        for (const auto& child : value.asArray()) {
            PropertyValue sub = numberTypeTree(child);
            holdsNumber = holdsNumber || !sub.isNull();
            tree.append(sub.isNull() ? PropertyValue::dictionary() : std::move(sub));
        }
        return holdsNumber ? tree : PropertyValue();
    }
    return {};
}

// The number with the given type, when it takes that type exactly.
std::optional<PropertyValue> withNumberType(const PropertyValue& number, NumberType type)
{
    if (isFloatingNumberType(type)) {
        const auto real = number.realAs(type);
        return real ? std::optional(PropertyValue::real(*real, type)) : std::nullopt;
    }
    const auto whole = number.integerAs(type);
    return whole ? std::optional(PropertyValue::integer(*whole, type)) : std::nullopt;
}

bool applyNumberType(PropertyValue& value, NumberType type, QString* error)
{
    auto typed = value.isNumber() ? withNumberType(value, type) : std::nullopt;
    if (!typed)
        return fail(error,
                    QStringLiteral("%1 cannot be of type %2")
                        .arg(value.debugString().left(40), QLatin1String(numberTypeName(type))));
    value = std::move(*typed);
    return true;
}

// Gives the numbers in value the types that tree names.
bool applyNumberTypeTree(PropertyValue& value, const PropertyValue& tree, QString* error)
{
    switch (tree.kind()) {
    case PropertyValue::Kind::String: {
        const auto type = numberTypeFromName(tree.toString());
        if (!type)
            return fail(error,
                        QStringLiteral("unknown number type \"%1\"").arg(tree.toString().left(40)));
        return applyNumberType(value, *type, error);
    }
    case PropertyValue::Kind::Dictionary:
        if (tree.size() == 0)
            return true;
        if (!value.isDictionary())
            return fail(
                error,
                QStringLiteral("the number types name entries of a value that is no dictionary"));
        for (const auto& [key, sub] : tree.asDictionary()) {
            PropertyValue* child = value.find(key);
            if (!child)
                return fail(
                    error,
                    QStringLiteral("the number types name \"%1\", which the value lacks").arg(key));
            if (!applyNumberTypeTree(*child, sub, error))
                return false;
        }
        return true;
    case PropertyValue::Kind::Array:
        if (!value.isArray() || value.size() != tree.size())
            return fail(error,
                        QStringLiteral("the number types do not match the array they describe"));
        for (std::size_t i = 0; i < tree.size(); ++i)
            if (!applyNumberTypeTree(value.asArray()[i], tree.asArray()[i], error))
                return false;
        return true;
    case PropertyValue::Kind::Null:
    case PropertyValue::Kind::Integer:
    case PropertyValue::Kind::Real:
    case PropertyValue::Kind::Boolean:
    case PropertyValue::Kind::Data:
    case PropertyValue::Kind::Date:
        break;
    }
    return fail(error, QStringLiteral("number types must be names, dictionaries or arrays"));
}

// The stored value of an item entry, with the number types the entry records.
bool readItemValue(const PropertyValue& entry, PropertyValue& stored, QString* error)
{
    if (const PropertyValue* code = entry.find(kNumberTypeKey); code && stored.isNumber()) {
        const auto number = code->toInteger().value_or(0);
        if (number < static_cast<int>(NumberType::SInt8) ||
            number > static_cast<int>(NumberType::CFIndex))
            return fail(
                error,
                QStringLiteral("unknown number type code %1").arg(code->debugString().left(40)));
        if (!applyNumberType(stored, static_cast<NumberType>(number), error))
            return false;
    }
    if (const PropertyValue* tree = entry.find(kNumberTypesKey))
        return applyNumberTypeTree(stored, *tree, error);
    return true;
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
        else if (PropertyValue tree = numberTypeTree(item.value); !tree.isNull())
            entry.insert(kNumberTypesKey, std::move(tree));
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
            QString why;
            if (!readItemValue(entry, stored, &why)) {
                fail(error, QStringLiteral("the item \"%1\": %2").arg(key, why));
                return std::nullopt;
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
        session.setCurrentPrinter(
            Printer{queue ? queue->toString() : QString(), ppd ? ppd->toString() : QString()});
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
    QString why;
    const auto value = ReadPropertyListFile(path, &why);
    if (!value)
        return fail(error, QStringLiteral("cannot read %1: %2").arg(path, why));
    if (!sessionFromPropertyList(*value, session, &why))
        return fail(error, QStringLiteral("%1: %2").arg(path, why));
    return true;
}

void HideTicketSecrets(PropertyValue& value)
{
    if (value.isArray()) {
        for (PropertyValue& element : value.asArray())
            HideTicketSecrets(element);
    } else if (value.isDictionary()) {
        for (auto& [key, element] : value.asDictionary()) {
            if (key == QLatin1String("SecurePrintPassword"))
                element = PropertyValue(kHiddenSecret);
            else
                HideTicketSecrets(element);
        }
    }
}

} // namespace orvan
