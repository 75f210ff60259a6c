// The Paper/Output panel without its widgets: the panel record, the contents
// and selections of its pop-ups, both sync directions with the print-settings
// ticket and the PPD dictionary, the panel's control hits and commands, its
// summaries and pictures. The view shows it and runs the dialogs the model
// asks for.
#pragma once

#include "paperoutput/FinishingRules.h"
#include "paperoutput/PaperOutputRecord.h"
#include "settings/MenuModel.h"
#include "settings/Status.h"
#include "shell/PDEShell.h"

#include <QString>

#include <cstdint>
#include <functional>

struct ppd_file_s;
typedef struct ppd_file_s ppd_file_t;

namespace orvan {

class Bundle;
class PrintSession;
class Ticket;

inline const QString kPaperOutputTitleKey = QStringLiteral("PaperOutput");

// Control identifiers (signature 'QPDE'); only 102 to 126 belong to the panel.
inline constexpr std::uint32_t kPaperOutputSignature = FourCharCode("QPDE");
inline constexpr std::int32_t kJobTypeControlID = 102;
inline constexpr std::int32_t kJobTypeSetupControlID = 103;
inline constexpr std::int32_t kTwoSidedControlID = 105;
inline constexpr std::int32_t kStapleControlID = 106;
inline constexpr std::int32_t kPunchControlID = 107;
inline constexpr std::int32_t kFoldControlID = 108;
inline constexpr std::int32_t kOutputDestinationControlID = 109;
inline constexpr std::int32_t kFirstPaperOutputControlID = 102;
inline constexpr std::int32_t kLastPaperOutputControlID = 126;

// Label keys.
inline const QString kJobTypeLabelKey = QStringLiteral("Job Type:");
inline const QString kPaperSummaryLabelKey = QStringLiteral("Paper Summary:");
inline const QString kTwoSidedLabelKey = QStringLiteral("Two Sided Printing:");
inline const QString kStaplingLabelKey = QStringLiteral("Stapling:");
inline const QString kHolePunchLabelKey = QStringLiteral("Hole Punch:");
inline const QString kFoldLabelKey = QStringLiteral("Fold:");
inline const QString kOutputDestinationLabelKey = QStringLiteral("Output Destination:");
inline const QString kFinishingLabelKey = QStringLiteral("Finishing Label");
inline const QString kCoversButtonKey = QStringLiteral("Covers Menu Option");
inline const QString kSeparatorsButtonKey = QStringLiteral("Separators Option");
inline const QString kSetupButtonKey = QStringLiteral("Setup...");

// What the view is to do after a control hit or command.
enum class PaperOutputAction
{
    None,
    RunSecurePrintSetup,
    RunDelayedPrintSetup,
    RunSavedJobDialog,
    RunLANFaxSetup,
    RunBookletCreation,
    RunCoversDialog,
    RunSeparatorsDialog,
};

class PaperOutputModel : public PrintGuardSource
{
public:
    struct Popup
    {
        MenuModel menu;
        int selectedItem = 0; // from 1; 0 when the menu is empty
        bool enabled = true;
    };

    // Finds the finishing hardware and fills the pop-ups: job types from
    // `_JobTypeMap` (gated by features), two-sided from the PPD's "Duplex"
    // choices (the `_PlexMap` rows without a PPD), staple, punch and fold
    // menus, output destinations. Keeps the bundle and PPD (null allowed).
    void load(const Bundle* bundle, ppd_file_t* ppd);

    // Opening: the job name ("Unknown" when the ticket has none) and
    // "com.orvan.print.BookletLayout" set false in the ticket, so every
    // opening of the dialog starts with booklet layout off.
    void open(Ticket& printSettings);

    // Sync with the session's tickets: true reads, false writes.
    // kSyncMissingContext without a session.
    Status sync(PrintSession* session, bool direction);
    void syncFromTicket(const Ticket& printSettings, const Ticket* pageFormat);
    Status syncToTicket(Ticket& printSettings) const;

    // A control hit: the pop-up `controlID` now shows item `item` (buttons
    // pass 0). Always kEventNotHandled, so the default handling goes on;
    // nothing changes for IDs outside 102 to 126. Choosing a job type that
    // has a setup asks at once for its dialog.
    Status handleControlHit(std::int32_t controlID, int item, PaperOutputAction* action);
    // A command of the covers, separators or booklet creation buttons, or a
    // finishing menu item with its value.
    Status handleCommand(std::uint32_t command, std::int32_t value, PaperOutputAction* action);

    // Results of the dialogs the view ran.
    PaperOutputRecord& record() { return m_record; }
    const PaperOutputRecord& record() const { return m_record; }
    // The booklet creation dialog's values: the record's, with the fold 1
    // (none) on a device that does not fold booklets. With the dialog's fold
    // radios disabled there (bookletFoldEnabled), OK writes fold 1 back.
    BookletCreationParams bookletCreationParams() const;
    // Whether the dialog's "Booklet Fold" and "Booklet Fold and Staple"
    // radios can be chosen: only on a device that folds booklets.
    bool bookletFoldEnabled() const { return m_device.bookletFold; }
    void applyBookletCreation(const BookletCreationParams& params);
    void setCoversChanged() { m_coversChanged = true; }
    // The stock or its separators changed: pop-ups and summaries follow.
    void refresh();

    const Popup& popup(std::int32_t controlID) const;
    const FinishingDevice& device() const { return m_device; }
    bool setupEnabled() const { return EnableDisableJobTypeSetupButton(m_record.jobType); }
    bool separatorsEnabled() const;

    // The stock summary with the separator line, and the finishing summary.
    QString stockSummary() const;
    QString finishingSummary() const { return CreateFinishingString(m_bundle, m_record, m_device); }
    // The setup dialog the job type opens; None for types without one.
    PaperOutputAction setupAction() const;

    // Appends the panel's settings, titled by their labels.
    void appendSummary(const Bundle* bundle, PropertyValue* titles, PropertyValue* values) const;

    // The shell's OK guard.
    std::int32_t jobType() const override { return m_record.jobType; }
    QString securePrintPasscode() const override { return m_record.securePrintPasscode; }
    int faxRecipientCount() const override;
    void runFaxSetup() override;
    // Makes the fax options dictionary and the recipient list when missing.
    void ensureFaxData();
    // What runs the fax setup for the guard and the setup button; true on OK.
    using FaxSetupRunner = std::function<bool(PropertyValue& options, PropertyValue& recipients)>;
    void setFaxSetupRunner(FaxSetupRunner runner) { m_faxSetupRunner = std::move(runner); }

private:
    Popup* popupFor(std::int32_t controlID);
    static void selectByValue(Popup& popup, std::int32_t value);
    // Selects every pop-up from the record (the finishing marks included).
    void setControls();
    void runFinishingCommand(std::uint32_t command, std::int32_t value, PaperOutputAction* action);

    const Bundle* m_bundle = nullptr;
    ppd_file_t* m_ppd = nullptr;
    FinishingDevice m_device;
    PaperOutputRecord m_record;
    bool m_coversChanged = false;
    Popup m_jobTypePopup;
    Popup m_twoSidedPopup;
    Popup m_staplePopup;
    Popup m_punchPopup;
    Popup m_foldPopup;
    Popup m_outputPopup;
    FaxSetupRunner m_faxSetupRunner;
};

} // namespace orvan
