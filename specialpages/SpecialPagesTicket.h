// Special pages in the print-settings ticket: the two covers, the insert and
// exception lists, and the job-level stock the special pages inherit from.
// Every item is written unlocked with the record client "com.orvan.print".
#pragma once

#include "settings/Status.h"
#include "settings/Ticket.h"
#include "specialpages/Cover.h"
#include "specialpages/ExceptionPageList.h"
#include "specialpages/InsertList.h"
#include "stock/Stock.h"

#include <memory>

namespace orvan {

enum class SpecialPagesSync : int
{
    WriteTicket = 0,
    ReadTicket = 1,
};

// Writing stores each cover present and removes the key of one that is
// absent; with booklet layout on and two equal covers only the front is
// stored (the back key is removed). Reading replaces both covers: with
// booklet layout on the back cover is a copy of the front (none without a
// front), otherwise each comes from its own key. Returns kNoError.
Status SyncCovers(Ticket& ticket, SpecialPagesSync direction, std::unique_ptr<Cover>& frontCover,
                  std::unique_ptr<Cover>& backCover);

// The two directions of SyncCovers on their own; writing only reads the covers.
Status WriteCoversToTicket(Ticket& ticket, const Cover* frontCover, const Cover* backCover);
void ReadCoversFromTicket(const Ticket& ticket, std::unique_ptr<Cover>& frontCover,
                          std::unique_ptr<Cover>& backCover);

// What the special pages of a job consist of, as the Special Pages editor and
// the Paper/Output panel hold it between syncs.
struct SpecialPagesState
{
    InsertList inserts;
    ExceptionPageList exceptions;
    std::unique_ptr<Cover> frontCover;
    std::unique_ptr<Cover> backCover;
    // The job's own stock, which unset attributes of special pages inherit;
    // null when the ticket has none.
    std::unique_ptr<Stock> jobLevelStock;

    // Replaces everything with the ticket's contents. The lists are rebuilt
    // with add, so inserts come back ordered by page and exception ranges
    // sorted and without overlaps; list entries that are not dictionaries
    // are skipped.
    void readFromTicket(const Ticket& ticket);
    // Stores the two lists (removing the key of an empty one), then the
    // covers unless left out (an editor that did not change them leaves
    // them to the other editor of covers, the Paper/Output panel). The
    // job-level stock belongs to the Paper/Output panel, which writes it; it
    // is not written here.
    Status writeToTicket(Ticket& ticket, bool withCovers = true) const;
};

} // namespace orvan
