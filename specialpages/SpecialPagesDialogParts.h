// Pieces the three special-page dialogs share.
#pragma once

#include <QString>

class QBoxLayout;
class QDialog;
class QDialogButtonBox;
class QLabel;
class QLineEdit;
class QPixmap;
class QWidget;

namespace orvan {

class Bundle;
class Stock;

// A text field for page ranges ("PagesField") that takes only the
// characters of page ranges.
QLineEdit* NewPageRangeField(QWidget* parent);

// OK ("OKButton") and Cancel ("CancelButton"). Cancel rejects the dialog; OK
// only emits accepted(), so the dialog decides whether to close.
QDialogButtonBox* NewOkCancelButtons(QDialog* dialog);

// "Job paper: ..." with the job's stock summary ("JobStockLabel"); null
// without a stock.
QLabel* NewJobStockLabel(const Bundle* bundle, const Stock* jobStock, QWidget* parent);

// A picture of the bundle by its name; a null pixmap when missing.
QPixmap SpecialPagesPicture(const Bundle* bundle, const QString& imageName);

// The dialog's outer layout with the usual margins.
QBoxLayout* NewDialogLayout(QDialog* dialog);

} // namespace orvan
