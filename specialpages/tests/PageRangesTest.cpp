#include "specialpages/PageRanges.h"

#include <gtest/gtest.h>

#include <QString>

using namespace orvan;

namespace {

struct ParseCase
{
    const char* text;
    Status status;
    std::vector<PageRange> ranges; // asRanges true; empty on failure
};

std::ostream& operator<<(std::ostream& os, const PageRange& r)
{
    return os << "{" << r.first << "," << r.count << "}";
}

std::vector<PageRange> singlePages(const std::vector<PageRange>& ranges)
{
    std::vector<PageRange> pages;
    for (const PageRange& range : ranges) {
        for (std::int32_t page = range.first; page < range.first + range.count; ++page)
            pages.push_back({page, 1});
    }
    return pages;
}

} // namespace

TEST(PageRanges, ParsesInBothModes)
{
    const ParseCase cases[] = {
        {"1, 4-6, 10", kNoError, {{1, 1}, {4, 3}, {10, 1}}},
        {"7", kNoError, {{7, 1}}},
        {"0", kNoError, {{0, 1}}},
        {"99999", kNoError, {{99999, 1}}},
        {"00012", kNoError, {{12, 1}}},
        {"-5", kNoError, {{1, 5}}},
        {"3-5-7", kNoError, {{3, 3}, {1, 7}}},
        {"3 4", kNoError, {{3, 1}, {4, 1}}},
        {"3 - 5", kNoError, {{3, 3}}},
        {" 12 ,, 3-3 ,", kNoError, {{12, 1}, {3, 1}}},
        {"1, 2, 1", kNoError, {{1, 1}, {2, 1}, {1, 1}}},
        {"2-4,3-6", kNoError, {{2, 3}, {3, 4}}},
        {"99998-", kNoError, {{99998, 2}}},
        {"1a2", kNoError, {{1, 1}, {2, 1}}}, // other characters are skipped like spaces
        {"5-3", kInvalidRangeOrder, {}},
        {"-0", kInvalidRangeOrder, {}},
        {"1, 5-3, 7", kInvalidRangeOrder, {}},
        {"100000", kPageNumberLimit, {}},
        {"2-100000", kPageNumberLimit, {}},
        {"1, 99999999999999999999", kPageNumberLimit, {}},
        {"--", kInvalidPageRanges, {}},
        {"-", kInvalidPageRanges, {}},
        {"5,-", kInvalidPageRanges, {}},
        {"-,5", kInvalidPageRanges, {}},
        {"4--6", kInvalidPageRanges, {}},
        {"1-2-", kInvalidPageRanges, {}}, // the last hyphen starts a range from page 1 with no end
        {"", kInvalidPageRanges, {}},
        {"   ", kInvalidPageRanges, {}},
        {",,", kInvalidPageRanges, {}},
        {"abc", kInvalidPageRanges, {}},
    };
    for (const ParseCase& c : cases) {
        for (bool asRanges : {true, false}) {
            std::vector<PageRange> result{{42, 42}};
            const Status status =
                CreatePageRangesBySeparatingString(QString::fromUtf8(c.text), asRanges, &result);
            EXPECT_EQ(status, c.status) << '"' << c.text << "\" asRanges " << asRanges;
            if (c.status == kNoError) {
                EXPECT_EQ(result, asRanges ? c.ranges : singlePages(c.ranges))
                    << '"' << c.text << "\" asRanges " << asRanges;
            } else {
                // The result is set only on success.
                EXPECT_EQ(result, (std::vector<PageRange>{{42, 42}})) << c.text;
            }
        }
    }
}

TEST(PageRanges, OpenRangeRunsToTheLastPage)
{
    std::vector<PageRange> ranges;
    ASSERT_EQ(CreatePageRangesBySeparatingString(u"10-", true, &ranges), kNoError);
    EXPECT_EQ(ranges, (std::vector<PageRange>{{10, kLastPageNumber - 10 + 1}}));

    // One record a page, all the way: the inserts dialog relies on it.
    std::vector<PageRange> pages;
    ASSERT_EQ(CreatePageRangesBySeparatingString(u"2, 10-", false, &pages), kNoError);
    ASSERT_EQ(pages.size(), 1u + (kLastPageNumber - 10 + 1));
    EXPECT_EQ(pages[0], (PageRange{2, 1}));
    EXPECT_EQ(pages[1], (PageRange{10, 1}));
    EXPECT_EQ(pages.back(), (PageRange{kLastPageNumber, 1}));
}

TEST(PageRanges, NeedsAPlaceForTheResult)
{
    EXPECT_EQ(CreatePageRangesBySeparatingString(u"1", true, nullptr), kBadParameter);
}
