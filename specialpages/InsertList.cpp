#include "specialpages/InsertList.h"

#include <algorithm>
#include <utility>

namespace orvan {

InsertList::InsertList() = default;

InsertList::InsertList(const InsertList& other) : SpecialPageList()
{
    add(other.borrowedPages());
}

InsertList& InsertList::operator=(const InsertList& other)
{
    if (this != &other) {
        InsertList copy(other);
        *this = std::move(copy);
    }
    return *this;
}

InsertList::InsertList(InsertList&&) noexcept = default;
InsertList& InsertList::operator=(InsertList&&) noexcept = default;
InsertList::~InsertList() = default;

Insert* InsertList::pageAtIndex(long index) const
{
    return static_cast<Insert*>(SpecialPageList::pageAtIndex(index));
}

Status InsertList::add(SpecialPageSpan pages)
{
    // Every insert before the previous one's place starts no later than it,
    // so an insert that starts no earlier is searched for from there on:
    // adding the pages of a long range in order stays linear.
    std::size_t searchFrom = 0;
    std::int32_t previousStart = 0;
    for (const SpecialPage* page : pages) {
        const auto* insert = dynamic_cast<const Insert*>(page);
        if (!insert)
            continue;
        if (searchFrom > 0 && insert->startPage() < previousStart)
            searchFrom = 0;
        const auto position = std::find_if(
            m_pages.begin() + static_cast<std::ptrdiff_t>(searchFrom), m_pages.end(),
            [insert](const auto& held) { return held->startPage() > insert->startPage(); });
        searchFrom = static_cast<std::size_t>(position - m_pages.begin()) + 1;
        previousStart = insert->startPage();
        m_pages.insert(position, insert->clone());
    }
    return kNoError;
}

bool InsertList::canPromote(const Insert* insert) const
{
    const long index = indexOfPage(insert);
    return index > 0 && pageAtIndex(index - 1)->startPage() != 0;
}

void InsertList::promote(Insert* insert)
{
    if (!canPromote(insert))
        return;
    const auto index = static_cast<std::size_t>(indexOfPage(insert));
    std::swap(m_pages[index], m_pages[index - 1]);
}

bool InsertList::canDemote(const Insert* insert) const
{
    const long index = indexOfPage(insert);
    return index >= 0 && index + 1 < count() && pageAtIndex(index + 1)->startPage() != 0;
}

void InsertList::demote(Insert* insert)
{
    if (!canDemote(insert))
        return;
    const auto index = static_cast<std::size_t>(indexOfPage(insert));
    std::swap(m_pages[index], m_pages[index + 1]);
}

} // namespace orvan
