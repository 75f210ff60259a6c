#include "submission/PrinterSupport.h"

#include <QString>

#include <algorithm>
#include <vector>

namespace orvan::submission {

namespace {

bool IsString(ipp_tag_t tag)
{
    return tag == IPP_TAG_KEYWORD || tag == IPP_TAG_NAME || tag == IPP_TAG_TEXT ||
           tag == IPP_TAG_URI || tag == IPP_TAG_NAMELANG || tag == IPP_TAG_TEXTLANG;
}

// The value as a notice shows it; nothing for octet strings (passcodes).
QString ValueText(ipp_attribute_t* attribute, int index)
{
    const ipp_tag_t tag = ippGetValueTag(attribute);
    if (IsString(tag))
        return QStringLiteral(" \"%1\"").arg(
            QString::fromUtf8(ippGetString(attribute, index, nullptr)));
    if (tag == IPP_TAG_ENUM)
        return QLatin1Char(' ') + QString::fromUtf8(ippEnumString(ippGetName(attribute),
                                                                  ippGetInteger(attribute, index)));
    if (tag == IPP_TAG_INTEGER)
        return QLatin1Char(' ') + QString::number(ippGetInteger(attribute, index));
    if (tag == IPP_TAG_RESOLUTION) {
        int y = 0;
        ipp_res_t units;
        const int x = ippGetResolution(attribute, index, &y, &units);
        return QStringLiteral(" %1x%2dpi").arg(x).arg(y);
    }
    return {};
}

bool Supports(ipp_attribute_t* supported, ipp_attribute_t* attribute, int index)
{
    const ipp_tag_t tag = ippGetValueTag(attribute);
    const ipp_tag_t supportedTag = ippGetValueTag(supported);
    if (tag == IPP_TAG_STRING || IsString(tag)) {
        int length = 0;
        if (tag == IPP_TAG_STRING)
            ippGetOctetString(attribute, index, &length);
        else
            length = static_cast<int>(qstrlen(ippGetString(attribute, index, nullptr)));
        if (supportedTag == IPP_TAG_INTEGER) // a limit on the length
            return length <= ippGetInteger(supported, 0);
        if (tag != IPP_TAG_STRING &&
            (supportedTag == IPP_TAG_KEYWORD || supportedTag == IPP_TAG_NAME))
            return ippContainsString(supported, ippGetString(attribute, index, nullptr));
        return true;
    }
    if ((tag == IPP_TAG_INTEGER || tag == IPP_TAG_ENUM) &&
        (supportedTag == IPP_TAG_INTEGER || supportedTag == IPP_TAG_ENUM ||
         supportedTag == IPP_TAG_RANGE))
        return ippContainsInteger(supported, ippGetInteger(attribute, index));
    if (tag == IPP_TAG_RESOLUTION && supportedTag == IPP_TAG_RESOLUTION) {
        int y = 0;
        ipp_res_t units;
        const int x = ippGetResolution(attribute, index, &y, &units);
        for (int i = 0; i < ippGetCount(supported); ++i) {
            int supportedY = 0;
            ipp_res_t supportedUnits;
            if (ippGetResolution(supported, i, &supportedY, &supportedUnits) == x &&
                supportedY == y && supportedUnits == units)
                return true;
        }
        return false;
    }
    return true;
}

std::vector<ipp_attribute_t*> Attributes(ipp_t* ipp)
{
    std::vector<ipp_attribute_t*> attributes;
    for (ipp_attribute_t* attribute = ippFirstAttribute(ipp); attribute;
         attribute = ippNextAttribute(ipp))
        attributes.push_back(attribute);
    return attributes;
}

// Removes the values at the indexes (ascending). The library removes only
// string values in place, so a number attribute is made again with the rest.
void RemoveValues(ipp_t* container, ipp_attribute_t* attribute, const std::vector<int>& indexes)
{
    const ipp_tag_t tag = ippGetValueTag(attribute);
    if (tag != IPP_TAG_INTEGER && tag != IPP_TAG_ENUM) {
        for (auto i = indexes.rbegin(); i != indexes.rend(); ++i)
            ippDeleteValues(container, &attribute, *i, 1);
        return;
    }
    std::vector<int> kept;
    for (int i = 0; i < ippGetCount(attribute); ++i)
        if (std::find(indexes.begin(), indexes.end(), i) == indexes.end())
            kept.push_back(ippGetInteger(attribute, i));
    const QByteArray name = ippGetName(attribute);
    const ipp_tag_t group = ippGetGroupTag(attribute);
    ippDeleteAttribute(container, attribute);
    ippAddIntegers(container, group, tag, name.constData(), static_cast<int>(kept.size()),
                   kept.data());
}

class Fitter
{
public:
    Fitter(ipp_t* printer, QStringList& notices) : m_printer(printer), m_notices(notices) {}

    // Fits one attribute of container (a job or a collection) to the printer;
    // false when the whole attribute has to go. within names the enclosing
    // collection, empty at the top.
    bool fit(ipp_t* container, ipp_attribute_t* attribute, const QString& within)
    {
        const QByteArray name = ippGetName(attribute);
        ipp_attribute_t* supported =
            ippFindAttribute(m_printer, (name + "-supported").constData(), IPP_TAG_ZERO);
        if (!supported) {
            if (!within.isEmpty())
                return true; // a member's values are checked where the printer lists them
            ipp_attribute_t* creation =
                ippFindAttribute(m_printer, "job-creation-attributes-supported", IPP_TAG_KEYWORD);
            if (creation && ippContainsString(creation, name.constData()))
                return true;
            return drop(name, within, {});
        }
        if (ippGetValueTag(supported) == IPP_TAG_BOOLEAN)
            return ippGetBoolean(supported, 0) || drop(name, within, {});
        if (ippGetValueTag(attribute) == IPP_TAG_BEGIN_COLLECTION) {
            for (int i = 0; i < ippGetCount(attribute); ++i)
                fitMembers(ippGetCollection(attribute, i), supported, QString::fromUtf8(name));
            return true;
        }
        std::vector<int> unsupported;
        for (int i = 0; i < ippGetCount(attribute); ++i)
            if (!Supports(supported, attribute, i))
                unsupported.push_back(i);
        if (unsupported.size() == static_cast<std::size_t>(ippGetCount(attribute))) {
            QString values;
            for (int i : unsupported)
                values += ValueText(attribute, i);
            return drop(name, within, values);
        }
        for (int i : unsupported)
            drop(name, within, ValueText(attribute, i));
        RemoveValues(container, attribute, unsupported);
        return true;
    }

private:
    // A collection's "-supported" keywords list the members the printer takes.
    void fitMembers(ipp_t* collection, ipp_attribute_t* supported, const QString& name)
    {
        const bool listsMembers = ippGetValueTag(supported) == IPP_TAG_KEYWORD;
        for (ipp_attribute_t* member : Attributes(collection)) {
            const char* memberName = ippGetName(member);
            if (listsMembers && !ippContainsString(supported, memberName)) {
                drop(memberName, name, {});
                ippDeleteAttribute(collection, member);
            } else if (!fit(collection, member, name)) {
                ippDeleteAttribute(collection, member);
            }
        }
    }

    bool drop(const QByteArray& name, const QString& within, const QString& values)
    {
        m_notices << QStringLiteral("the printer does not support %1%2%3; it is not sent")
                         .arg(QString::fromUtf8(name), values,
                              within.isEmpty() ? QString() : QStringLiteral(" in ") + within);
        return false;
    }

    ipp_t* m_printer;
    QStringList& m_notices;
};

} // namespace

QStringList DropUnsupported(ipp_t* job, ipp_t* printer)
{
    QStringList notices;
    Fitter fitter(printer, notices);
    for (ipp_attribute_t* attribute : Attributes(job)) {
        const char* name = ippGetName(attribute);
        if (ippGetGroupTag(attribute) == IPP_TAG_OPERATION && qstrcmp(name, "job-password") != 0 &&
            qstrcmp(name, "job-password-encryption") != 0)
            continue;
        if (!fitter.fit(job, attribute, {}))
            ippDeleteAttribute(job, attribute);
    }
    return notices;
}

} // namespace orvan::submission
