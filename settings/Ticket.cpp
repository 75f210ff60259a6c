#include "settings/Ticket.h"

namespace orvan {

Ticket::Ticket(const Ticket& other) : m_items(other.m_items), m_ppd(other.m_ppd)
{
    for (const auto& [key, sub] : other.m_subTickets)
        m_subTickets.emplace(key, std::make_unique<Ticket>(*sub));
}

Ticket& Ticket::operator=(const Ticket& other)
{
    if (this != &other) {
        Ticket copy(other);
        *this = std::move(copy);
    }
    return *this;
}

Status Ticket::setItem(const QString& client, const QString& key, PropertyValue value, bool locked)
{
    if (key.isEmpty() || value.isNull())
        return kBadParameter;
    auto it = m_items.find(key);
    if (it != m_items.end()) {
        if (it->second.locked)
            return kTicketItemLocked;
        it->second = TicketItem{std::move(value), client, locked};
    } else {
        m_items.emplace(key, TicketItem{std::move(value), client, locked});
    }
    return kNoError;
}

const TicketItem* Ticket::item(const QString& key) const
{
    const auto it = m_items.find(key);
    return it == m_items.end() ? nullptr : &it->second;
}

const PropertyValue* Ticket::value(const QString& key) const
{
    const TicketItem* found = item(key);
    return found ? &found->value : nullptr;
}

Status Ticket::releaseItem(const QString& key)
{
    const auto it = m_items.find(key);
    if (it == m_items.end())
        return kTicketItemNotFound;
    if (it->second.locked)
        return kTicketItemLocked;
    m_items.erase(it);
    return kNoError;
}

std::optional<QString> Ticket::string(const QString& key) const
{
    const PropertyValue* v = value(key);
    if (!v || !v->isString())
        return std::nullopt;
    return v->toString();
}

std::optional<bool> Ticket::boolean(const QString& key) const
{
    const PropertyValue* v = value(key);
    return v ? v->toBool() : std::nullopt;
}

std::optional<std::int64_t> Ticket::integer(const QString& key, NumberType type) const
{
    const PropertyValue* v = value(key);
    return v ? v->integerAs(type) : std::nullopt;
}

std::optional<double> Ticket::real(const QString& key) const
{
    const PropertyValue* v = value(key);
    return v ? v->toReal() : std::nullopt;
}

const PropertyValue* Ticket::dictionary(const QString& key) const
{
    const PropertyValue* v = value(key);
    return v && v->isDictionary() ? v : nullptr;
}

const PropertyValue* Ticket::array(const QString& key) const
{
    const PropertyValue* v = value(key);
    return v && v->isArray() ? v : nullptr;
}

Ticket* Ticket::subTicket(const QString& key)
{
    const auto it = m_subTickets.find(key);
    return it == m_subTickets.end() ? nullptr : it->second.get();
}

const Ticket* Ticket::subTicket(const QString& key) const
{
    const auto it = m_subTickets.find(key);
    return it == m_subTickets.end() ? nullptr : it->second.get();
}

Ticket& Ticket::ensureSubTicket(const QString& key)
{
    auto& slot = m_subTickets[key];
    if (!slot)
        slot = std::make_unique<Ticket>();
    return *slot;
}

bool operator==(const Ticket& a, const Ticket& b)
{
    if (a.m_items != b.m_items || a.m_ppd != b.m_ppd ||
        a.m_subTickets.size() != b.m_subTickets.size())
        return false;
    for (const auto& [key, sub] : a.m_subTickets) {
        const Ticket* other = b.subTicket(key);
        if (!other || !(*sub == *other))
            return false;
    }
    return true;
}

} // namespace orvan
