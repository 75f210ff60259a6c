#include "specialpages/SpecialPagesDialogParts.h"

#include "settings/Bundle.h"
#include "specialpages/PageRanges.h"
#include "specialpages/SpecialPageTexts.h"
#include "specialpages/SpecialPagesModel.h"
#include "stock/StockSummary.h"
#include "ui/InputLimitValidator.h"

#include <QDialog>
#include <QDialogButtonBox>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QPixmap>
#include <QPushButton>
#include <QVBoxLayout>

namespace orvan {

namespace {

// "Job paper: ..." with the job's stock summary; null without a stock.
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

} // namespace

QLineEdit* NewPageRangeField(QWidget* parent)
{
    auto* field = new QLineEdit(parent);
    field->setObjectName(QStringLiteral("PagesField"));
    field->setPlaceholderText(QStringLiteral("1, 4-6, 10-"));
    LimitInputLengthAndCharacters(
        field, 0, 0, CharacterSetFromString(QString::fromLatin1(kPageRangeCharacters)));
    return field;
}

QPixmap SpecialPagesPicture(const Bundle* bundle, const QString& imageName)
{
    if (!bundle)
        return QPixmap();
    const QString path = bundle->resourcePath(SpecialPagesImagePath(imageName));
    return path.isEmpty() ? QPixmap() : QPixmap(path);
}

void LayOutSpecialPageDialog(QDialog* dialog, const Bundle* bundle, QLayout* fields,
                             QWidget* stockButton, const Stock* jobStock,
                             std::function<void()> onOk)
{
    auto* paper = new QGroupBox(SpecialPagesText(bundle, QStringLiteral("Paper Group")), dialog);
    paper->setObjectName(QStringLiteral("PaperGroup"));
    auto* paperLayout = new QVBoxLayout(paper);
    paperLayout->addWidget(stockButton);
    if (QLabel* job = NewJobStockLabel(bundle, jobStock, paper))
        paperLayout->addWidget(job);

    auto* buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel, dialog);
    buttons->button(QDialogButtonBox::Ok)->setObjectName(QStringLiteral("OKButton"));
    buttons->button(QDialogButtonBox::Cancel)->setObjectName(QStringLiteral("CancelButton"));
    QObject::connect(buttons, &QDialogButtonBox::rejected, dialog, &QDialog::reject);
    QObject::connect(buttons, &QDialogButtonBox::accepted, dialog, std::move(onOk));

    auto* layout = new QVBoxLayout(dialog);
    layout->setContentsMargins(20, 16, 20, 14);
    layout->setSpacing(12);
    layout->addLayout(fields);
    layout->addWidget(paper);
    layout->addWidget(buttons);
}

} // namespace orvan
