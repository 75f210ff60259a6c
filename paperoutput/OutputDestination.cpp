#include "paperoutput/OutputDestination.h"

#include "printerdesc/InstallableOptions.h"
#include "settings/Bundle.h"
#include "settings/SettingMap.h"

namespace orvan {

namespace {

QString Text(const Bundle* bundle, const QString& key)
{
    return bundle ? bundle->localizedString(key, QStringLiteral("STRING NOT FOUND"),
                                            kDefaultStringTable)
                  : QStringLiteral("STRING NOT FOUND");
}

std::int32_t FeatureValue(const char* featureKey)
{
    long value = 0;
    getInstallableOptionTicketValue(featureKey, &value);
    return static_cast<std::int32_t>(value);
}

QString FeatureName(const Bundle* bundle, const char* featureKey)
{
    return CopyLocalizedStringForInstalledFeatureFromPlugin(featureKey, bundle)
        .value_or(Text(bundle, QString::fromLatin1(featureKey)));
}

} // namespace

void PopulateOutputDestination(const Bundle* bundle, MenuModel& menu)
{
    menu.clear();
    const auto add = [&menu](const QString& text, std::int32_t value) {
        menu.append({text, 0, value, false});
    };
    const auto addKey = [&](const char* key, std::int32_t value) {
        add(Text(bundle, QString::fromLatin1(key)), value);
    };
    addKey("Printer Default", kUnset);
    addKey("Auto", 1);
    if (getInstalledFeature("AutoSwitchTrayKey"))
        add(FeatureName(bundle, "AutoSwitchTrayKey"), FeatureValue("AutoSwitchTrayKey"));

    const bool inserter = getInstalledFeature("BrentaInserter");
    const std::pair<const char*, const char*> stackers[] = {
        {"StackerTray1Key", "Finisher B: Main Stacker"},
        {"StackerTray2Key", "Finisher C: Main Stacker"},
        {"StackerTray3Key", "Finisher D: Main Stacker"},
    };
    for (const auto& [feature, shiftedName] : stackers)
        if (getInstalledFeature(feature))
            add(inserter ? Text(bundle, QString::fromLatin1(shiftedName))
                         : FeatureName(bundle, feature),
                FeatureValue(feature));

    if (!getInstalledFeature("SimpleCatchTrayKey"))
        return;
    QString configuration;
    getInstallableOptionValue(QStringLiteral("Option1"), &configuration);
    const QString catchTray = FeatureName(bundle, "SimpleCatchTrayKey");
    const std::int32_t catchValue = FeatureValue("SimpleCatchTrayKey");
    const auto topTray = [&](const char* shiftedKey) {
        if (inserter)
            addKey(shiftedKey, catchValue);
        else
            add(catchTray, catchValue);
    };
    if (configuration == QLatin1String("BFMBFM") || configuration == QLatin1String("BFMFTMS")) {
        topTray("Finisher C: Top Tray");
    } else if (configuration == QLatin1String("BFMBFMFTM") ||
               configuration == QLatin1String("BFMBFMFTMS")) {
        topTray("Finisher D: Top Tray");
    } else if (configuration == QLatin1String("FTMSFTMS")) {
        if (inserter) {
            addKey("Finisher B: Top Tray", kFirstTopTrayValue);
            addKey("Finisher C: Top Tray", kSecondTopTrayValue);
        } else {
            addKey("Finisher B: Top Tray", kSecondTopTrayValue);
            addKey("Finisher A: Top Tray", kFirstTopTrayValue);
        }
    } else if (configuration == QLatin1String("BFMFTMSFTMS")) {
        addKey("Finisher C: Top Tray", inserter ? kFirstTopTrayValue : kSecondTopTrayValue);
        if (inserter)
            addKey("Finisher D: Top Tray", kSecondTopTrayValue);
        else
            addKey("Finisher B: Top Tray", catchValue);
    } else {
        topTray("Finisher B: Top Tray");
    }
}

} // namespace orvan
