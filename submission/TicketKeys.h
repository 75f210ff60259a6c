// The print-settings and page-format ticket items the job description reads,
// as the panels and the page setup write them.
#pragma once

#include <QString>

#include <cstdint>

namespace orvan::submission {

// Paper/Output panel.
inline const QString kJobTypeKey = QStringLiteral("com.orvan.print.JobType");
inline const QString kFinishingDuplexKey = QStringLiteral("com.orvan.print.FinishingDuplex");
inline const QString kDuplexingKey = QStringLiteral("com.apple.print.PrintSettings.PMDuplexing");
inline const QString kFaxOptionsKey = QStringLiteral("com.orvan.print.FaxOptions");
inline const QString kFaxRecipientListKey = QStringLiteral("com.orvan.print.FaxRecipientList");

// The job-type dictionary.
inline const QString kJobTypeValueKey = QStringLiteral("JobType");
inline const QString kUseJobNameKey = QStringLiteral("UseJobName");
inline const QString kSavedJobNameKey = QStringLiteral("SavedJobName");
inline const QString kSavedJobLocationKey = QStringLiteral("SavedJobLocation");
inline const QString kSecurePrintPasswordKey = QStringLiteral("SecurePrintPassword");
inline const QString kDelayedPrintTimeKey = QStringLiteral("DelayedPrintTime");
inline const QString kSaveDispositionKey = QStringLiteral("SaveDisposition");

inline constexpr std::int32_t kJobTypeSavedJob = 3;
inline constexpr std::int32_t kJobTypeFax = 5;
inline constexpr std::int32_t kJobTypeSecure = 6;
inline constexpr std::int32_t kJobTypeDelayed = 7;
inline constexpr std::int32_t kJobTypeSampleSet = 8;
// "SaveDisposition": save only, or save and print.
inline constexpr std::int64_t kSaveOnly = 0;

// Fax options dictionary and recipients.
inline const QString kFaxConfirmationSheetKey = QStringLiteral("ConfirmationSheet");
inline const QString kFaxResolutionKey = QStringLiteral("Resolution");
inline const QString kFaxSendTimeKey = QStringLiteral("SendTime");
inline const QString kFaxDialingPrefixKey = QStringLiteral("DialingPrefix");
inline const QString kFaxCreditCardKey = QStringLiteral("CreditCard");
inline const QString kFaxCoverSheetKey = QStringLiteral("CoverSheet");
inline const QString kFaxCoverSheetNotesKey = QStringLiteral("CoverSheetNotes");
inline const QString kFaxCoverSheetSenderKey = QStringLiteral("SenderName");
inline const QString kFaxNumberKey = QStringLiteral("FaxNumber");
inline const QString kFaxFirstNameKey = QStringLiteral("FirstName");
inline const QString kFaxLastNameKey = QStringLiteral("LastName");
// The characters a fax number keeps when it is dialled.
inline const QString kFaxDialingCharacters = QStringLiteral("0123456789*#=:!,/S$<>ABCD");

// Job notes.
inline const QString kJobNotesJobNameKey = QStringLiteral("com.orvan.print.JobNotesJobName");
inline const QString kJobNotesSheetMessageKey =
    QStringLiteral("com.orvan.print.JobNotesSheetMessage");
inline const QString kJobNotesMessageKey = QStringLiteral("com.orvan.print.JobNotesMessage");
inline const QString kJobNotesSenderKey = QStringLiteral("com.orvan.print.JobNotesSenderName");
inline const QString kJobNotesRecipientKey = QStringLiteral("com.orvan.print.JobNotesRecipient");

// Page setup.
inline const QString kOrientationKey = QStringLiteral("com.apple.print.PageFormat.PMOrientation");
inline const QString kPaperInfoTicketKey = QStringLiteral("com.apple.print.PaperInfoTicket");
inline const QString kUnadjustedPaperRectKey =
    QStringLiteral("com.apple.print.PaperInfo.PMUnadjustedPaperRect");
inline const QString kLayoutRowsKey = QStringLiteral("com.apple.print.PrintSettings.PMLayoutRows");
inline const QString kLayoutColumnsKey =
    QStringLiteral("com.apple.print.PrintSettings.PMLayoutColumns");

} // namespace orvan::submission
