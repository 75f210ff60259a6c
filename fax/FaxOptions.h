// The fax options of a LAN fax job: the dictionary that travels in the
// print-settings ticket under "com.orvan.print.FaxOptions", and the state of
// the setup dialog's option controls that reads and writes it.
#pragma once

#include "settings/PropertyValue.h"

#include <QDateTime>
#include <QString>

#include <cstdint>

namespace orvan {

inline const QString kFaxOptionsKey = QStringLiteral("com.orvan.print.FaxOptions");

inline const QString kFaxConfirmationSheetKey = QStringLiteral("ConfirmationSheet");
inline const QString kFaxSendSpeedKey = QStringLiteral("SendSpeed");
inline const QString kFaxResolutionKey = QStringLiteral("Resolution");
inline const QString kFaxSendTimeKey = QStringLiteral("SendTime");
inline const QString kFaxDialingPrefixKey = QStringLiteral("DialingPrefix");
inline const QString kFaxCreditCardKey = QStringLiteral("CreditCard");
inline const QString kFaxCoverSheetNotesKey = QStringLiteral("CoverSheetNotes");
inline const QString kFaxLocalizedNotesLabelKey = QStringLiteral("LocalizedNotesLabel");
inline const QString kFaxCoverSheetKey = QStringLiteral("CoverSheet");
// The cover sheet's sender, written by the cover sheet's own settings.
inline const QString kFaxCoverSheetSenderKey = QStringLiteral("SenderName");
inline const QString kFaxPromptDuplicateKey = QStringLiteral("PromptDuplicate");
inline const QString kFaxPromptRemoveKey = QStringLiteral("PromptRemove");
// Belongs to the same key set; nothing reads or writes it.
inline const QString kFaxNewJobResolutionKey = QStringLiteral("NewJobResolution");

// Ticket values of the option pop-ups (rows of _ConfirmationSheetMap,
// _FaxSendSpeedMap, _FaxResolutionMap, _CoverSheetMap).
inline constexpr std::int32_t kPrintConfirmationSheet = 1;
inline constexpr std::int32_t kNoConfirmationSheet = 2;
inline constexpr std::int32_t kSendSpeedForced4800 = 1;
inline constexpr std::int32_t kSendSpeedG3 = 2;
inline constexpr std::int32_t kSendSpeedSuperG3 = 3;
inline constexpr std::int32_t kFaxResolutionStandard = 1;
inline constexpr std::int32_t kFaxResolutionFine = 2;
inline constexpr std::int32_t kFaxResolutionSuperfine = 3;
inline constexpr std::int32_t kNoCoverSheet = 1;
inline constexpr std::int32_t kPrintCoverSheet = 2;

// What the option controls show. A new dictionary (or an absent key) shows
// these defaults: a confirmation sheet, Super G3, Fine, send now, no prefix,
// no credit card, no cover sheet, and both prompts on.
struct FaxOptionControls
{
    std::int32_t confirmationSheet = kPrintConfirmationSheet;
    std::int32_t sendSpeed = kSendSpeedSuperG3;
    std::int32_t resolution = kFaxResolutionFine;
    bool sendLater = false;
    QDateTime sendTime; // invalid until a time is chosen or read
    bool dialingPrefixOn = false;
    QString dialingPrefix;
    bool creditCardOn = false;
    QString creditCard;
    std::int32_t coverSheet = kNoCoverSheet;
    QString coverSheetNotes;
    bool promptDuplicate = true;
    bool promptRemove = true;

    friend bool operator==(const FaxOptionControls&, const FaxOptionControls&) = default;
};

// The controls as the dictionary sets them. "SendTime" is whole seconds
// since 1970-01-01 UTC; a prefix or credit card that is present turns its
// check box on; notes show whether or not the cover sheet is on.
FaxOptionControls ReadFaxOptions(const PropertyValue& options);

// Writes every option into the dictionary (made one when it is not),
// replacing earlier values: "SendTime" (SInt64), "DialingPrefix" and
// "CreditCard" only while their controls are on, removed otherwise. With the
// cover sheet on, non-empty notes write "CoverSheetNotes" and the label
// beside them, while empty notes remove only the label and keep earlier
// notes; with the cover sheet off neither key is touched.
void WriteFaxOptions(const FaxOptionControls& controls, const QString& localizedNotesLabel,
                     PropertyValue* options);

} // namespace orvan
