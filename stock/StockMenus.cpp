#include "stock/StockMenus.h"

#include "printerdesc/InstallableOptions.h"
#include "printerdesc/PPDAccess.h"
#include "settings/Bundle.h"

namespace orvan {

namespace {

// The value special-page menus leave out of a submenu; 0 for none.
constexpr std::int32_t kNoDroppedValue = 0;

int populateChoiceMenu(MenuModel& menu, const Bundle* bundle, JobContext context,
                       const char* mainKeyword, std::uint32_t command,
                       std::int32_t droppedInSpecialPages)
{
    MenuModel choices;
    PPDPopulateMenuWithChoices(&choices, PPDGetCurrent(), QString::fromLatin1(mainKeyword), command,
                               false);
    menu.clear();
    const bool special = IsSpecialPageContext(context);
    if (special)
        menu.append(
            {LocalizedStockText(bundle, QStringLiteral("UseJobSetting")), command, kUnset, false});
    for (const MenuItem& item : choices.items()) {
        if (special && droppedInSpecialPages != kNoDroppedValue &&
            item.referenceValue == droppedInSpecialPages)
            continue;
        menu.append(item);
    }
    return menu.count();
}

MenuItem separator()
{
    MenuItem item;
    item.separator = true;
    return item;
}

} // namespace

bool IsSpecialPageContext(JobContext context)
{
    switch (context) {
    case JobContext::Covers:
    case JobContext::Inserts:
    case JobContext::ExceptionPages:
        return true;
    case JobContext::Job:
    case JobContext::ImageShift:
        return false;
    }
    return false;
}

QString LocalizedStockText(const Bundle* bundle, const QString& key)
{
    if (!bundle)
        return kStringNotFound;
    return bundle->localizedString(key, kStringNotFound, kDefaultStringTable);
}

int PopulateStockSizeMenu(MenuModel& menu, const Bundle* bundle, JobContext context)
{
    return populateChoiceMenu(menu, bundle, context, "PageSize", kStockSizeCommand,
                              kNoDroppedValue);
}

int PopulateStockColorMenu(MenuModel& menu, const Bundle* bundle, JobContext context)
{
    return populateChoiceMenu(menu, bundle, context, "MediaColor", kStockColorCommand, 22);
}

int PopulateStockTypeMenu(MenuModel& menu, const Bundle* bundle, JobContext context)
{
    return populateChoiceMenu(menu, bundle, context, "MediaType", kStockTypeCommand, 23);
}

void PopulateStockMenu(StockMenu& menu, const Bundle* bundle, JobContext context)
{
    menu.clear();
    MenuModel colors;
    PopulateStockColorMenu(colors, bundle, context);
    menu.push_back({{LocalizedStockText(bundle, QStringLiteral("OtherColor"))}, std::move(colors)});
    MenuModel types;
    PopulateStockTypeMenu(types, bundle, context);
    menu.push_back({{LocalizedStockText(bundle, QStringLiteral("OtherType"))}, std::move(types)});
    menu.push_back({separator(), std::nullopt});
    menu.push_back({separator(), std::nullopt});

    const bool coversOrInserts = context == JobContext::Covers || context == JobContext::Inserts;
    if (coversOrInserts && getInstalledFeature(kPostPrintInserterFeature)) {
        const QString name =
            CopyLocalizedStringForInstalledFeatureFromPlugin(kPostPrintInserterFeature, bundle)
                .value_or(kStringNotFound);
        menu.push_back({{name, kStockSourceCommand, kInstalledFeatureSource, false}, std::nullopt});
    }
}

void PopulateStockButtonMenu(StockMenu& menu, const Bundle* bundle, JobContext context)
{
    MenuModel sizes;
    PopulateStockSizeMenu(sizes, bundle, context);
    StockMenu stockMenu;
    PopulateStockMenu(stockMenu, bundle, context);

    menu.clear();
    menu.push_back({{LocalizedStockText(bundle, QStringLiteral("PaperSize"))}, std::move(sizes)});
    for (StockMenuEntry& entry : stockMenu)
        menu.push_back(std::move(entry));
    menu.push_back({separator(), std::nullopt});
    menu.push_back({{LocalizedStockText(bundle, QStringLiteral("DefaultStock")),
                     kStockDefaultCommand, 0, false},
                    std::nullopt});
    menu.push_back({{LocalizedStockText(bundle, QStringLiteral("AdvancedStockSelectionMenu")),
                     kStockAdvancedCommand, 0, false},
                    std::nullopt});
}

} // namespace orvan
