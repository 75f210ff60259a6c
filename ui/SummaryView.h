// Read-only summary views (the stock, special-pages and setup summaries).
#pragma once

#include "settings/Status.h"

#include <QString>

class QPlainTextEdit;
class QTextEdit;

namespace orvan {

// Shows a new text in a read-only view: makes it writable, sets the text as
// plain text and makes it read-only again. kBadParameter for a null view or
// a null text (QString()); an empty text clears the view.
Status UpdateSummaryTextView(QTextEdit* view, const QString& text);
Status UpdateSummaryTextView(QPlainTextEdit* view, const QString& text);

} // namespace orvan
