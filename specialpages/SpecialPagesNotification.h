// Alerts for the page-range results of the inserts and exceptions dialogs.
#pragma once

#include "settings/Status.h"

namespace orvan {

class Bundle;

// Shows a caution alert for kPageNumberLimit, kInvalidPageRanges,
// kInvalidRangeOrder, kInvalidPageNumbers and kPageRangeConflict, with the
// title and message texts of the bundle's default table ("STRING NOT FOUND"
// where a text is missing). Any other code shows nothing.
void SpecialPagesUserNotification(Status code, const Bundle& bundle);
// The same without a bundle: every text reads "STRING NOT FOUND".
void SpecialPagesUserNotification(Status code, const Bundle* bundle);

} // namespace orvan
