#include "stock/CustomSizeDialog.h"

#include "stock/StockMenus.h"
#include "ui/LocalizedFormat.h"

#include <QComboBox>
#include <QDialogButtonBox>
#include <QDoubleSpinBox>
#include <QFormLayout>
#include <QLabel>
#include <QLocale>
#include <QPushButton>
#include <QVBoxLayout>

#include <algorithm>

namespace orvan {

namespace {

QString unitText(const Bundle* bundle, PaperSizeUnit unit)
{
    return LocalizedStockText(bundle, unit == PaperSizeUnit::Inches
                                          ? QStringLiteral("Inches")
                                          : QStringLiteral("Millimeters"));
}

QString number(double value, PaperSizeUnit unit)
{
    return QLocale().toString(value, 'f', PaperSizeUnitDecimals(unit));
}

} // namespace

CustomSizeDialog::CustomSizeDialog(const Bundle* bundle, std::int32_t width, std::int32_t length,
                                   const CustomPaperSizeLimits& limits, PaperSizeUnit unit,
                                   QWidget* parent)
    : QDialog(parent), m_bundle(bundle), m_limits(limits), m_unit(unit),
      m_widthField(new QDoubleSpinBox(this)), m_lengthField(new QDoubleSpinBox(this)),
      m_unitPopup(new QComboBox(this)), m_range(new QLabel(this))
{
    setObjectName(QStringLiteral("CustomPaperSize"));
    setWindowTitle(LocalizedStockText(bundle, QStringLiteral("CustomPaperSizeTitle")));
    setWindowModality(Qt::ApplicationModal);

    const CustomPaperSize start = InitialCustomPaperSize(width, length, limits);
    m_width = start.width;
    m_length = start.length;

    m_widthField->setObjectName(QStringLiteral("CustomSizeWidth"));
    m_lengthField->setObjectName(QStringLiteral("CustomSizeLength"));
    m_unitPopup->setObjectName(QStringLiteral("CustomSizeUnits"));
    m_range->setObjectName(QStringLiteral("CustomSizeRange"));
    for (PaperSizeUnit each : {PaperSizeUnit::Inches, PaperSizeUnit::Millimetres})
        m_unitPopup->addItem(unitText(bundle, each), QVariant::fromValue(static_cast<int>(each)));

    connect(m_widthField, &QDoubleSpinBox::valueChanged, this, &CustomSizeDialog::widthEdited);
    connect(m_lengthField, &QDoubleSpinBox::valueChanged, this, &CustomSizeDialog::lengthEdited);
    connect(m_unitPopup, &QComboBox::activated, this, [this](int index) {
        setUnit(static_cast<PaperSizeUnit>(m_unitPopup->itemData(index).toInt()));
    });

    auto* fields = new QFormLayout;
    fields->addRow(LocalizedStockText(bundle, QStringLiteral("CustomSizeWidthLabel")),
                   m_widthField);
    fields->addRow(LocalizedStockText(bundle, QStringLiteral("CustomSizeLengthLabel")),
                   m_lengthField);
    fields->addRow(LocalizedStockText(bundle, QStringLiteral("CustomSizeUnitsLabel")), m_unitPopup);

    auto* buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel, this);
    buttons->button(QDialogButtonBox::Ok)->setObjectName(QStringLiteral("OKButton"));
    buttons->button(QDialogButtonBox::Cancel)->setObjectName(QStringLiteral("CancelButton"));
    connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);

    auto* layout = new QVBoxLayout(this);
    layout->addLayout(fields);
    layout->addWidget(m_range);
    layout->addWidget(buttons);

    showValues();
}

void CustomSizeDialog::setUnit(PaperSizeUnit unit)
{
    m_unit = unit;
    showValues();
}

// Shows the stored tenths in the current unit without treating the display
// as an edit, so switching units never changes the size.
void CustomSizeDialog::showValues()
{
    const double step = PaperSizeUnitStep(m_unit);
    const int decimals = PaperSizeUnitDecimals(m_unit);
    const struct
    {
        QDoubleSpinBox* field;
        std::int32_t value, minimum, maximum;
    } rows[] = {
        {m_widthField, m_width, m_limits.minimumWidth, m_limits.maximumWidth},
        {m_lengthField, m_length, m_limits.minimumLength, m_limits.maximumLength},
    };
    for (const auto& row : rows) {
        const QSignalBlocker quiet(row.field);
        row.field->setDecimals(decimals);
        row.field->setSingleStep(step);
        row.field->setRange(MinimumInUnit(row.minimum, m_unit), MaximumInUnit(row.maximum, m_unit));
        row.field->setValue(TenthsOfMillimetreToUnit(row.value, m_unit));
    }
    {
        const QSignalBlocker quiet(m_unitPopup);
        m_unitPopup->setCurrentIndex(m_unitPopup->findData(static_cast<int>(m_unit)));
    }
    m_range->setText(LocalizedFormat(
        m_bundle, QStringLiteral("CustomSizeRange"),
        {number(m_widthField->minimum(), m_unit), number(m_widthField->maximum(), m_unit),
         number(m_lengthField->minimum(), m_unit), number(m_lengthField->maximum(), m_unit),
         unitText(m_bundle, m_unit)}));
}

void CustomSizeDialog::widthEdited(double value)
{
    m_width = std::clamp(UnitToTenthsOfMillimetre(value, m_unit), m_limits.minimumWidth,
                         m_limits.maximumWidth);
}

void CustomSizeDialog::lengthEdited(double value)
{
    m_length = std::clamp(UnitToTenthsOfMillimetre(value, m_unit), m_limits.minimumLength,
                          m_limits.maximumLength);
}

PaperSizeUnit DefaultPaperSizeUnit()
{
    return QLocale().measurementSystem() == QLocale::MetricSystem ? PaperSizeUnit::Millimetres
                                                                  : PaperSizeUnit::Inches;
}

bool RunModalCustomSizeDialog(const Bundle* bundle, std::int32_t& width, std::int32_t& length,
                              QWidget* parent)
{
    CustomSizeDialog dialog(bundle, width, length, CurrentCustomPaperSizeLimits(),
                            DefaultPaperSizeUnit(), parent);
    if (dialog.exec() != QDialog::Accepted)
        return false;
    width = dialog.paperWidth();
    length = dialog.paperLength();
    return true;
}

} // namespace orvan
