#include "specialpages/ExceptionPageList.h"

#include <utility>

namespace orvan {

ExceptionPageList::ExceptionPageList() = default;

ExceptionPageList::ExceptionPageList(const ExceptionPageList& other) : SpecialPageList()
{
    add(other.borrowedPages());
}

ExceptionPageList& ExceptionPageList::operator=(const ExceptionPageList& other)
{
    if (this != &other) {
        ExceptionPageList copy(other);
        *this = std::move(copy);
    }
    return *this;
}

ExceptionPageList::ExceptionPageList(ExceptionPageList&&) noexcept = default;
ExceptionPageList& ExceptionPageList::operator=(ExceptionPageList&&) noexcept = default;
ExceptionPageList::~ExceptionPageList() = default;

ExceptionPage* ExceptionPageList::pageAtIndex(long index) const
{
    return static_cast<ExceptionPage*>(SpecialPageList::pageAtIndex(index));
}

Status ExceptionPageList::add(SpecialPageSpan pages)
{
    for (const SpecialPage* page : pages) {
        const auto* range = dynamic_cast<const ExceptionPage*>(page);
        // A reversed range would make the walk below cut a range back to
        // where it already starts, for ever.
        if (range && range->startPage() <= range->endPage())
            addRange(*range);
    }
    return kNoError;
}

// One walk over the sorted list with the new range s-e against each held
// range S-T. Every step either places the new range, moves on, or shrinks
// the list, so the walk ends.
void ExceptionPageList::addRange(const ExceptionPage& range)
{
    const std::int32_t s = range.startPage();
    const std::int32_t e = range.endPage();
    std::size_t i = 0;
    while (true) {
        if (i == m_pages.size()) {
            m_pages.push_back(range.clone());
            return;
        }
        auto* held = static_cast<ExceptionPage*>(m_pages[i].get());
        const std::int32_t S = held->startPage();
        const std::int32_t T = held->endPage();
        if (s > T) {
            ++i;
        } else if (s < S) {
            if (e < S) {
                m_pages.insert(m_pages.begin() + i, range.clone());
                return;
            }
            if (e < T) {
                held->setStartPage(e + 1);
                m_pages.insert(m_pages.begin() + i, range.clone());
                return;
            }
            m_pages.erase(m_pages.begin() + i); // covered
        } else if (s > S) {
            if (e < T) {
                // Strictly inside: split, the second half keeps the settings.
                std::unique_ptr<ExceptionPage> tail = held->clone();
                tail->setStartPage(e + 1);
                m_pages.insert(m_pages.begin() + i + 1, std::move(tail));
            }
            held->setEndPage(s - 1);
            ++i;
        } else if (e < T) { // same start, ends earlier
            held->setStartPage(e + 1);
        } else { // same start, covers
            m_pages.erase(m_pages.begin() + i);
        }
    }
}

} // namespace orvan
