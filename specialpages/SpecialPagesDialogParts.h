// Pieces the three special-page dialogs share.
#pragma once

#include <QString>

#include <functional>

class QDialog;
class QLayout;
class QLineEdit;
class QPixmap;
class QWidget;

namespace orvan {

class Bundle;
class Stock;

// A text field for page ranges ("PagesField") that takes only the
// characters of page ranges.
QLineEdit* NewPageRangeField(QWidget* parent);

// A picture of the bundle by its name; a null pixmap when missing.
QPixmap SpecialPagesPicture(const Bundle* bundle, const QString& imageName);

// Lays the dialog out: `fields` on top; below them the "Paper Group" box
// ("PaperGroup") with the stock button and, with a job stock, "Job paper:
// ..." and the job's stock summary ("JobStockLabel"); then OK ("OKButton")
// and Cancel ("CancelButton"). Cancel rejects the dialog; OK only calls
// `onOk`, so the dialog decides whether to close.
void LayOutSpecialPageDialog(QDialog* dialog, const Bundle* bundle, QLayout* fields,
                             QWidget* stockButton, const Stock* jobStock,
                             std::function<void()> onOk);

} // namespace orvan
