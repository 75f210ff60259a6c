// The advanced stock selection dialog ("AdvancedStockSelection"): the
// stock's attributes beyond size, colour and type. It edits a copy of the
// values and hands them back on OK.
#pragma once

#include "stock/AdvancedStockOptions.h"

#include <QDialog>

class QComboBox;
class QLineEdit;
class QSpinBox;

namespace orvan {

class Bundle;

// Object names: "StockWeight", "StockTabCount" (spin boxes; 0 = none),
// "StockPunched", "StockSidesCoated", "StockCoatingType", "StockFinish",
// "StockGrain" (pop-ups), "StockColorName", "StockTypeName",
// "StockDescription", "StockComment" (text fields), the group
// "UnsupportedAttributes", the buttons "OKButton" and "CancelButton".
class AdvancedStockDialog : public QDialog
{
    Q_OBJECT

public:
    AdvancedStockDialog(const Bundle* bundle, const Stock& stock, JobContext context,
                        QWidget* parent = nullptr);

    AdvancedStockValues values() const;

private:
    void updateEnabling();

    QSpinBox* m_weight;
    QComboBox* m_punched;
    QComboBox* m_sidesCoated;
    QComboBox* m_coatingType;
    QComboBox* m_finish;
    QComboBox* m_grain;
    QLineEdit* m_colorName;
    QLineEdit* m_typeName;
    QSpinBox* m_tabCount;
    QLineEdit* m_description;
    QLineEdit* m_comment;
};

// Runs the dialog application-modal on the stock; on OK the values are
// applied to it (ApplyAdvancedStockValues) and the result is true.
bool RunModalAdvancedStockDialog(const Bundle* bundle, Stock& stock, JobContext context,
                                 QWidget* parent = nullptr);

} // namespace orvan
