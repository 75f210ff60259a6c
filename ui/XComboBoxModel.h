// The logic of a combo box with input history: fixed items from a setting
// map, the user's earlier entries below them, input limits, reading and
// showing values, and recording a new entry when the box is finalised.
// Plain Qt Core; ui/XComboBox.h attaches it to a QComboBox.
#pragma once

#include "settings/PropertyValue.h"
#include "settings/SettingMap.h"
#include "settings/SettingMapAccess.h"
#include "settings/Status.h"
#include "ui/InputLimits.h"

#include <QHash>
#include <QLocale>
#include <QString>
#include <QStringList>

#include <cstdint>
#include <optional>

namespace orvan {

class Bundle;

// Result of reading an empty box: there is no value.
inline constexpr Status kXComboBoxEmpty = 1000;

enum class XComboBoxKind : std::int32_t
{
    Number = 1,
    Text = 2
};

// How a combo box is set up.
struct _XComboBoxOptions
{
    XComboBoxKind kind = XComboBoxKind::Text;
    const Bundle* bundle = nullptr;                // texts of the fixed items
    const _SettingMap* map = nullptr;              // the fixed items, or null
    QString historyKey;                            // key in the history file; empty: no history
    std::int32_t historyLimit = 0;                 // entries kept; 0: no limit
    std::int32_t firstLimit = 0;                   // shortest entry (text kind)
    std::int32_t secondLimit = 0;                  // longest entry; computed for the number kind
    std::optional<CharacterSet> allowedCharacters; // text kind; nullopt: any
    std::int32_t minimum = 0;                      // number kind
    std::int32_t maximum = 0;                      // number kind; 0 or below: no upper bound
};

class XComboBoxModel
{
public:
    // Builds the fixed items (each map row's "Localizable" text until the row
    // whose ticket value is 0; rows without a text are left out, gates do not
    // apply), the input limits and, with a history key, loads the history.
    explicit XComboBoxModel(_XComboBoxOptions options, QLocale locale = QLocale());

    const _XComboBoxOptions& options() const { return m_options; }

    // Number kind: decimal digits only, at most as many as the maximum has
    // (9 without a maximum), the first limit as given. Text kind: the
    // options' limits and characters.
    const InputLimits& inputLimits() const { return m_limits; }

    // The list: the fixed items' texts, then the texts of the valid history
    // entries in history order.
    const QStringList& items() const { return m_items; }
    int fixedItemCount() const { return m_fixedItemCount; }

    // The history array as loaded (invalid entries included); empty when the
    // box has no history key or the file has none.
    const PropertyArray& history() const { return m_history; }

    std::optional<std::int32_t> ticketValueForText(const QString& text) const;
    std::optional<QString> textForTicketValue(std::int32_t value) const;

    // Whether a history entry is listed. Number kind: a number, or a string
    // the locale reads as one, within minimum..maximum. Text kind: a string
    // whose length lies within the two limits and whose characters are
    // allowed. Other kinds list every string and number.
    bool isValidHistoryEntry(const PropertyValue& entry) const;

    // Number kind: the text to show instead of text when it is a number
    // outside minimum..maximum (the nearest bound), nullopt when the text
    // stands. Fixed items' texts and other kinds always stand.
    std::optional<QString> validatedText(const QString& text) const;

    // The value of the box's text, validated first: a fixed item's text gives
    // its ticket value (CFIndex); an empty text gives kXComboBoxEmpty and
    // leaves value as it was; the number kind gives the number read with the
    // locale (CFIndex; kBadParameter when it does not read); the text kind
    // gives the text. kNoError otherwise.
    Status copyValue(const QString& text, PropertyValue& value) const;

    // The text that shows a value: a string as it is; a number as the text of
    // the fixed item with that ticket value, else written with the locale.
    // nullopt for other kinds of value.
    std::optional<QString> textForValue(const PropertyValue& value) const;

    // Records the box's text on finalisation: a non-empty text that is not
    // one of the list's items goes to the front of the history, the history
    // is cut to its limit and written back under the key. False when the box
    // has no history key or the file could not be written.
    bool recordHistory(const QString& text);

private:
    std::optional<std::int64_t> readNumber(const QString& text) const;
    QString writeNumber(std::int64_t number) const;
    std::int64_t clamped(std::int64_t number) const;
    bool hasMaximum() const { return m_options.maximum > 0; }

    _XComboBoxOptions m_options;
    QLocale m_locale;
    InputLimits m_limits;
    QStringList m_items;
    int m_fixedItemCount = 0;
    QHash<QString, std::int32_t> m_valueOfText;
    QHash<std::int32_t, QString> m_textOfValue;
    PropertyArray m_history;
};

} // namespace orvan
