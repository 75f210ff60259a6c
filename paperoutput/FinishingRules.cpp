#include "paperoutput/FinishingRules.h"

#include "printerdesc/InstallableOptions.h"
#include "settings/Bundle.h"

namespace orvan {

namespace {

const QString kStringNotFound = QStringLiteral("STRING NOT FOUND");

QString Text(const Bundle* bundle, const char* key)
{
    const QString k = QString::fromLatin1(key);
    return bundle ? bundle->localizedString(k, kStringNotFound, kDefaultStringTable)
                  : kStringNotFound;
}

// A feature-gated finishing item: the feature's own name as its text.
struct FeatureItem
{
    const char* featureKey;
    std::uint32_t command;
    std::int32_t value;
};

void AppendInstalled(MenuModel& menu, const Bundle* bundle, const FeatureItem& row)
{
    if (!getInstalledFeature(row.featureKey))
        return;
    const std::optional<QString> name =
        CopyLocalizedStringForInstalledFeatureFromPlugin(row.featureKey, bundle);
    menu.append({name.value_or(Text(bundle, row.featureKey)), row.command, row.value, false});
}

bool Installed(const char* key)
{
    return getInstalledFeature(key) == 1;
}

MenuItem Separator()
{
    return {QStringLiteral("-"), 0, 0, true};
}

bool IsBookletFold(std::int32_t fold)
{
    return fold == kBookletFold || fold == kBookletFoldStaple;
}

} // namespace

FinishingDevice FinishingDevice::FromInstalledFeatures()
{
    FinishingDevice device;
    device.bookletFold = Installed("BookletFoldKey");
    device.staples = Installed("SingleStapleKey") || Installed("DualStapleKey") ||
                     Installed("MultipleStapleKey");
    device.punches = Installed("GenericPunchKey") || Installed("DualPunchKey") ||
                     Installed("TriplePunchKey") || Installed("QuadruplePunchKey");
    device.cFold = Installed("CFoldKey");
    device.zFold = Installed("ZFoldKey");
    device.zFoldHalfSheet = Installed("ZFoldHalfSheetKey");
    return device;
}

MenuModel BuildStapleMenu(const Bundle* bundle, const FinishingDevice& device)
{
    MenuModel menu;
    menu.append({Text(bundle, device.bookletFold ? "No Staple Value" : "None"), kNoStapleCommand,
                 kFinishingNone, false});
    for (const FeatureItem& row :
         {FeatureItem{"SingleStapleKey", kSingleStapleCommand, kSingleStaple},
          FeatureItem{"DualStapleKey", kDualStapleCommand, kDualStaple},
          FeatureItem{"MultipleStapleKey", kMultipleStapleCommand, kMultipleStaples}})
        AppendInstalled(menu, bundle, row);
    return menu;
}

MenuModel BuildPunchMenu(const Bundle* bundle, const FinishingDevice& device)
{
    MenuModel menu;
    for (const FeatureItem& row :
         {FeatureItem{"GenericPunchKey", kGenericPunchCommand, kGenericPunch},
          FeatureItem{"DualPunchKey", kTwoHolePunchCommand, kTwoHolePunch},
          FeatureItem{"TriplePunchKey", kThreeHolePunchCommand, kThreeHolePunch},
          FeatureItem{"QuadruplePunchKey", kFourHolePunchCommand, kFourHolePunch}})
        AppendInstalled(menu, bundle, row);
    menu.insertAfter(0, {Text(bundle, device.bookletFold ? "None" : "NoHolePunch"), kNoPunchCommand,
                         kFinishingNone, false});
    return menu;
}

MenuModel BuildFoldMenu(const Bundle* bundle, const FinishingDevice& device)
{
    MenuModel menu;
    if (!device.hasFoldMenu())
        return menu;
    menu.append(Separator());
    menu.append({Text(bundle, "No Fold"), kNoFoldCommand, kFinishingNone, false});
    menu.append({Text(bundle, "BiFoldNoStaple"), kBiFoldCommand, kBookletFold, false});
    if (device.cFold)
        menu.append({Text(bundle, "FoldCFold"), kCFoldCommand, kCFold, false});
    if (device.zFold)
        menu.append({Text(bundle, "FoldZFold"), kZFoldCommand, kZFold, false});
    if (device.zFoldHalfSheet)
        menu.append(
            {Text(bundle, "Z Fold Half Sheet"), kZFoldHalfSheetCommand, kZFoldHalfSheet, false});
    menu.append(Separator());
    menu.append({Text(bundle, "Booklet Creation..."), kBookletCreationCommand, 0, false});
    return menu;
}

void UnselectBooklet(PaperOutputRecord& record)
{
    if (record.bookletLayoutOn()) {
        record.bookletLayout = kBookletLayoutOff;
        record.twoSided = kDuplexLongEdge;
    }
    if (record.finishingOption == kFinishingOptionBookletFold) {
        record.finishingOption = kFinishingOptionNone;
        record.fold = kFinishingNone;
    }
}

bool ApplyFinishingCommand(PaperOutputRecord& record, std::uint32_t command, std::int32_t value)
{
    auto& r = record;
    const auto noStaples = [&r] {
        r.singleStaple = r.dualStaple = r.multipleStaple = kFinishingNone;
    };
    switch (command) {
    case kCoversCommand:
    case kSeparatorsCommand:
        return true;
    default:
        break;
    }
    switch (command) {
    case kNoStapleCommand:
    case kSingleStapleCommand:
    case kDualStapleCommand:
    case kMultipleStapleCommand:
    case kNoPunchCommand:
    case kTwoHolePunchCommand:
    case kThreeHolePunchCommand:
    case kFourHolePunchCommand:
    case kGenericPunchCommand:
    case kNoFoldCommand:
    case kZFoldCommand:
    case kZFoldHalfSheetCommand:
    case kBiFoldCommand:
    case kCFoldCommand:
    case kBookletCreationCommand:
        UnselectBooklet(record);
        break;
    default:
        return false;
    }
    switch (command) {
    case kNoStapleCommand:
        noStaples();
        break;
    case kSingleStapleCommand:
        r.finishingOption = kFinishingOptionSingleStaple;
        r.singleStaple = value;
        r.fold = r.dualStaple = r.multipleStaple = kFinishingNone;
        break;
    case kDualStapleCommand:
        r.finishingOption = kFinishingOptionDualStaple;
        r.dualStaple = value;
        r.singleStaple = r.fold = r.multipleStaple = kFinishingNone;
        break;
    case kMultipleStapleCommand:
        r.finishingOption = kFinishingOptionMultipleStaples;
        r.multipleStaple = kMultipleStaples;
        r.singleStaple = r.dualStaple = r.fold = r.punch = kFinishingNone;
        break;
    case kNoPunchCommand:
        r.punch = value;
        break;
    case kTwoHolePunchCommand:
    case kThreeHolePunchCommand:
    case kFourHolePunchCommand:
    case kGenericPunchCommand:
        r.finishingOption = kFinishingOptionPunch;
        r.punch = value;
        r.multipleStaple = r.fold = kFinishingNone;
        break;
    case kZFoldCommand:
    case kZFoldHalfSheetCommand:
    case kBiFoldCommand:
    case kCFoldCommand:
        // C and bi-fold keep the chosen fold too: the fold the user picked is
        // the one that prints.
        r.finishingOption = kFinishingOptionFold;
        r.fold = value;
        noStaples();
        r.punch = kFinishingNone;
        break;
    default: // 'Fld0', 'Bkcr': turning the booklet off was all
        break;
    }
    return true;
}

void ApplyStapleChoice(PaperOutputRecord& record, std::int32_t value)
{
    record.singleStaple = record.dualStaple = record.multipleStaple = kFinishingNone;
    if (value == 5 || value == 6)
        record.singleStaple = value;
    else if (value == 10 || value == 12)
        record.dualStaple = value;
    else if (value == kMultipleStaples)
        record.multipleStaple = value;
}

BookletCreationParams BookletParamsFromRecord(const PaperOutputRecord& record)
{
    return {record.fold,        record.bookletLayout, record.drawOutlines,
            record.bookletSize, record.gutter,        record.creep};
}

bool ApplyBookletCreation(PaperOutputRecord& record, const BookletCreationParams& params)
{
    const bool wasBookletFold = IsBookletFold(record.fold);
    record.fold = params.fold;
    record.bookletLayout = params.layout;
    record.drawOutlines = params.drawOutlines;
    record.bookletSize = params.newSize;
    record.gutter = params.gutter;
    record.creep = params.creep;
    bool coversChanged = false;
    if (record.bookletLayoutOn()) {
        record.twoSided = kDuplexShortEdge;
        if (record.frontCover) {
            record.backCover = record.frontCover->clone();
            coversChanged = true;
        }
    } else {
        record.twoSided = kDuplexLongEdge;
    }
    if (IsBookletFold(params.fold)) {
        record.finishingOption = kFinishingOptionBookletFold;
        record.singleStaple = record.dualStaple = record.multipleStaple = kFinishingNone;
        record.bindValue = record.punch = kFinishingNone;
    } else if (wasBookletFold) {
        record.finishingOption = kFinishingOptionNone;
    }
    return coversChanged;
}

std::int32_t TwoSidedShown(const PaperOutputRecord& record)
{
    return record.bookletLayoutOn() ? kDuplexLongEdge : record.twoSided;
}

bool TwoSidedEnabled(const PaperOutputRecord& record)
{
    return !record.bookletLayoutOn();
}

QString CreateFinishingString(const Bundle* bundle, const PaperOutputRecord& record,
                              const FinishingDevice& device)
{
    QStringList lines;
    const auto line = [&](const char* key) {
        lines << QStringLiteral("- ") + Text(bundle, key) + QLatin1Char('\n');
    };
    if (record.finishingOption != kFinishingOptionBookletFold && !record.bookletLayoutOn()) {
        if (device.staples) {
            if (record.singleStaple != kFinishingNone)
                line("1 Staple");
            else if (record.dualStaple != kFinishingNone)
                line("2 Staples");
            else if (record.multipleStaple != kFinishingNone)
                line("Multiple Staples");
            else
                line("No Staple Value");
        }
        if (device.punches) {
            switch (record.punch) {
            case kGenericPunch:
                line("HolePunch");
                break;
            case kTwoHolePunch:
                line("2 Hole Punch");
                break;
            case kThreeHolePunch:
                line("3 Hole Punch");
                break;
            case kFourHolePunch:
                line("4 Hole Punch");
                break;
            default:
                line("NoHolePunch");
                break;
            }
        }
        if (device.bookletFold) {
            switch (record.fold) {
            case kCFold:
                line("FoldCFold");
                break;
            case kZFold:
                line("FoldZFold");
                break;
            case kZFoldHalfSheet:
                line("Z Fold Half Sheet");
                break;
            case kBookletFold:
                line("BiFoldNoStaple");
                break;
            default:
                line("No Fold");
                break;
            }
        }
    } else {
        line(record.fold == kBookletFold         ? "Booklet Fold"
             : record.fold == kBookletFoldStaple ? "Booklet FoldStaple"
                                                 : "No Fold");
        if (record.bookletLayoutOn())
            line("Booklet Layout");
    }
    return lines.join(QString());
}

FinishingMarks MarkFinishingMenu(const PaperOutputRecord& record, const MenuModel& staples,
                                 const MenuModel& punches, const MenuModel& folds)
{
    FinishingMarks marks;
    const std::int32_t staple = record.stapleLocation();
    marks.staple = staples.findReferenceValue(staple);
    marks.punch = punches.findReferenceValue(record.punch);
    for (int number = 1; number <= folds.count(); ++number) {
        const MenuItem* item = folds.item(number);
        if (!item->separator && item->commandId != kBookletCreationCommand &&
            item->referenceValue == record.fold) {
            marks.fold = number;
            break;
        }
    }
    return marks;
}

bool EnableDisableJobTypeSetupButton(std::int32_t jobType)
{
    switch (jobType) {
    case kJobTypeSavedJob:
    case kJobTypeSetupOnly:
    case kJobTypeLANFax:
    case kJobTypeSecure:
    case kJobTypeDelayed:
    case kJobTypeBackgroundForm:
        return true;
    default:
        return false;
    }
}

} // namespace orvan
