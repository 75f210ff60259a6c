// What every panel model's Sync does first: find the print-settings ticket
// of the session it is given.
#pragma once

#include "settings/Status.h"

namespace orvan {

class PrintSession;
class Ticket;

// The session's print-settings ticket in *ticket. kSyncMissingContext without
// a session, the session's error when it has no such ticket, kBadParameter
// when it hands back none.
Status GetPrintSettingsForSync(PrintSession* session, Ticket** ticket);

} // namespace orvan
