#include "watermark/BookletWatermarkModel.h"

#include "settings/PageFormat.h"
#include "settings/PrintSession.h"
#include "settings/SettingMapAccess.h"
#include "settings/SettingMaps.h"
#include "settings/Ticket.h"
#include "shell/PanelSync.h"
#include "shell/PanelText.h"
#include "watermark/FontProgram.h"
#include "watermark/WatermarkDocument.h"
#include "watermark/WatermarkList.h"
#include "watermark/WatermarkStore.h"
#include "watermark/WatermarkTicket.h"

namespace orvan {

namespace {

bool IsSavedWatermark(const MenuItem* item)
{
    return item && item->commandId == kSavedWatermarkCommand;
}

} // namespace

void PopulateWatermarkMenuFromMapAndHistory(const Bundle* bundle, MenuModel& menu,
                                            const _SettingMap* map)
{
    PopulatePopupMenuFromMap(bundle, menu, map, 0, 0);
    const QStringList& names = listOfWatermarks();
    for (qsizetype i = 0; i < names.size(); ++i)
        menu.insertAfter(int(i) + 1, MenuItem{names[i], kSavedWatermarkCommand, std::int32_t(i)});
}

void BookletWatermarkModel::load(const Bundle* bundle, const QString& watermarkFile)
{
    m_bundle = bundle;
    m_file = watermarkFile;
    if (bundle)
        LoadListOfWatermarks(watermarkFile, *bundle);
    else
        listOfWatermarks() = loadWatermarkList(watermarkFile).value_or(QStringList());
    PopulatePopupMenuFromMap(bundle, m_optionsMenu, _WatermarkOptionsMap, 0, 0);
    m_selectedItem = 1;
    rebuildMenu();
    if (!m_preview.buffer.size())
        CreateMemoryConsumer(kPreviewBufferSize, m_preview);
    redrawPreview();
}

void BookletWatermarkModel::rebuildMenu()
{
    PopulateWatermarkMenuFromMapAndHistory(m_bundle, m_watermarkMenu, _WatermarkMap);
}

bool BookletWatermarkModel::isMarked(int optionsItem) const
{
    const MenuItem* item = m_optionsMenu.item(optionsItem);
    return item && !item->separator &&
           (item->referenceValue == m_option || item->referenceValue == m_pageChoice);
}

void BookletWatermarkModel::setPaperSize(QSizeF size)
{
    if (size.isValid() && !size.isEmpty())
        m_paperSize = size;
}

QString BookletWatermarkModel::selectedName() const
{
    const MenuItem* item = m_watermarkMenu.item(m_selectedItem);
    if (!IsSavedWatermark(item))
        return {};
    return listOfWatermarks().value(item->referenceValue);
}

int BookletWatermarkModel::itemOfIndex(qsizetype index) const
{
    for (int number = 1; number <= m_watermarkMenu.count(); ++number) {
        const MenuItem* item = m_watermarkMenu.item(number);
        if (IsSavedWatermark(item) && item->referenceValue == index)
            return number;
    }
    return 0;
}

void BookletWatermarkModel::select(int item)
{
    m_selectedItem = item;
    redrawPreview();
}

WatermarkPanelAction BookletWatermarkModel::chooseWatermarkItem(int number)
{
    const MenuItem* item = m_watermarkMenu.item(number);
    if (!item || item->separator)
        return WatermarkPanelAction::None;
    if (IsSavedWatermark(item) || item->referenceValue == kNoWatermarkValue) {
        select(number);
        return WatermarkPanelAction::None;
    }
    const bool saved = !selectedName().isEmpty();
    switch (item->referenceValue) {
    case kWatermarkNewValue:
        return WatermarkPanelAction::RunNewEditor;
    case kWatermarkEditValue:
        return saved ? WatermarkPanelAction::RunEditEditor : WatermarkPanelAction::None;
    case kWatermarkDeleteValue:
        return saved ? WatermarkPanelAction::ConfirmDelete : WatermarkPanelAction::None;
    default:
        return WatermarkPanelAction::None;
    }
}

void BookletWatermarkModel::chooseOptionsItem(int number)
{
    const MenuItem* item = m_optionsMenu.item(number);
    if (!item || item->separator)
        return;
    if (item->referenceValue == kAllPagesChoice || item->referenceValue == kFirstPageOnlyChoice)
        m_pageChoice = item->referenceValue;
    else
        m_option = item->referenceValue;
}

_WatermarkData BookletWatermarkModel::newRecord() const
{
    _WatermarkData record;
    record.paperHeight = m_paperSize.height();
    record.paperWidth = m_paperSize.width();
    return record;
}

void BookletWatermarkModel::addWatermark(_WatermarkData& record)
{
    QStringList& names = listOfWatermarks();
    names.append(WatermarkKey(record));
    const int separator = m_watermarkMenu.findReferenceValue(-5);
    m_watermarkMenu.insertAfter(separator - 1, MenuItem{names.last(), kSavedWatermarkCommand,
                                                        std::int32_t(names.size() - 1)});
    saveWatermarkData(m_file, record);
    record.glyphs.reset();
    record.glyphCount = 0;
    saveWatermarkList(m_file, names);
    select(separator);
}

bool BookletWatermarkModel::loadSelectedForEdit(_WatermarkData& record)
{
    const MenuItem* item = m_watermarkMenu.item(m_selectedItem);
    if (!IsSavedWatermark(item))
        return false;
    if (std::optional<QStringList> names = loadWatermarkList(m_file))
        listOfWatermarks() = *names;
    const QString name = listOfWatermarks().value(item->referenceValue);
    record.clear();
    if (name.isEmpty() || !loadWatermarkData(m_file, name, record))
        return false;
    record.isText = record.textString.empty() ? 0 : 1;
    record.paperHeight = m_paperSize.height();
    record.paperWidth = m_paperSize.width();
    return true;
}

void BookletWatermarkModel::replaceSelected(_WatermarkData& record)
{
    MenuItem* item = m_watermarkMenu.item(m_selectedItem);
    QStringList& names = listOfWatermarks();
    if (!IsSavedWatermark(item) || item->referenceValue >= names.size())
        return;
    removeWatermarkData(m_file, names[item->referenceValue]);
    const QString name = WatermarkKey(record);
    item->text = name;
    names[item->referenceValue] = name;
    saveWatermarkData(m_file, record);
    saveWatermarkList(m_file, names);
    redrawPreview();
}

void BookletWatermarkModel::deleteSelected()
{
    const MenuItem* item = m_watermarkMenu.item(m_selectedItem);
    QStringList& names = listOfWatermarks();
    if (!IsSavedWatermark(item) || item->referenceValue >= names.size())
        return;
    removeWatermarkData(m_file, names[item->referenceValue]);
    names.removeAt(item->referenceValue);
    saveWatermarkList(m_file, names);
    rebuildMenu();
    select(1);
}

void BookletWatermarkModel::redrawPreview()
{
    const QString name = selectedName();
    renderWatermark(m_file, name, m_paperSize, m_preview);
    m_drawnName = name;
    ++m_previewVersion;
}

Status BookletWatermarkModel::sync(PrintSession* session, bool direction)
{
    Ticket* printSettings = nullptr;
    if (const Status error = GetPrintSettingsForSync(session, &printSettings))
        return error;
    if (!direction)
        return syncToTicket(*printSettings);
    const Ticket* pageFormat = session->ticket(kPageFormatTicketKey);
    const std::optional<QSizeF> paper =
        pageFormat ? PaperSizeFromPageFormat(*pageFormat) : std::nullopt;
    setPaperSize(paper.value_or(kLetterPaperSize));
    syncFromTicket(*printSettings);
    return kNoError;
}

Status BookletWatermarkModel::syncToTicket(Ticket& ticket)
{
    const QString name = selectedName();
    if (name.isEmpty()) {
        if (ticket.containsItem(kWatermarkTicketKey))
            ticket.releaseItem(kWatermarkTicketKey);
        return kNoError;
    }
    // The font program holds the glyphs of the last drawing; a selection
    // made from the ticket alone has been drawn on reading it.
    if (m_drawnName != name)
        redrawPreview();
    Status status = ticket.setItem(kPanelClient, kWatermarkTicketKey, PropertyValue(name));
    if (const std::optional<QString> subset = convertFont(m_file, name))
        m_subsetFontName = *subset;
    if (!m_subsetFontName.isEmpty())
        ticket.setItem(kPanelClient, kWatermarkSubsetFontNameTicketKey,
                       PropertyValue(m_subsetFontName));
    ticket.setItem(kPanelClient, kWatermarkOptionTicketKey,
                   PropertyValue::integer(m_option, NumberType::SInt32));
    ticket.setItem(
        kPanelClient, kWatermarkFirstPageOnlyTicketKey,
        PropertyValue::integer(m_pageChoice == kAllPagesChoice ? 0 : 1, NumberType::SInt32));
    return status;
}

void BookletWatermarkModel::syncFromTicket(const Ticket& ticket)
{
    const std::optional<QString> name = ticket.string(kWatermarkTicketKey);
    const qsizetype index = name ? FindWatermark(*name) : -1;
    const int item = index >= 0 ? itemOfIndex(index) : 0;
    m_option =
        std::int32_t(ticket.integer(kWatermarkOptionTicketKey, NumberType::SInt32).value_or(2));
    const std::int64_t firstPageOnly =
        ticket.integer(kWatermarkFirstPageOnlyTicketKey, NumberType::SInt32).value_or(0);
    m_pageChoice = firstPageOnly == 0 ? kAllPagesChoice : kFirstPageOnlyChoice;
    select(item ? item : 1);
}

void BookletWatermarkModel::appendSummary(const Bundle* bundle, PropertyValue* titles,
                                          PropertyValue* values) const
{
    // A job without a watermark adds nothing to the summary.
    const QString name = selectedName();
    if (name.isEmpty())
        return;
    AppendSummaryPair(titles, values, SummaryTitleFromLabel(bundle, kWatermarkLabelKey), name);
    for (const MenuItem& option : m_optionsMenu.items())
        if (!option.separator &&
            (option.referenceValue == m_option || option.referenceValue == m_pageChoice))
            AppendSummaryPair(titles, values, PanelText(bundle, QStringLiteral("Options")),
                              option.text);
}

} // namespace orvan
