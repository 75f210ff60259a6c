// The stock description setup dialog ("StockDescriptionSetup"): shows the
// stock being chosen as its summary and lets the user name it (the name the
// printer matches against its loaded stocks) and describe it. It edits the
// stock only on OK.
#pragma once

#include "stock/Stock.h"

#include <QDialog>

class QLineEdit;

namespace orvan {

class Bundle;

// The help page the dialog's Help button opens.
inline const QString kStockDescriptionHelpPage =
    QStringLiteral("paper_output/paper/db_new_edit_named_paper_d.htm");

// Object names: "StockDescriptionSummary" (the stock's summary, read-only),
// "StockName", "StockDescription" (text fields), the buttons "OKButton",
// "CancelButton" and "HelpButton".
class StockDescriptionDialog : public QDialog
{
    Q_OBJECT

public:
    StockDescriptionDialog(const Bundle* bundle, const Stock& stock, JobContext context,
                           QWidget* parent = nullptr);

    // The fields as typed, the name without surrounding spaces.
    QString name() const;
    QString description() const;

private:
    QLineEdit* m_name;
    QLineEdit* m_description;
};

// Runs the dialog application-modal on the stock. On OK the stock takes the
// name (customName) and the description, and the result is true; Cancel
// leaves it untouched.
bool RunModalStockDescriptionSetup(const Bundle* bundle, Stock& stock, JobContext context,
                                   QWidget* parent = nullptr);

} // namespace orvan
