// Ordered lists of special pages. A list owns its pages: it keeps clones of
// the pages it is given, and remove/clear/update destroy the pages they take
// out. Pages are identified by address, so a pointer from pageAtIndex stays
// the page's identity until the page leaves the list.
#pragma once

#include "settings/PropertyValue.h"
#include "settings/Status.h"
#include "specialpages/SpecialPage.h"

#include <memory>
#include <span>
#include <vector>

namespace orvan {

// Pages handed to a list: borrowed, the caller keeps them.
using SpecialPageSpan = std::span<const SpecialPage* const>;

// Borrowed pointers to pages held by owners, for a list's add or update.
template <typename Page>
std::vector<const SpecialPage*> BorrowPages(const std::vector<std::unique_ptr<Page>>& pages)
{
    std::vector<const SpecialPage*> borrowed;
    borrowed.reserve(pages.size());
    for (const auto& page : pages)
        borrowed.push_back(page.get());
    return borrowed;
}

class SpecialPageList
{
public:
    virtual ~SpecialPageList();

    long count() const { return static_cast<long>(m_pages.size()); }
    // Null when the index is out of range.
    virtual SpecialPage* pageAtIndex(long index) const;
    // Index of that very page, -1 when it is not in the list.
    long indexOfPage(const SpecialPage* page) const;

    // Adds clones of the pages by the list's own rule; pages of another kind
    // (and null pointers) are skipped. Returns kNoError.
    virtual Status add(SpecialPageSpan pages) = 0;
    // Takes the page out and destroys it; a page not in the list is ignored.
    void remove(const SpecialPage* page);
    void clear();
    // Replaces a page of the list by the pages given: the page is taken out,
    // the others added; if adding fails the page goes back where it was,
    // otherwise it is destroyed. A page not in the list changes nothing.
    Status update(const SpecialPage* page, SpecialPageSpan pages);

    // An array of the pages' dictionaries in list order; Null for an empty
    // list, so that the ticket item is removed rather than left empty.
    PropertyValue asTicket() const;

    // A list of the same kind holding clones of every page, built with add.
    std::unique_ptr<SpecialPageList> clone() const
    {
        return std::unique_ptr<SpecialPageList>(cloneImpl());
    }

protected:
    SpecialPageList();
    SpecialPageList(SpecialPageList&&) noexcept;
    SpecialPageList& operator=(SpecialPageList&&) noexcept;
    SpecialPageList(const SpecialPageList&) = delete;
    SpecialPageList& operator=(const SpecialPageList&) = delete;

    virtual SpecialPageList* cloneImpl() const = 0;
    // Borrowed pointers to every page in order, for copying a list.
    std::vector<const SpecialPage*> borrowedPages() const;

    std::vector<std::unique_ptr<SpecialPage>> m_pages;
};

} // namespace orvan
