// Shared fixtures of the stock tests: the sample printer's PPD as the
// current PPD with its installed options loaded, and the plug-in's bundle
// for the English texts.
#pragma once

#include "printerdesc/InstallableOptions.h"
#include "printerdesc/PPDAccess.h"
#include "printerdesc/tests/PpdTestSupport.h"
#include "settings/Bundle.h"

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

inline std::unique_ptr<Bundle> PluginBundle()
{
    return std::make_unique<Bundle>(QStringLiteral(ORVAN_PLUGIN_DIR), QStringLiteral("en"));
}

// A test with the sample printer current and the plug-in's bundle.
class SamplePrinterTest : public ::testing::Test
{
protected:
    CurrentPrinterGuard printer;
    std::unique_ptr<Bundle> bundle = PluginBundle();
};

} // namespace orvan::testing
