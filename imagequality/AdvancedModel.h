// The Advanced panel without its widgets: booklet image order, output option
// (face down or face up), banner sheet and request offset, the contents and
// selections of their four pop-ups, the panel's control events and summary.
//
// Two settings are written differently from how they are read back, and the
// panel has always behaved so; the rules are kept exactly:
// - every item of the booklet image order menu carries 'Qujn', so the order
//   written is always 'Qujn', and reading selects the first item whatever was
//   stored, or leaves the selection alone for the default 2 (no item has it);
// - the output option is taken from the chosen item's number (1 "Face Down",
//   2 "Face Up") but read back as a ticket value ("True" = 1 shows "Face Up",
//   "False" = 0 "Face Down"); item 1 writes "True", item 2 has no choice and
//   writes nothing.
#pragma once

#include "settings/MenuModel.h"
#include "settings/PropertyValue.h"
#include "settings/Status.h"

#include <QString>

#include <cstdint>

struct ppd_file_s;
typedef struct ppd_file_s ppd_file_t;

namespace orvan {

class Bundle;
class PrintSession;
class Ticket;

inline const QString kAdvancedTitleKey = QStringLiteral("Advanced");

inline const QString kBookletLayoutOrderKey =
    QStringLiteral("com.orvan.print.AdvancedBookletLayoutOrderStr");
inline const QString kOutputOptionKeyword = QStringLiteral("QVOutputOption");
inline const QString kBannerKeyword = QStringLiteral("JCLBanner");
inline const QString kRequestOffsetKeyword = QStringLiteral("Jog");

// The booklet image order read from a ticket without the item.
inline constexpr std::int32_t kDefaultBookletImageOrder = 2;

// Control identifiers (signature 'Qshl').
inline constexpr std::int32_t kBookletImageOrderControlID = 602;
inline constexpr std::int32_t kOutputOptionsControlID = 606;
inline constexpr std::int32_t kBannerSheetControlID = 614;
inline constexpr std::int32_t kRequestOffsetControlID = 616;
inline constexpr std::int32_t kAboutControlID = 670;

// Label keys.
inline const QString kBookletImageOrderLabelKey = QStringLiteral("Booklet Image Order:");
inline const QString kOutputOptionsLabelKey = QStringLiteral("Output Options:");
inline const QString kBannerSheetLabelKey = QStringLiteral("Banner Sheet:");
inline const QString kRequestOffsetLabelKey = QStringLiteral("Request Offset:");
inline const QString kAboutButtonKey = QStringLiteral("About...");

// What the view is to do after a control hit.
enum class AdvancedAction
{
    None,
    RunAboutDialog,
};

class AdvancedModel
{
public:
    // One of the four pop-ups: its items and the item it shows (from 1; 0
    // when the menu is empty).
    struct Popup
    {
        MenuModel menu;
        int selectedItem = 0;
    };

    // Keeps the PPD (null allowed) and fills the four menus: booklet order
    // and output options from their setting maps, banner sheet and request
    // offset from the PPD's "JCLBanner" and "Jog" choices (no constraint
    // check). Each pop-up shows its first item; banner and offset are then
    // selected by their values.
    void load(const Bundle* bundle, ppd_file_t* ppd);
    ppd_file_t* ppd() const { return m_ppd; }

    const Popup& popup(std::int32_t controlID) const;

    std::int32_t bookletImageOrder() const { return m_bookletImageOrder; }
    std::int32_t outputOption() const { return m_outputOption; }
    std::int32_t bannerSheet() const { return m_bannerSheet; }
    std::int32_t requestOffset() const { return m_requestOffset; }

    // A control hit: the pop-up `controlID` now shows item `item`; for 670
    // the item is ignored and the view is asked to run the about dialog.
    // 602, 614 and 616 store the item's value, 606 the item number itself.
    // Always kEventNotHandled, so the default handling goes on.
    Status handleControlHit(std::int32_t controlID, int item, AdvancedAction* action);

    // Sync with the session's print-settings ticket: false writes the booklet
    // order item (client "com.orvan.printingmanager") and the three PPD
    // choices, true reads them and selects the pop-ups by value.
    // kSyncMissingContext without a session.
    Status sync(PrintSession* session, bool direction);
    Status syncToTicket(Ticket& ticket) const;
    void syncFromTicket(const Ticket& ticket);

    // Appends the text each pop-up shows, titled by its label.
    void appendSummary(const Bundle* bundle, PropertyValue* titles, PropertyValue* values) const;

private:
    Popup* popupFor(std::int32_t controlID); // null for other controls
    // Shows the first item carrying the value; unchanged when none does.
    static void selectByValue(Popup& popup, std::int32_t value);
    // setControls: selects the booklet order and output options pop-ups by
    // the values of their fields.
    void setControls();

    ppd_file_t* m_ppd = nullptr;
    Popup m_bookletOrderPopup;
    Popup m_outputOptionsPopup;
    Popup m_bannerPopup;
    Popup m_requestOffsetPopup;
    std::int32_t m_bookletImageOrder = kDefaultBookletImageOrder;
    std::int32_t m_outputOption = -1; // -1: no choice, nothing is written
    std::int32_t m_bannerSheet = -1;
    std::int32_t m_requestOffset = -1;
};

} // namespace orvan
