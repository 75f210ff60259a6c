// The device profile: a property list shipped in the plug-in's resources
// ("Device Profile.plist") that describes the printer family's features.
//
//   Features = {
//       <feature name> = {
//           Properties = { <property name> = <value>, ... },
//           Syntax = {
//               Keyword = <string>   the PPD main keyword (or ticket key) that carries the feature
//               Default = <value>    the feature's default (a choice keyword, or a number)
//               Number  = <boolean>  true when the feature's values are numbers
//           },
//       },
//   }
//
// Read once per process by QDPInitialize and kept until QDPFinalize. All
// lookups answer null (or an empty array) before that or for missing entries.
#pragma once

#include "settings/PropertyValue.h"

#include <QString>

namespace orvan {

class Bundle;

inline const QString kDeviceProfileResource = QStringLiteral("Device Profile");

// Reads the profile from the bundle's resources once; true when a profile is
// loaded (now or earlier). A missing or unreadable profile loads nothing.
bool QDPInitialize(const Bundle* bundle);
void QDPFinalize();

// The feature dictionary of that name.
const PropertyValue* QDPGetFeature(const QString& featureName);
// The feature dictionaries whose "Properties" hold the property (with that
// value when one is given), in the order of the feature names.
PropertyValue QDPGetFeaturesWithProperty(const QString& propertyName);
PropertyValue QDPGetFeaturesWithPropertyAndValue(const QString& propertyName,
                                                 const PropertyValue* value);
// An entry of a feature's "Syntax" or "Properties" dictionary.
const PropertyValue* QDPGetFeatureSyntax(const PropertyValue* feature, const QString& name);
const PropertyValue* QDPGetFeatureProperty(const PropertyValue* feature, const QString& name);
// The feature's default: its Syntax "Default" entry.
const PropertyValue* QDPGetFeatureDefaultValue(const PropertyValue* feature);
// The feature's keyword: its Syntax "Keyword" entry.
const PropertyValue* QDPGetFeatureKeyword(const PropertyValue* feature);
// The Syntax "Keyword"s of the features that QDPGetFeaturesWithPropertyAndValue
// finds (features without a keyword are left out).
PropertyValue QDPGetKeywordsWithPropertyAndValue(const QString& propertyName,
                                                 const PropertyValue* value);

} // namespace orvan
