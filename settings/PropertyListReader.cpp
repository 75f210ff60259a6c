#include "settings/PropertyList.h"

#include "settings/PropertyListFastReader.h"
#include "settings/PropertyListLeaves.h"

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
                    m_xml.raiseError(
                        QStringLiteral("unexpected text \"%1\"").arg(m_xml.text().left(40)));
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
            return fail(QStringLiteral("property list nested deeper than %1 levels")
                            .arg(kMaxPropertyListDepth));
        const QStringView name = m_xml.name();
        if (name == QLatin1String("dict"))
            return readDictionary(depth);
        if (name == QLatin1String("array"))
            return readArray(depth);
        if (name == QLatin1String("string")) {
            auto text = leafText();
            return text ? std::optional<PropertyValue>(PropertyValue(std::move(*text)))
                        : std::nullopt;
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
                return fail(
                    QStringLiteral("expected <key> in a dictionary, found <%1>").arg(m_xml.name()));
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

    // Leaf conversions are shared with the fast path, so both accept the same.
    template <typename Parse> std::optional<PropertyValue> readLeaf(Parse parse)
    {
        auto text = leafText();
        if (!text)
            return std::nullopt;
        QString why;
        auto value = parse(*text, &why);
        if (!value)
            return fail(why);
        return value;
    }
    std::optional<PropertyValue> readInteger() { return readLeaf(plist::parseInteger); }
    std::optional<PropertyValue> readReal() { return readLeaf(plist::parseReal); }
    std::optional<PropertyValue> readDate() { return readLeaf(plist::parseDate); }
    std::optional<PropertyValue> readData()
    {
        auto text = leafText();
        if (!text)
            return std::nullopt;
        QString why;
        // Non-Latin-1 characters become '?', which the alphabet check refuses.
        auto bytes = plist::decodeBase64(text->toLatin1(), &why);
        if (!bytes)
            return fail(why);
        return PropertyValue::data(std::move(*bytes));
    }

    QXmlStreamReader m_xml;
};

} // namespace

std::optional<PropertyValue> plist::readWithFullReader(const QByteArray& xml,
                                                       PropertyListError* error)
{
    Reader reader(xml);
    return reader.run(error);
}

std::optional<PropertyValue> readPropertyList(const QByteArray& xml, PropertyListError* error)
{
    if (auto value = plist::readFast(xml))
        return value;
    return plist::readWithFullReader(xml, error);
}

} // namespace orvan
