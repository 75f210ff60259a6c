// The custom paper size dialog ("CustomPaperSize"): width and length of a
// custom stock, shown in inches to a tenth or in whole millimetres, limited
// to the printer's custom page sizes.
#pragma once

#include "stock/CustomPaperSize.h"

#include <QDialog>

#include <cstdint>

class QComboBox;
class QDoubleSpinBox;
class QLabel;

namespace orvan {

class Bundle;

// Object names: the fields "CustomSizeWidth" and "CustomSizeLength", the
// unit pop-up "CustomSizeUnits", the range note "CustomSizeRange", the
// buttons "OKButton" and "CancelButton".
class CustomSizeDialog : public QDialog
{
    Q_OBJECT

public:
    // width and length in tenths of a millimetre (unset: Letter), brought
    // inside the limits.
    CustomSizeDialog(const Bundle* bundle, std::int32_t width, std::int32_t length,
                     const CustomPaperSizeLimits& limits, PaperSizeUnit unit,
                     QWidget* parent = nullptr);

    // In tenths of a millimetre. A field the user did not change keeps its
    // exact starting value (8.3 in shown for A4's 2100 stays 2100).
    std::int32_t paperWidth() const { return m_width; }
    std::int32_t paperLength() const { return m_length; }

    PaperSizeUnit unit() const { return m_unit; }
    void setUnit(PaperSizeUnit unit);

private:
    void showValues();
    void widthEdited(double value);
    void lengthEdited(double value);

    const Bundle* m_bundle;
    CustomPaperSizeLimits m_limits;
    PaperSizeUnit m_unit;
    std::int32_t m_width;
    std::int32_t m_length;
    QDoubleSpinBox* m_widthField;
    QDoubleSpinBox* m_lengthField;
    QComboBox* m_unitPopup;
    QLabel* m_range;
};

// The unit of the user's locale: inches for the imperial systems,
// millimetres otherwise.
PaperSizeUnit DefaultPaperSizeUnit();

// Runs the dialog application-modal with the current printer's limits.
// True on OK, with width and length set; on Cancel they are left alone.
bool RunModalCustomSizeDialog(const Bundle* bundle, std::int32_t& width, std::int32_t& length,
                              QWidget* parent = nullptr);

} // namespace orvan
