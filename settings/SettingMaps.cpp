#include "settings/SettingMaps.h"

namespace orvan {

namespace {

constexpr _SettingMap Item(const char* key, std::int32_t value, std::uint32_t commandId = 0)
{
    return {key, value, commandId, nullptr, 0};
}

// A row shown only while the installed feature is present.
constexpr _SettingMap Gated(const char* key, std::int32_t value, const char* featureKey)
{
    return {key, value, 0, featureKey, 1};
}

constexpr _SettingMap kEndOfMap{nullptr, 0, 0, nullptr, 0};
constexpr PPDChoiceMap kEndOfChoices{nullptr, 0};

constexpr std::int32_t Code(const char (&code)[5])
{
    return static_cast<std::int32_t>(FourCharCode(code));
}

constexpr std::int32_t kUseJobName = Code("Qujn");
constexpr std::int32_t kPublicFolder = Code("Qfln");
constexpr std::int32_t kUseLoginName = Code("JnUL");

} // namespace

// The tables keep one row a line, in menu order.
// clang-format off

// --- Advanced panel -------------------------------------------------------

constexpr _SettingMap _BookletLayoutOrderMap[] = {
    Item("RightToLeft", kUseJobName),
    Item("LeftToRight", kUseJobName),
    kEndOfMap,
};

constexpr _SettingMap _RotateImageMap[] = {
    Item("PrinterDefault", kUseJobName),
    Item("Off", kUseJobName),
    Item("On", kUseJobName),
    kEndOfMap,
};

constexpr _SettingMap _OutputOptionsMap[] = {
    Item("Face Down", 0),
    Item("Face Up", 1),
    kEndOfMap,
};

constexpr _SettingMap _PrinterEmulationMap[] = {
    Item("PrinterDefault", kUseJobName),
    Item("None", kUseJobName),
    Item("Kestrel 3100", kUseJobName),
    kEndOfMap,
};

constexpr _SettingMap _OPISubsitutionMap[] = {
    Item("PrinterDefault", kUseJobName),
    Item("True", kUseJobName),
    Item("False", kUseJobName),
    kEndOfMap,
};

constexpr _SettingMap _OPIPrescanMap[] = {
    Item("PrinterDefault", kUseJobName),
    Item("None", kUseJobName),
    Item("Scan", kUseJobName),
    Item("Gather", kUseJobName),
    kEndOfMap,
};

constexpr _SettingMap _OnOffMap[] = {
    Item("On", kUseJobName),
    Item("Off", kUseJobName),
    kEndOfMap,
};

// --- Watermarks and background forms --------------------------------------

constexpr _SettingMap _WatermarkMap[] = {
    Item("NoWatermark", 1),
    Item("-", -5),
    Item("Options", -6),
    Item("New...", -7),
    Item("Edit...", -8),
    Item("Delete", -9),
    kEndOfMap,
};

constexpr _SettingMap _WatermarkOptionsMap[] = {
    Item("WatermarkBackground", 1),
    Item("WatermarkBlend", 2),
    Item("WatermarkForeground", 3),
    Item("-", -5),
    Item("WatermarkPrintOnAllPages", 4),
    Item("WatermarmPrintOnPage1Only", 5),
    kEndOfMap,
};

constexpr _SettingMap _EnabledDisabledMap[] = {
    Item("Enabled", 1),
    Item("Disabled", 2),
    kEndOfMap,
};

constexpr _SettingMap _PageBordersMap[] = {
    Item("No Page Borders", 1),
    Item("Draw Page Borders", 2),
    kEndOfMap,
};

constexpr _SettingMap _BookletWatermarkBackgroundFormsMap[] = {
    Item("None", 1),
    Item("-", 2),
    Item("Setup...", 3),
    kEndOfMap,
};

// --- LAN fax --------------------------------------------------------------

constexpr _SettingMap _CoverSheetMap[] = {
    Item("Do Not Print a Cover Sheet", 1),
    Item("Print a Cover Sheet...", 2),
    kEndOfMap,
};

constexpr _SettingMap _ConfirmationSheetMap[] = {
    Item("Print a Confirmation Sheet", 1),
    Item("Do Not Print a Confirmation Sheet", 2),
    kEndOfMap,
};

constexpr _SettingMap _FaxSendSpeedMap[] = {
    Item("Forced 4800 bps", 1),
    Item("G3 (14.4 Kbps)", 2),
    Item("Super G3 (33.6 Kbps)", 3),
    kEndOfMap,
};

constexpr _SettingMap _FaxResolutionMap[] = {
    Item("Standard", 1),
    Item("Fine", 2),
    Item("Superfine", 3),
    kEndOfMap,
};

constexpr _SettingMap _CoverSheetImageMap[] = {
    Item("NoWatermark", 1),
    Item("-", -5),
    Item("Cover Sheet Paper Size", -6),
    Item("New...", -7),
    Item("Edit...", -8),
    Item("Delete", -9),
    kEndOfMap,
};

constexpr _SettingMap _CoverSheetSenderMap[] = {
    Item("Show Sender's Information", 1),
    Item("Hide Sender's Information", 2),
    kEndOfMap,
};

constexpr _SettingMap _CoverSheetRecipientMap[] = {
    Item("Show All Recipients", 1),
    Item("Hide Recipient's Information", 2),
    Item("Show Custom Text", 3),
    kEndOfMap,
};

constexpr _SettingMap _FaxCoverSizeMap[] = {
    Item("StockSizeLetter", 1),
    Item("StockSizeA4", 4),
    kEndOfMap,
};

// --- Stock setups ---------------------------------------------------------

constexpr _SettingMap _TabStockRadioMap[] = {
    Item("Inches", 0),
    Item("Millimeters", 0),
    kEndOfMap,
};

constexpr _SettingMap _TabStockSetupMap[] = {
    Item("None", 1),
    Item("0.5\" (8.5x11\" Template)", 2),
    Item("12.7 mm (A4 Template)", 3),
    Item("Custom", 4),
    kEndOfMap,
};

constexpr _SettingMap _SeparatorOptionMap[] = {
    Item("Separator Option None", 1),
    Item("Separator Option Blank", 2),
    Item("Separator Option Printed", 3),
    kEndOfMap,
};

// --- Image options --------------------------------------------------------

constexpr _SettingMap _PrintQualityMap[] = {
    Item("PhotoKey", 6),
    Item("Enhanced", 3),
    kEndOfMap,
};

constexpr _SettingMap _PrintingOptimizationMap[] = {
    Item("Speed", 1),
    Item("Economy", 2),
    kEndOfMap,
};

constexpr _SettingMap _AdvancedMirrorImageMap[] = {
    Item("Enabled", 1),
    Item("Disabled", 2),
    kEndOfMap,
};

constexpr _SettingMap _ResolutionMap[] = {
    Item("600 x 600 Resolution", 2),
    kEndOfMap,
};

// --- Covers and special pages ---------------------------------------------

constexpr _SettingMap _CoverSidesSimplexImagedMap[] = {
    Item("CoverPrinted", 2),
    Item("CoverBlankorPreprinted", 1),
    kEndOfMap,
};

constexpr _SettingMap _CoverSidesDuplexImagedMap[] = {
    Item("CoverPrinted", 4),
    Item("CoverBlankorPreprinted", 1),
    kEndOfMap,
};

constexpr _SettingMap _CoverSidesImagedMap[] = {
    Item("CoverPrinted", 4),
    Item("CoverBlankorPreprinted", 1),
    kEndOfMap,
};

constexpr _SettingMap _PlexMap[] = {
    Item("Simplex", 1),
    Item("Duplex", 2),
    Item("DuplexShort", 3),
    kEndOfMap,
};

// --- Job types ------------------------------------------------------------

constexpr _SettingMap _JobTypeMap[] = {
    Item("Normal", 1),
    Item("SecurePrint", 6),
    Item("SampleSet", 8),
    Item("DelayedPrint", 7),
    Gated("SavedJob", 3, "JobStorage"),
    Gated("Fax", 5, "FaxKey"),
    kEndOfMap,
};

constexpr _SettingMap _FolderNameMap[] = {
    Item("PublicFolder", kPublicFolder),
    kEndOfMap,
};

constexpr _SettingMap _SavedJobSaveOptionRadioMap[] = {
    Item("Save", 0),
    Item("SavePrint", 0),
    kEndOfMap,
};

constexpr _SettingMap _JobNameMap[] = {
    Item("UseJobName", kUseJobName),
    kEndOfMap,
};

constexpr _SettingMap _LoginNameMap[] = {
    Item("UseLoginName", kUseLoginName),
    kEndOfMap,
};

// --- PPD choice maps ------------------------------------------------------

namespace ppdmaps {

constexpr PPDChoiceMap _BannerPageMap[] = {{"True", 1}, {"False", 0}, kEndOfChoices};
constexpr PPDChoiceMap _PPDOutputOptionMap[] = {{"True", 1}, {"False", 0}, kEndOfChoices};
constexpr PPDChoiceMap _RequestOffsetMap[] = {{"EndOfSet", 1}, {"None", 0}, kEndOfChoices};
constexpr PPDChoiceMap _JCLTrueGrayGraphicsMap[] = {{"False", 1}, {"True", 2}, kEndOfChoices};
constexpr PPDChoiceMap _JCLTrueGrayImagesMap[] = {{"False", 1}, {"True", 2}, kEndOfChoices};

constexpr PPDChoiceMap _LightenDarkenMap[] = {
    {"Lighten5", -5}, {"Lighten4", -4}, {"Lighten3", -3}, {"Lighten2", -2}, {"Lighten1", -1},
    {"Normal", 0},    {"Darken1", 1},   {"Darken2", 2},   {"Darken3", 3},   {"Darken4", 4},
    {"Darken5", 5},   kEndOfChoices,
};

constexpr PPDChoiceMap _PPDDuplexMap[] = {
    {"None", 1}, {"DuplexNoTumble", 2}, {"DuplexTumble", 3}, kEndOfChoices,
};

constexpr PPDChoiceMap _JCLPrintQualityMap[] = {
    {"TonerSaver", 1}, {"Standard", 2},    {"Enhanced", 3},       {"HighSpeed", 4},
    {"HighQuality", 5}, {"HighResolution", 6}, kEndOfChoices,
};

constexpr PPDChoiceMap _QVRGBColorSpaceMap[] = {
    {"OrvanRGB", 1}, {"sRGB", 2}, {"AppleRGB", 3}, {"AdobeRGB", 4}, kEndOfChoices,
};

constexpr PPDChoiceMap _QVCMYKColorSpaceMap[] = {
    {"SNAP", 1}, {"SWOP", 2}, {"EuroScale", 3}, {"Commercial", 4}, {"JapanColor", 5}, kEndOfChoices,
};

constexpr PPDChoiceMap _JCLColorCorrectionMap[] = {
    {"Auto", 1}, {"sRGB", 2}, {"BlackWhite", 3}, {"PressMatch", 4}, {"None", 5}, {"Standard", 6},
    kEndOfChoices,
};

constexpr PPDChoiceMap _QVFoldMap[] = {
    {"None", 1}, {"C", 19}, {"Z", 20}, {"ZFoldHalfSheet", 36}, {"BiFold", 43}, {"BiFoldStaple", 53},
    kEndOfChoices,
};

constexpr PPDChoiceMap _QVPunchMap[] = {
    {"None", 1}, {"HolePunch", 2}, {"2HolePunch", 3}, {"3HolePunch", 4}, {"4HolePunch", 5},
    kEndOfChoices,
};

constexpr PPDChoiceMap _QVStapleMap[] = {
    {"None", 1}, {"SinglePortrait", 5}, {"DualLandscape", 10}, {"MultipleStaples", 54},
    kEndOfChoices,
};

constexpr PPDChoiceMap _DraftModeMap[] = {{"None", 2}, {"Draft", 1}, kEndOfChoices};

constexpr PPDChoiceMap _PPDResolutionMap[] = {
    {"200x100dpi", 6},  {"200x200dpi", 5},   {"300x300dpi", 1},   {"600x600dpi", 2},
    {"1200x600dpi", 3}, {"1200x1200dpi", 4}, {"1800x1800dpi", 7}, kEndOfChoices,
};

constexpr PPDChoiceMap _ColorModeMap[] = {{"Grayscale", 1}, {"Color", 2}, kEndOfChoices};
constexpr PPDChoiceMap _FeedEdgeMap[] = {{"LongEdge", 1}, {"ShortEdge", 2}, kEndOfChoices};

constexpr PPDChoiceMap _InputSlotMap[] = {
    {"Auto", 0},  {"Tray1", 1}, {"Tray2", 2}, {"Tray3", 3},    {"Tray4", 4},
    {"Tray5", 5}, {"Tray6", 6}, {"Bypass", 100}, kEndOfChoices,
};

constexpr PPDChoiceMap _SlipSheetMap[] = {{"None", 1}, {"Blank", 2}, {"Printed", 3}, kEndOfChoices};

constexpr PPDChoiceMap _OutputBinMap[] = {
    {"Auto", 1},
    {"Side", 3},
    {"Top", 2},
    {"TopTray", 18},
    {"Stacker", 4},
    {"TopTrayHCS", 16},
    {"StackerTrayHCS", 17},
    {"Upper", 5},
    {"Lower", 6},
    {"Booklet", 7},
    {"Middle", 11},
    {"Middle2", 15},
    {"PrinterDefault", kUnset},
    {"Center", 5},
    {"Bottom", 5},
    {"EnvFolder", 13},
    {"SBM", 14},
    {"Finisher", 23},
    kEndOfChoices,
};

constexpr PPDChoiceMap _MediaColorMap[] = {
    {"PrinterDefaultColor", 23},
    {"Buff", 7},
    {"Blue", 2},
    {"Clear", 6},
    {"Gray", 12},
    {"Green", 4},
    {"Ivory", 11},
    {"Orange", 13},
    {"Other", 14},
    {"Pink", 5},
    {"Red", 9},
    {"White", 1},
    {"Yellow", 3},
    {"Goldenrod", 8},
    {"Unspecified", 22},
    {"Custom1", 15},
    {"Custom2", 16},
    {"Custom3", 17},
    {"Custom4", 18},
    {"Custom5", 19},
    {"Custom6", 20},
    {"Custom7", 21},
    kEndOfChoices,
};

constexpr PPDChoiceMap _MediaTypeMap[] = {
    {"SystemDefault", 23},
    {"Transparency", 2},
    {"Labels", 9},
    {"Punched", 11},
    {"Recycled", 10},
    {"PrePrinted", 3},
    {"Bond", 13},
    {"Letterhead", 14},
    {"TabStock", 24},
    {"Envelopes", 8},
    {"Other", 22},
    {"Custom1", 15},
    {"Custom2", 16},
    {"Custom3", 17},
    {"Custom4", 18},
    {"Custom5", 19},
    {"Custom6", 20},
    {"Custom7", 21},
    {"Standard", 1},
    {"CardStock", 12},
    {"Archive", 45},
    {"CardStock2", 26},
    {"CardStock", 43},
    {"CardStockF", 43},
    {"HeavyweightLabels", 25},
    {"ExtraHeavyweight", 27},
    {"ExtraHeavyweight2", 28},
    {"LightGlossy", 29},
    {"LightGlossy2", 30},
    {"LightGlossyF", 44},
    {"HeavyGlossy", 31},
    {"HeavyGlossy2", 32},
    {"HeavyTabStock", 33},
    {"Unspecified", 34},
    {"ExtraHeavyPlus", 35},
    {"ExtraHeavyPlus2", 36},
    {"ExtraHeavyGlossy", 37},
    {"ExtraHeavyGlossy2", 38},
    {"ExtraHeavyLabels", 39},
    {"Rough", 40},
    {"Standard2", 41},
    {"Light", 42},
    {"Postcard", 46},
    kEndOfChoices,
};

constexpr PPDChoiceMap _PageSizeMap[] = {
    {"Letter", 1},
    {"Legal", 2},
    {"Tabloid", 3},
    {"A4", 4},
    {"A3", 5},
    {"FanFoldGermanLegal", 16},
    {"8.5x13", 12},
    {"3x5", 80},
    {"Officio", 78},
    {"Statement", 17},
    {"A5", 18},
    {"A6", 40},
    {"Executive", 21},
    {"B5", 6},
    {"A4Cover", 7},
    {"9x11", 8},
    {"9x11L", 82},
    {"B4", 14},
    {"5x7", 41},
    {"B6", 42},
    {"8x10", 10},
    {"GovernmentLetter", 83},
    {"4x6Pcard", 43},
    {"114x152Pcard", 81},
    {"EnvMonarch", 44},
    {"Env9", 77},
    {"Env10", 45},
    {"EnvDL", 46},
    {"EnvC5", 20},
    {"JISB5", 55},
    {"JISB4", 56},
    {"JISB6", 57},
    {"SpanishFolio", 22},
    {"EnvC4", 58},
    {"4x6", 59},
    {"100x148Postcard", 60},
    {"148x200Postcard", 61},
    {"TabloidExtra", 11},
    {"12x19", 71},
    {"13x19", 66},
    {"SRA3", 15},
    {"220x330", 24},
    {"815", 23},
    {"16K", 29},
    {"8K1", 67},
    {"16K1", 68},
    {"EnvB5", 73},
    {"Env6x9", 25},
    {"Env9x12", 26},
    {"EnvC6", 74},
    {"QV11x15", 63},
    {"EnvChou3", 69},
    {"5p5x7", 76},
    {"QV6x9", 62},
    {"3x5", 80},
    {"Custom", 75},
    kEndOfChoices,
};

} // namespace ppdmaps

constexpr MainKeywordMap _MainKeywordMap[] = {
    {"JCLBanner", ppdmaps::_BannerPageMap},
    {"Jog", ppdmaps::_RequestOffsetMap},
    {"JCLTrueGrayGraphics", ppdmaps::_JCLTrueGrayGraphicsMap},
    {"JCLTrueGrayImages", ppdmaps::_JCLTrueGrayImagesMap},
    {"QVImageQuality", ppdmaps::_LightenDarkenMap},
    {"MediaColor", ppdmaps::_MediaColorMap},
    {"MediaType", ppdmaps::_MediaTypeMap},
    {"Duplex", ppdmaps::_PPDDuplexMap},
    {"JCLPrintQuality", ppdmaps::_JCLPrintQualityMap},
    {"JCLRGBColorSpace", ppdmaps::_QVRGBColorSpaceMap},
    {"JCLCMYKColorSpace", ppdmaps::_QVCMYKColorSpaceMap},
    {"JCLColorCorrection", ppdmaps::_JCLColorCorrectionMap},
    {"PageSize", ppdmaps::_PageSizeMap},
    {"OutputBin", ppdmaps::_OutputBinMap},
    {"QVFold", ppdmaps::_QVFoldMap},
    {"QVPunch", ppdmaps::_QVPunchMap},
    {"StapleLocation", ppdmaps::_QVStapleMap},
    {"QVEconomode", ppdmaps::_DraftModeMap},
    {"QVOutputOption", ppdmaps::_PPDOutputOptionMap},
    {"Resolution", ppdmaps::_PPDResolutionMap},
    {"QVColorMode", ppdmaps::_ColorModeMap},
    {"InputSlot", ppdmaps::_InputSlotMap},
    {"QVFeedEdge", ppdmaps::_FeedEdgeMap},
    {"QVFrontCoverSheet", ppdmaps::_InputSlotMap},
    {"QVBackCoverSheet", ppdmaps::_InputSlotMap},
    {"QVSlipSheetPrint", ppdmaps::_SlipSheetMap},
    {"QVSlipSheetSource", ppdmaps::_InputSlotMap},
    {"QVSlipSheetType", ppdmaps::_MediaTypeMap},
    {nullptr, nullptr},
};

// clang-format on

} // namespace orvan
