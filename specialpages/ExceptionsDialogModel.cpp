#include "specialpages/ExceptionsDialogModel.h"

#include "settings/SettingMapAccess.h"
#include "settings/SettingMaps.h"
#include "specialpages/PageRanges.h"
#include "specialpages/SpecialPageTexts.h"
#include "specialpages/SpecialPagesNotification.h"

#include <memory>
#include <vector>

namespace orvan {

ExceptionsDialogModel::ExceptionsDialogModel(const Bundle* bundle, DialogMode mode,
                                             const ExceptionPage* edited)
    : m_bundle(bundle), m_mode(mode)
{
    m_plexMenu.append(
        {SpecialPagesText(bundle, QStringLiteral("UseJobSetting")), 0, kUnset, false});
    PopulateMenuFromMap(bundle, m_plexMenu, _PlexMap, static_cast<int>(JobContext::ExceptionPages),
                        0);
    if (mode == DialogMode::Edit && edited) {
        m_page = *edited;
        m_pagesText = edited->endPage() == edited->startPage()
                          ? QString::number(edited->startPage())
                          : QStringLiteral("%1-%2").arg(edited->startPage()).arg(edited->endPage());
    } else {
        DefaultStock(m_page.stock(), JobContext::ExceptionPages);
    }
}

int ExceptionsDialogModel::plexItem() const
{
    return m_plexMenu.findReferenceValue(m_page.plex());
}

void ExceptionsDialogModel::setPlexItem(int item)
{
    if (const MenuItem* chosen = m_plexMenu.item(item))
        m_page.setPlex(chosen->referenceValue);
}

Status ExceptionsDialogModel::accept(ExceptionPageList& exceptions, const ExceptionPage* edited,
                                     const std::function<void()>& saveUndoState) const
{
    std::vector<PageRange> ranges;
    Status code = CreatePageRangesBySeparatingString(m_pagesText, true, &ranges);
    std::vector<std::unique_ptr<ExceptionPage>> made;
    for (std::size_t i = 0; code == kNoError && i < ranges.size(); ++i) {
        if (ranges[i].first == 0) {
            code = kInvalidPageNumbers;
            break;
        }
        made.push_back(m_page.clone());
        made.back()->setStartPage(ranges[i].first);
        made.back()->setEndPage(ranges[i].first + ranges[i].count - 1);
    }
    if (code != kNoError) {
        SpecialPagesUserNotification(code, m_bundle);
        return code;
    }
    if (saveUndoState)
        saveUndoState();
    const std::vector<const SpecialPage*> borrowed = BorrowPages(made);
    if (m_mode == DialogMode::Edit && edited)
        return exceptions.update(edited, borrowed);
    return exceptions.add(borrowed);
}

} // namespace orvan
