#include "settings/PropertyList.h"

#include "settings/PropertyListLeaves.h"

#include <QLocale>

#include <cmath>

namespace orvan {

namespace {

// The format is small and fixed, so the writer builds the document straight
// into one buffer: escaping the few characters XML reserves, and refusing the
// ones XML 1.0 cannot carry at all (even as references), so that every file
// it writes reads back. Watermark files hold megabytes of base64 data; a
// general XML writer's per-character work would dominate saving them.
class Writer
{
public:
    std::optional<QByteArray> run(const PropertyValue& value, QString* error)
    {
        m_out.reserve(estimatedSize(value, 0) + 256);
        m_out += "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n"
                 "<!DOCTYPE plist PUBLIC \"-//Apple//DTD PLIST 1.0//EN\" "
                 "\"http://www.apple.com/DTDs/PropertyList-1.0.dtd\">\n"
                 "<plist version=\"1.0\">\n";
        if (!writeValue(value, 0)) {
            if (error)
                *error = m_error;
            return std::nullopt;
        }
        m_out += "</plist>\n";
        return std::move(m_out);
    }

private:
    // An upper-bound guess of the document's size, so the buffer grows once
    // instead of copying megabytes of data at each doubling.
    static qsizetype estimatedSize(const PropertyValue& value, int depth)
    {
        switch (value.kind()) {
        case PropertyValue::Kind::Dictionary: {
            qsizetype size = 2 * depth + 16;
            for (const auto& [key, child] : value.asDictionary())
                size += depth + 16 + key.size() * 3 + estimatedSize(child, depth + 1);
            return size;
        }
        case PropertyValue::Kind::Array: {
            qsizetype size = 2 * depth + 18;
            for (const auto& child : value.asArray())
                size += estimatedSize(child, depth + 1);
            return size;
        }
        case PropertyValue::Kind::String:
            return depth + 20 + value.toString().size() * 3;
        case PropertyValue::Kind::Data: {
            const qsizetype encoded = (value.toData().size() + 2) / 3 * 4;
            return 2 * depth + 16 + encoded + (encoded / 76 + 1) * (depth + 1);
        }
        case PropertyValue::Kind::Null:
        case PropertyValue::Kind::Integer:
        case PropertyValue::Kind::Real:
        case PropertyValue::Kind::Boolean:
        case PropertyValue::Kind::Date:
            return depth + 48;
        }
        return 0;
    }

    void indent(int depth) { m_out.append(depth, '\t'); }

    bool refuse(const QString& why)
    {
        m_error = why;
        return false;
    }

    // Appends text escaped for XML content. Carriage returns are written as
    // references, since a reader folds a raw one into a line feed.
    bool appendEscaped(const QString& text, const char* what)
    {
        const char16_t* p = reinterpret_cast<const char16_t*>(text.utf16());
        const qsizetype n = text.size();
        qsizetype plainFrom = 0;
        auto flush = [&](qsizetype to) {
            if (to > plainFrom)
                m_out += QStringView(p + plainFrom, to - plainFrom).toUtf8();
        };
        for (qsizetype i = 0; i < n; ++i) {
            const char16_t c = p[i];
            const char* replacement = nullptr;
            if (c == '&')
                replacement = "&amp;";
            else if (c == '<')
                replacement = "&lt;";
            else if (c == '>')
                replacement = "&gt;";
            else if (c == '\r')
                replacement = "&#13;";
            else if (c < 0x20 && c != '\t' && c != '\n')
                return refuse(
                    QStringLiteral(
                        "%1 \"%2\" holds the control character U+%3, which XML cannot carry")
                        .arg(QLatin1String(what), text.left(40))
                        .arg(static_cast<unsigned>(c), 4, 16, QLatin1Char('0')));
            else if (c == 0xFFFE || c == 0xFFFF)
                return refuse(QStringLiteral("%1 \"%2\" holds the non-character U+%3")
                                  .arg(QLatin1String(what), text.left(40))
                                  .arg(static_cast<unsigned>(c), 4, 16, QLatin1Char('0')));
            else if (QChar::isHighSurrogate(c)) {
                if (i + 1 < n && QChar::isLowSurrogate(p[i + 1])) {
                    ++i;
                    continue;
                }
                return refuse(QStringLiteral("%1 \"%2\" holds a lone surrogate")
                                  .arg(QLatin1String(what), text.left(40)));
            } else if (QChar::isLowSurrogate(c)) {
                return refuse(QStringLiteral("%1 \"%2\" holds a lone surrogate")
                                  .arg(QLatin1String(what), text.left(40)));
            }
            if (replacement) {
                flush(i);
                m_out += replacement;
                plainFrom = i + 1;
            }
        }
        flush(n);
        return true;
    }

    bool writeLeaf(const char* tag, const QString& text, int depth)
    {
        indent(depth);
        m_out += '<';
        m_out += tag;
        m_out += '>';
        if (!appendEscaped(text, "the string"))
            return false;
        m_out += "</";
        m_out += tag;
        m_out += ">\n";
        return true;
    }

    void writeAsciiLeaf(const char* tag, const QByteArray& text, int depth)
    {
        indent(depth);
        m_out += '<';
        m_out += tag;
        m_out += '>';
        m_out += text;
        m_out += "</";
        m_out += tag;
        m_out += ">\n";
    }

    bool writeValue(const PropertyValue& value, int depth)
    {
        if (depth >= kMaxPropertyListDepth)
            return refuse(QStringLiteral("the value is nested deeper than %1 levels")
                              .arg(kMaxPropertyListDepth));
        switch (value.kind()) {
        case PropertyValue::Kind::Null:
            return refuse(QStringLiteral("a property list cannot hold a null value"));
        case PropertyValue::Kind::Dictionary: {
            const auto& dictionary = value.asDictionary();
            indent(depth);
            if (dictionary.empty()) {
                m_out += "<dict/>\n";
                return true;
            }
            m_out += "<dict>\n";
            for (const auto& [key, child] : dictionary) {
                indent(depth + 1);
                m_out += "<key>";
                if (!appendEscaped(key, "the key"))
                    return false;
                m_out += "</key>\n";
                if (!writeValue(child, depth + 1))
                    return false;
            }
            indent(depth);
            m_out += "</dict>\n";
            return true;
        }
        case PropertyValue::Kind::Array: {
            const auto& array = value.asArray();
            indent(depth);
            if (array.empty()) {
                m_out += "<array/>\n";
                return true;
            }
            m_out += "<array>\n";
            for (const auto& child : array)
                if (!writeValue(child, depth + 1))
                    return false;
            indent(depth);
            m_out += "</array>\n";
            return true;
        }
        case PropertyValue::Kind::String:
            return writeLeaf("string", value.toString(), depth);
        case PropertyValue::Kind::Integer:
            writeAsciiLeaf("integer",
                           QByteArray::number(static_cast<qlonglong>(*value.toInteger())), depth);
            return true;
        case PropertyValue::Kind::Real:
            writeAsciiLeaf("real", realText(*value.toReal()), depth);
            return true;
        case PropertyValue::Kind::Boolean:
            indent(depth);
            m_out += *value.toBool() ? "<true/>\n" : "<false/>\n";
            return true;
        case PropertyValue::Kind::Data:
            writeData(value.toData(), depth);
            return true;
        case PropertyValue::Kind::Date: {
            const QDateTime when = value.toDate();
            if (!when.isValid())
                return refuse(QStringLiteral("an invalid date cannot be written"));
            writeAsciiLeaf("date", when.toUTC().toString(Qt::ISODate).toLatin1(), depth);
            return true;
        }
        }
        return refuse(QStringLiteral("unknown value kind"));
    }

    static QByteArray realText(double value)
    {
        if (std::isnan(value))
            return "nan";
        if (std::isinf(value))
            return value > 0 ? "+infinity" : "-infinity";
        if (value == 0 && std::signbit(value))
            return "-0.0";
        // The shortest text that reads back as exactly the same double.
        return QByteArray::number(value, 'g', QLocale::FloatingPointShortest);
    }

    // Base64 in lines of 76 characters at the element's indentation.
    void writeData(const QByteArray& bytes, int depth)
    {
        indent(depth);
        if (bytes.isEmpty()) {
            m_out += "<data></data>\n";
            return;
        }
        m_out += "<data>\n";
        plist::appendBase64Lines(m_out, bytes, depth);
        indent(depth);
        m_out += "</data>\n";
    }

    QByteArray m_out;
    QString m_error;
};

} // namespace

std::optional<QByteArray> writePropertyList(const PropertyValue& value, QString* error)
{
    Writer writer;
    return writer.run(value, error);
}

} // namespace orvan
