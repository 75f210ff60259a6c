// The text that sums a stock up beside its button, one item per line on the
// panels and dialogs (", " inside a special page's summary line).
#pragma once

#include "stock/Stock.h"

#include <QString>

namespace orvan {

class Bundle;

// The current PPD's text of the choice that carries the value. A value no
// choice carries (unset in the job context) reads "PrinterDefault"; a choice
// the PPD has no text for reads as its keyword.
QString StockChoiceText(const Bundle* bundle, const char* mainKeyword, std::int32_t value);

// The type's text: customType for a named type (7), with the tab count as
// " (n)" for named tab stock (6); the pre-cut tab text with its count (4);
// the PPD's text otherwise, with the count for tab stocks (24, 33) that have
// one.
QString StockTypeText(const Bundle* bundle, const Stock& stock);

// The summary items of the stock joined with the separator. Texts of sizes,
// colours and types are the current PPD's choice texts.
//  - Source unset: "StockName" ":" customName when there is one; then, unless
//    customNameOnly, the size (only in a special-page context, only when
//    set), the colour and the type, each as "- " and its text. The job
//    context lists an unset colour or type (as "PrinterDefault"), a special
//    page leaves it out. Colour 10 reads "StockColor" ":" customColor; types
//    4, 6, and 24 or 33 with a tab count above 0 add the count as " (n)".
//  - Source 10: "- " and the post-print inserter's name, nothing else.
//  - Any other source: empty.
QString GenerateStockSummary(const Bundle* bundle, JobContext context, const Stock& stock,
                             const QString& separator);

// What a summary view shows: the summary with line breaks; when that is
// empty, "UseJobSetting" (special pages) or "PrinterDefault" (the job); an
// empty text without a stock.
QString StockSummaryText(const Bundle* bundle, const Stock* stock, JobContext context);

} // namespace orvan
