#include "specialpages/SpecialPagesDialogParts.h"

#include "settings/Bundle.h"
#include "specialpages/PageRanges.h"
#include "specialpages/SpecialPageTexts.h"
#include "specialpages/SpecialPagesModel.h"
#include "stock/StockSummary.h"
#include "ui/InputLimitValidator.h"

#include <QDialog>
#include <QDialogButtonBox>
#include <QLabel>
#include <QLineEdit>
#include <QPixmap>
#include <QPushButton>
#include <QVBoxLayout>

namespace orvan {

QLineEdit* NewPageRangeField(QWidget* parent)
{
    auto* field = new QLineEdit(parent);
    field->setObjectName(QStringLiteral("PagesField"));
    field->setPlaceholderText(QStringLiteral("1, 4-6, 10-"));
    LimitInputLengthAndCharacters(
        field, 0, 0, CharacterSetFromString(QString::fromLatin1(kPageRangeCharacters)));
    return field;
}

QDialogButtonBox* NewOkCancelButtons(QDialog* dialog)
{
    auto* buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel, dialog);
    buttons->button(QDialogButtonBox::Ok)->setObjectName(QStringLiteral("OKButton"));
    buttons->button(QDialogButtonBox::Cancel)->setObjectName(QStringLiteral("CancelButton"));
    QObject::connect(buttons, &QDialogButtonBox::rejected, dialog, &QDialog::reject);
    return buttons;
}

QLabel* NewJobStockLabel(const Bundle* bundle, const Stock* jobStock, QWidget* parent)
{
    if (!jobStock)
        return nullptr;
    auto* label = new QLabel(parent);
    label->setObjectName(QStringLiteral("JobStockLabel"));
    label->setWordWrap(true);
    label->setText(SpecialPagesText(bundle, QStringLiteral("Job Stock Label")) + QLatin1Char(' ') +
                   GenerateStockSummary(bundle, JobContext::Job, *jobStock, QStringLiteral(", "))
                       .remove(QStringLiteral("- ")));
    label->setEnabled(false);
    return label;
}

QPixmap SpecialPagesPicture(const Bundle* bundle, const QString& imageName)
{
    if (!bundle)
        return QPixmap();
    const QString path = bundle->resourcePath(SpecialPagesImagePath(imageName));
    return path.isEmpty() ? QPixmap() : QPixmap(path);
}

QBoxLayout* NewDialogLayout(QDialog* dialog)
{
    auto* layout = new QVBoxLayout(dialog);
    layout->setContentsMargins(20, 16, 20, 14);
    layout->setSpacing(12);
    return layout;
}

} // namespace orvan
