// The print session: the three tickets of one Print dialog, the current
// printer and the location of its PPD. The host owns it; the plug-in reaches
// it through the session argument of its operations or GetCurrentPrintSession.
#pragma once

#include "settings/Status.h"
#include "settings/Ticket.h"

#include <QString>

#include <optional>

namespace orvan {

// Session data keys of the three tickets.
inline const QString kPrintSettingsTicketKey = QStringLiteral("PMPrintSettingsTicket");
inline const QString kPageFormatTicketKey = QStringLiteral("PMPageFormatTicket");
inline const QString kPrinterInfoTicketKey = QStringLiteral("PMPrinterInfoTicket");

// The printer a session prints to: its queue name (empty for a PPD file given
// without a queue) and the location of its PPD file (empty when it has none).
struct Printer
{
    QString queueName;
    QString ppdPath;

    friend bool operator==(const Printer&, const Printer&) = default;
};

class PrintSession
{
public:
    // The ticket under a session data key; nullptr for any other key.
    Ticket* ticket(const QString& sessionKey);
    const Ticket* ticket(const QString& sessionKey) const;

    Ticket& printSettings() { return m_printSettings; }
    Ticket& pageFormat() { return m_pageFormat; }
    Ticket& printerInfo() { return m_printerInfo; }
    const Ticket& printSettings() const { return m_printSettings; }
    const Ticket& pageFormat() const { return m_pageFormat; }
    const Ticket& printerInfo() const { return m_printerInfo; }

    const std::optional<Printer>& currentPrinter() const { return m_printer; }
    void setCurrentPrinter(std::optional<Printer> printer) { m_printer = std::move(printer); }

private:
    Ticket m_printSettings;
    Ticket m_pageFormat;
    Ticket m_printerInfo;
    std::optional<Printer> m_printer;
};

// The ticket under a session data key: kBadParameter for a null session or
// output; when the session has no ticket under the key the result is 0 and the
// output is left untouched; otherwise the ticket is stored in the output.
Status GetTicketFromSession(PrintSession* session, const QString& key, Ticket** ticket);

// The process-wide print session of the open dialog (one dialog at a time).
PrintSession* GetCurrentPrintSession();
void SetCurrentPrintSession(PrintSession* session);

} // namespace orvan
