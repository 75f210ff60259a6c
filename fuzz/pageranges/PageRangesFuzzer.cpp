// Typed page ranges: any text must give a known code, and on success records
// that stay within the page numbers, the same pages in both modes.
#include "specialpages/PageRanges.h"

#include <QString>

#include <cstddef>
#include <cstdint>
#include <cstdlib>

using namespace orvan;

namespace {

void check(bool condition)
{
    if (!condition)
        std::abort();
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    const QString text =
        QString::fromUtf8(reinterpret_cast<const char*>(data), static_cast<qsizetype>(size));

    const std::vector<PageRange> untouched{{-1, -1}};
    std::vector<PageRange> ranges = untouched;
    const Status status = CreatePageRangesBySeparatingString(text, true, &ranges);
    check(status == kNoError || status == kPageNumberLimit || status == kInvalidPageRanges ||
          status == kInvalidRangeOrder);
    if (status != kNoError) {
        check(ranges == untouched);
        return 0;
    }
    check(!ranges.empty());
    std::int64_t pageCount = 0;
    for (const PageRange& range : ranges) {
        check(range.first >= 0 && range.count >= 1);
        check(std::int64_t{range.first} + range.count - 1 <= kLastPageNumber);
        pageCount += range.count;
    }

    // Single pages: one record per page of the ranges, in the same order.
    // An open range alone makes 100000 records; checking expansions of up to
    // a few thousand pages keeps every input as cheap as the others, and a
    // fault in the expansion shows on small inputs as well as on big ones.
    if (pageCount > 4096)
        return 0;
    std::vector<PageRange> pages;
    check(CreatePageRangesBySeparatingString(text, false, &pages) == kNoError);
    check(pages.size() == static_cast<std::size_t>(pageCount));
    std::size_t next = 0;
    for (const PageRange& range : ranges) {
        for (std::int32_t page = range.first; page < range.first + range.count; ++page, ++next)
            check(pages[next].first == page && pages[next].count == 1);
    }
    return 0;
}
