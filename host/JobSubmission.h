// Sending the session's job to the printer the dialog (or a headless run)
// has chosen: a CUPS queue, or an IPP printer given by its address.
#pragma once

#include "host/PrinterList.h"
#include "settings/PageFormat.h" // kJobNameKey: the dialog names a job after its first document
#include "settings/PrintSession.h"
#include "submission/CopiesAndPages.h"
#include "submission/Submission.h"

#include <QStringList>

namespace orvan {

// The files as the session's job on the printer; the job is named after the
// first file unless the tickets name it. No printer filter applies the
// watermark the tickets select: the job gets copies with it stamped on the
// pages of the tickets' range, drawn for the tickets' paper, and the printer
// lays them out on sheets. A printer with neither a queue nor an address (the
// sample printer, a PPD file) cannot take a job. The Print dialog and
// orvan-print --print both send their jobs here.
submission::SubmissionResult SubmitSession(const PrintSession& session, const PrinterEntry& printer,
                                           const QStringList& files);

} // namespace orvan
