// Conversions of property-list leaf texts, shared by the reader's two paths
// and the writer, so that both paths accept and produce exactly the same.
#pragma once

#include "settings/PropertyValue.h"

#include <QByteArray>
#include <QByteArrayView>
#include <QString>
#include <QStringView>

#include <optional>

namespace orvan::plist {

// <integer>: decimal or 0x-hexadecimal, optional sign, surrounding
// whitespace; the signed 64-bit range. CFIndex when it fits 32 bits.
std::optional<PropertyValue> parseInteger(QStringView text, QString* why);
// <real>: a decimal number, "nan", "+infinity"/"infinity"/"inf", "-infinity"/"-inf".
std::optional<PropertyValue> parseReal(QStringView text, QString* why);
// <date>: ISO 8601, returned as UTC.
std::optional<PropertyValue> parseDate(QStringView text, QString* why);

// Strict base64 for <data>: whitespace (space, tab, CR, LF) anywhere is
// skipped; everything else must be of the alphabet; at most two '=' and
// only at the end, and with them the length must be a multiple of four;
// unpadded input is accepted when its length leaves no lone character.
// Latin-1/UTF-8 bytes in, decoded bytes out; nullopt with a reason on error.
std::optional<QByteArray> decodeBase64(QByteArrayView text, QString* why);
// Appends bytes as base64, `lineLength` characters a line, each line
// preceded by `indent` tabs and ended by a line feed.
void appendBase64Lines(QByteArray& out, QByteArrayView bytes, int indent, int lineLength = 76);

} // namespace orvan::plist
