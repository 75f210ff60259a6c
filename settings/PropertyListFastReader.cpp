#include "settings/PropertyListFastReader.h"

#include "settings/PropertyList.h"
#include "settings/PropertyListLeaves.h"

#include <QRegularExpression>
#include <QStringDecoder>

#include <cstring>
#include <string_view>

namespace orvan::plist {

namespace {

bool isSpace(char c)
{
    return c == ' ' || c == '\t' || c == '\n' || c == '\r';
}

// Markup outside character data must be printable ASCII or whitespace here;
// anything else (controls XML forbids, bytes that might not be valid UTF-8)
// is left to the full reader.
bool isPlainMarkup(const char* from, const char* to)
{
    for (; from < to; ++from) {
        const auto c = static_cast<unsigned char>(*from);
        if ((c < 0x20 && !isSpace(static_cast<char>(c))) || c >= 0x7F)
            return false;
    }
    return true;
}

bool isXmlChar(char32_t c)
{
    return c == 0x9 || c == 0xA || c == 0xD || (c >= 0x20 && c <= 0xD7FF) ||
           (c >= 0xE000 && c <= 0xFFFD) || (c >= 0x10000 && c <= 0x10FFFF);
}

void appendUtf8(QByteArray& out, char32_t c)
{
    if (c < 0x80) {
        out += static_cast<char>(c);
    } else if (c < 0x800) {
        out += static_cast<char>(0xC0 | (c >> 6));
        out += static_cast<char>(0x80 | (c & 0x3F));
    } else if (c < 0x10000) {
        out += static_cast<char>(0xE0 | (c >> 12));
        out += static_cast<char>(0x80 | ((c >> 6) & 0x3F));
        out += static_cast<char>(0x80 | (c & 0x3F));
    } else {
        out += static_cast<char>(0xF0 | (c >> 18));
        out += static_cast<char>(0x80 | ((c >> 12) & 0x3F));
        out += static_cast<char>(0x80 | ((c >> 6) & 0x3F));
        out += static_cast<char>(0x80 | (c & 0x3F));
    }
}

class FastReader
{
public:
    explicit FastReader(QByteArrayView xml) : m_p(xml.data()), m_end(xml.data() + xml.size()) {}

    std::optional<PropertyValue> run()
    {
        if (startsWith("\xEF\xBB\xBF"))
            m_p += 3;
        if (startsWith("<?xml") && !skipDeclaration())
            return std::nullopt;
        for (;;) {
            skipSpace();
            if (!startsWith("<!DOCTYPE"))
                break;
            // Only a document type without an internal subset, in its plain form.
            static const QRegularExpression plainDoctype(QStringLiteral(
                R"(^<!DOCTYPE[ \t\r\n]+[A-Za-z_][A-Za-z0-9_.-]*([ \t\r\n]+(PUBLIC[ \t\r\n]+("[ \r\na-zA-Z0-9'()+,./:=?;!*#@$_%-]*")"
                R"(|'[ \r\na-zA-Z0-9()+,./:=?;!*#@$_%-]*')[ \t\r\n]+("[^"<&]*"|'[^'<&]*')|SYSTEM[ \t\r\n]+("[^"<&]*"|'[^'<&]*')))?[ \t\r\n]*>$)"));
            const char* close = find('>');
            if (!close || !isPlainMarkup(m_p, close) ||
                !plainDoctype.match(QString::fromLatin1(m_p, close + 1 - m_p)).hasMatch())
                return std::nullopt;
            m_p = close + 1;
        }
        std::string_view name;
        bool empty = false;
        if (!startTag(name, empty, true))
            return std::nullopt;
        std::optional<PropertyValue> value;
        if (name == "plist") {
            if (empty)
                return std::nullopt;
            skipSpace();
            if (!startTag(name, empty, false))
                return std::nullopt;
            value = readValue(name, empty, 0);
            skipSpace();
            if (!value || !endTag("plist"))
                return std::nullopt;
        } else {
            value = readValue(name, empty, 0);
            if (!value)
                return std::nullopt;
        }
        skipSpace();
        if (m_p != m_end)
            return std::nullopt;
        return value;
    }

private:
    bool startsWith(std::string_view s) const
    {
        return static_cast<size_t>(m_end - m_p) >= s.size() &&
               std::memcmp(m_p, s.data(), s.size()) == 0;
    }
    const char* find(char c) const
    {
        return static_cast<const char*>(std::memchr(m_p, c, static_cast<size_t>(m_end - m_p)));
    }
    void skipSpace()
    {
        while (m_p < m_end && isSpace(*m_p))
            ++m_p;
    }

    // <?xml ... ?> with no encoding or UTF-8.
    bool skipDeclaration()
    {
        m_p += 5; // "<?xml"
        const char* close = nullptr;
        for (const char* q = m_p; q + 1 < m_end; ++q)
            if (q[0] == '?' && q[1] == '>') {
                close = q;
                break;
            }
        if (!close)
            return false;
        // Only the plain forms; any other declaration is the full reader's
        // to judge.
        static const QRegularExpression plain(QStringLiteral(
            R"(^[ \t\r\n]+version[ \t\r\n]*=[ \t\r\n]*(["'])1\.0\1([ \t\r\n]+encoding[ \t\r\n]*=[ \t\r\n]*(["'])(UTF|utf)-8\3)?)"
            R"(([ \t\r\n]+standalone[ \t\r\n]*=[ \t\r\n]*(["'])(yes|no)\6)?[ \t\r\n]*$)"));
        if (!plain.match(QString::fromLatin1(m_p, close - m_p)).hasMatch())
            return false;
        m_p = close + 2;
        return true;
    }

    // A start tag: '<', a name of letters, then '>' or '/>'; attributes only
    // where allowed (the plist element), in the plain name="value" form.
    bool startTag(std::string_view& name, bool& empty, bool attributesAllowed)
    {
        if (m_p >= m_end || *m_p != '<')
            return false;
        const char* start = ++m_p;
        while (m_p < m_end && ((*m_p >= 'a' && *m_p <= 'z') || (*m_p >= 'A' && *m_p <= 'Z')))
            ++m_p;
        name = std::string_view(start, static_cast<size_t>(m_p - start));
        if (name.empty())
            return false;
        if (attributesAllowed && name == "plist") {
            while (m_p < m_end && isSpace(*m_p)) {
                skipSpace();
                const char* attr = m_p;
                while (m_p < m_end &&
                       ((*m_p >= 'a' && *m_p <= 'z') || (*m_p >= 'A' && *m_p <= 'Z')))
                    ++m_p;
                if (m_p == attr)
                    break;
                if (!startsWith("=\""))
                    return false;
                m_p += 2;
                while (m_p < m_end && *m_p != '"') {
                    if (*m_p == '<' || *m_p == '&' || static_cast<unsigned char>(*m_p) < 0x20 ||
                        static_cast<unsigned char>(*m_p) >= 0x80)
                        return false;
                    ++m_p;
                }
                if (m_p >= m_end)
                    return false;
                ++m_p;
            }
        }
        if (startsWith("/>")) {
            m_p += 2;
            empty = true;
            return true;
        }
        if (startsWith(">")) {
            ++m_p;
            empty = false;
            return true;
        }
        return false;
    }

    bool endTag(std::string_view name)
    {
        if (static_cast<size_t>(m_end - m_p) < name.size() + 3 || m_p[0] != '<' || m_p[1] != '/' ||
            std::memcmp(m_p + 2, name.data(), name.size()) != 0 || m_p[2 + name.size()] != '>')
            return false;
        m_p += name.size() + 3;
        return true;
    }

    // Character data up to the next '<', with its references resolved.
    std::optional<QString> text()
    {
        const char* start = m_p;
        const char* close = find('<');
        if (!close)
            return std::nullopt;
        m_p = close;
        bool plain = true;
        for (const char* q = start; q < close; ++q) {
            const auto c = static_cast<unsigned char>(*q);
            if (c == '&' || c >= 0x80 || c == '\r' || c == ']' ||
                (c < 0x20 && c != '\t' && c != '\n')) {
                plain = false;
                break;
            }
        }
        if (plain)
            return QString::fromLatin1(start, close - start);
        QByteArray utf8;
        utf8.reserve(close - start);
        for (const char* q = start; q < close;) {
            const auto c = static_cast<unsigned char>(*q);
            if (c == '\r' || (c < 0x20 && c != '\t' && c != '\n'))
                return std::nullopt; // line-end folding and forbidden controls: the full reader
                                     // decides
            if (c == ']' && close - q >= 3 && q[1] == ']' && q[2] == '>')
                return std::nullopt;
            if (c != '&') {
                utf8 += static_cast<char>(c);
                ++q;
                continue;
            }
            const char* semicolon =
                static_cast<const char*>(std::memchr(q, ';', static_cast<size_t>(close - q)));
            if (!semicolon)
                return std::nullopt;
            const std::string_view ref(q + 1, static_cast<size_t>(semicolon - q - 1));
            if (ref == "amp")
                utf8 += '&';
            else if (ref == "lt")
                utf8 += '<';
            else if (ref == "gt")
                utf8 += '>';
            else if (ref == "quot")
                utf8 += '"';
            else if (ref == "apos")
                utf8 += '\'';
            else if (ref.size() >= 2 && ref[0] == '#') {
                const bool hex = ref[1] == 'x';
                const std::string_view digits = ref.substr(hex ? 2 : 1);
                if (digits.empty() || digits.size() > 8)
                    return std::nullopt;
                char32_t code = 0;
                for (char d : digits) {
                    int v = -1;
                    if (d >= '0' && d <= '9')
                        v = d - '0';
                    else if (hex && d >= 'a' && d <= 'f')
                        v = d - 'a' + 10;
                    else if (hex && d >= 'A' && d <= 'F')
                        v = d - 'A' + 10;
                    if (v < 0)
                        return std::nullopt;
                    code = code * (hex ? 16 : 10) + static_cast<char32_t>(v);
                }
                if (!isXmlChar(code))
                    return std::nullopt;
                appendUtf8(utf8, code);
            } else {
                return std::nullopt;
            }
            q = semicolon + 1;
        }
        // A U+FEFF at the start of a text is content here, not a byte-order mark.
        QStringDecoder decoder(QStringConverter::Utf8,
                               QStringConverter::Flag::Stateless |
                                   QStringConverter::Flag::ConvertInitialBom);
        QString decoded = decoder.decode(utf8);
        if (decoder.hasError())
            return std::nullopt;
        for (const QChar ch : std::as_const(decoded))
            if (ch.unicode() == 0xFFFE || ch.unicode() == 0xFFFF)
                return std::nullopt;
        return decoded;
    }

    // A leaf element's text and its end tag; an empty element reads as "".
    std::optional<QString> leaf(std::string_view name, bool empty)
    {
        if (empty)
            return QString();
        auto t = text();
        if (!t || !endTag(name))
            return std::nullopt;
        return t;
    }

    std::optional<PropertyValue> readValue(std::string_view name, bool empty, int depth)
    {
        if (depth >= kMaxPropertyListDepth)
            return std::nullopt;
        if (name == "dict")
            return empty ? PropertyValue::dictionary() : readDictionary(depth);
        if (name == "array")
            return empty ? PropertyValue::array() : readArray(depth);
        if (name == "string") {
            auto t = leaf(name, empty);
            return t ? std::optional<PropertyValue>(PropertyValue(std::move(*t))) : std::nullopt;
        }
        if (name == "integer" || name == "real" || name == "date") {
            if (empty)
                return std::nullopt;
            auto t = leaf(name, false);
            if (!t)
                return std::nullopt;
            if (name == "integer")
                return parseInteger(*t, nullptr);
            if (name == "real")
                return parseReal(*t, nullptr);
            return parseDate(*t, nullptr);
        }
        if (name == "true" || name == "false")
            return empty ? std::optional<PropertyValue>(PropertyValue::boolean(name == "true"))
                         : std::nullopt;
        if (name == "data") {
            if (empty)
                return PropertyValue::data(QByteArray());
            const char* close = find('<');
            if (!close)
                return std::nullopt;
            auto bytes = decodeBase64(QByteArrayView(m_p, close - m_p), nullptr);
            m_p = close;
            if (!bytes || !endTag("data"))
                return std::nullopt;
            return PropertyValue::data(std::move(*bytes));
        }
        return std::nullopt;
    }

    std::optional<PropertyValue> readDictionary(int depth)
    {
        PropertyDictionary dictionary;
        for (;;) {
            skipSpace();
            if (endTag("dict"))
                return PropertyValue(std::move(dictionary));
            std::string_view name;
            bool empty = false;
            if (!startTag(name, empty, false) || name != "key")
                return std::nullopt;
            auto key = leaf("key", empty);
            if (!key)
                return std::nullopt;
            skipSpace();
            if (!startTag(name, empty, false))
                return std::nullopt;
            auto value = readValue(name, empty, depth + 1);
            if (!value)
                return std::nullopt;
            dictionary.insert_or_assign(std::move(*key), std::move(*value));
        }
    }

    std::optional<PropertyValue> readArray(int depth)
    {
        PropertyArray array;
        for (;;) {
            skipSpace();
            if (endTag("array"))
                return PropertyValue(std::move(array));
            std::string_view name;
            bool empty = false;
            if (!startTag(name, empty, false))
                return std::nullopt;
            auto value = readValue(name, empty, depth + 1);
            if (!value)
                return std::nullopt;
            array.push_back(std::move(*value));
        }
    }

    const char* m_p;
    const char* m_end;
};

} // namespace

std::optional<PropertyValue> readFast(QByteArrayView xml)
{
    return FastReader(xml).run();
}

} // namespace orvan::plist
