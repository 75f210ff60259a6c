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
//                         "NumberType" = integer (type code; numbers only),
//                         "NumberTypes" = type tree (dictionaries and arrays
//                                         holding numbers only) } },
//     "PPD" = { main keyword = choice keyword },
//     "SubTickets" = { key = ticket } }          (only when there are any)
//
// Number types. A property list knows only <integer> and <real>, so the file
// records each number's type beside the value: "NumberType" holds the code of
// a number item (the NumberType enumerators: 3 SInt32, 4 SInt64, 5 Float32,
// 6 Float64, 9 Int, 14 CFIndex, ...). "NumberTypes" extends this to numbers
// inside dictionaries and arrays with a tree shaped like the value:
//   number      -> the type's name as a string ("SInt32", "Float32", "CFIndex")
//   dictionary  -> a dictionary holding the trees of the entries that hold numbers
//   array       -> an array with one tree per element, an empty dictionary
//                  standing for an element that holds no number
// for example, for the job-type item
//   Value       = { "JobType" = 2, "DelayedPrintTime" = 1700000000, "Name" = "x" }
//   NumberTypes = { "JobType" = "SInt32", "DelayedPrintTime" = "SInt64" }
// Every number the writer meets gets its type, so a saved ticket reloads with
// the types it was written with and saving it again gives the same bytes.
// Files written before "NumberTypes" existed still load; their nested
// numbers take the reader's default types (CFIndex, SInt64 beyond 32 bits,
// Float64). A type that the value cannot take exactly (a fraction for an
// integer type, an SInt32 beyond 32 bits), an unknown type, or a tree that does
// not match the value's shape makes the file unreadable, with the item named.
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
bool sessionFromPropertyList(const PropertyValue& value, PrintSession& session,
                             QString* error = nullptr);

// Whole files. Saving replaces the file atomically, readable by its owner
// only (0600: a ticket may hold a passcode); loading reads at most
// kMaxPropertyListFileSize bytes.
bool saveTicketFile(const QString& path, const PrintSession& session, QString* error = nullptr);
bool loadTicketFile(const QString& path, PrintSession& session, QString* error = nullptr);

// Replaces, anywhere in a property list, the value of every item that holds a
// passcode ("SecurePrintPassword") by kHiddenSecret: for tickets that are
// printed or logged rather than sent with the job.
inline const QString kHiddenSecret = QStringLiteral("(hidden)");
void HideTicketSecrets(PropertyValue& value);

} // namespace orvan
