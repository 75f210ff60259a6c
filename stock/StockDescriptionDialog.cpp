#include "stock/StockDescriptionDialog.h"

#include "stock/StockMenus.h"
#include "stock/StockSummary.h"
#include "ui/DialogButtons.h"
#include "ui/DialogFields.h"

#include <QDialogButtonBox>
#include <QFormLayout>
#include <QLabel>
#include <QLineEdit>
#include <QVBoxLayout>

namespace orvan {

namespace {

// Stock names travel to the printer's filter; keep them to a line.
constexpr int kMaximumNameLength = 63;
constexpr int kMaximumDescriptionLength = 255;

} // namespace

StockDescriptionDialog::StockDescriptionDialog(const Bundle* bundle, const Stock& stock,
                                               JobContext context, QWidget* parent)
    : QDialog(parent),
      m_name(NewTextField(stock.customName(), kMaximumNameLength, "StockName", this)),
      m_description(
          NewTextField(stock.description(), kMaximumDescriptionLength, "StockDescription", this))
{
    setObjectName(QStringLiteral("StockDescriptionSetup"));
    setWindowTitle(LocalizedStockText(bundle, QStringLiteral("StockDescriptionSetup")));
    setWindowModality(Qt::ApplicationModal);

    QString summary = GenerateStockSummary(bundle, context, stock, QStringLiteral("\n"));
    if (summary.isEmpty())
        summary = LocalizedStockText(bundle, context == JobContext::Job
                                                 ? QStringLiteral("PrinterDefault")
                                                 : QStringLiteral("UseJobSetting"));
    auto* shown = new QLabel(summary, this);
    shown->setObjectName(QStringLiteral("StockDescriptionSummary"));
    shown->setTextInteractionFlags(Qt::TextSelectableByMouse);

    auto* fields = new QFormLayout;
    fields->addRow(LocalizedStockText(bundle, QStringLiteral("StockNameLabel")), m_name);
    fields->addRow(LocalizedStockText(bundle, QStringLiteral("StockDescriptionLabel")),
                   m_description);

    QDialogButtonBox* buttons = NewOkCancelHelpButtons(this, bundle, kStockDescriptionHelpPage);

    auto* layout = new QVBoxLayout(this);
    layout->addWidget(shown);
    layout->addLayout(fields);
    layout->addWidget(buttons);
    m_name->setMinimumWidth(280);
}

QString StockDescriptionDialog::name() const
{
    return m_name->text().trimmed();
}

QString StockDescriptionDialog::description() const
{
    return m_description->text();
}

bool RunModalStockDescriptionSetup(const Bundle* bundle, Stock& stock, JobContext context,
                                   QWidget* parent)
{
    StockDescriptionDialog dialog(bundle, stock, context, parent);
    if (dialog.exec() != QDialog::Accepted)
        return false;
    stock.setCustomName(dialog.name());
    stock.setDescription(dialog.description());
    return true;
}

} // namespace orvan
