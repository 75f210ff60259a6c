// The setting maps behind the dialog's pop-up menus and combo boxes, and the
// PPD choice maps that pair a PPD option's choice keywords with the integer
// values the panels store. Every table is constant data, its rows in menu
// order and ended by a terminator row (null key, value 0). Their oddities are
// deliberate and relied upon: duplicate values and keys (a lookup scans in
// order and the first row wins), rows with value 0 (they end a search by
// value), 'Qujn' placeholders, separators ("-") and gated rows.
#pragma once

#include "settings/SettingMap.h"

namespace orvan {

// Advanced panel: items differ only by key (the PPD choice keyword); every row
// carries 'Qujn', so a lookup by value always finds the first row.
extern const _SettingMap _BookletLayoutOrderMap[];
extern const _SettingMap _RotateImageMap[];
extern const _SettingMap _PrinterEmulationMap[];
extern const _SettingMap _OPISubsitutionMap[];
extern const _SettingMap _OPIPrescanMap[];
extern const _SettingMap _OnOffMap[];
// First row has value 0: used by item number, a search by value answers 1.
extern const _SettingMap _OutputOptionsMap[];

// Watermarks and background forms. Negative values are actions that open a
// dialog; separators carry values that are never written.
extern const _SettingMap _WatermarkMap[];
extern const _SettingMap
    _WatermarkOptionsMap[]; // "WatermarmPrintOnPage1Only" is spelt so on purpose
extern const _SettingMap _EnabledDisabledMap[];
extern const _SettingMap _PageBordersMap[];
extern const _SettingMap _BookletWatermarkBackgroundFormsMap[];

// LAN fax and its cover sheet.
extern const _SettingMap _CoverSheetMap[];
extern const _SettingMap _ConfirmationSheetMap[];
extern const _SettingMap _FaxSendSpeedMap[];
extern const _SettingMap _FaxResolutionMap[];
extern const _SettingMap _CoverSheetImageMap[];
extern const _SettingMap _CoverSheetSenderMap[];
extern const _SettingMap _CoverSheetRecipientMap[];
extern const _SettingMap _FaxCoverSizeMap[];

// Stock setups.
extern const _SettingMap _TabStockRadioMap[]; // both rows 0: used by item number
extern const _SettingMap _TabStockSetupMap[];
extern const _SettingMap _SeparatorOptionMap[];

// Image options.
extern const _SettingMap _PrintQualityMap[];
extern const _SettingMap _PrintingOptimizationMap[];
extern const _SettingMap _AdvancedMirrorImageMap[];
extern const _SettingMap _ResolutionMap[];

// Covers and special pages.
extern const _SettingMap _CoverSidesSimplexImagedMap[];
extern const _SettingMap _CoverSidesDuplexImagedMap[];
extern const _SettingMap _CoverSidesImagedMap[];
extern const _SettingMap _PlexMap[];

// Job types and their setups.
extern const _SettingMap _JobTypeMap[]; // "SavedJob" gated on "JobStorage", "Fax" on "FaxKey"
extern const _SettingMap _FolderNameMap[];
extern const _SettingMap _SavedJobSaveOptionRadioMap[]; // both rows 0: used by item number
extern const _SettingMap _JobNameMap[];
extern const _SettingMap _LoginNameMap[];

// The PPD choice maps. "PageSize", "MediaType" and "MediaColor" also serve
// as the stock's size, type and colour tables.
namespace ppdmaps {

extern const PPDChoiceMap _BannerPageMap[];
extern const PPDChoiceMap _PPDOutputOptionMap[];
extern const PPDChoiceMap _RequestOffsetMap[];
extern const PPDChoiceMap _JCLTrueGrayGraphicsMap[];
extern const PPDChoiceMap _JCLTrueGrayImagesMap[];
extern const PPDChoiceMap _LightenDarkenMap[];
extern const PPDChoiceMap _PPDDuplexMap[];
extern const PPDChoiceMap _JCLPrintQualityMap[];
extern const PPDChoiceMap _QVRGBColorSpaceMap[];
extern const PPDChoiceMap _QVCMYKColorSpaceMap[];
extern const PPDChoiceMap _JCLColorCorrectionMap[];
extern const PPDChoiceMap _QVFoldMap[];
extern const PPDChoiceMap _QVPunchMap[];
extern const PPDChoiceMap _QVStapleMap[];
extern const PPDChoiceMap _DraftModeMap[];
extern const PPDChoiceMap _PPDResolutionMap[];
extern const PPDChoiceMap _ColorModeMap[];
extern const PPDChoiceMap _FeedEdgeMap[];
extern const PPDChoiceMap _InputSlotMap[];
extern const PPDChoiceMap _SlipSheetMap[];
extern const PPDChoiceMap _OutputBinMap[]; // three rows share 5: "Upper" wins
extern const PPDChoiceMap _MediaColorMap[];
extern const PPDChoiceMap _MediaTypeMap[]; // "CardStock" twice (12, then 43)
extern const PPDChoiceMap _PageSizeMap[];  // "3x5" twice (both 80)

} // namespace ppdmaps

// PPD main keyword -> the choice map that serves it, ended by a null keyword.
extern const MainKeywordMap _MainKeywordMap[];

} // namespace orvan
