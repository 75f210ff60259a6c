// Saved ticket files: a print session's three tickets (and its printer) in
// one XML property list, so that a dialog can start from the settings of an
// earlier job and scripts can inspect what a job carries.
//
// Layout (every key spelt as here):
//   <dict>
//     "OrvanTicketFileVersion" = 1
//     "Printer"  = { "Queue" = string, "PPD" = string }        (when the session has one)
//     "PMPrintSettingsTicket" / "PMPageFormatTicket" / "PMPrinterInfoTicket" = ticket
//   </dict>
// where a ticket is
//   { "Items" = { key = { "Value" = value, "Client" = string, "Locked" = boolean,
//                         "NumberType" = integer (type code; numbers only) } },
//     "PPD" = { main keyword = choice keyword },
//     "SubTickets" = { key = ticket } }          (only when there are any)
#pragma once

#include "settings/PrintSession.h"
#include "settings/PropertyValue.h"

#include <QString>

#include <optional>

namespace orvan {

PropertyValue ticketToPropertyList(const Ticket& ticket);
// nullopt with a reason when the value is not a ticket in the layout above.
std::optional<Ticket> ticketFromPropertyList(const PropertyValue& value, QString* error = nullptr);

PropertyValue sessionToPropertyList(const PrintSession& session);
// Replaces the session's tickets (and printer, when the file names one).
bool sessionFromPropertyList(const PropertyValue& value, PrintSession& session, QString* error = nullptr);

// Whole files; writing replaces the file atomically, readable by its owner
// only (a ticket may hold a passcode).
bool saveTicketFile(const QString& path, const PrintSession& session, QString* error = nullptr);
bool loadTicketFile(const QString& path, PrintSession& session, QString* error = nullptr);

// Replaces, anywhere in a property list, the value of every item that holds a
// passcode ("SecurePrintPassword") by kHiddenSecret: for tickets that are
// printed or logged rather than sent with the job.
inline const QString kHiddenSecret = QStringLiteral("(hidden)");
void HideTicketSecrets(PropertyValue& value);

} // namespace orvan
