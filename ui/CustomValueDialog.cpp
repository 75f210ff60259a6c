#include "ui/CustomValueDialog.h"

#include "ui/DialogButtons.h"
#include "ui/InputLimitValidator.h"
#include "ui/LocalizedFormat.h"

#include <QDialogButtonBox>
#include <QLabel>
#include <QLineEdit>
#include <QVBoxLayout>

namespace orvan {

CustomValueDialog::CustomValueDialog(const Bundle* bundle, int firstLimit, int secondLimit,
                                     const QString& value, QWidget* parent)
    : QDialog(parent), m_field(new QLineEdit(this))
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

    QDialogButtonBox* buttons = NewOkCancelHelpButtons(this, bundle, kCustomValueHelpPage);

    auto* layout = new QVBoxLayout(this);
    layout->addWidget(prompt);
    layout->addWidget(m_field);
    layout->addWidget(buttons);
}

QString CustomValueDialog::value() const
{
    return m_field->text();
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
