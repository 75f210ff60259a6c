#include "watermark/type42/FontPostScriptName.h"

#include <array>

namespace orvan {
namespace {

constexpr std::uint16_t kPostScriptNameId = 6;
constexpr std::size_t kNameHeaderSize = 6;
constexpr std::size_t kNameRecordSize = 12;

// Unicode code points of Mac OS Roman bytes 0x80 to 0xFF.
constexpr std::array<char16_t, 128> kMacRomanHigh = {
    0x00C4, 0x00C5, 0x00C7, 0x00C9, 0x00D1, 0x00D6, 0x00DC, 0x00E1, 0x00E0, 0x00E2, 0x00E4, 0x00E3,
    0x00E5, 0x00E7, 0x00E9, 0x00E8, 0x00EA, 0x00EB, 0x00ED, 0x00EC, 0x00EE, 0x00EF, 0x00F1, 0x00F3,
    0x00F2, 0x00F4, 0x00F6, 0x00F5, 0x00FA, 0x00F9, 0x00FB, 0x00FC, 0x2020, 0x00B0, 0x00A2, 0x00A3,
    0x00A7, 0x2022, 0x00B6, 0x00DF, 0x00AE, 0x00A9, 0x2122, 0x00B4, 0x00A8, 0x2260, 0x00C6, 0x00D8,
    0x221E, 0x00B1, 0x2264, 0x2265, 0x00A5, 0x00B5, 0x2202, 0x2211, 0x220F, 0x03C0, 0x222B, 0x00AA,
    0x00BA, 0x03A9, 0x00E6, 0x00F8, 0x00BF, 0x00A1, 0x00AC, 0x221A, 0x0192, 0x2248, 0x2206, 0x00AB,
    0x00BB, 0x2026, 0x00A0, 0x00C0, 0x00C3, 0x00D5, 0x0152, 0x0153, 0x2013, 0x2014, 0x201C, 0x201D,
    0x2018, 0x2019, 0x00F7, 0x25CA, 0x00FF, 0x0178, 0x2044, 0x20AC, 0x2039, 0x203A, 0xFB01, 0xFB02,
    0x2021, 0x00B7, 0x201A, 0x201E, 0x2030, 0x00C2, 0x00CA, 0x00C1, 0x00CB, 0x00C8, 0x00CD, 0x00CE,
    0x00CF, 0x00CC, 0x00D3, 0x00D4, 0xF8FF, 0x00D2, 0x00DA, 0x00DB, 0x00D9, 0x0131, 0x02C6, 0x02DC,
    0x00AF, 0x02D8, 0x02D9, 0x02DA, 0x00B8, 0x02DD, 0x02DB, 0x02C7,
};
static_assert(kMacRomanHigh[0x7F] == 0x02C7 && kMacRomanHigh[0x5B] == 0x20AC);

void appendUtf8(std::string& out, char32_t c)
{
    if (c < 0x80) {
        out += static_cast<char>(c);
    } else if (c < 0x800) {
        out += static_cast<char>(0xC0 | c >> 6);
        out += static_cast<char>(0x80 | (c & 0x3F));
    } else if (c < 0x10000) {
        out += static_cast<char>(0xE0 | c >> 12);
        out += static_cast<char>(0x80 | (c >> 6 & 0x3F));
        out += static_cast<char>(0x80 | (c & 0x3F));
    } else {
        out += static_cast<char>(0xF0 | c >> 18);
        out += static_cast<char>(0x80 | (c >> 12 & 0x3F));
        out += static_cast<char>(0x80 | (c >> 6 & 0x3F));
        out += static_cast<char>(0x80 | (c & 0x3F));
    }
}

std::optional<std::string> decodeUtf16BE(FontBytes text)
{
    if (text.size() % 2 != 0)
        return std::nullopt;
    std::string out;
    for (std::size_t i = 0; i < text.size(); i += 2) {
        char32_t unit = readU16(text, i);
        if (unit >= 0xD800 && unit < 0xDC00) {
            if (i + 4 > text.size())
                return std::nullopt;
            const char32_t low = readU16(text, i + 2);
            if (low < 0xDC00 || low >= 0xE000)
                return std::nullopt;
            unit = 0x10000 + ((unit - 0xD800) << 10) + (low - 0xDC00);
            i += 2;
        } else if (unit >= 0xDC00 && unit < 0xE000) {
            return std::nullopt;
        }
        if (unit == 0)
            return std::nullopt;
        appendUtf8(out, unit);
    }
    return out;
}

std::optional<std::string> decodeMacRoman(FontBytes text)
{
    std::string out;
    for (std::uint8_t byte : text) {
        if (byte == 0)
            return std::nullopt;
        appendUtf8(out, byte < 0x80 ? char32_t{byte} : char32_t{kMacRomanHigh[byte - 0x80]});
    }
    return out;
}

enum class RecordText
{
    Utf16BE,
    MacRoman,
    Unsupported
};

struct Preference
{
    int rank; // lower is better; 0 means not usable
    RecordText text;
};

Preference preferenceOf(std::uint16_t platform, std::uint16_t encoding, std::uint16_t language)
{
    if (platform == 3 && (encoding == 0 || encoding == 1 || encoding == 10))
        return {language == 0x0409 ? 1 : 2, RecordText::Utf16BE};
    if (platform == 0)
        return {3, RecordText::Utf16BE};
    if (platform == 1 && encoding == 0)
        return {4, RecordText::MacRoman};
    return {0, RecordText::Unsupported};
}

} // namespace

std::optional<std::string> fontPostScriptName(FontBytes font)
{
    const auto record = find_table("name", font);
    if (!record || !fitsIn(font.size(), record->offset, record->length))
        return std::nullopt;
    const FontBytes name = font.subspan(record->offset, record->length);
    if (name.size() < kNameHeaderSize)
        return std::nullopt;
    const std::size_t count = readU16(name, 2);
    const std::size_t storage = readU16(name, 4);

    std::optional<std::string> best;
    int bestRank = 0;
    for (std::size_t i = 0; i < count; ++i) {
        const std::size_t at = kNameHeaderSize + i * kNameRecordSize;
        if (!fitsIn(name.size(), at, kNameRecordSize))
            break;
        if (readU16(name, at + 6) != kPostScriptNameId)
            continue;
        const Preference preference =
            preferenceOf(readU16(name, at), readU16(name, at + 2), readU16(name, at + 4));
        if (preference.rank == 0 || (bestRank != 0 && preference.rank >= bestRank))
            continue;
        const std::size_t length = readU16(name, at + 8);
        const std::size_t offset = storage + readU16(name, at + 10);
        if (!fitsIn(name.size(), offset, length))
            continue;
        const FontBytes text = name.subspan(offset, length);
        std::optional<std::string> decoded;
        switch (preference.text) {
        case RecordText::Utf16BE:
            decoded = decodeUtf16BE(text);
            break;
        case RecordText::MacRoman:
            decoded = decodeMacRoman(text);
            break;
        case RecordText::Unsupported:
            break;
        }
        if (decoded && !decoded->empty()) {
            best = std::move(decoded);
            bestRank = preference.rank;
        }
    }
    return best;
}

} // namespace orvan
