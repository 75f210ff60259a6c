#include "specialpages/SpecialPageList.h"

#include <algorithm>

namespace orvan {

SpecialPageList::SpecialPageList() = default;
SpecialPageList::SpecialPageList(SpecialPageList&&) noexcept = default;
SpecialPageList& SpecialPageList::operator=(SpecialPageList&&) noexcept = default;
SpecialPageList::~SpecialPageList() = default;

SpecialPage* SpecialPageList::pageAtIndex(long index) const
{
    if (index < 0 || index >= count())
        return nullptr;
    return m_pages[static_cast<std::size_t>(index)].get();
}

long SpecialPageList::indexOfPage(const SpecialPage* page) const
{
    if (!page)
        return -1;
    const auto found = std::find_if(m_pages.begin(), m_pages.end(),
                                    [page](const auto& held) { return held.get() == page; });
    return found == m_pages.end() ? -1 : static_cast<long>(found - m_pages.begin());
}

void SpecialPageList::remove(const SpecialPage* page)
{
    const long index = indexOfPage(page);
    if (index >= 0)
        m_pages.erase(m_pages.begin() + index);
}

void SpecialPageList::clear()
{
    m_pages.clear();
}

Status SpecialPageList::update(const SpecialPage* page, SpecialPageSpan pages)
{
    const long index = indexOfPage(page);
    if (index < 0)
        return kNoError;
    // Kept alive until add is done: the caller may pass the page itself.
    std::unique_ptr<SpecialPage> old = std::move(m_pages[static_cast<std::size_t>(index)]);
    m_pages.erase(m_pages.begin() + index);
    const Status status = add(pages);
    if (status != kNoError)
        m_pages.insert(m_pages.begin() + std::min<long>(index, count()), std::move(old));
    return status;
}

PropertyValue SpecialPageList::asTicket() const
{
    if (m_pages.empty())
        return {};
    PropertyValue array = PropertyValue::array();
    for (const auto& page : m_pages)
        array.append(page->asTicket());
    return array;
}

std::vector<const SpecialPage*> SpecialPageList::borrowedPages() const
{
    std::vector<const SpecialPage*> pages;
    pages.reserve(m_pages.size());
    for (const auto& page : m_pages)
        pages.push_back(page.get());
    return pages;
}

} // namespace orvan
