#include "host/HeadlessPrint.h"

#include "host/JobSubmission.h"
#include "host/PaperSizes.h"
#include "settings/TicketFile.h"

#include <cstdio>

namespace orvan {

int RunHeadlessPrint(PluginHost& plugin, PrintSession& session, const PrinterEntry& printer,
                     const QStringList& files, const QString& saveTicket)
{
    // The page setup of the tickets, on the printer's papers, goes into the
    // tickets before the panels read them, as the dialog shows it.
    const QString ppd = session.currentPrinter().value_or(Printer{}).ppdPath;
    WritePageSetup(session, ReadPageSetup(session, PapersOfPrinter(printer, ppd)));
    plugin.prolog();
    plugin.initialize({}, &session);
    plugin.sync(&session, true);
    plugin.open();
    plugin.sync(&session, false);
    plugin.close();
    plugin.terminate(kNoError);
    QString why;
    if (!saveTicket.isEmpty() && !saveTicketFile(saveTicket, session, &why)) {
        std::fprintf(stderr, "orvan-print: %s\n", why.toLocal8Bit().constData());
        return 1;
    }
    const submission::SubmissionResult result = SubmitSession(session, printer, files);
    for (const QString& notice : result.notices)
        std::fprintf(stderr, "orvan-print: warning: %s\n", notice.toLocal8Bit().constData());
    if (!result.error.isEmpty()) {
        std::fprintf(stderr, "orvan-print: %s\n", result.error.toLocal8Bit().constData());
        return 1;
    }
    for (int id : result.jobIds)
        std::printf("%d\n", id);
    return 0;
}

} // namespace orvan
