// orvan-print --print: the job printed with the session's settings and no
// dialog, for scripts.
#pragma once

#include "host/PluginHost.h"
#include "host/PrinterList.h"

#include <QStringList>

namespace orvan {

// Runs the plug-in over the session as the dialog would (the page setup
// first, so its panels fill in what the tickets leave open), saves the job's
// ticket when saveTicket is set, and sends the files as the dialog's Print
// does (SubmitSession: the watermark stamped, the pages laid out by the
// printer). Prints each job id on a line of standard output
// and what was left out as warnings on standard error. Returns the exit
// status: 0, or 1 after a one-line reason on standard error.
int RunHeadlessPrint(PluginHost& plugin, PrintSession& session, const PrinterEntry& printer,
                     const QStringList& files, const QString& saveTicket);

} // namespace orvan
