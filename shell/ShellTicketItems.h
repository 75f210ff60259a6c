// The items the shell itself writes into the print-settings ticket on every
// write sync: the controller it speaks to and the client the job comes from.
#pragma once

#include "settings/Ticket.h"

#include <QString>

#include <functional>
#include <optional>

namespace orvan {

inline const QString kRotateBooklet180Key =
    QStringLiteral("com.orvan.print.RotateBooklet180Degrees");
inline const QString kControllerFamilyKey =
    QStringLiteral("com.orvan.print.ControllerInformation.ControllerFamily");
inline const QString kControllerVersionKey =
    QStringLiteral("com.orvan.print.ControllerInformation.ControllerVersion");
inline const QString kClientUserNameKey =
    QStringLiteral("com.orvan.print.ClientInformation.UserName");
inline const QString kClientComputerNameKey =
    QStringLiteral("com.orvan.print.ClientInformation.ComputerName");
inline const QString kClientIPAddressKey =
    QStringLiteral("com.orvan.print.ClientInformation.IPAddress");
inline const QString kControllerFamily = QStringLiteral("Meridian");
inline const QString kControllerVersion = QStringLiteral("5.0");

// The user, computer and address the job comes from; nullopt where unknown.
struct ClientFacts
{
    std::optional<QString> userName;
    std::optional<QString> computerName;
    std::optional<QString> ipAddress;
};

// The facts of this machine and session (platform/SystemFacts.h), unless a
// test installed its own source.
ClientFacts CurrentClientFacts();
using ClientFactsSource = std::function<ClientFacts()>;
void SetClientFactsSourceForTesting(ClientFactsSource source);

// Writes the shell's items with client "Q", unlocked:
// - removes the rotate-booklet item;
// - the controller family "Meridian" and version "5.0";
// - the user name, removed when there is none;
// - the computer name, only when every character lies in U+0020..U+00FE,
//   removed otherwise, and removed without looking at it when there is no
//   user: the printer's accounting reads the two together, so they come and
//   go together;
// - the IPv4 address, removed when there is none.
void WriteShellTicketItems(Ticket& printSettings, const ClientFacts& facts);

} // namespace orvan
