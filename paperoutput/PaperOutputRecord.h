// The Paper/Output panel's record: every choice of the panel while the
// dialog is open (job type and its setups, job-level stock, separators,
// two-sided printing, office finishing, booklet, output destination, fax),
// and the print-settings ticket keys it travels under.
#pragma once

#include "fax/FaxOptions.h"   // kFaxOptionsKey
#include "fax/FaxRecipient.h" // kFaxRecipientListKey
#include "settings/JobTypes.h"
#include "settings/PageFormat.h" // the job name and orientation keys
#include "settings/PropertyValue.h"
#include "specialpages/Cover.h"
#include "specialpages/SpecialPageKeys.h" // the job-level stock and booklet layout keys
#include "stock/Stock.h"

#include <QString>

#include <cstdint>
#include <memory>

namespace orvan {

class Ticket;

// Print-settings ticket keys.
inline const QString kJobTypeKey = QStringLiteral("com.orvan.print.JobType");
inline const QString kSeparatorOptionKey = QStringLiteral("com.orvan.print.SeparatorOption");
inline const QString kSeparatorColorKey = QStringLiteral("com.orvan.print.SeparatorColor");
inline const QString kFinishingOptionsKey = QStringLiteral("com.orvan.print.FinishingOptions");
inline const QString kFinishingOffsetKey = QStringLiteral("com.orvan.print.FinishingOffset");
inline const QString kFinishingOffsetEnableSubsetKey =
    QStringLiteral("com.orvan.print.FinishingOffsetEnableSubset");
inline const QString kFinishingOffsetPagesPerSubsetKey =
    QStringLiteral("com.orvan.print.FinishingOffsetPagesPerSubset");
inline const QString kFinishingSlipSheetKey = QStringLiteral("com.orvan.print.FinishingSlipSheet");
inline const QString kFinishingBindValueKey = QStringLiteral("com.orvan.print.FinishingBindValue");
inline const QString kFinishingCustomKey = QStringLiteral("com.orvan.print.FinishingCustom");
inline const QString kFinishingDuplexKey = QStringLiteral("com.orvan.print.FinishingDuplex");
inline const QString kDuplexingKey = QStringLiteral("com.apple.print.PrintSettings.PMDuplexing");
inline const QString kBookletDrawOutlinesKey =
    QStringLiteral("com.orvan.print.BookletDrawOutlines");
inline const QString kBookletForceNewSizeKey =
    QStringLiteral("com.orvan.print.BookletForceNewSize");
inline const QString kGutterKey = QStringLiteral("com.orvan.print.Gutter");
inline const QString kCreepKey = QStringLiteral("com.orvan.print.Creep");
inline const QString kStockSizeKey = QStringLiteral("Size");

// Keys of the job-type dictionary.
inline const QString kJobTypeMediaTypeKey = QStringLiteral("MediaType");
inline const QString kUseJobNameKey = QStringLiteral("UseJobName");
inline const QString kJobTypeValueKey = QStringLiteral("JobType");
inline const QString kSavedJobNameKey = QStringLiteral("SavedJobName");
inline const QString kSavedJobLocationKey = QStringLiteral("SavedJobLocation");
inline const QString kSecurePrintPasswordKey = QStringLiteral("SecurePrintPassword");
inline const QString kDelayedPrintTimeKey = QStringLiteral("DelayedPrintTime");
inline const QString kSaveDispositionKey = QStringLiteral("SaveDisposition");

// PPD main keywords the panel writes.
inline const QString kDuplexKeyword = QStringLiteral("Duplex");
inline const QString kOutputBinKeyword = QStringLiteral("OutputBin");
inline const QString kFoldKeyword = QStringLiteral("QVFold");
inline const QString kPunchKeyword = QStringLiteral("QVPunch");
inline const QString kStapleKeyword = QStringLiteral("StapleLocation");
inline const QString kMediaColorKeyword = QStringLiteral("MediaColor");
inline const QString kMediaTypeKeyword = QStringLiteral("MediaType");

// Two-sided values (`_PlexMap`).
inline constexpr std::int32_t kSimplex = 1;
inline constexpr std::int32_t kDuplexLongEdge = 2;
inline constexpr std::int32_t kDuplexShortEdge = 3;

// Staple, punch and fold values; 1 means none in each.
inline constexpr std::int32_t kFinishingNone = 1;
inline constexpr std::int32_t kSingleStaple = 5;
inline constexpr std::int32_t kDualStaple = 10;
inline constexpr std::int32_t kMultipleStaples = 54;
inline constexpr std::int32_t kGenericPunch = 2;
inline constexpr std::int32_t kTwoHolePunch = 3;
inline constexpr std::int32_t kThreeHolePunch = 4;
inline constexpr std::int32_t kFourHolePunch = 5;
inline constexpr std::int32_t kCFold = 19;
inline constexpr std::int32_t kZFold = 20;
inline constexpr std::int32_t kZFoldHalfSheet = 36;
inline constexpr std::int32_t kBookletFold = 43;
inline constexpr std::int32_t kBookletFoldStaple = 53;

// Finishing option codes, as the finishing commands set them.
inline constexpr long kFinishingOptionNone = 0;
inline constexpr long kFinishingOptionSingleStaple = 4;
inline constexpr long kFinishingOptionDualStaple = 9;
inline constexpr long kFinishingOptionMultipleStaples = 53;
inline constexpr long kFinishingOptionPunch = 30;
inline constexpr long kFinishingOptionFold = 40;
inline constexpr long kFinishingOptionBookletFold = 24;

// Booklet layout flag.
inline constexpr std::int32_t kBookletLayoutOn = 1;
inline constexpr std::int32_t kBookletLayoutOff = 2;
// Booklet draw-outlines flag.
inline constexpr std::int32_t kDrawOutlinesOn = 2;
inline constexpr std::int32_t kDrawOutlinesOff = 1;

// Separator options (`_SeparatorOptionMap`).
inline constexpr std::int32_t kSeparatorNone = 1;
inline constexpr std::int32_t kSeparatorBlank = 2;
inline constexpr std::int32_t kSeparatorPrinted = 3;

// Save dispositions (rows of `_SavedJobSaveOptionRadioMap`).
inline constexpr std::int32_t kSaveOnly = 0;
inline constexpr std::int32_t kSaveAndPrint = 1;

inline const QString kDefaultSavedJobLocation = QStringLiteral("file:///job-repository/");

struct PaperOutputRecord
{
    PaperOutputRecord() = default;
    // Copies deep: the covers are cloned.
    PaperOutputRecord(const PaperOutputRecord& other);
    PaperOutputRecord& operator=(const PaperOutputRecord& other);

    std::int32_t jobType = kJobTypeNormal;
    std::int32_t orientation = 1;
    QString jobName;

    // Separators between transparencies.
    std::int32_t separatorOption = kSeparatorNone;
    Stock separatorStock;

    Stock jobLevelStock;

    // Job-type setups. A null string means none is held.
    QString savedJobName = QStringLiteral("");
    bool useJobName = false;
    QString savedJobLocation = kDefaultSavedJobLocation;
    bool defaultLocation = false;
    bool withPasscode = false;
    long saveDisposition = kSaveOnly;
    long jobTypeMediaType = 0;
    QString securePrintPasscode;
    std::int64_t delayedPrintTime = 0; // long date-time seconds (LongDateClock.h)

    // Office finishing.
    long finishingOption = kFinishingOptionNone;
    std::int32_t singleStaple = kFinishingNone;
    std::int32_t dualStaple = kFinishingNone;
    std::int32_t multipleStaple = kFinishingNone;
    std::int32_t fold = kFinishingNone;
    std::int32_t bindValue = 0;
    std::int32_t punch = kFinishingNone;
    // Kept and written back unchanged.
    std::int32_t offset = 0;
    std::int32_t offsetSubsetEnabled = 0;
    std::int32_t pagesPerSubset = 0;
    std::int32_t slipSheet = 0;
    QString finishingCustom = QStringLiteral("");

    std::int32_t twoSided = kSimplex;
    std::int32_t outputDestination = kUnset; // "Printer Default"

    // Booklet.
    std::int32_t bookletLayout = kBookletLayoutOff;
    std::int32_t drawOutlines = kDrawOutlinesOff;
    std::int32_t forceNewSize = 0;
    std::int32_t bookletSize = kUnset;
    std::int32_t gutter = 0;
    std::int32_t creep = 0;

    // LAN fax; Null until the ticket has them or the fax setup made them.
    PropertyValue faxOptions;
    PropertyValue faxRecipientList;

    std::unique_ptr<Cover> frontCover;
    std::unique_ptr<Cover> backCover;

    bool bookletLayoutOn() const { return bookletLayout == kBookletLayoutOn; }
    // The staple value the ticket's single "StapleLocation" choice carries:
    // the first of single, dual and multiple that is not 1, else 1.
    std::int32_t stapleLocation() const;
};

// The job-type dictionary. Reading takes each key that has the right kind and
// leaves the other fields alone (all of them when the item is not a
// dictionary); an absent "SavedJobLocation" sets the default-location flag,
// an absent "SavedJobName" without the use-job-name flag means no name. Writing starts from the
// ticket's dictionary, or a new one holding "MediaType", "JobType", "UseJobName" and an empty
// "SavedJobName", and applies the rules of each key; other keys of the ticket's dictionary are
// kept.
void ReadJobTypeDictionary(const PropertyValue* dictionary, PaperOutputRecord& record);
PropertyValue JobTypeDictionary(const PropertyValue* current, const PaperOutputRecord& record);

} // namespace orvan
