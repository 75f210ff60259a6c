#include "submission/CopiesAndPages.h"

namespace orvan {

void WriteCopiesAndPages(Ticket& ticket, int copies, int firstPage, int lastPage)
{
    ticket.setItem(kPrintingManagerClient, kCopiesKey, PropertyValue::integer(copies));
    ticket.setItem(kPrintingManagerClient, kFirstPageKey, PropertyValue::integer(firstPage));
    ticket.setItem(kPrintingManagerClient, kLastPageKey, PropertyValue::integer(lastPage));
}

int CopiesFromTicket(const Ticket& ticket)
{
    const auto copies = ticket.integer(kCopiesKey);
    return copies && *copies >= 1 ? static_cast<int>(*copies) : 1;
}

std::pair<int, int> PageRangeFromTicket(const Ticket& ticket)
{
    const int first = static_cast<int>(ticket.integer(kFirstPageKey).value_or(1));
    const int last = static_cast<int>(ticket.integer(kLastPageKey).value_or(kAllPagesLast));
    if (first < 1 || last < first)
        return {1, kAllPagesLast};
    return {first, last};
}

} // namespace orvan
