#include "settings/PropertyListLeaves.h"

#include <array>
#include <bit>
#include <cmath>
#include <cstring>
#include <limits>

namespace orvan::plist {

namespace {

constexpr char kAlphabet[] = "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789+/";

// 0..63 for alphabet characters, kSkip for whitespace, kPad for '=', kBad otherwise.
constexpr std::uint8_t kSkip = 64, kPad = 65, kBad = 255;
constexpr std::array<std::uint8_t, 256> makeDecodeTable()
{
    std::array<std::uint8_t, 256> table{};
    for (auto& v : table)
        v = kBad;
    for (int i = 0; i < 64; ++i)
        table[static_cast<unsigned char>(kAlphabet[i])] = static_cast<std::uint8_t>(i);
    table[' '] = table['\t'] = table['\n'] = table['\r'] = kSkip;
    table['='] = kPad;
    return table;
}
constexpr auto kDecode = makeDecodeTable();

// Two alphabet characters for every 12-bit value: one lookup per half of a
// three-byte group.
// Stored as 16-bit words in memory order (little-endian: first character in
// the low byte), so a group of four characters is one 32-bit store.
constexpr std::array<std::uint16_t, 4096> makePairTable()
{
    std::array<std::uint16_t, 4096> t{};
    for (int v = 0; v < 4096; ++v)
        t[v] = static_cast<std::uint16_t>(static_cast<unsigned char>(kAlphabet[v >> 6]) |
                                          (static_cast<unsigned char>(kAlphabet[v & 63]) << 8));
    return t;
}
constexpr auto kPairs = makePairTable();
static_assert(std::endian::native == std::endian::little,
              "the pair table assumes little-endian words");

// Four characters for three bytes, as one word.
inline std::uint32_t encodeGroup(const unsigned char* src)
{
    const std::uint32_t v = (std::uint32_t{src[0]} << 16) | (std::uint32_t{src[1]} << 8) | src[2];
    return std::uint32_t{kPairs[v >> 12]} | (std::uint32_t{kPairs[v & 0xFFF]} << 16);
}

bool fail(QString* why, const QString& text)
{
    if (why)
        *why = text;
    return false;
}

} // namespace

std::optional<PropertyValue> parseInteger(QStringView text, QString* why)
{
    const QStringView trimmed = text.trimmed();
    bool ok = false;
    qint64 value = 0;
    bool negative = false;
    QStringView digits = trimmed;
    if (digits.startsWith(u'-') || digits.startsWith(u'+')) {
        negative = digits.startsWith(u'-');
        digits = digits.mid(1);
    }
    if (digits.startsWith(u"0x") || digits.startsWith(u"0X")) {
        const quint64 magnitude = digits.mid(2).toULongLong(&ok, 16);
        const quint64 limit = negative ? quint64{1} << 63 : (quint64{1} << 63) - 1;
        ok = ok && magnitude <= limit && !digits.mid(2).startsWith(u'-') &&
             !digits.mid(2).startsWith(u'+');
        value = negative ? static_cast<qint64>(0 - magnitude) : static_cast<qint64>(magnitude);
    } else if (!digits.startsWith(u'-') && !digits.startsWith(u'+')) {
        value = trimmed.toLongLong(&ok, 10);
    }
    if (!ok) {
        fail(why,
             QStringLiteral("\"%1\" is not an integer in the 64-bit range").arg(trimmed.left(40)));
        return std::nullopt;
    }
    const bool fits32 = value >= std::numeric_limits<std::int32_t>::min() &&
                        value <= std::numeric_limits<std::int32_t>::max();
    return PropertyValue::integer(value, fits32 ? NumberType::CFIndex : NumberType::SInt64);
}

std::optional<PropertyValue> parseReal(QStringView text, QString* why)
{
    const QStringView trimmed = text.trimmed();
    if (trimmed.compare(u"nan", Qt::CaseInsensitive) == 0)
        return PropertyValue::real(std::numeric_limits<double>::quiet_NaN());
    for (const char16_t* name : {u"+infinity", u"infinity", u"inf", u"+inf"})
        if (trimmed.compare(name, Qt::CaseInsensitive) == 0)
            return PropertyValue::real(std::numeric_limits<double>::infinity());
    for (const char16_t* name : {u"-infinity", u"-inf"})
        if (trimmed.compare(name, Qt::CaseInsensitive) == 0)
            return PropertyValue::real(-std::numeric_limits<double>::infinity());
    bool ok = false;
    const double value = trimmed.toDouble(&ok);
    if (!ok) {
        fail(why, QStringLiteral("\"%1\" is not a real number").arg(trimmed.left(40)));
        return std::nullopt;
    }
    return PropertyValue::real(value);
}

std::optional<PropertyValue> parseDate(QStringView text, QString* why)
{
    const QString trimmed = text.trimmed().toString();
    const QDateTime when = QDateTime::fromString(trimmed, Qt::ISODate);
    if (!when.isValid()) {
        fail(why, QStringLiteral("\"%1\" is not an ISO 8601 date").arg(trimmed.left(40)));
        return std::nullopt;
    }
    return PropertyValue::date(when.toUTC());
}

std::optional<QByteArray> decodeBase64(QByteArrayView text, QString* why)
{
    QByteArray out(text.size() / 4 * 3 + 3, Qt::Uninitialized);
    auto* dst = reinterpret_cast<unsigned char*>(out.data());
    const auto* p = reinterpret_cast<const unsigned char*>(text.data());
    const auto* end = p + text.size();
    std::uint32_t group = 0;
    int count = 0; // characters in the current group
    int pads = 0;
    while (p < end) {
        // Whole groups of four on one line: the common case, one check per group.
        if (count == 0 && pads == 0) {
            while (end - p >= 4) {
                const std::uint32_t a = kDecode[p[0]], b = kDecode[p[1]], c = kDecode[p[2]],
                                    d = kDecode[p[3]];
                if ((a | b | c | d) >= 64)
                    break;
                const std::uint32_t v = (a << 18) | (b << 12) | (c << 6) | d;
                dst[0] = static_cast<unsigned char>(v >> 16);
                dst[1] = static_cast<unsigned char>(v >> 8);
                dst[2] = static_cast<unsigned char>(v);
                dst += 3;
                p += 4;
            }
            if (p >= end)
                break;
        }
        const std::uint8_t v = kDecode[*p++];
        if (v == kSkip)
            continue;
        if (v == kBad) {
            fail(why, QStringLiteral("invalid character in base64 data"));
            return std::nullopt;
        }
        if (v == kPad) {
            if (++pads > 2 || count < 2) {
                fail(why, QStringLiteral("misplaced '=' in base64 data"));
                return std::nullopt;
            }
            continue;
        }
        if (pads > 0) {
            fail(why, QStringLiteral("base64 data continues after its padding"));
            return std::nullopt;
        }
        group = (group << 6) | v;
        if (++count == 4) {
            *dst++ = static_cast<unsigned char>(group >> 16);
            *dst++ = static_cast<unsigned char>(group >> 8);
            *dst++ = static_cast<unsigned char>(group);
            group = 0;
            count = 0;
        }
    }
    if (count == 1 || (pads > 0 && count + pads != 4)) {
        fail(why, QStringLiteral("truncated base64 data"));
        return std::nullopt;
    }
    if (count == 2) {
        *dst++ = static_cast<unsigned char>(group >> 4);
    } else if (count == 3) {
        *dst++ = static_cast<unsigned char>(group >> 10);
        *dst++ = static_cast<unsigned char>(group >> 2);
    }
    out.resize(reinterpret_cast<char*>(dst) - out.data());
    return out;
}

void appendBase64Lines(QByteArray& out, QByteArrayView bytes, int indent, int lineLength)
{
    const qsizetype encodedSize = (bytes.size() + 2) / 3 * 4;
    const qsizetype lines = (encodedSize + lineLength - 1) / lineLength;
    const qsizetype start = out.size();
    out.resize(start + encodedSize + lines * (indent + 1));
    char* dst = out.data() + start;
    const auto* src = reinterpret_cast<const unsigned char*>(bytes.data());
    qsizetype left = bytes.size();
    const int groupsPerLine = lineLength / 4;
    while (left > 0) {
        std::memset(dst, '\t', static_cast<size_t>(indent));
        dst += indent;
        if (left >= 3 * groupsPerLine) {
            // A whole line: two groups per 64-bit store.
            int g = 0;
            for (; g + 2 <= groupsPerLine; g += 2) {
                const std::uint64_t w =
                    encodeGroup(src) | (std::uint64_t{encodeGroup(src + 3)} << 32);
                std::memcpy(dst, &w, 8);
                dst += 8;
                src += 6;
            }
            if (g < groupsPerLine) {
                const std::uint32_t w = encodeGroup(src);
                std::memcpy(dst, &w, 4);
                dst += 4;
                src += 3;
            }
            left -= 3 * groupsPerLine;
            *dst++ = '\n';
            continue;
        }
        for (int g = 0; g < groupsPerLine && left > 0; ++g) {
            if (left >= 3) {
                const std::uint32_t w = encodeGroup(src);
                std::memcpy(dst, &w, 4);
                src += 3;
                left -= 3;
            } else {
                const std::uint32_t v =
                    (std::uint32_t{src[0]} << 16) | (left == 2 ? std::uint32_t{src[1]} << 8 : 0);
                dst[0] = kAlphabet[v >> 18];
                dst[1] = kAlphabet[(v >> 12) & 63];
                dst[2] = left == 2 ? kAlphabet[(v >> 6) & 63] : '=';
                dst[3] = '=';
                left = 0;
            }
            dst += 4;
        }
        *dst++ = '\n';
    }
    out.resize(dst - out.data());
}

} // namespace orvan::plist
