// vCard text (versions 4.0 and 3.0): reading cards into properties and
// writing them back. Lines may end in CRLF or LF and may be folded; values
// keep their escapes until a caller splits and unescapes them, because how a
// value is split (components by ';', lists by ',') depends on the property.
#pragma once

#include <QByteArray>
#include <QString>
#include <QStringList>

#include <utility>
#include <vector>

namespace orvan {

struct VCardProperty
{
    QString name; // upper case, without its group ("item1.TEL" reads as "TEL")
    // Parameter names upper case; values as written, unquoted and split at
    // ',' (so "TYPE=work,fax" and "TYPE=work;TYPE=fax" read alike).
    std::vector<std::pair<QString, QStringList>> parameters;
    QString value; // still escaped

    // Every value of the parameter, lower case (for TYPE=WORK in 3.0 cards).
    QStringList parameterValues(const QString& name) const;
    bool hasType(const QString& type) const;
};

struct VCard
{
    QString version; // "4.0", "3.0" or whatever the card says
    std::vector<VCardProperty> properties;

    // The first property of that name; null when there is none.
    const VCardProperty* property(const QString& name) const;
    std::vector<const VCardProperty*> all(const QString& name) const;
};

// Every well-formed BEGIN:VCARD ... END:VCARD block of the text, in order.
// Lines outside a card, lines without a ':' and unterminated cards are
// skipped; the number of skipped lines or cards goes to skipped.
std::vector<VCard> ParseVCards(const QByteArray& text, int* skipped = nullptr);

// A card as text: CRLF line ends, lines folded at 75 octets without
// splitting a UTF-8 sequence, parameter values quoted where they must be.
QByteArray SerializeVCard(const VCard& card);

// Text values: "\n" (or "\N") is a line break, "\," "\;" "\\" the character.
QString UnescapeVCardText(const QString& value);
QString EscapeVCardText(const QString& text);
// Splits a structured value at unescaped separators and unescapes each part.
QStringList SplitVCardValue(const QString& value, QChar separator);

} // namespace orvan
