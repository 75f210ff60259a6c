// Page ranges typed by the user, such as "1, 4-6, 10-", for inserts and
// exception pages.
#pragma once

#include "settings/Status.h"

#include <QStringView>

#include <cstdint>
#include <vector>

namespace orvan {

// Pages run from 0 to this; it is also the end of an open range ("10-").
inline constexpr std::int32_t kLastPageNumber = 99999;

// Results of reading page ranges, and the alerts they raise.
inline constexpr Status kPageNumberLimit = 1000;    // a number above kLastPageNumber
inline constexpr Status kInvalidPageRanges = 1001;  // malformed, or names no page
inline constexpr Status kInvalidRangeOrder = 1002;  // first page after the last
inline constexpr Status kInvalidPageNumbers = 1003; // page 0 where a real page is needed
inline constexpr Status kPageRangeConflict = 1234;  // special pages that clash

// The characters a page-range field lets the user type.
inline constexpr char kPageRangeCharacters[] = "0123456789, -";

struct PageRange
{
    std::int32_t first;
    std::int32_t count;

    friend bool operator==(const PageRange&, const PageRange&) = default;
};

// Reads comma-separated pages and ranges: "n", "a-b", "a-" (to the last
// page), "-b" (from page 1). Spaces separate numbers like commas ("3 4" is
// pages 3 and 4) and are otherwise ignored, as is any character other than
// digits, commas and hyphens. A hyphen that follows a completed range starts
// a new one from page 1, so "3-5-7" is 3-5 then 1-7.
//
// With asRanges each range is one record {first, count}; otherwise every
// page of every range is its own record {page, 1}, so "10-" gives one record
// per page up to kLastPageNumber. Records keep the order of the text,
// duplicates and overlaps included.
//
// Returns kNoError, kPageNumberLimit, kInvalidPageRanges (also for a text that
// names no page) or kInvalidRangeOrder; kBadParameter when result is null.
// result is assigned on success only.
Status CreatePageRangesBySeparatingString(QStringView text, bool asRanges,
                                          std::vector<PageRange>* result);

} // namespace orvan
