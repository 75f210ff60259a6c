#include "ui/CustomValueDialog.h"

#include "ui/Help.h"
#include "ui/InputLimitValidator.h"
#include "ui/LocalizedFormat.h"

#include <QDialogButtonBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QVBoxLayout>

#include <cstdio>

namespace orvan {

CustomValueDialog::CustomValueDialog(const Bundle* bundle, int firstLimit, int secondLimit,
                                     const QString& value, QWidget* parent)
    : QDialog(parent), m_bundle(bundle), m_field(new QLineEdit(this))
{
    setObjectName(QStringLiteral("CustomValue"));
    setWindowTitle(LocalizedFormat(bundle, QStringLiteral("CustomValueTitle")));
    setWindowModality(Qt::ApplicationModal);

    auto* prompt = new QLabel(LocalizedFormat(bundle, QStringLiteral("CustomValuePrompt")), this);
    prompt->setObjectName(QStringLiteral("CustomValuePrompt"));
    prompt->setBuddy(m_field);
    m_field->setObjectName(QStringLiteral("CustomValueField"));
    LimitInputLengthAndCharacters(m_field, firstLimit, secondLimit, std::nullopt);
    if (!value.isNull())
        m_field->setText(value);
    m_field->selectAll();

    auto* buttons = new QDialogButtonBox(
        QDialogButtonBox::Ok | QDialogButtonBox::Cancel | QDialogButtonBox::Help, this);
    buttons->button(QDialogButtonBox::Ok)->setObjectName(QStringLiteral("OKButton"));
    buttons->button(QDialogButtonBox::Cancel)->setObjectName(QStringLiteral("CancelButton"));
    buttons->button(QDialogButtonBox::Help)->setObjectName(QStringLiteral("HelpButton"));
    connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    connect(buttons, &QDialogButtonBox::helpRequested, this, &CustomValueDialog::showHelp);

    auto* layout = new QVBoxLayout(this);
    layout->addWidget(prompt);
    layout->addWidget(m_field);
    layout->addWidget(buttons);
}

QString CustomValueDialog::value() const
{
    return m_field->text();
}

void CustomValueDialog::showHelp()
{
    if (const Status status = DisplayHelp(m_bundle, kCustomValueHelpPage, {}); status != kNoError)
        std::fprintf(stderr, "DEBUG: DisplayHelp(%s) failed (%d)\n",
                     qPrintable(kCustomValueHelpPage), static_cast<int>(status));
}

Status RunModalCustomValueDialog(const Bundle* bundle, int firstLimit, int secondLimit,
                                 QString& value, int& result, QWidget* parent)
{
    CustomValueDialog dialog(bundle, firstLimit, secondLimit, value, parent);
    if (dialog.exec() == QDialog::Accepted) {
        result = kCustomValueOK;
        value = dialog.value();
    } else {
        result = kCustomValueCancel;
        value = QString();
    }
    return kNoError;
}

} // namespace orvan
