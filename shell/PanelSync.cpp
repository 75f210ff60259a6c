#include "shell/PanelSync.h"

#include "settings/PrintSession.h"

namespace orvan {

Status GetPrintSettingsForSync(PrintSession* session, Ticket** ticket)
{
    if (!ticket)
        return kBadParameter;
    *ticket = nullptr;
    if (!session)
        return kSyncMissingContext;
    if (const Status error = GetTicketFromSession(session, kPrintSettingsTicketKey, ticket))
        return error;
    return *ticket ? kNoError : kBadParameter;
}

} // namespace orvan
