#include "printerdesc/InstallableOptions.h"

#include "settings/Bundle.h"

#include <map>

namespace orvan {

constexpr _InstalledFeatureMap _InstalledFeatures[] = {
    {"SingleStapleKey", "Option4", "True", "1 Staple", 0},
    {"JobStorage", "Option8", "True", nullptr, 0},
    {"FaxKey", "Option5", "True", nullptr, 0},
    // The stock menus of covers and inserts offer the inserter as a source;
    // its value is that source's.
    {"PostPrintInserterKey", "Option9", "True", "Post-Print Inserter", 10},
    // The booklet maker folds, or folds and staples, booklets.
    {"BookletFoldKey", "BookletFinishingOptions", "BiFoldMultiple", nullptr, 0},
    {"BookletFoldKey", "BookletFinishingOptions", "BiFoldStapleMultiple", nullptr, 0},
    {nullptr, nullptr, nullptr, nullptr, 0},
};

namespace {

struct InstalledOptions
{
    std::optional<std::map<QString, QString>> choices;
    const _InstalledFeatureMap* table = nullptr;
};

InstalledOptions& Loaded()
{
    static InstalledOptions loaded;
    return loaded;
}

bool RowIsPresent(const _InstalledFeatureMap& row)
{
    if (!row.optionKeyword)
        return true;
    QString choice;
    return getInstallableOptionValue(QString::fromUtf8(row.optionKeyword), &choice) &&
           choice == QLatin1StringView(row.requiredChoice);
}

// The first row of the feature that is present (and, when asked, has a text
// key); null when none.
const _InstalledFeatureMap* FirstPresentRow(const char* featureKey, bool needsTextKey)
{
    const _InstalledFeatureMap* table = Loaded().table;
    if (!featureKey || !table)
        return nullptr;
    const QLatin1StringView key(featureKey);
    for (const _InstalledFeatureMap* row = table; row->featureKey; ++row) {
        if (key != QLatin1StringView(row->featureKey) || !RowIsPresent(*row))
            continue;
        if (needsTextKey && !row->textKey)
            continue;
        return row;
    }
    return nullptr;
}

} // namespace

bool LoadInstallableOptions(ppd_file_t* ppd, const _InstalledFeatureMap* table)
{
    InstalledOptions& loaded = Loaded();
    if (loaded.choices || loaded.table || !ppd || !table)
        return false;
    loaded.table = table;
    PpdMarkDefaults(ppd);
    loaded.choices.emplace();
    const auto marked = PpdMarkedChoicesInGroup(ppd, "InstallableOptions");
    if (!marked)
        return false;
    for (const auto& [option, choice] : *marked)
        loaded.choices->insert_or_assign(QString::fromUtf8(option), QString::fromUtf8(choice));
    return !loaded.choices->empty();
}

void UnloadInstallableOptions()
{
    Loaded() = InstalledOptions{};
}

bool getInstallableOptionValue(const QString& optionKeyword, QString* choice)
{
    const auto& choices = Loaded().choices;
    if (!choices)
        return false;
    const auto found = choices->find(optionKeyword);
    if (found == choices->end())
        return false;
    if (choice)
        *choice = found->second;
    return true;
}

int getInstalledFeature(const char* featureKey)
{
    return FirstPresentRow(featureKey, false) ? 1 : 0;
}

bool getInstallableOptionTicketValue(const char* featureKey, long* value)
{
    const _InstalledFeatureMap* row = FirstPresentRow(featureKey, false);
    if (!row || !value)
        return false;
    *value = row->ticketValue;
    return true;
}

std::optional<QString> CopyLocalizedStringForInstalledFeatureFromPlugin(const char* featureKey,
                                                                        const Bundle* bundle)
{
    if (!bundle)
        return std::nullopt;
    const _InstalledFeatureMap* row = FirstPresentRow(featureKey, true);
    if (!row)
        return std::nullopt;
    return bundle->localizedString(QString::fromUtf8(row->textKey));
}

QString CopyDeviceMimicFilename()
{
    QString name = QStringLiteral("Mimic_AQ_PLMS_");
    QString trays;
    if (getInstallableOptionValue(QStringLiteral("Option1"), &trays)) {
        static const std::map<QString, QString> kTrayParts = {
            {QStringLiteral("Tray1"), QStringLiteral("1Tray")},
            {QStringLiteral("Tray2"), QStringLiteral("2Tray")},
            {QStringLiteral("Tray3"), QStringLiteral("3Tray")},
            {QStringLiteral("Tray3HiCap"), QStringLiteral("3TrayHC")},
            {QStringLiteral("Tray4"), QStringLiteral("4Tray")},
        };
        if (const auto part = kTrayParts.find(trays); part != kTrayParts.end())
            name += part->second;
    }
    QString finisher;
    if (getInstallableOptionValue(QStringLiteral("Option4"), &finisher) &&
        finisher == QLatin1StringView("True"))
        name += QStringLiteral("_Finisher");
    return name + QStringLiteral(".gif");
}

} // namespace orvan
