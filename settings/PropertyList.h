// XML property-list files (the standard plist DTD, version 1.0).
#pragma once

#include "settings/PropertyValue.h"

#include <QByteArray>
#include <QString>

#include <optional>

namespace orvan {

// Where and why reading failed. Line and column are 1-based positions in the
// input as the XML reader counts them.
struct PropertyListError
{
    QString message;
    qint64 line = 0;
    qint64 column = 0;

    // "line L, column C: message"
    QString toString() const;
};

// Parses an XML property list. On bad input (malformed XML, an unknown
// element, a key without a value, a number that does not parse, nesting
// deeper than kMaxPropertyListDepth) the result is nullopt and the error, when
// asked for, says what and where. Integers cover the full signed 64-bit range
// and come back as CFIndex when they fit 32 bits, else as SInt64; reals come
// back as Float64; dates as UTC.
std::optional<PropertyValue> readPropertyList(const QByteArray& xml,
                                              PropertyListError* error = nullptr);

// Writes a value as an XML property list, keys of dictionaries in sorted
// order, reals in their shortest exact form. Refuses (nullopt, with a reason)
// what the format cannot carry instead of writing a file that would not read
// back: a Null value, strings or keys holding characters XML 1.0 does not
// allow (most C0 controls, lone surrogates, U+FFFE/U+FFFF), invalid dates.
std::optional<QByteArray> writePropertyList(const PropertyValue& value, QString* error = nullptr);

inline constexpr int kMaxPropertyListDepth = 256;

namespace plist {
// The full reader alone, without the fast path that readPropertyList tries
// first; tests and fuzzers check that both agree.
std::optional<PropertyValue> readWithFullReader(const QByteArray& xml,
                                                PropertyListError* error = nullptr);
} // namespace plist

} // namespace orvan
