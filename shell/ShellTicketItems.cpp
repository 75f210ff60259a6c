#include "shell/ShellTicketItems.h"

#include "platform/SystemFacts.h"

namespace orvan {

namespace {

ClientFactsSource& factsSource()
{
    static ClientFactsSource source;
    return source;
}

bool allCharactersPrintableLatin1(const QString& text)
{
    for (const QChar c : text)
        if (c.unicode() < 0x20 || c.unicode() > 0xFE)
            return false;
    return true;
}

void setOrRemove(Ticket& ticket, const QString& key, const std::optional<QString>& value)
{
    if (value)
        ticket.setItem(kShellClient, key, PropertyValue(*value));
    else
        ticket.releaseItem(key);
}

} // namespace

ClientFacts CurrentClientFacts()
{
    if (factsSource())
        return factsSource()();
    return ClientFacts{SessionUserName(), ComputerName(), PrimaryIPv4Address()};
}

void SetClientFactsSourceForTesting(ClientFactsSource source)
{
    factsSource() = std::move(source);
}

void WriteShellTicketItems(Ticket& ticket, const ClientFacts& facts)
{
    ticket.releaseItem(kRotateBooklet180Key);
    ticket.setItem(kShellClient, kControllerFamilyKey, PropertyValue(kControllerFamily));
    ticket.setItem(kShellClient, kControllerVersionKey, PropertyValue(kControllerVersion));
    setOrRemove(ticket, kClientUserNameKey, facts.userName);
    std::optional<QString> computer;
    if (facts.userName && facts.computerName && allCharactersPrintableLatin1(*facts.computerName))
        computer = facts.computerName;
    setOrRemove(ticket, kClientComputerNameKey, computer);
    setOrRemove(ticket, kClientIPAddressKey, facts.ipAddress);
}

} // namespace orvan
