#include "fax/VCard.h"

#include <QList>

namespace orvan {

namespace {

// Joins folded lines (a line break followed by a space or tab continues the
// line) and splits at CRLF or LF.
QList<QByteArray> unfoldedLines(const QByteArray& text)
{
    QList<QByteArray> lines;
    QByteArray current;
    bool haveCurrent = false;
    qsizetype start = 0;
    while (start <= text.size()) {
        qsizetype end = text.indexOf('\n', start);
        if (end < 0)
            end = text.size();
        QByteArray line = text.mid(start, end - start);
        if (line.endsWith('\r'))
            line.chop(1);
        if (!line.isEmpty() && (line[0] == ' ' || line[0] == '\t') && haveCurrent) {
            current += line.mid(1);
        } else {
            if (haveCurrent)
                lines.append(current);
            current = line;
            haveCurrent = true;
        }
        start = end + 1;
    }
    if (haveCurrent && !current.isEmpty())
        lines.append(current);
    return lines;
}

// Splits at a separator that is outside double quotes.
QStringList splitOutsideQuotes(const QString& text, QChar separator)
{
    QStringList parts;
    QString current;
    bool quoted = false;
    for (QChar c : text) {
        if (c == u'"')
            quoted = !quoted;
        if (c == separator && !quoted) {
            parts.append(current);
            current.clear();
        } else {
            current += c;
        }
    }
    parts.append(current);
    return parts;
}

QString unquoted(QString value)
{
    if (value.size() >= 2 && value.startsWith(u'"') && value.endsWith(u'"'))
        value = value.mid(1, value.size() - 2);
    return value;
}

// One content line: [group.]name *(;param) : value. nullopt without a colon
// outside quotes or with an empty name.
std::optional<VCardProperty> parseLine(const QString& line)
{
    qsizetype colon = -1;
    bool quoted = false;
    for (qsizetype i = 0; i < line.size(); ++i) {
        if (line[i] == u'"')
            quoted = !quoted;
        else if (line[i] == u':' && !quoted) {
            colon = i;
            break;
        }
    }
    if (colon < 0)
        return std::nullopt;
    const QStringList head = splitOutsideQuotes(line.left(colon), u';');
    VCardProperty property;
    QString name = head.first().trimmed();
    if (const qsizetype dot = name.lastIndexOf(u'.'); dot >= 0)
        name = name.mid(dot + 1);
    if (name.isEmpty())
        return std::nullopt;
    property.name = name.toUpper();
    for (qsizetype i = 1; i < head.size(); ++i) {
        const QString& parameter = head[i];
        const qsizetype equals = parameter.indexOf(u'=');
        // "TEL;WORK;FAX:" (vCard 2.1 style) gives bare types.
        const QString parameterName =
            equals < 0 ? QStringLiteral("TYPE") : parameter.left(equals).trimmed().toUpper();
        const QString values = equals < 0 ? parameter : parameter.mid(equals + 1);
        QStringList list;
        for (const QString& each : splitOutsideQuotes(values, u','))
            list.append(unquoted(each));
        property.parameters.emplace_back(parameterName, list);
    }
    property.value = line.mid(colon + 1);
    return property;
}

QByteArray foldedLine(const QByteArray& line)
{
    constexpr qsizetype kMaxOctets = 75;
    QByteArray out;
    qsizetype start = 0;
    qsizetype limit = kMaxOctets;
    while (line.size() - start > limit) {
        qsizetype cut = start + limit;
        // Never split a UTF-8 sequence: back up over continuation bytes.
        while (cut > start + 1 && (static_cast<unsigned char>(line[cut]) & 0xC0) == 0x80)
            --cut;
        out += line.mid(start, cut - start);
        out += "\r\n ";
        start = cut;
        limit = kMaxOctets - 1; // the leading space counts
    }
    out += line.mid(start);
    out += "\r\n";
    return out;
}

bool needsQuotes(const QString& value)
{
    return value.contains(u':') || value.contains(u';') || value.contains(u',');
}

} // namespace

QStringList VCardProperty::parameterValues(const QString& parameterName) const
{
    QStringList values;
    for (const auto& [name, list] : parameters)
        if (name == parameterName)
            for (const QString& each : list)
                values.append(each.toLower());
    return values;
}

bool VCardProperty::hasType(const QString& type) const
{
    return parameterValues(QStringLiteral("TYPE")).contains(type.toLower());
}

const VCardProperty* VCard::property(const QString& name) const
{
    for (const VCardProperty& each : properties)
        if (each.name == name)
            return &each;
    return nullptr;
}

std::vector<const VCardProperty*> VCard::all(const QString& name) const
{
    std::vector<const VCardProperty*> found;
    for (const VCardProperty& each : properties)
        if (each.name == name)
            found.push_back(&each);
    return found;
}

std::vector<VCard> ParseVCards(const QByteArray& text, int* skipped)
{
    std::vector<VCard> cards;
    int bad = 0;
    std::optional<VCard> open;
    for (const QByteArray& raw : unfoldedLines(text)) {
        const QString line = QString::fromUtf8(raw);
        if (line.trimmed().isEmpty())
            continue;
        const auto property = parseLine(line);
        if (!property) {
            ++bad;
            continue;
        }
        const QString value = property->value.trimmed().toUpper();
        if (property->name == u"BEGIN" && value == u"VCARD") {
            if (open)
                ++bad; // a card that never ended
            open.emplace();
        } else if (property->name == u"END" && value == u"VCARD") {
            if (open)
                cards.push_back(std::move(*open));
            else
                ++bad;
            open.reset();
        } else if (!open) {
            ++bad;
        } else if (property->name == u"VERSION") {
            open->version = property->value.trimmed();
        } else {
            open->properties.push_back(*property);
        }
    }
    if (open)
        ++bad;
    if (skipped)
        *skipped = bad;
    return cards;
}

QByteArray SerializeVCard(const VCard& card)
{
    QByteArray out = "BEGIN:VCARD\r\n";
    out +=
        "VERSION:" + (card.version.isEmpty() ? QByteArray("4.0") : card.version.toUtf8()) + "\r\n";
    for (const VCardProperty& property : card.properties) {
        QString line = property.name;
        for (const auto& [name, values] : property.parameters) {
            QStringList written;
            for (QString value : values) {
                value.remove(u'"'); // a parameter value cannot carry a quote
                written.append(needsQuotes(value) ? u'"' + value + u'"' : value);
            }
            line += u';' + name + u'=' + written.join(u',');
        }
        line += u':' + property.value;
        out += foldedLine(line.toUtf8());
    }
    out += "END:VCARD\r\n";
    return out;
}

QString UnescapeVCardText(const QString& value)
{
    QString text;
    text.reserve(value.size());
    for (qsizetype i = 0; i < value.size(); ++i) {
        if (value[i] != u'\\' || i + 1 == value.size()) {
            text += value[i];
            continue;
        }
        const QChar next = value[++i];
        text += (next == u'n' || next == u'N') ? QChar(u'\n') : next;
    }
    return text;
}

QString EscapeVCardText(const QString& text)
{
    QString value;
    value.reserve(text.size());
    for (QChar c : text) {
        if (c == u'\\' || c == u',' || c == u';')
            value += u'\\';
        if (c == u'\n')
            value += QStringLiteral("\\n");
        else if (c != u'\r')
            value += c;
    }
    return value;
}

QStringList SplitVCardValue(const QString& value, QChar separator)
{
    QStringList parts;
    QString current;
    for (qsizetype i = 0; i < value.size(); ++i) {
        if (value[i] == u'\\' && i + 1 < value.size()) {
            current += value[i];
            current += value[++i];
        } else if (value[i] == separator) {
            parts.append(UnescapeVCardText(current));
            current.clear();
        } else {
            current += value[i];
        }
    }
    parts.append(UnescapeVCardText(current));
    return parts;
}

} // namespace orvan
