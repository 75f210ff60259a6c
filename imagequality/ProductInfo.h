// What the about dialog tells: the product's name, version and build, as the
// plug-in's Info.plist states them.
#pragma once

#include <QString>

namespace orvan {

class Bundle;

struct ProductInfo
{
    QString name;    // "CFBundleName"
    QString version; // "CFBundleShortVersionString"
    QString build;   // "CFBundleVersion"
};

// Empty strings for a null bundle or missing entries.
ProductInfo ProductInfoFromBundle(const Bundle* bundle);

// "Version <version> (<build>)" through the bundle's "About Version" text,
// a format with %1 for the version and %2 for the build.
QString ProductVersionLine(const Bundle* bundle, const ProductInfo& info);

// "About <name>" through the bundle's "About Title" text (%1: the name).
QString ProductAboutTitle(const Bundle* bundle, const ProductInfo& info);

} // namespace orvan
