// Turning a session's tickets into a CUPS job: the PPD choices of the
// print-settings ticket become job options, with the copies and the page
// range of the dialog.
#pragma once

#include "settings/PrintSession.h"

#include <QString>
#include <QStringList>

#include <utility>
#include <vector>

namespace orvan {

inline const QString kCopiesKey = QStringLiteral("com.apple.print.PrintSettings.PMCopies");
inline const QString kFirstPageKey = QStringLiteral("com.apple.print.PrintSettings.PMFirstPage");
inline const QString kLastPageKey = QStringLiteral("com.apple.print.PrintSettings.PMLastPage");
// The job's name; the dialog names a job after its first document.
inline const QString kJobNameKey = QStringLiteral("com.apple.print.JobInfo.PMJobName");
inline const QString kPrintingManagerClient = QStringLiteral("com.apple.printingmanager");
// The last page of "all pages".
inline constexpr int kAllPagesLast = 2147483647;

// Copies and page range as the dialog writes them into the ticket.
void WriteCopiesAndPages(Ticket& printSettings, int copies, int firstPage, int lastPage);
int CopiesFromTicket(const Ticket& printSettings);
std::pair<int, int> PageRangeFromTicket(const Ticket& printSettings);

using JobOptions = std::vector<std::pair<QString, QString>>;
// The job options of a session: every PPD choice, "copies", and
// "page-ranges" when not all pages print.
JobOptions JobOptionsFromSession(const PrintSession& session);

// Submits the files to a CUPS queue; the job id, or 0 with the reason.
int SubmitJob(const QString& queueName, const QStringList& files, const QString& title, const JobOptions& options,
              QString* error);

} // namespace orvan
