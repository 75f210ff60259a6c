#include "imagequality/AdvancedModel.h"

#include "printerdesc/PPDAccess.h"
#include "settings/PrintSession.h"
#include "settings/SettingMapAccess.h"
#include "settings/SettingMaps.h"
#include "settings/Ticket.h"
#include "shell/PanelSync.h"
#include "shell/PanelText.h"

namespace orvan {

namespace {

void ShowFirstItem(AdvancedModel::Popup& popup)
{
    popup.selectedItem = popup.menu.isEmpty() ? 0 : 1;
}

} // namespace

void AdvancedModel::load(const Bundle* bundle, ppd_file_t* ppd)
{
    m_ppd = ppd;
    PopulatePopupMenuFromMap(bundle, m_bookletOrderPopup.menu, _BookletLayoutOrderMap, 0, 0);
    PopulatePopupMenuFromMap(bundle, m_outputOptionsPopup.menu, _OutputOptionsMap, 0, 0);
    m_bannerPopup.menu.clear();
    m_requestOffsetPopup.menu.clear();
    PPDPopulateMenuWithChoices(&m_bannerPopup.menu, ppd, kBannerKeyword, 0, false);
    PPDPopulateMenuWithChoices(&m_requestOffsetPopup.menu, ppd, kRequestOffsetKeyword, 0, false);
    for (Popup* popup :
         {&m_bookletOrderPopup, &m_outputOptionsPopup, &m_bannerPopup, &m_requestOffsetPopup})
        ShowFirstItem(*popup);
    selectByValue(m_bannerPopup, m_bannerSheet);
    selectByValue(m_requestOffsetPopup, m_requestOffset);
}

const AdvancedModel::Popup& AdvancedModel::popup(std::int32_t controlID) const
{
    static const Popup none;
    const Popup* found = const_cast<AdvancedModel*>(this)->popupFor(controlID);
    return found ? *found : none;
}

AdvancedModel::Popup* AdvancedModel::popupFor(std::int32_t controlID)
{
    switch (controlID) {
    case kBookletImageOrderControlID:
        return &m_bookletOrderPopup;
    case kOutputOptionsControlID:
        return &m_outputOptionsPopup;
    case kBannerSheetControlID:
        return &m_bannerPopup;
    case kRequestOffsetControlID:
        return &m_requestOffsetPopup;
    default:
        return nullptr;
    }
}

void AdvancedModel::selectByValue(Popup& popup, std::int32_t value)
{
    if (const int item = popup.menu.findReferenceValue(value))
        popup.selectedItem = item;
}

void AdvancedModel::setControls()
{
    selectByValue(m_bookletOrderPopup, m_bookletImageOrder);
    selectByValue(m_outputOptionsPopup, m_outputOption);
}

Status AdvancedModel::handleControlHit(std::int32_t controlID, int item, AdvancedAction* action)
{
    if (action)
        *action = AdvancedAction::None;
    if (controlID == kAboutControlID) {
        if (action)
            *action = AdvancedAction::RunAboutDialog;
        return kEventNotHandled;
    }
    Popup* popup = popupFor(controlID);
    const MenuItem* chosen = popup ? popup->menu.item(item) : nullptr;
    if (!chosen)
        return kEventNotHandled;
    popup->selectedItem = item;
    switch (controlID) {
    case kBookletImageOrderControlID:
        m_bookletImageOrder = chosen->referenceValue;
        break;
    case kOutputOptionsControlID:
        m_outputOption = item; // the item's number, not its value
        break;
    case kBannerSheetControlID:
        m_bannerSheet = chosen->referenceValue;
        break;
    case kRequestOffsetControlID:
        m_requestOffset = chosen->referenceValue;
        break;
    default:
        break;
    }
    return kEventNotHandled;
}

Status AdvancedModel::sync(PrintSession* session, bool direction)
{
    Ticket* printSettings = nullptr;
    if (const Status error = GetPrintSettingsForSync(session, &printSettings))
        return error;
    if (!direction)
        return syncToTicket(*printSettings);
    syncFromTicket(*printSettings);
    return kNoError;
}

Status AdvancedModel::syncToTicket(Ticket& ticket) const
{
    const Status status = ticket.setItem(kPanelClient, kBookletLayoutOrderKey,
                                         PropertyValue::integer(m_bookletImageOrder));
    PPDSetCurrentChoiceForTicketValue(&ticket, kOutputOptionKeyword, m_outputOption);
    PPDSetCurrentChoiceForTicketValue(&ticket, kBannerKeyword, m_bannerSheet);
    PPDSetCurrentChoiceForTicketValue(&ticket, kRequestOffsetKeyword, m_requestOffset);
    return status;
}

void AdvancedModel::syncFromTicket(const Ticket& ticket)
{
    const std::optional<std::int64_t> order = ticket.integer(kBookletLayoutOrderKey);
    m_bookletImageOrder = order ? static_cast<std::int32_t>(*order) : kDefaultBookletImageOrder;
    PPDGetTicketValueForChoiceOrDefault(m_ppd, &ticket, kOutputOptionKeyword, &m_outputOption);
    PPDGetTicketValueForChoiceOrDefault(m_ppd, &ticket, kBannerKeyword, &m_bannerSheet);
    PPDGetTicketValueForChoiceOrDefault(m_ppd, &ticket, kRequestOffsetKeyword, &m_requestOffset);
    selectByValue(m_bannerPopup, m_bannerSheet);
    selectByValue(m_requestOffsetPopup, m_requestOffset);
    setControls();
}

void AdvancedModel::appendSummary(const Bundle* bundle, PropertyValue* titles,
                                  PropertyValue* values) const
{
    const std::pair<const Popup*, const QString*> rows[] = {
        {&m_bookletOrderPopup, &kBookletImageOrderLabelKey},
        {&m_outputOptionsPopup, &kOutputOptionsLabelKey},
        {&m_bannerPopup, &kBannerSheetLabelKey},
        {&m_requestOffsetPopup, &kRequestOffsetLabelKey},
    };
    for (const auto& [popup, label] : rows)
        if (const MenuItem* item = popup->menu.item(popup->selectedItem))
            AppendSummaryPair(titles, values, SummaryTitleFromLabel(bundle, *label), item->text);
}

} // namespace orvan
