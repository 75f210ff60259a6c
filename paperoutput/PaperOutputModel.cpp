#include "paperoutput/PaperOutputModel.h"

#include "paperoutput/OutputDestination.h"
#include "paperoutput/Separators.h"
#include "printerdesc/PPDAccess.h"
#include "settings/Bundle.h"
#include "settings/DictionaryAccess.h"
#include "settings/PrintSession.h"
#include "settings/SettingMapAccess.h"
#include "settings/SettingMaps.h"
#include "settings/Ticket.h"
#include "shell/PanelSync.h"
#include "shell/PanelText.h"
#include "specialpages/SpecialPagesTicket.h"
#include "stock/StockSummary.h"

namespace orvan {

namespace {

// A PPD choice (or the PPD's default) as a ticket value; false when neither
// is there or the choice is unknown.
bool ChoiceValue(ppd_file_t* ppd, const Ticket& ticket, const QString& keyword, std::int32_t* value)
{
    std::int32_t found = -1;
    if (!PPDGetTicketValueForChoiceOrDefault(ppd, &ticket, keyword, &found) || found == -1)
        return false;
    *value = found;
    return true;
}

void ReadInt32(const Ticket& ticket, const QString& key, std::int32_t& field)
{
    if (const auto value = ticket.integer(key, NumberType::SInt32))
        field = static_cast<std::int32_t>(*value);
}

} // namespace

void PaperOutputModel::load(const Bundle* bundle, ppd_file_t* ppd)
{
    m_bundle = bundle;
    m_ppd = ppd;
    m_device = FinishingDevice::FromInstalledFeatures();
    PopulatePopupMenuFromMap(bundle, m_jobTypePopup.menu, _JobTypeMap, 0, 0);
    m_twoSidedPopup.menu.clear();
    if (PPDPopulateMenuWithChoices(&m_twoSidedPopup.menu, ppd, kDuplexKeyword, 0, false) == 0)
        PopulatePopupMenuFromMap(bundle, m_twoSidedPopup.menu, _PlexMap, 0, 0);
    m_staplePopup.menu = m_device.staples ? BuildStapleMenu(bundle, m_device) : MenuModel();
    m_punchPopup.menu = m_device.punches ? BuildPunchMenu(bundle, m_device) : MenuModel();
    m_foldPopup.menu = BuildFoldMenu(bundle, m_device);
    PopulateOutputDestination(bundle, m_outputPopup.menu);
    setControls();
}

void PaperOutputModel::open(Ticket& printSettings)
{
    const std::optional<QString> name = printSettings.string(kJobNameKey);
    m_record.jobName =
        name && !name->isEmpty() ? *name : PanelText(m_bundle, QStringLiteral("Unknown"));
    printSettings.setItem(kPanelClient, kBookletLayoutKey, PropertyValue::boolean(false));
}

Status PaperOutputModel::sync(PrintSession* session, bool direction)
{
    Ticket* printSettings = nullptr;
    if (const Status error = GetPrintSettingsForSync(session, &printSettings))
        return error;
    if (!direction)
        return syncToTicket(*printSettings);
    Ticket* pageFormat = nullptr;
    GetTicketFromSession(session, kPageFormatTicketKey, &pageFormat);
    syncFromTicket(*printSettings, pageFormat);
    return kNoError;
}

void PaperOutputModel::syncFromTicket(const Ticket& ticket, const Ticket* pageFormat)
{
    PaperOutputRecord& r = m_record;
    if (pageFormat)
        ReadInt32(*pageFormat, kOrientationKey, r.orientation);

    const PropertyValue* stock = ticket.dictionary(kJobLevelStockKey);
    if (stock) {
        r.jobLevelStock = Stock(stock);
    } else {
        r.jobLevelStock = Stock();
        DefaultStock(r.jobLevelStock, JobContext::Job);
    }
    std::int32_t value = 0;
    if (ChoiceValue(m_ppd, ticket, kMediaColorKeyword, &value))
        r.jobLevelStock.setColor(value);
    if (ChoiceValue(m_ppd, ticket, kMediaTypeKeyword, &value))
        r.jobLevelStock.setType(value);

    if (ChoiceValue(m_ppd, ticket, kOutputBinKeyword, &value))
        r.outputDestination = value;
    SyncSeparatorsFromTicket(ticket, r);
    ReadJobTypeDictionary(ticket.dictionary(kJobTypeKey), r);
    if (const PropertyValue* options = ticket.dictionary(kFaxOptionsKey))
        r.faxOptions = *options;
    if (const PropertyValue* recipients = ticket.array(kFaxRecipientListKey))
        r.faxRecipientList = *recipients;

    if (const auto layout = ticket.boolean(kBookletLayoutKey))
        r.bookletLayout = *layout ? kBookletLayoutOn : kBookletLayoutOff;
    ReadInt32(ticket, kBookletDrawOutlinesKey, r.drawOutlines);
    ReadInt32(ticket, kBookletForceNewSizeKey, r.forceNewSize);
    if (stock && r.jobLevelStock.size() != kUnset)
        r.bookletSize = r.jobLevelStock.size();
    ReadInt32(ticket, kGutterKey, r.gutter);
    ReadInt32(ticket, kCreepKey, r.creep);

    if (const auto duplex = ticket.integer(kFinishingDuplexKey))
        r.twoSided = static_cast<std::int32_t>(*duplex);
    else if (const auto duplexing = ticket.integer(kDuplexingKey))
        r.twoSided = static_cast<std::int32_t>(*duplexing);
    else
        ChoiceValue(m_ppd, ticket, kDuplexKeyword, &r.twoSided);

    if (const auto option = ticket.integer(kFinishingOptionsKey, NumberType::Long))
        r.finishingOption = static_cast<long>(*option);
    ReadInt32(ticket, kFinishingOffsetKey, r.offset);
    ReadInt32(ticket, kFinishingOffsetEnableSubsetKey, r.offsetSubsetEnabled);
    ReadInt32(ticket, kFinishingOffsetPagesPerSubsetKey, r.pagesPerSubset);
    ReadInt32(ticket, kFinishingSlipSheetKey, r.slipSheet);
    ReadInt32(ticket, kFinishingBindValueKey, r.bindValue);
    ChoiceValue(m_ppd, ticket, kFoldKeyword, &r.fold);
    ChoiceValue(m_ppd, ticket, kPunchKeyword, &r.punch);
    if (ChoiceValue(m_ppd, ticket, kStapleKeyword, &value))
        ApplyStapleChoice(r, value);
    if (const auto custom = ticket.string(kFinishingCustomKey))
        r.finishingCustom = *custom;

    ReadCoversFromTicket(ticket, r.frontCover, r.backCover);
    if (r.bookletLayoutOn() && r.frontCover)
        r.backCover = r.frontCover->clone();
    m_coversChanged = false;
    setControls();
}

Status PaperOutputModel::syncToTicket(Ticket& ticket) const
{
    const PaperOutputRecord& r = m_record;
    Status status = kNoError;
    const auto set = [&](const QString& key, PropertyValue value) {
        if (const Status error = ticket.setItem(kPanelClient, key, std::move(value));
            error && !status)
            status = error;
    };
    const auto setInt32 = [&](const QString& key, std::int32_t value) {
        set(key, PropertyValue::integer(value, NumberType::SInt32));
    };

    PropertyValue stock = r.jobLevelStock.asTicket();
    if (r.bookletLayoutOn() && r.bookletSize != kUnset)
        WriteTicketValue(&stock, kStockSizeKey, r.bookletSize);
    else
        stock.remove(kStockSizeKey);
    set(kJobLevelStockKey, stock);
    PPDSetCurrentChoiceForTicketValue(&ticket, kMediaColorKeyword, r.jobLevelStock.color());
    PPDSetCurrentChoiceForTicketValue(&ticket, kMediaTypeKeyword, r.jobLevelStock.type());
    PPDSetCurrentChoiceForTicketValue(&ticket, kOutputBinKeyword, r.outputDestination);
    if (const Status error = SyncSeparatorsToTicket(ticket, r); error && !status)
        status = error;

    set(kJobTypeKey, JobTypeDictionary(ticket.dictionary(kJobTypeKey), r));
    if (r.faxOptions.isDictionary())
        set(kFaxOptionsKey, r.faxOptions);
    if (r.faxRecipientList.isArray())
        set(kFaxRecipientListKey, r.faxRecipientList);

    set(kBookletDrawOutlinesKey, PropertyValue::integer(r.drawOutlines));
    set(kBookletForceNewSizeKey, PropertyValue::integer(r.forceNewSize));
    set(kBookletLayoutKey, PropertyValue::boolean(r.bookletLayoutOn()));
    set(kGutterKey, PropertyValue::integer(r.gutter));
    set(kCreepKey, PropertyValue::integer(r.creep));

    PPDSetCurrentChoiceForTicketValue(&ticket, kDuplexKeyword, r.twoSided);
    set(kFinishingDuplexKey, PropertyValue::integer(r.twoSided));
    set(kDuplexingKey, PropertyValue::integer(r.twoSided));

    set(kFinishingOptionsKey, PropertyValue::integer(r.finishingOption, NumberType::Long));
    setInt32(kFinishingOffsetKey, r.offset);
    setInt32(kFinishingOffsetEnableSubsetKey, r.offsetSubsetEnabled);
    if (r.offsetSubsetEnabled)
        setInt32(kFinishingOffsetPagesPerSubsetKey, r.pagesPerSubset);
    setInt32(kFinishingSlipSheetKey, r.slipSheet);
    PPDSetCurrentChoiceForTicketValue(&ticket, kFoldKeyword, r.fold);
    PPDSetCurrentChoiceForTicketValue(&ticket, kPunchKeyword, r.punch);
    PPDSetCurrentChoiceForTicketValue(&ticket, kStapleKeyword, r.stapleLocation());
    setInt32(kFinishingBindValueKey, r.bindValue);
    set(kFinishingCustomKey, r.finishingCustom);

    // The Special Pages pane writes the covers too; this panel writes them
    // only when its own commands changed them, so it never puts back covers
    // the other pane has since edited.
    if (m_coversChanged)
        if (const Status error = WriteCoversToTicket(ticket, r.frontCover.get(), r.backCover.get());
            error && !status)
            status = error;
    return status;
}

PaperOutputModel::Popup* PaperOutputModel::popupFor(std::int32_t controlID)
{
    switch (controlID) {
    case kJobTypeControlID:
        return &m_jobTypePopup;
    case kTwoSidedControlID:
        return &m_twoSidedPopup;
    case kStapleControlID:
        return &m_staplePopup;
    case kPunchControlID:
        return &m_punchPopup;
    case kFoldControlID:
        return &m_foldPopup;
    case kOutputDestinationControlID:
        return &m_outputPopup;
    default:
        return nullptr;
    }
}

const PaperOutputModel::Popup& PaperOutputModel::popup(std::int32_t controlID) const
{
    static const Popup none;
    const Popup* found = const_cast<PaperOutputModel*>(this)->popupFor(controlID);
    return found ? *found : none;
}

void PaperOutputModel::selectByValue(Popup& popup, std::int32_t value)
{
    if (popup.menu.isEmpty()) {
        popup.selectedItem = 0;
        return;
    }
    const int item = popup.menu.findReferenceValue(value);
    popup.selectedItem = item ? item : (popup.selectedItem ? popup.selectedItem : 1);
}

void PaperOutputModel::setControls()
{
    selectByValue(m_jobTypePopup, m_record.jobType);
    selectByValue(m_twoSidedPopup, TwoSidedShown(m_record));
    m_twoSidedPopup.enabled = TwoSidedEnabled(m_record);
    selectByValue(m_outputPopup, m_record.outputDestination);
    const FinishingMarks marks =
        MarkFinishingMenu(m_record, m_staplePopup.menu, m_punchPopup.menu, m_foldPopup.menu);
    m_staplePopup.selectedItem = m_staplePopup.menu.isEmpty() ? 0 : std::max(marks.staple, 1);
    m_punchPopup.selectedItem = m_punchPopup.menu.isEmpty() ? 0 : std::max(marks.punch, 1);
    m_foldPopup.selectedItem = marks.fold;
}

void PaperOutputModel::refresh()
{
    setControls();
}

PaperOutputAction PaperOutputModel::setupAction() const
{
    switch (m_record.jobType) {
    case kJobTypeLANFax:
        return PaperOutputAction::RunLANFaxSetup;
    case kJobTypeSavedJob:
        return PaperOutputAction::RunSavedJobDialog;
    case kJobTypeSecure:
        return PaperOutputAction::RunSecurePrintSetup;
    case kJobTypeDelayed:
        return PaperOutputAction::RunDelayedPrintSetup;
    default:
        return PaperOutputAction::None;
    }
}

Status PaperOutputModel::handleControlHit(std::int32_t controlID, int item,
                                          PaperOutputAction* action)
{
    if (action)
        *action = PaperOutputAction::None;
    if (controlID < kFirstPaperOutputControlID || controlID > kLastPaperOutputControlID)
        return kEventNotHandled;
    if (controlID == kJobTypeSetupControlID) {
        if (setupEnabled() && action)
            *action = setupAction();
        return kEventNotHandled;
    }
    Popup* popup = popupFor(controlID);
    const MenuItem* chosen = popup ? popup->menu.item(item) : nullptr;
    if (!chosen || chosen->separator || !popup->enabled)
        return kEventNotHandled;
    popup->selectedItem = item;
    const std::int32_t value = chosen->referenceValue;
    switch (controlID) {
    case kJobTypeControlID:
        m_record.jobType = value;
        // Choosing a job type with a setup opens it at once.
        if (setupEnabled() && action)
            *action = setupAction();
        break;
    case kTwoSidedControlID:
        m_record.twoSided = value;
        break;
    case kStapleControlID:
        runFinishingCommand(chosen->commandId, value, action);
        ApplyStapleChoice(m_record, value);
        break;
    case kPunchControlID:
        runFinishingCommand(chosen->commandId, value, action);
        m_record.punch = value;
        break;
    case kFoldControlID:
        runFinishingCommand(chosen->commandId, value, action);
        break;
    case kOutputDestinationControlID:
        m_record.outputDestination = value;
        break;
    default:
        break;
    }
    setControls();
    return kEventNotHandled;
}

void PaperOutputModel::runFinishingCommand(std::uint32_t command, std::int32_t value,
                                           PaperOutputAction* action)
{
    ApplyFinishingCommand(m_record, command, value);
    if (!action)
        return;
    switch (command) {
    case kBookletCreationCommand:
        *action = PaperOutputAction::RunBookletCreation;
        break;
    case kCoversCommand:
        *action = PaperOutputAction::RunCoversDialog;
        break;
    case kSeparatorsCommand:
        if (separatorsEnabled())
            *action = PaperOutputAction::RunSeparatorsDialog;
        break;
    default:
        break;
    }
}

Status PaperOutputModel::handleCommand(std::uint32_t command, std::int32_t value,
                                       PaperOutputAction* action)
{
    if (action)
        *action = PaperOutputAction::None;
    runFinishingCommand(command, value, action);
    setControls();
    return kEventNotHandled;
}

BookletCreationParams PaperOutputModel::bookletCreationParams() const
{
    BookletCreationParams params = BookletParamsFromRecord(m_record);
    if (!bookletFoldEnabled())
        params.fold = kFinishingNone;
    return params;
}

void PaperOutputModel::applyBookletCreation(const BookletCreationParams& params)
{
    if (ApplyBookletCreation(m_record, params))
        m_coversChanged = true;
    setControls();
}

bool PaperOutputModel::separatorsEnabled() const
{
    return m_record.jobLevelStock.type() == kTransparencyMediaType;
}

QString PaperOutputModel::stockSummary() const
{
    QString text = StockSummaryText(m_bundle, &m_record.jobLevelStock, JobContext::Job);
    const QString separators = AppendSeparatorSummary(m_bundle, m_record);
    if (!separators.isEmpty())
        text += QLatin1Char('\n') + QStringLiteral("- ") + separators;
    return text;
}

int PaperOutputModel::faxRecipientCount() const
{
    return m_record.faxRecipientList.isArray() ? static_cast<int>(m_record.faxRecipientList.size())
                                               : 0;
}

void PaperOutputModel::ensureFaxData()
{
    if (!m_record.faxOptions.isDictionary())
        m_record.faxOptions = PropertyValue::dictionary();
    if (!m_record.faxRecipientList.isArray())
        m_record.faxRecipientList = PropertyValue::array();
}

void PaperOutputModel::runFaxSetup()
{
    ensureFaxData();
    if (m_faxSetupRunner)
        m_faxSetupRunner(m_record.faxOptions, m_record.faxRecipientList);
}

void PaperOutputModel::appendSummary(const Bundle* bundle, PropertyValue* titles,
                                     PropertyValue* values) const
{
    const auto selected = [this](std::int32_t controlID) -> QString {
        const Popup& p = popup(controlID);
        const MenuItem* item = p.menu.item(p.selectedItem);
        return item ? item->text : QString();
    };
    const auto lines = [](QString text) {
        text.replace(QStringLiteral("- "), QString());
        return text.trimmed()
            .split(QLatin1Char('\n'), Qt::SkipEmptyParts)
            .join(QStringLiteral(", "));
    };
    AppendSummaryPair(titles, values, SummaryTitleFromLabel(bundle, kJobTypeLabelKey),
                      selected(kJobTypeControlID));
    AppendSummaryPair(titles, values, SummaryTitleFromLabel(bundle, kPaperSummaryLabelKey),
                      lines(stockSummary()));
    AppendSummaryPair(titles, values, SummaryTitleFromLabel(bundle, kTwoSidedLabelKey),
                      selected(kTwoSidedControlID));
    AppendSummaryPair(titles, values, SummaryTitleFromLabel(bundle, kFinishingLabelKey),
                      lines(finishingSummary()));
    AppendSummaryPair(titles, values, SummaryTitleFromLabel(bundle, kOutputDestinationLabelKey),
                      selected(kOutputDestinationControlID));
}

} // namespace orvan
