#include "ui/SummaryView.h"

#include <QPlainTextEdit>
#include <QTextEdit>

namespace orvan {

namespace {

template <typename View> Status updateReadOnlyView(View* view, const QString& text)
{
    if (!view || text.isNull())
        return kBadParameter;
    view->setReadOnly(false);
    view->setPlainText(text);
    view->setReadOnly(true);
    return kNoError;
}

} // namespace

Status UpdateSummaryTextView(QTextEdit* view, const QString& text)
{
    return updateReadOnlyView(view, text);
}

Status UpdateSummaryTextView(QPlainTextEdit* view, const QString& text)
{
    return updateReadOnlyView(view, text);
}

} // namespace orvan
