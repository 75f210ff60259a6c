#include "settings/PrintSession.h"

namespace orvan {

namespace {
PrintSession* g_currentSession = nullptr;
}

Ticket* PrintSession::ticket(const QString& sessionKey)
{
    return const_cast<Ticket*>(static_cast<const PrintSession*>(this)->ticket(sessionKey));
}

const Ticket* PrintSession::ticket(const QString& sessionKey) const
{
    if (sessionKey == kPrintSettingsTicketKey)
        return &m_printSettings;
    if (sessionKey == kPageFormatTicketKey)
        return &m_pageFormat;
    if (sessionKey == kPrinterInfoTicketKey)
        return &m_printerInfo;
    return nullptr;
}

Status GetTicketFromSession(PrintSession* session, const QString& key, Ticket** ticket)
{
    if (!session || !ticket)
        return kBadParameter;
    if (Ticket* found = session->ticket(key))
        *ticket = found;
    return kNoError;
}

PrintSession* GetCurrentPrintSession()
{
    return g_currentSession;
}

void SetCurrentPrintSession(PrintSession* session)
{
    g_currentSession = session;
}

} // namespace orvan
