// Input limits on line edits and editable combo boxes: a validator that
// applies InputLimits to every edit, typed or pasted.
#pragma once

#include "ui/InputLimits.h"

#include <QStringList>
#include <QValidator>

#include <optional>

class QComboBox;
class QLineEdit;

namespace orvan {

class InputLimitValidator : public QValidator
{
    Q_OBJECT

public:
    explicit InputLimitValidator(InputLimits limits, QObject* parent = nullptr);

    const InputLimits& limits() const { return m_limits; }
    void setLimits(InputLimits limits) { m_limits = std::move(limits); }

    // Whole texts that pass unchanged: a combo box's list items, which are
    // chosen rather than typed and may hold characters the field refuses.
    void setAcceptedTexts(QStringList texts) { m_acceptedTexts = std::move(texts); }

    // Never Invalid: the text is corrected instead (see InputLimits::applied),
    // so a refused keystroke leaves the field as it was and a paste keeps
    // what fits.
    State validate(QString& input, int& pos) const override;
    void fixup(QString& input) const override;

private:
    InputLimits m_limits;
    QStringList m_acceptedTexts;
};

// Sets the limits of a field, replacing earlier ones: a limit below 1 removes
// that limit, a null set removes the character set. The field's validator is
// created on first use and owned by the field.
void LimitInputLengthAndCharacters(QLineEdit* field, int firstLimit, int secondLimit,
                                   const std::optional<CharacterSet>& allowed);
// The same for the edit field of an editable combo box (list selections are
// accepted as they are).
void LimitInputLengthAndCharacters(QComboBox* box, int firstLimit, int secondLimit,
                                   const std::optional<CharacterSet>& allowed);

// The limits set on a field, or nullopt when it has none.
std::optional<InputLimits> InputLimitsOf(const QLineEdit* field);

} // namespace orvan
