#include "settings/DictionaryAccess.h"

namespace orvan {

bool GetCFIndexFromCFDictionary(const PropertyValue* dictionary, const QString& key, long* value)
{
    return CFDictionaryGetNumber(dictionary, key, value, NumberType::CFIndex);
}

void WriteTicketValue(PropertyValue* dictionary, const QString& key, long value)
{
    CFDictionarySetNumber(dictionary, key, NumberType::CFIndex, static_cast<std::int64_t>(value));
}

void CFDictionarySetNumber(PropertyValue* dictionary, const QString& key, NumberType type,
                           std::int64_t value)
{
    if (!dictionary || key.isNull())
        return;
    dictionary->insert(key, PropertyValue::integer(value, type));
}

void CFDictionarySetNumber(PropertyValue* dictionary, const QString& key, NumberType type,
                           double value)
{
    if (!dictionary || key.isNull())
        return;
    dictionary->insert(key, isFloatingNumberType(type)
                                ? PropertyValue::real(value, type)
                                : PropertyValue::integer(static_cast<std::int64_t>(value), type));
}

void CFDictionarySetCString(PropertyValue* dictionary, const QString& key, const char* cString,
                            TextEncoding encoding)
{
    if (!dictionary || key.isNull() || !cString)
        return;
    if (auto text = decodeText(QByteArrayView(cString), encoding))
        dictionary->insert(key, PropertyValue(*text));
}

PropertyValue* CFDictionaryGetDictionaryOrCreate(PropertyValue* dictionary, const QString& key)
{
    if (!dictionary || !dictionary->isDictionary() || key.isNull())
        return nullptr;
    if (PropertyValue* found = dictionary->find(key))
        return found;
    dictionary->insert(key, PropertyValue::dictionary());
    return dictionary->find(key);
}

} // namespace orvan
