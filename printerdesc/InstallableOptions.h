// Installed hardware: the choices of the PPD's "InstallableOptions" group,
// read once per process, and the named features the menus are gated on.
#pragma once

#include "printerdesc/PpdFile.h"

#include <QString>

#include <cstdint>
#include <optional>

namespace orvan {

class Bundle;

// One feature row: the feature is present when the installable option's
// recorded choice equals the required choice, or always when the row names
// no option. Several rows may share a feature key; any of them suffices.
// A table ends with a row whose feature key is null.
struct _InstalledFeatureMap
{
    const char* featureKey;
    const char* optionKeyword; // installable option, or null
    const char* requiredChoice;
    const char* textKey; // localisation key of the feature's name, or null
    std::int32_t ticketValue;
};

// The feature table of the Orvan printers.
extern const _InstalledFeatureMap _InstalledFeatures[];

// Records the first marked choice (after resetting the marks to the
// defaults) of every option of the PPD's "InstallableOptions" group and keeps
// the table. True when at least one option was recorded; false at once when
// options or a table are already loaded, or without a PPD or table.
bool LoadInstallableOptions(ppd_file_t* ppd, const _InstalledFeatureMap* table);
// Forgets the recorded options and the table.
void UnloadInstallableOptions();

// The recorded choice of an installable option; false when the option was
// not recorded or nothing is loaded.
bool getInstallableOptionValue(const QString& optionKeyword, QString* choice);
// 1 when the feature is present, 0 otherwise (also for a null key, a key not
// in the table, or no table loaded).
int getInstalledFeature(const char* featureKey);
// The ticket value of the first present row of the feature; false when none.
bool getInstallableOptionTicketValue(const char* featureKey, long* value);
// The localised name of the feature: the text of the first present row of
// the feature that has a text key, from the bundle's default table; nullopt
// when there is none, no text, or no bundle.
std::optional<QString> CopyLocalizedStringForInstalledFeatureFromPlugin(const char* featureKey,
                                                                        const Bundle* bundle);

// The file name of the picture of the configured printer:
// "Mimic_AQ_PLMS_" + tray configuration ("Option1": 1Tray, 2Tray, 3Tray,
// 3TrayHC, 4Tray, else nothing) + "_Finisher" when "Option4" is "True" + ".gif".
QString CopyDeviceMimicFilename();

} // namespace orvan
