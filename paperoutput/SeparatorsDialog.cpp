#include "paperoutput/SeparatorsDialog.h"

#include "paperoutput/PaperOutputRecord.h"
#include "settings/SettingMaps.h"
#include "shell/PanelText.h"
#include "stock/StockButton.h"
#include "ui/LocalizedTitles.h"
#include "ui/PopupMenus.h"

#include <QComboBox>
#include <QDialog>
#include <QDialogButtonBox>
#include <QFormLayout>
#include <QPushButton>
#include <QVBoxLayout>

namespace orvan {

bool RunModalSeparatorsDialog(const Bundle* bundle, std::int32_t& option, Stock& stock,
                              QWidget* parent)
{
    QDialog dialog(parent);
    dialog.setObjectName(QStringLiteral("SeparatorsDialog"));
    SetLocalizedWindowTitle(bundle, QStringLiteral("Separators Title"), &dialog);
    auto* options = new QComboBox(&dialog);
    options->setObjectName(QStringLiteral("SeparatorOptionPopup"));
    PopulatePopupButtonFromMap(bundle, options, _SeparatorOptionMap, 0, 0);
    if (!SetPopupButtonToTicketValue(options, option))
        options->setCurrentIndex(0);
    Stock edited = stock;
    auto* stockButton = new StockButton(bundle, JobContext::Job, &dialog);
    stockButton->setStock(&edited);
    const auto enableStock = [=] {
        stockButton->setEnabled(GetPopupButtonTicketValue(options) != kSeparatorNone);
    };
    QObject::connect(options, &QComboBox::currentIndexChanged, &dialog, enableStock);
    enableStock();

    auto* form = new QFormLayout;
    form->addRow(PanelText(bundle, QStringLiteral("Separator Option Label")), options);
    form->addRow(PanelText(bundle, QStringLiteral("Separator Stock Label")), stockButton);
    auto* buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel, &dialog);
    SetLocalizedControlTitle(bundle, QStringLiteral("OK Command"),
                             buttons->button(QDialogButtonBox::Ok));
    SetLocalizedControlTitle(bundle, QStringLiteral("Cancel Command"),
                             buttons->button(QDialogButtonBox::Cancel));
    QObject::connect(buttons, &QDialogButtonBox::accepted, &dialog, &QDialog::accept);
    QObject::connect(buttons, &QDialogButtonBox::rejected, &dialog, &QDialog::reject);
    auto* layout = new QVBoxLayout(&dialog);
    layout->addLayout(form);
    layout->addWidget(buttons);
    if (dialog.exec() != QDialog::Accepted)
        return false;
    option = GetPopupButtonTicketValue(options);
    stock = edited;
    return true;
}

} // namespace orvan
