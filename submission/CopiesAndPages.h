// Copies and page range: the dialog's own settings, kept in the
// print-settings ticket under the printing manager's keys.
#pragma once

#include "settings/Ticket.h"

#include <QString>

#include <utility>

namespace orvan {

inline const QString kCopiesKey = QStringLiteral("com.apple.print.PrintSettings.PMCopies");
inline const QString kFirstPageKey = QStringLiteral("com.apple.print.PrintSettings.PMFirstPage");
inline const QString kLastPageKey = QStringLiteral("com.apple.print.PrintSettings.PMLastPage");
inline const QString kPrintingManagerClient = QStringLiteral("com.apple.printingmanager");
// The last page of "all pages".
inline constexpr int kAllPagesLast = 2147483647;

// Copies and page range as the dialog writes them into the ticket.
void WriteCopiesAndPages(Ticket& printSettings, int copies, int firstPage, int lastPage);
// At least one copy; nonsense reads as one.
int CopiesFromTicket(const Ticket& printSettings);
// First and last page; nonsense reads as all pages (1, kAllPagesLast).
std::pair<int, int> PageRangeFromTicket(const Ticket& printSettings);

} // namespace orvan
