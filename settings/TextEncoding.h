// Text encodings of PPD files and C strings, with the platform's codes.
#pragma once

#include <QByteArray>
#include <QByteArrayView>
#include <QString>

#include <cstdint>
#include <optional>

namespace orvan {

enum class TextEncoding : std::uint32_t {
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

} // namespace orvan
