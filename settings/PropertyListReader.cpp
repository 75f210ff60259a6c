#include "settings/PropertyList.h"

#include <QXmlStreamReader>

#include <cmath>
#include <limits>

namespace orvan {

QString PropertyListError::toString() const
{
    return QStringLiteral("line %1, column %2: %3").arg(line).arg(column).arg(message);
}

namespace {

// Recursive descent over the reader's tokens; every value element is read
// whole by readValue(), which leaves the reader on the element's end tag.
class Reader
{
public:
    explicit Reader(const QByteArray& xml) : m_xml(xml) {}

    std::optional<PropertyValue> run(PropertyListError* error)
    {
        std::optional<PropertyValue> result = readDocument();
        if (!result || m_xml.hasError()) {
            if (error) {
                error->message = m_xml.errorString();
                error->line = m_xml.lineNumber();
                error->column = m_xml.columnNumber() + 1; // the reader counts columns from 0
            }
            return std::nullopt;
        }
        return result;
    }

private:
    std::optional<PropertyValue> fail(const QString& message)
    {
        if (!m_xml.hasError())
            m_xml.raiseError(message);
        return std::nullopt;
    }

    // Moves to the next start or end element, skipping whitespace, comments
    // and processing instructions; text that is not whitespace is an error.
    QXmlStreamReader::TokenType nextElementToken()
    {
        while (!m_xml.atEnd()) {
            const auto token = m_xml.readNext();
            switch (token) {
            case QXmlStreamReader::StartElement:
            case QXmlStreamReader::EndElement:
                return token;
            case QXmlStreamReader::Characters:
                if (!m_xml.isWhitespace()) {
                    m_xml.raiseError(QStringLiteral("unexpected text \"%1\"").arg(m_xml.text().left(40)));
                    return QXmlStreamReader::Invalid;
                }
                break;
            case QXmlStreamReader::Invalid:
                return token;
            default:
                break;
            }
        }
        if (!m_xml.hasError())
            m_xml.raiseError(QStringLiteral("unexpected end of document"));
        return QXmlStreamReader::Invalid;
    }

    std::optional<PropertyValue> readDocument()
    {
        if (nextElementToken() != QXmlStreamReader::StartElement)
            return fail(QStringLiteral("no property list in the document"));
        std::optional<PropertyValue> value;
        if (m_xml.name() == QLatin1String("plist")) {
            if (nextElementToken() != QXmlStreamReader::StartElement)
                return fail(QStringLiteral("the plist element holds no value"));
            value = readValue(0);
            if (!value)
                return std::nullopt;
            if (nextElementToken() != QXmlStreamReader::EndElement)
                return fail(QStringLiteral("the plist element holds more than one value"));
        } else {
            // A bare value without the plist wrapper, as older writers made.
            value = readValue(0);
            if (!value)
                return std::nullopt;
        }
        // Nothing but whitespace, comments and instructions may follow.
        while (!m_xml.atEnd()) {
            const auto token = m_xml.readNext();
            if (token == QXmlStreamReader::StartElement ||
                (token == QXmlStreamReader::Characters && !m_xml.isWhitespace()))
                return fail(QStringLiteral("content after the end of the property list"));
        }
        if (m_xml.hasError())
            return std::nullopt;
        return value;
    }

    // Reads the text of a leaf element; the reader ends on its end tag.
    std::optional<QString> leafText()
    {
        QString text = m_xml.readElementText(QXmlStreamReader::ErrorOnUnexpectedElement);
        if (m_xml.hasError())
            return std::nullopt;
        return text;
    }

    std::optional<PropertyValue> readValue(int depth)
    {
        if (depth >= kMaxPropertyListDepth)
            return fail(QStringLiteral("property list nested deeper than %1 levels").arg(kMaxPropertyListDepth));
        const QStringView name = m_xml.name();
        if (name == QLatin1String("dict"))
            return readDictionary(depth);
        if (name == QLatin1String("array"))
            return readArray(depth);
        if (name == QLatin1String("string")) {
            auto text = leafText();
            return text ? std::optional<PropertyValue>(PropertyValue(std::move(*text))) : std::nullopt;
        }
        if (name == QLatin1String("integer"))
            return readInteger();
        if (name == QLatin1String("real"))
            return readReal();
        if (name == QLatin1String("true") || name == QLatin1String("false")) {
            const bool value = name == QLatin1String("true");
            if (nextElementToken() != QXmlStreamReader::EndElement)
                return fail(QStringLiteral("a boolean element must be empty"));
            return PropertyValue::boolean(value);
        }
        if (name == QLatin1String("data"))
            return readData();
        if (name == QLatin1String("date"))
            return readDate();
        return fail(QStringLiteral("unknown element <%1>").arg(name));
    }

    std::optional<PropertyValue> readDictionary(int depth)
    {
        PropertyDictionary dictionary;
        for (;;) {
            const auto token = nextElementToken();
            if (token == QXmlStreamReader::EndElement)
                return PropertyValue(std::move(dictionary));
            if (token != QXmlStreamReader::StartElement)
                return std::nullopt;
            if (m_xml.name() != QLatin1String("key"))
                return fail(QStringLiteral("expected <key> in a dictionary, found <%1>").arg(m_xml.name()));
            auto key = leafText();
            if (!key)
                return std::nullopt;
            if (nextElementToken() != QXmlStreamReader::StartElement)
                return fail(QStringLiteral("the key \"%1\" has no value").arg(*key));
            auto value = readValue(depth + 1);
            if (!value)
                return std::nullopt;
            // A repeated key keeps its last value, as other readers do.
            dictionary.insert_or_assign(std::move(*key), std::move(*value));
        }
    }

    std::optional<PropertyValue> readArray(int depth)
    {
        PropertyArray array;
        for (;;) {
            const auto token = nextElementToken();
            if (token == QXmlStreamReader::EndElement)
                return PropertyValue(std::move(array));
            if (token != QXmlStreamReader::StartElement)
                return std::nullopt;
            auto value = readValue(depth + 1);
            if (!value)
                return std::nullopt;
            array.push_back(std::move(*value));
        }
    }

    std::optional<PropertyValue> readInteger()
    {
        auto text = leafText();
        if (!text)
            return std::nullopt;
        const QString trimmed = text->trimmed();
        bool ok = false;
        qint64 value = 0;
        if (trimmed.startsWith(QLatin1String("0x")) || trimmed.startsWith(QLatin1String("0X")))
            value = trimmed.mid(2).toLongLong(&ok, 16);
        else if (trimmed.startsWith(QLatin1String("-0x")) || trimmed.startsWith(QLatin1String("-0X")))
            value = -trimmed.mid(3).toLongLong(&ok, 16);
        else
            value = trimmed.toLongLong(&ok, 10);
        if (!ok)
            return fail(QStringLiteral("\"%1\" is not an integer in the 64-bit range").arg(trimmed.left(40)));
        const bool fits32 = value >= std::numeric_limits<std::int32_t>::min() &&
                            value <= std::numeric_limits<std::int32_t>::max();
        return PropertyValue::integer(value, fits32 ? NumberType::CFIndex : NumberType::SInt64);
    }

    std::optional<PropertyValue> readReal()
    {
        auto text = leafText();
        if (!text)
            return std::nullopt;
        const QString trimmed = text->trimmed();
        const QString lower = trimmed.toLower();
        if (lower == QLatin1String("nan"))
            return PropertyValue::real(std::numeric_limits<double>::quiet_NaN());
        if (lower == QLatin1String("+infinity") || lower == QLatin1String("infinity") || lower == QLatin1String("inf"))
            return PropertyValue::real(std::numeric_limits<double>::infinity());
        if (lower == QLatin1String("-infinity") || lower == QLatin1String("-inf"))
            return PropertyValue::real(-std::numeric_limits<double>::infinity());
        bool ok = false;
        const double value = trimmed.toDouble(&ok);
        if (!ok)
            return fail(QStringLiteral("\"%1\" is not a real number").arg(trimmed.left(40)));
        return PropertyValue::real(value);
    }

    std::optional<PropertyValue> readData()
    {
        auto text = leafText();
        if (!text)
            return std::nullopt;
        // Whitespace and line breaks are part of the format; anything else
        // outside the base64 alphabet is an error.
        QByteArray compact;
        compact.reserve(text->size());
        for (const QChar c : std::as_const(*text)) {
            const char16_t u = c.unicode();
            if (u == ' ' || u == '\t' || u == '\n' || u == '\r')
                continue;
            const bool base64 = (u >= 'A' && u <= 'Z') || (u >= 'a' && u <= 'z') || (u >= '0' && u <= '9') ||
                                u == '+' || u == '/' || u == '=';
            if (!base64)
                return fail(QStringLiteral("invalid character in base64 data"));
            compact.append(static_cast<char>(u));
        }
        auto decoded = QByteArray::fromBase64Encoding(compact, QByteArray::AbortOnBase64DecodingErrors);
        if (!decoded)
            return fail(QStringLiteral("malformed base64 data"));
        return PropertyValue::data(std::move(*decoded));
    }

    std::optional<PropertyValue> readDate()
    {
        auto text = leafText();
        if (!text)
            return std::nullopt;
        QDateTime when = QDateTime::fromString(text->trimmed(), Qt::ISODate);
        if (!when.isValid())
            return fail(QStringLiteral("\"%1\" is not an ISO 8601 date").arg(text->trimmed().left(40)));
        return PropertyValue::date(when.toUTC());
    }

    QXmlStreamReader m_xml;
};

} // namespace

std::optional<PropertyValue> readPropertyList(const QByteArray& xml, PropertyListError* error)
{
    Reader reader(xml);
    return reader.run(error);
}

} // namespace orvan
