// Shared fixtures of the stock tests: the sample printer's PPD as the
// current PPD with its installed options loaded, and the plug-in's bundle
// for the English texts.
#pragma once

#include "printerdesc/InstallableOptions.h"
#include "printerdesc/PPDAccess.h"
#include "printerdesc/tests/PpdTestSupport.h"
#include "settings/Bundle.h"
#include "stock/Stock.h"

#include <gtest/gtest.h>

#include <memory>

namespace orvan::testing {

// Makes a PPD the current one with its installed options for the guard's
// lifetime; closes and unloads both afterwards.
class CurrentPrinterGuard
{
public:
    explicit CurrentPrinterGuard(const QString& ppdPath = kSamplePpd)
    {
        UnloadInstallableOptions();
        PPDSetCurrent(OpenOrFail(ppdPath));
        LoadInstallableOptions(PPDGetCurrent(), _InstalledFeatures);
    }
    ~CurrentPrinterGuard()
    {
        UnloadInstallableOptions();
        PPDCloseCurrent();
    }
    CurrentPrinterGuard(const CurrentPrinterGuard&) = delete;
    CurrentPrinterGuard& operator=(const CurrentPrinterGuard&) = delete;
};

// A stock dictionary as "key=value" pairs in key order, separated by "; ".
inline QString Flat(const PropertyValue& dictionary)
{
    QStringList entries;
    for (const auto& [key, value] : dictionary.asDictionary())
        entries << key + '=' +
                       (value.isNumber()    ? QString::number(*value.toInteger())
                        : value.isBoolean() ? QString(*value.toBool() ? "true" : "false")
                                            : value.toString());
    return entries.join("; ");
}

// The dictionary Flat shows as the text: whole numbers, "true" and strings.
inline PropertyValue Unflat(const QString& text)
{
    PropertyValue dictionary = PropertyValue::dictionary();
    for (const QString& entry : text.split("; ", Qt::SkipEmptyParts)) {
        const QString key = entry.section('=', 0, 0), value = entry.section('=', 1);
        bool number = false;
        const long long integer = value.toLongLong(&number);
        dictionary.insert(key, number            ? PropertyValue::integer(integer)
                               : value == "true" ? PropertyValue::boolean(true)
                                                 : PropertyValue(value));
    }
    return dictionary;
}

// The plug-in folder of the build tree, read in English whatever the locale.
inline std::unique_ptr<Bundle> EnglishPluginBundle()
{
    return std::make_unique<Bundle>(QStringLiteral(ORVAN_PLUGIN_DIR), QStringLiteral("en"));
}

// A test with the sample printer current and the plug-in's bundle.
class SamplePrinterTest : public ::testing::Test
{
protected:
    CurrentPrinterGuard printer;
    std::unique_ptr<Bundle> bundle = EnglishPluginBundle();
};

} // namespace orvan::testing
