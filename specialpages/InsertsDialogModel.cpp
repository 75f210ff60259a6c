#include "specialpages/InsertsDialogModel.h"

#include "specialpages/PageRanges.h"
#include "specialpages/SpecialPagesNotification.h"

#include <memory>
#include <vector>

namespace orvan {

InsertsDialogModel::InsertsDialogModel(const Bundle* bundle, DialogMode mode, const Insert* edited)
    : m_bundle(bundle), m_mode(mode)
{
    if (mode == DialogMode::Edit && edited) {
        m_insert = *edited;
        if (edited->startPage() == 0)
            m_positionItem = kInsertBeforeFirstPageItem;
        else
            m_pagesText = QString::number(edited->startPage());
    } else {
        DefaultStock(m_insert.stock(), JobContext::Inserts);
    }
}

void InsertsDialogModel::setPositionItem(int item)
{
    if (item == kInsertAfterPagesItem || item == kInsertBeforeFirstPageItem)
        m_positionItem = item;
}

Status InsertsDialogModel::accept(InsertList& inserts, const Insert* edited,
                                  const std::function<void()>& saveUndoState) const
{
    std::vector<PageRange> pages;
    if (m_positionItem == kInsertBeforeFirstPageItem) {
        pages.push_back({0, 1});
    } else if (const Status code = CreatePageRangesBySeparatingString(m_pagesText, false, &pages);
               code != kNoError) {
        SpecialPagesUserNotification(code, m_bundle);
        return code;
    }

    std::vector<std::unique_ptr<Insert>> made;
    made.reserve(pages.size());
    for (const PageRange& page : pages) {
        made.push_back(m_insert.clone());
        made.back()->setStartPage(page.first);
    }
    if (saveUndoState)
        saveUndoState();
    const std::vector<const SpecialPage*> borrowed = BorrowPages(made);
    if (m_mode == DialogMode::Edit && edited)
        return inserts.update(edited, borrowed);
    return inserts.add(borrowed);
}

} // namespace orvan
