// Separator sheets between transparencies: whether they are put in (none,
// blank or printed) and the stock they are printed on. The panel offers them
// only while the job's stock is transparency.
//
// Ticket items (print-settings ticket, panel client):
//   "com.orvan.print.SeparatorOption"  CFIndex, a `_SeparatorOptionMap` value
//                                      (1 none, 2 blank, 3 printed)
//   "com.orvan.print.SeparatorColor"   the separator stock as a stock
//                                      dictionary; its "Color" is the sheet colour
#pragma once

#include "paperoutput/PaperOutputRecord.h"
#include "settings/Status.h"

#include <QString>

namespace orvan {

class Bundle;
class Ticket;

// Reads both items; an item of the wrong kind (or a value that is not one of
// the three options) leaves its field as it was.
void SyncSeparatorsFromTicket(const Ticket& ticket, PaperOutputRecord& record);
Status SyncSeparatorsToTicket(Ticket& ticket, const PaperOutputRecord& record);

// The separator line of the stock summary for transparency stock (type 2):
// "Separators: Blank, Blue" (the colour only when sheets are put in); empty
// for any other stock.
QString AppendSeparatorSummary(const Bundle* bundle, const PaperOutputRecord& record);

} // namespace orvan
