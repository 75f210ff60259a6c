#include "stock/AdvancedStockDialog.h"

#include "stock/StockMenus.h"
#include "ui/DialogFields.h"
#include "ui/PopupMenus.h"

#include <QComboBox>
#include <QDialogButtonBox>
#include <QFormLayout>
#include <QGroupBox>
#include <QLineEdit>
#include <QPushButton>
#include <QSpinBox>
#include <QVBoxLayout>

namespace orvan {

namespace {

// Stock names travel to the printer's filter; keep them to a line.
constexpr int kMaximumNameLength = 63;
constexpr int kMaximumCommentLength = 255;

QComboBox* attributePopup(const Bundle* bundle, const _SettingMap* map, JobContext context,
                          std::int32_t value, const char* objectName, QWidget* parent)
{
    auto* popup = new QComboBox(parent);
    popup->setObjectName(QString::fromLatin1(objectName));
    PopulatePopupButtonFromMap(bundle, popup, map, static_cast<int>(context), 0);
    // A value the menu does not list (from another program's ticket) stays
    // as it is, shown as its number.
    if (!SetPopupButtonToTicketValue(popup, value)) {
        popup->addItem(QString::number(value));
        popup->setItemData(popup->count() - 1, value, TicketValueRole);
        popup->setCurrentIndex(popup->count() - 1);
    }
    return popup;
}

// A spin box whose 0 stands for "no value" and shows the given text.
QSpinBox* countField(std::int32_t value, std::int32_t maximum, const QString& noneText,
                     const char* objectName, QWidget* parent)
{
    auto* field = new QSpinBox(parent);
    field->setObjectName(QString::fromLatin1(objectName));
    field->setRange(0, maximum);
    field->setSpecialValueText(noneText);
    field->setValue(value > 0 ? std::min(value, maximum) : 0);
    return field;
}

} // namespace

AdvancedStockDialog::AdvancedStockDialog(const Bundle* bundle, const Stock& stock,
                                         JobContext context, QWidget* parent)
    : QDialog(parent)
{
    setObjectName(QStringLiteral("AdvancedStockSelection"));
    setWindowTitle(LocalizedStockText(bundle, QStringLiteral("AdvancedStockSelection")));
    setWindowModality(Qt::ApplicationModal);

    const AdvancedStockValues values = AdvancedStockValuesOf(stock);
    const QString unsetText =
        LocalizedStockText(bundle, context == JobContext::Job ? QStringLiteral("PrinterDefault")
                                                              : QStringLiteral("UseJobSetting"));
    const auto label = [bundle](const char* key) {
        return LocalizedStockText(bundle, QString::fromLatin1(key));
    };

    m_punched =
        attributePopup(bundle, _StockPunchedMap, context, values.punched, "StockPunched", this);
    m_colorName = NewTextField(values.colorName, kMaximumNameLength, "StockColorName", this);
    m_typeName = NewTextField(values.typeName, kMaximumNameLength, "StockTypeName", this);
    m_tabCount =
        countField(values.tabCount, kMaximumTabCount, label("StockNoTabs"), "StockTabCount", this);
    m_description = NewTextField(values.description, kMaximumNameLength, "StockDescription", this);
    m_comment = NewTextField(values.comment, kMaximumCommentLength, "StockComment", this);

    auto* stockFields = new QFormLayout;
    stockFields->addRow(label("StockPunchedLabel"), m_punched);
    stockFields->addRow(label("StockColorNameLabel"), m_colorName);
    stockFields->addRow(label("StockTypeNameLabel"), m_typeName);
    stockFields->addRow(label("StockTabCountLabel"), m_tabCount);
    stockFields->addRow(label("StockDescriptionLabel"), m_description);
    stockFields->addRow(label("StockCommentLabel"), m_comment);

    // Attributes the stock records but this printer does not choose paper by.
    auto* unsupported = new QGroupBox(label("Unsupported Attributes"), this);
    unsupported->setObjectName(QStringLiteral("UnsupportedAttributes"));
    m_weight = countField(values.weight, kMaximumStockWeight, unsetText, "StockWeight", this);
    m_weight->setSuffix(label("StockWeightUnit"));
    m_sidesCoated = attributePopup(bundle, _StockSidesCoatedMap, context, values.sidesCoated,
                                   "StockSidesCoated", this);
    m_coatingType = attributePopup(bundle, _StockCoatingTypeMap, context, values.coatingType,
                                   "StockCoatingType", this);
    m_finish = attributePopup(bundle, _StockFinishMap, context, values.finish, "StockFinish", this);
    m_grain = attributePopup(bundle, _StockGrainMap, context, values.grain, "StockGrain", this);
    auto* unsupportedFields = new QFormLayout(unsupported);
    unsupportedFields->addRow(label("StockWeightLabel"), m_weight);
    unsupportedFields->addRow(label("StockSidesCoatedLabel"), m_sidesCoated);
    unsupportedFields->addRow(label("StockCoatingTypeLabel"), m_coatingType);
    unsupportedFields->addRow(label("StockFinishLabel"), m_finish);
    unsupportedFields->addRow(label("StockGrainLabel"), m_grain);

    auto* buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel, this);
    buttons->button(QDialogButtonBox::Ok)->setObjectName(QStringLiteral("OKButton"));
    buttons->button(QDialogButtonBox::Cancel)->setObjectName(QStringLiteral("CancelButton"));
    connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);

    connect(m_sidesCoated, &QComboBox::currentIndexChanged, this,
            &AdvancedStockDialog::updateEnabling);

    auto* layout = new QVBoxLayout(this);
    layout->addLayout(stockFields);
    layout->addWidget(unsupported);
    layout->addWidget(buttons);
    updateEnabling();
}

// The coating type means something only for a coated stock.
void AdvancedStockDialog::updateEnabling()
{
    const std::int32_t sides = GetPopupButtonTicketValue(m_sidesCoated);
    m_coatingType->setEnabled(sides != kUnset && sides != 0);
}

AdvancedStockValues AdvancedStockDialog::values() const
{
    AdvancedStockValues values;
    values.weight = m_weight->value() > 0 ? m_weight->value() : kUnset;
    values.punched = GetPopupButtonTicketValue(m_punched);
    values.sidesCoated = GetPopupButtonTicketValue(m_sidesCoated);
    values.coatingType = GetPopupButtonTicketValue(m_coatingType);
    values.finish = GetPopupButtonTicketValue(m_finish);
    values.grain = GetPopupButtonTicketValue(m_grain);
    values.colorName = m_colorName->text().trimmed();
    values.typeName = m_typeName->text().trimmed();
    values.tabCount = m_tabCount->value();
    values.description = m_description->text();
    values.comment = m_comment->text();
    return values;
}

bool RunModalAdvancedStockDialog(const Bundle* bundle, Stock& stock, JobContext context,
                                 QWidget* parent)
{
    AdvancedStockDialog dialog(bundle, stock, context, parent);
    if (dialog.exec() != QDialog::Accepted)
        return false;
    ApplyAdvancedStockValues(stock, dialog.values(), context);
    return true;
}

} // namespace orvan
