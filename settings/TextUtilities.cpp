#include "settings/TextUtilities.h"

#include <cmath>
#include <cstdlib>

namespace orvan {

int CountDigits(long n)
{
    if (n == 0)
        return 1;
    // The epsilon keeps exact powers of ten from falling one short.
    const double magnitude = std::fabs(static_cast<double>(n));
    return static_cast<int>(std::floor(std::log10(magnitude)) + 1 + 2.220446049250313e-16);
}

namespace {

QString predefinedEntity(const QString& name)
{
    if (name == QLatin1String("amp"))
        return QStringLiteral("&");
    if (name == QLatin1String("lt"))
        return QStringLiteral("<");
    if (name == QLatin1String("gt"))
        return QStringLiteral(">");
    if (name == QLatin1String("apos"))
        return QStringLiteral("'");
    if (name == QLatin1String("quot"))
        return QStringLiteral("\"");
    return {};
}

// Value of an ASCII digit (hexadecimal when hex), -1 for anything else.
int digitValue(QChar c, bool hex)
{
    const char16_t u = c.unicode();
    if (u >= '0' && u <= '9')
        return u - '0';
    if (hex && u >= 'a' && u <= 'f')
        return u - 'a' + 10;
    if (hex && u >= 'A' && u <= 'F')
        return u - 'A' + 10;
    return -1;
}

void appendCodePoint(QString& out, char32_t code)
{
    if (code > 0xFFFF) {
        const char32_t v = code - 0x10000;
        out += QChar(static_cast<char16_t>(0xD800 + (v >> 10)));
        out += QChar(static_cast<char16_t>(0xDC00 + (v & 0x3FF)));
    } else {
        out += QChar(static_cast<char16_t>(code));
    }
}

} // namespace

QString XMLCreateStringByUnescapingEntities(const QString& text, const PropertyValue* extraEntities)
{
    QString out;
    out.reserve(text.size());
    const qsizetype n = text.size();
    qsizetype i = 0;
    while (i < n) {
        const QChar c = text.at(i);
        if (c != QLatin1Char('&')) {
            out += c;
            ++i;
            continue;
        }
        if (i + 1 < n && text.at(i + 1) == QLatin1Char('#')) {
            qsizetype j = i + 2;
            const bool hex =
                j < n && (text.at(j) == QLatin1Char('x') || text.at(j) == QLatin1Char('X'));
            if (hex)
                ++j;
            char32_t code = 0;
            while (j < n) {
                const int digit = digitValue(text.at(j), hex);
                if (digit < 0)
                    break;
                code = code * (hex ? 16 : 10) + static_cast<char32_t>(digit);
                if (code > 0x10FFFF)
                    code = 0x10FFFF + 1; // stays out of range however many digits follow
                ++j;
            }
            // Consume up to and including the next semicolon.
            while (j < n && text.at(j) != QLatin1Char(';'))
                ++j;
            if (j < n)
                ++j;
            if (code <= 0x10FFFF)
                appendCodePoint(out, code);
            i = j;
            continue;
        }
        const qsizetype semicolon = text.indexOf(QLatin1Char(';'), i + 1);
        if (semicolon < 0) {
            out += text.mid(i);
            break;
        }
        const QString name = text.mid(i + 1, semicolon - i - 1);
        QString replacement;
        bool known = false;
        if (extraEntities) {
            if (const PropertyValue* v = extraEntities->find(name); v && v->isString()) {
                replacement = v->toString();
                known = true;
            }
        }
        if (!known) {
            replacement = predefinedEntity(name);
            known = !replacement.isNull();
        }
        if (known) {
            out += replacement;
            i = semicolon + 1;
        } else {
            out += QLatin1Char('&');
            ++i;
        }
    }
    return out;
}

} // namespace orvan
