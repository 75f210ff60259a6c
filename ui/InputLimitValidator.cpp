#include "ui/InputLimitValidator.h"

#include <QComboBox>
#include <QLineEdit>

namespace orvan {

InputLimitValidator::InputLimitValidator(InputLimits limits, QObject* parent)
    : QValidator(parent), m_limits(std::move(limits))
{
}

QValidator::State InputLimitValidator::validate(QString& input, int& pos) const
{
    if (!m_acceptedTexts.contains(input))
        input = m_limits.applied(input, pos);
    return Acceptable;
}

void InputLimitValidator::fixup(QString& input) const
{
    int pos = static_cast<int>(input.size());
    validate(input, pos);
}

namespace {

InputLimitValidator* installedValidator(const QLineEdit* field)
{
    return field ? qobject_cast<InputLimitValidator*>(const_cast<QValidator*>(field->validator()))
                 : nullptr;
}

} // namespace

void LimitInputLengthAndCharacters(QLineEdit* field, int firstLimit, int secondLimit,
                                   const std::optional<CharacterSet>& allowed)
{
    if (!field)
        return;
    InputLimits limits{firstLimit, secondLimit, allowed};
    if (InputLimitValidator* validator = installedValidator(field)) {
        validator->setLimits(std::move(limits));
        return;
    }
    field->setValidator(new InputLimitValidator(std::move(limits), field));
}

void LimitInputLengthAndCharacters(QComboBox* box, int firstLimit, int secondLimit,
                                   const std::optional<CharacterSet>& allowed)
{
    if (!box || !box->lineEdit())
        return;
    LimitInputLengthAndCharacters(box->lineEdit(), firstLimit, secondLimit, allowed);
    QStringList items;
    for (int i = 0; i < box->count(); ++i)
        items << box->itemText(i);
    installedValidator(box->lineEdit())->setAcceptedTexts(std::move(items));
}

std::optional<InputLimits> InputLimitsOf(const QLineEdit* field)
{
    if (const InputLimitValidator* validator = installedValidator(field))
        return validator->limits();
    return std::nullopt;
}

} // namespace orvan
