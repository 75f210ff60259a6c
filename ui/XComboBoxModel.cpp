#include "ui/XComboBoxModel.h"

#include "settings/Bundle.h"
#include "settings/Preferences.h"
#include "settings/TextUtilities.h"

#include <algorithm>
#include <limits>

namespace orvan {

namespace {

// A number box without a maximum takes up to nine digits: every such entry
// fits a ticket integer.
constexpr int kUnboundedNumberDigits = 9;

} // namespace

XComboBoxModel::XComboBoxModel(_XComboBoxOptions options, QLocale locale)
    : m_options(std::move(options)), m_locale(std::move(locale))
{
    // Numbers are shown without group separators: the box accepts digits only.
    m_locale.setNumberOptions(m_locale.numberOptions() | QLocale::OmitGroupSeparator);

    if (m_options.kind == XComboBoxKind::Number) {
        m_options.secondLimit =
            m_options.maximum > 0 ? CountDigits(m_options.maximum) : kUnboundedNumberDigits;
        m_options.allowedCharacters = CharacterSetFromString(QStringLiteral("0123456789"));
    }
    m_limits =
        InputLimits{m_options.firstLimit, m_options.secondLimit, m_options.allowedCharacters};

    if (m_options.bundle && m_options.map) {
        for (const _SettingMap* row = m_options.map; row->key && row->ticketValue != 0; ++row) {
            const std::optional<QString> text =
                m_options.bundle->localizedString(QString::fromUtf8(row->key));
            if (!text)
                continue;
            m_items << *text;
            // The first row wins where two rows share a text or a value.
            if (!m_valueOfText.contains(*text))
                m_valueOfText.insert(*text, row->ticketValue);
            if (!m_textOfValue.contains(row->ticketValue))
                m_textOfValue.insert(row->ticketValue, *text);
        }
    }
    m_fixedItemCount = static_cast<int>(m_items.size());

    if (m_options.historyKey.isEmpty())
        return;
    m_history = CopyInputHistory(m_options.historyKey).asArray();
    for (const PropertyValue& entry : m_history) {
        if (!isValidHistoryEntry(entry))
            continue;
        if (const auto text = textForValue(entry))
            m_items << *text;
    }
}

std::optional<std::int32_t> XComboBoxModel::ticketValueForText(const QString& text) const
{
    const auto found = m_valueOfText.constFind(text);
    if (found == m_valueOfText.constEnd())
        return std::nullopt;
    return *found;
}

std::optional<QString> XComboBoxModel::textForTicketValue(std::int32_t value) const
{
    const auto found = m_textOfValue.constFind(value);
    if (found == m_textOfValue.constEnd())
        return std::nullopt;
    return *found;
}

bool XComboBoxModel::isValidHistoryEntry(const PropertyValue& entry) const
{
    switch (m_options.kind) {
    case XComboBoxKind::Number: {
        std::optional<std::int64_t> number;
        if (entry.isNumber())
            number = entry.toInteger();
        else if (entry.isString())
            number = readNumber(entry.toString());
        return number && clamped(*number) == *number;
    }
    case XComboBoxKind::Text:
        return entry.isString() && m_limits.accepts(entry.toString());
    }
    // A box of no known kind lists whatever it can show.
    return entry.isString() || entry.isNumber();
}

std::optional<QString> XComboBoxModel::validatedText(const QString& text) const
{
    if (m_options.kind != XComboBoxKind::Number || m_valueOfText.contains(text))
        return std::nullopt;
    const std::optional<std::int64_t> number = readNumber(text);
    if (!number || clamped(*number) == *number)
        return std::nullopt;
    return writeNumber(clamped(*number));
}

Status XComboBoxModel::copyValue(const QString& text, PropertyValue& value) const
{
    const QString shown = validatedText(text).value_or(text);
    if (const auto ticketValue = ticketValueForText(shown)) {
        value = PropertyValue::integer(*ticketValue, NumberType::CFIndex);
        return kNoError;
    }
    if (shown.isEmpty())
        return kXComboBoxEmpty;
    if (m_options.kind == XComboBoxKind::Number) {
        const std::optional<std::int64_t> number = readNumber(shown);
        if (!number)
            return kBadParameter;
        const std::int64_t ticketInteger =
            std::clamp<std::int64_t>(clamped(*number), std::numeric_limits<std::int32_t>::min(),
                                     std::numeric_limits<std::int32_t>::max());
        value = PropertyValue::integer(ticketInteger, NumberType::CFIndex);
        return kNoError;
    }
    value = PropertyValue(shown);
    return kNoError;
}

std::optional<QString> XComboBoxModel::textForValue(const PropertyValue& value) const
{
    if (value.isString())
        return value.toString();
    if (!value.isNumber())
        return std::nullopt;
    if (const std::optional<std::int64_t> whole = value.toInteger()) {
        if (*whole >= std::numeric_limits<std::int32_t>::min() &&
            *whole <= std::numeric_limits<std::int32_t>::max()) {
            if (auto text = textForTicketValue(static_cast<std::int32_t>(*whole)))
                return text;
        }
        return writeNumber(*whole);
    }
    return m_locale.toString(value.toReal().value_or(0.0));
}

bool XComboBoxModel::recordHistory(const QString& text)
{
    if (m_options.historyKey.isEmpty())
        return false;
    if (!text.isEmpty() && !m_items.contains(text))
        m_history.insert(m_history.begin(), PropertyValue(text));
    if (m_options.historyLimit > 0 &&
        m_history.size() > static_cast<std::size_t>(m_options.historyLimit))
        m_history.resize(static_cast<std::size_t>(m_options.historyLimit));

    // Re-read the file so that what other boxes recorded meanwhile is kept.
    std::optional<PropertyValue> file = CopyUserPreferences(kInputHistoryFileName);
    if (!file)
        return false;
    file->insert(m_options.historyKey, PropertyValue(m_history));
    return WriteUserPreferences(kInputHistoryFileName, *file);
}

std::optional<std::int64_t> XComboBoxModel::readNumber(const QString& text) const
{
    bool ok = false;
    const qlonglong number = m_locale.toLongLong(text.trimmed(), &ok);
    if (!ok)
        return std::nullopt;
    return number;
}

QString XComboBoxModel::writeNumber(std::int64_t number) const
{
    return m_locale.toString(static_cast<qlonglong>(number));
}

std::int64_t XComboBoxModel::clamped(std::int64_t number) const
{
    number = std::max<std::int64_t>(number, m_options.minimum);
    if (hasMaximum())
        number = std::min<std::int64_t>(number, m_options.maximum);
    return number;
}

} // namespace orvan
