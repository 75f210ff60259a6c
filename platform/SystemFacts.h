// Facts about the machine and the user that the dialog writes into tickets.
// Each answers nullopt when it cannot be found.
#pragma once

#include <QString>

#include <optional>

namespace orvan {

// The name of the user the session runs for.
std::optional<QString> SessionUserName();
// The computer's pretty name (PRETTY_HOSTNAME of /etc/machine-info), else its
// host name.
std::optional<QString> ComputerName();
// The IPv4 address of the interface that carries the default route.
std::optional<QString> PrimaryIPv4Address();

// The pretty name from the text of a machine-info file (KEY=value lines,
// values optionally quoted); nullopt when it names none.
std::optional<QString> prettyHostNameFromMachineInfo(const QString& text);
// The interface of the default route from the text of /proc/net/route.
std::optional<QString> defaultRouteInterface(const QString& routeTable);

} // namespace orvan
