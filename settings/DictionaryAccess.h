// Reading and writing numbers, strings and nested dictionaries in a
// dictionary property value. Every reader tolerates a null dictionary, a null
// key, an absent key and a value of the wrong kind: it answers false (or null)
// and leaves its output as it was.
#pragma once

#include "settings/PropertyValue.h"
#include "settings/TextEncoding.h"

#include <QString>

#include <concepts>
#include <cstdint>

namespace orvan {

// The ticket integer under the key: false when the dictionary or key is null,
// the key is absent, or the value does not convert exactly to a CFIndex.
bool GetCFIndexFromCFDictionary(const PropertyValue* dictionary, const QString& key, long* value);

// Sets the ticket integer (CFIndex) under the key, replacing any value.
void WriteTicketValue(PropertyValue* dictionary, const QString& key, long value);

// Sets a number of the given type under the key.
void CFDictionarySetNumber(PropertyValue* dictionary, const QString& key, NumberType type,
                           std::int64_t value);
void CFDictionarySetNumber(PropertyValue* dictionary, const QString& key, NumberType type,
                           double value);

// True only when the key is present, its value is a number and it converts
// exactly to the requested type; the output is written only then.
template <typename T>
requires std::integral<T> || std::floating_point<T>
bool CFDictionaryGetNumber(const PropertyValue* dictionary, const QString& key, T* value,
                           NumberType type)
{
    if (!dictionary || key.isNull() || !value)
        return false;
    const PropertyValue* found = dictionary->find(key);
    if (!found || !found->isNumber())
        return false;
    if (isFloatingNumberType(type)) {
        const auto real = found->realAs(type);
        if (!real)
            return false;
        *value = static_cast<T>(*real);
        return true;
    }
    const auto whole = found->integerAs(type);
    if (!whole)
        return false;
    *value = static_cast<T>(*whole);
    return true;
}

// Sets a string made from a C string in the given encoding; a C string that
// is not valid in the encoding is not stored.
void CFDictionarySetCString(PropertyValue* dictionary, const QString& key, const char* cString,
                            TextEncoding encoding);

// The value under the key, whatever its kind; when absent, an empty
// dictionary is inserted and returned. Null for a null or non-dictionary
// outer value or a null key. The outer dictionary owns the result.
PropertyValue* CFDictionaryGetDictionaryOrCreate(PropertyValue* dictionary, const QString& key);

} // namespace orvan
