// The job's exception pages: ranges sorted by start page that never overlap.
#pragma once

#include "specialpages/ExceptionPage.h"
#include "specialpages/SpecialPageList.h"

namespace orvan {

class ExceptionPageList final : public SpecialPageList
{
public:
    ExceptionPageList();
    ExceptionPageList(const ExceptionPageList& other);
    ExceptionPageList& operator=(const ExceptionPageList& other);
    ExceptionPageList(ExceptionPageList&&) noexcept;
    ExceptionPageList& operator=(ExceptionPageList&&) noexcept;
    ~ExceptionPageList() override;

    ExceptionPage* pageAtIndex(long index) const override;

    // Adds the ranges one after the other; a new range always wins. Ranges
    // it covers are destroyed, ranges it overlaps are cut back, and a range
    // it lies strictly inside is split in two, the second half a clone with
    // the same settings. The list stays sorted and free of overlaps. A range
    // whose end page is before its start page names no page and is skipped.
    Status add(SpecialPageSpan pages) override;

    std::unique_ptr<ExceptionPageList> clone() const
    {
        return std::unique_ptr<ExceptionPageList>(cloneImpl());
    }

protected:
    ExceptionPageList* cloneImpl() const override { return new ExceptionPageList(*this); }

private:
    void addRange(const ExceptionPage& range);
};

} // namespace orvan
