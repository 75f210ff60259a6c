#include "imagequality/AboutDialog.h"

#include "imagequality/ProductInfo.h"

#include <QDialogButtonBox>
#include <QLabel>
#include <QVBoxLayout>

namespace orvan {

AboutDialog::AboutDialog(const Bundle* bundle, QWidget* parent) : QDialog(parent)
{
    setObjectName(QStringLiteral("AboutDialog"));
    const ProductInfo info = ProductInfoFromBundle(bundle);
    setWindowTitle(ProductAboutTitle(bundle, info));

    auto* name = new QLabel(info.name, this);
    name->setObjectName(QStringLiteral("ProductName"));
    QFont bold = name->font();
    bold.setBold(true);
    bold.setPointSizeF(bold.pointSizeF() * 1.25);
    name->setFont(bold);
    auto* version = new QLabel(ProductVersionLine(bundle, info), this);
    version->setObjectName(QStringLiteral("ProductVersion"));
    version->setTextInteractionFlags(Qt::TextSelectableByMouse);

    auto* buttons = new QDialogButtonBox(QDialogButtonBox::Ok, this);
    connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);

    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(24, 20, 24, 16);
    layout->setSpacing(8);
    layout->addWidget(name, 0, Qt::AlignHCenter);
    layout->addWidget(version, 0, Qt::AlignHCenter);
    layout->addSpacing(8);
    layout->addWidget(buttons);
    setMinimumWidth(300);
}

void RunAboutDialog(const Bundle* bundle, QWidget* parent)
{
    AboutDialog dialog(bundle, parent);
    dialog.exec();
}

} // namespace orvan
