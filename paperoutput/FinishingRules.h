// Office finishing of the Paper/Output panel without widgets: which finishing
// hardware the printer has, the staple, punch and fold menus built from it,
// what each finishing command does to the record, booklet creation's effect,
// the finishing summary and the marks of the finishing menus.
#pragma once

#include "paperoutput/PaperOutputRecord.h"
#include "settings/MenuModel.h"
#include "settings/SettingMap.h"

#include <QString>

#include <cstdint>

namespace orvan {

class Bundle;

// Finishing commands; the item value travels with each.
inline constexpr std::uint32_t kNoStapleCommand = FourCharCode("Stp0");
inline constexpr std::uint32_t kSingleStapleCommand = FourCharCode("Stp1");
inline constexpr std::uint32_t kDualStapleCommand = FourCharCode("Stp2");
inline constexpr std::uint32_t kMultipleStapleCommand = FourCharCode("Stp4");
inline constexpr std::uint32_t kNoPunchCommand = FourCharCode("Hpn0");
inline constexpr std::uint32_t kTwoHolePunchCommand = FourCharCode("Hpn2");
inline constexpr std::uint32_t kThreeHolePunchCommand = FourCharCode("Hpn3");
inline constexpr std::uint32_t kFourHolePunchCommand = FourCharCode("Hpn4");
inline constexpr std::uint32_t kGenericPunchCommand = FourCharCode("HPun");
inline constexpr std::uint32_t kNoFoldCommand = FourCharCode("Fld0");
inline constexpr std::uint32_t kZFoldCommand = FourCharCode("Zfld");
inline constexpr std::uint32_t kZFoldHalfSheetCommand = FourCharCode("Zfol");
inline constexpr std::uint32_t kBiFoldCommand = FourCharCode("Bfld");
inline constexpr std::uint32_t kCFoldCommand = FourCharCode("Cfld");
inline constexpr std::uint32_t kBookletCreationCommand = FourCharCode("Bkcr");
inline constexpr std::uint32_t kCoversCommand = FourCharCode("Covr");
inline constexpr std::uint32_t kSeparatorsCommand = FourCharCode("Sepr");

// The finishing hardware, from the installed features.
struct FinishingDevice
{
    bool bookletFold = false; // "BookletFoldKey": the device folds booklets
    bool staples = false;     // any of the single, dual, multiple staple features
    bool punches = false;     // any of the punch features
    bool cFold = false, zFold = false, zFoldHalfSheet = false;

    static FinishingDevice FromInstalledFeatures();
    // The fold menu exists on a booklet-fold device with at least one of the
    // C, Z and half-sheet Z folds.
    bool hasFoldMenu() const { return bookletFold && (cFold || zFold || zFoldHalfSheet); }
};

// The staple menu: "No Staple Value" (booklet-fold device) or "None" with
// 'Stp0' and 1, then each installed staple feature under its own name: single
// 'Stp1' 5, dual 'Stp2' 10, multiple 'Stp4' 54.
MenuModel BuildStapleMenu(const Bundle* bundle, const FinishingDevice& device);
// The punch menu: "None" (booklet-fold device) or "NoHolePunch" with 'Hpn0'
// and 1, then generic 'HPun' 2, two-hole 'Hpn2' 3, three-hole 'Hpn3' 4,
// four-hole 'Hpn4' 5, each when installed, under its own name.
MenuModel BuildPunchMenu(const Bundle* bundle, const FinishingDevice& device);
// The fold menu (empty unless hasFoldMenu): separator, "No Fold" 'Fld0' 1,
// "BiFoldNoStaple" 'Bfld' 43, "FoldCFold" 'Cfld' 19, "FoldZFold" 'Zfld' 20,
// "Z Fold Half Sheet" 'Zfol' 36 (each fold when installed), separator,
// "Booklet Creation..." 'Bkcr'.
MenuModel BuildFoldMenu(const Bundle* bundle, const FinishingDevice& device);

// Turns booklet layout off: when it is on, layout 2 and two-sided 2; when the
// finishing option is booklet fold (24), option 0 and fold 1.
void UnselectBooklet(PaperOutputRecord& record);

// Runs a finishing command with the chosen item's value. Every command but
// covers, separators and stock type first unselects the booklet. True for
// the commands of this table; 'Bkcr', 'Covr' and 'Sepr' only unselect
// (booklet creation) or do nothing here: their dialogs do the rest.
bool ApplyFinishingCommand(PaperOutputRecord& record, std::uint32_t command, std::int32_t value);

// The staple pop-up's own rule: all three staple values 1, then the value
// kept as single (5, 6), dual (10, 12) or multiple (54) staple.
void ApplyStapleChoice(PaperOutputRecord& record, std::int32_t value);

// The values the booklet creation dialog edits.
struct BookletCreationParams
{
    std::int32_t fold = kFinishingNone; // 1, 43 or 53
    std::int32_t layout = kBookletLayoutOff;
    std::int32_t drawOutlines = kDrawOutlinesOff;
    std::int32_t newSize = kUnset;
    std::int32_t gutter = 0;
    std::int32_t creep = 0;
    friend bool operator==(const BookletCreationParams&, const BookletCreationParams&) = default;
};
BookletCreationParams BookletParamsFromRecord(const PaperOutputRecord& record);
// Takes the confirmed dialog values: layout on forces two-sided 3 and makes
// the back cover a copy of the front (when there is a front cover), layout
// off sets two-sided 2; a booklet fold (43, 53) makes the finishing option 24
// and resets staples, bind and punch to 1; leaving a booklet fold sets the
// option to 0. True when the covers changed.
bool ApplyBookletCreation(PaperOutputRecord& record, const BookletCreationParams& params);

// The two-sided value the pop-up shows (2 while booklet layout is on) and
// whether it can be changed.
std::int32_t TwoSidedShown(const PaperOutputRecord& record);
bool TwoSidedEnabled(const PaperOutputRecord& record);

// The finishing summary: lines "- " + text + "\n". Without booklet (option
// 24 or layout on): the staple line (staplers), the punch line (punches),
// the fold line (folding device). With booklet: the booklet fold line and
// "Booklet Layout" when the layout is on. Missing texts read "STRING NOT FOUND".
QString CreateFinishingString(const Bundle* bundle, const PaperOutputRecord& record,
                              const FinishingDevice& device);

// The items the finishing menus mark for the record: the staple item of the
// first staple value that is not 1 (else the first item), the punch item, the
// fold item; 0 where a menu has no matching item.
struct FinishingMarks
{
    int staple = 0;
    int punch = 0;
    int fold = 0;
};
FinishingMarks MarkFinishingMenu(const PaperOutputRecord& record, const MenuModel& staples,
                                 const MenuModel& punches, const MenuModel& folds);

// Whether the job type has a setup dialog (enables the setup button).
bool EnableDisableJobTypeSetupButton(std::int32_t jobType);

} // namespace orvan
