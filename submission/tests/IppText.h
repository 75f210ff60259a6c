// IPP attributes as text with their value types, so that a test sees both
// what a job carries and how each value is typed:
//   media-col (collection)={media-size (collection)={x-dimension (integer)=21000 ...} ...}
#pragma once

#include <cups/ipp.h>

#include <QString>
#include <QStringList>

namespace orvan::testing {

// sortMembers lists a collection's members by name, for a server that may
// reorder them.
inline QString IppText(ipp_attribute_t* attribute, bool sortMembers = false)
{
    const ipp_tag_t tag = ippGetValueTag(attribute);
    QString text = QString::fromUtf8(ippGetName(attribute)) + QStringLiteral(" (") +
                   (ippGetCount(attribute) > 1 ? QStringLiteral("1setOf ") : QString()) +
                   QString::fromLatin1(ippTagString(tag)) + QStringLiteral(")=");
    if (tag != IPP_TAG_BEGIN_COLLECTION) {
        char value[4096];
        ippAttributeString(attribute, value, sizeof value);
        return text + QString::fromUtf8(value);
    }
    QStringList values;
    for (int i = 0; i < ippGetCount(attribute); ++i) {
        ipp_t* collection = ippGetCollection(attribute, i);
        QStringList members;
        for (ipp_attribute_t* member = ippFirstAttribute(collection); member;
             member = ippNextAttribute(collection))
            members << IppText(member, sortMembers);
        if (sortMembers)
            members.sort();
        values << QLatin1Char('{') + members.join(QLatin1Char(' ')) + QLatin1Char('}');
    }
    return text + values.join(QLatin1Char(','));
}

// The named attribute of a message or collection as text; empty when absent.
inline QString IppText(ipp_t* ipp, const char* name, bool sortMembers = false)
{
    ipp_attribute_t* attribute = ippFindAttribute(ipp, name, IPP_TAG_ZERO);
    return attribute ? IppText(attribute, sortMembers) : QString();
}

} // namespace orvan::testing
