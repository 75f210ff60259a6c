// Text encodings of PPD files and C strings, with the platform's codes.
#pragma once

#include <QByteArray>
#include <QByteArrayView>
#include <QString>

#include <cstdint>
#include <optional>

namespace orvan {

enum class TextEncoding : std::uint32_t
{
    MacRoman = 0,
    ISOLatin1 = 0x0201,
    ISOLatin2 = 0x0202,
    ISOLatin5 = 0x0209,
    ShiftJIS = 0x0A01,
    UTF8 = 0x08000100,
};

// Decodes bytes in the encoding; nullopt when they are not valid in it.
std::optional<QString> decodeText(QByteArrayView bytes, TextEncoding encoding);
// Encodes text; nullopt when a character has no form in the encoding.
std::optional<QByteArray> encodeText(const QString& text, TextEncoding encoding);
// Converts bytes between two character sets named as iconv names them
// ("ISO-8859-5", "CP1252"); nullopt on input that is not valid in `from` or
// has no form in `to`.
std::optional<QByteArray> convertCharset(QByteArrayView bytes, const char* from, const char* to);

} // namespace orvan
