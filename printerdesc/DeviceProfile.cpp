#include "printerdesc/DeviceProfile.h"

#include "settings/Bundle.h"
#include "settings/PropertyList.h"

#include <QFile>

#include <cstdio>
#include <optional>

namespace orvan {

namespace {

std::optional<PropertyValue>& Profile()
{
    static std::optional<PropertyValue> profile;
    return profile;
}

const PropertyValue* Features()
{
    const auto& profile = Profile();
    if (!profile)
        return nullptr;
    const PropertyValue* features = profile->find(QStringLiteral("Features"));
    return features && features->isDictionary() ? features : nullptr;
}

const PropertyValue* SubEntry(const PropertyValue* feature, const QString& dictionaryName,
                              const QString& name)
{
    if (!feature)
        return nullptr;
    const PropertyValue* dictionary = feature->find(dictionaryName);
    return dictionary ? dictionary->find(name) : nullptr;
}

} // namespace

bool QDPInitialize(const Bundle* bundle)
{
    if (Profile())
        return true;
    if (!bundle)
        return false;
    const QString path = bundle->resourcePath(kDeviceProfileResource, QStringLiteral("plist"));
    QFile file(path);
    if (path.isEmpty() || !file.open(QIODevice::ReadOnly))
        return false;
    PropertyListError error;
    std::optional<PropertyValue> profile = readPropertyList(file.readAll(), &error);
    if (!profile || !profile->isDictionary()) {
        std::fprintf(stderr, "QDPInitialize(): %s: %s\n", qPrintable(path),
                     profile ? "not a dictionary" : qPrintable(error.toString()));
        return false;
    }
    Profile() = std::move(profile);
    return true;
}

void QDPFinalize()
{
    Profile().reset();
}

const PropertyValue* QDPGetFeature(const QString& featureName)
{
    const PropertyValue* features = Features();
    return features ? features->find(featureName) : nullptr;
}

PropertyValue QDPGetFeaturesWithProperty(const QString& propertyName)
{
    return QDPGetFeaturesWithPropertyAndValue(propertyName, nullptr);
}

PropertyValue QDPGetFeaturesWithPropertyAndValue(const QString& propertyName,
                                                 const PropertyValue* value)
{
    PropertyValue found = PropertyValue::array();
    const PropertyValue* features = Features();
    if (!features)
        return found;
    for (const auto& [name, feature] : features->asDictionary()) {
        const PropertyValue* property = QDPGetFeatureProperty(&feature, propertyName);
        if (property && (!value || *property == *value))
            found.append(feature);
    }
    return found;
}

const PropertyValue* QDPGetFeatureSyntax(const PropertyValue* feature, const QString& name)
{
    return SubEntry(feature, QStringLiteral("Syntax"), name);
}

const PropertyValue* QDPGetFeatureProperty(const PropertyValue* feature, const QString& name)
{
    return SubEntry(feature, QStringLiteral("Properties"), name);
}

const PropertyValue* QDPGetFeatureDefaultValue(const PropertyValue* feature)
{
    return QDPGetFeatureSyntax(feature, QStringLiteral("Default"));
}

const PropertyValue* QDPGetFeatureKeyword(const PropertyValue* feature)
{
    return QDPGetFeatureSyntax(feature, QStringLiteral("Keyword"));
}

PropertyValue QDPGetKeywordsWithPropertyAndValue(const QString& propertyName,
                                                 const PropertyValue* value)
{
    PropertyValue keywords = PropertyValue::array();
    const PropertyValue features = QDPGetFeaturesWithPropertyAndValue(propertyName, value);
    for (const PropertyValue& feature : features.asArray()) {
        if (const PropertyValue* keyword = QDPGetFeatureKeyword(&feature))
            keywords.append(*keyword);
    }
    return keywords;
}

} // namespace orvan
