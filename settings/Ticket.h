// Tickets: the job description a print session carries, item by item.
#pragma once

#include "settings/PropertyValue.h"
#include "settings/Status.h"

#include <QString>

#include <map>
#include <memory>
#include <optional>

namespace orvan {

// Client strings of this system's ticket writes.
inline const QString kPanelClient = QStringLiteral("com.orvan.printingmanager");
inline const QString kRecordClient = QStringLiteral("com.orvan.print");
inline const QString kShellClient = QStringLiteral("Q");

// One ticket item: its value, the client (creator) string of the write and
// whether it is locked against later writes.
struct TicketItem
{
    PropertyValue value;
    QString client;
    bool locked = false;

    friend bool operator==(const TicketItem&, const TicketItem&) = default;
};

// A ticket holds items by key, a PPD dictionary (PPD main keyword -> chosen
// choice keyword) and may hold sub-tickets by key. The client string plays no
// part in reading.
class Ticket
{
public:
    Ticket() = default;
    Ticket(const Ticket& other);
    Ticket& operator=(const Ticket& other);
    Ticket(Ticket&&) noexcept = default;
    Ticket& operator=(Ticket&&) noexcept = default;

    // Sets an item, replacing an unlocked one. kBadParameter for an empty key
    // or a Null value, kTicketItemLocked when the present item is locked.
    Status setItem(const QString& client, const QString& key, PropertyValue value,
                   bool locked = false);
    const TicketItem* item(const QString& key) const;
    // The item's value, or nullptr when absent.
    const PropertyValue* value(const QString& key) const;
    bool containsItem(const QString& key) const { return m_items.count(key) != 0; }
    // Removes an item: kTicketItemNotFound when absent, kTicketItemLocked when locked.
    Status releaseItem(const QString& key);
    const std::map<QString, TicketItem>& items() const { return m_items; }

    // Typed readers of a top-level item; nullopt (or an empty value) when the
    // item is absent or of another kind.
    std::optional<QString> string(const QString& key) const;
    std::optional<bool> boolean(const QString& key) const;
    std::optional<std::int64_t> integer(const QString& key,
                                        NumberType type = NumberType::CFIndex) const;
    std::optional<double> real(const QString& key) const;
    const PropertyValue* dictionary(const QString& key) const;
    const PropertyValue* array(const QString& key) const;

    // The PPD dictionary, always a dictionary and mutable in place.
    PropertyValue& ppdDictionary() { return m_ppd; }
    const PropertyValue& ppdDictionary() const { return m_ppd; }

    // Sub-tickets by key.
    Ticket* subTicket(const QString& key);
    const Ticket* subTicket(const QString& key) const;
    Ticket& ensureSubTicket(const QString& key);
    const std::map<QString, std::unique_ptr<Ticket>>& subTickets() const { return m_subTickets; }

    bool isEmpty() const { return m_items.empty() && m_ppd.size() == 0 && m_subTickets.empty(); }
    friend bool operator==(const Ticket& a, const Ticket& b);

private:
    std::map<QString, TicketItem> m_items;
    PropertyValue m_ppd = PropertyValue::dictionary();
    std::map<QString, std::unique_ptr<Ticket>> m_subTickets;
};

} // namespace orvan
