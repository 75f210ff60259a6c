// The job's inserts, ordered by the page they follow; inserts on the same
// page keep the order in which they were added or moved.
#pragma once

#include "specialpages/Insert.h"
#include "specialpages/SpecialPageList.h"

namespace orvan {

class InsertList final : public SpecialPageList
{
public:
    InsertList();
    // Copies hand the source's inserts to add, so a copy is ordered by start
    // page again: only moves among inserts of the same page survive it.
    InsertList(const InsertList& other);
    InsertList& operator=(const InsertList& other);
    InsertList(InsertList&&) noexcept;
    InsertList& operator=(InsertList&&) noexcept;
    ~InsertList() override;

    Insert* pageAtIndex(long index) const override;

    // Each insert's clone goes before the first insert with a greater start
    // page (or at the end), so inserts on one page stay in adding order.
    Status add(SpecialPageSpan pages) override;

    // Moving swaps an insert with its neighbour, start pages unchanged. A
    // neighbour whose start page is 0 (before the first page) cannot be
    // passed; the rule looks at the neighbour's start page only.
    bool canPromote(const Insert* insert) const;
    void promote(Insert* insert);
    bool canDemote(const Insert* insert) const;
    void demote(Insert* insert);

    std::unique_ptr<InsertList> clone() const { return std::unique_ptr<InsertList>(cloneImpl()); }

protected:
    InsertList* cloneImpl() const override { return new InsertList(*this); }
};

} // namespace orvan
