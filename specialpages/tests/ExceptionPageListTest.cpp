// The exception page list: a new range always wins, cutting or splitting the
// ranges it overlaps; edits, removal and copies.
#include "specialpages/ExceptionPageList.h"
#include "specialpages/Insert.h"

#include <gtest/gtest.h>

#include <array>
#include <random>
#include <tuple>

using namespace orvan;

namespace {

// First page, last page, and a tag telling which added range it came from;
// the tag travels in lightenDarken, a setting a split or cut range must keep.
using Range = std::array<std::int32_t, 3>;
using Ranges = std::vector<Range>;

std::unique_ptr<ExceptionPage> makeRange(const Range& range)
{
    auto page = std::make_unique<ExceptionPage>();
    page->setStartPage(range[0]);
    page->setEndPage(range[1]);
    page->setLightenDarken(range[2]);
    return page;
}

void addRange(ExceptionPageList& list, const Range& range)
{
    const auto page = makeRange(range);
    const SpecialPage* pages[] = {page.get()};
    ASSERT_EQ(list.add(pages), kNoError);
}

Ranges contents(const ExceptionPageList& list)
{
    Ranges ranges;
    for (long i = 0; i < list.count(); ++i) {
        const ExceptionPage* page = list.pageAtIndex(i);
        ranges.push_back({page->startPage(), page->endPage(), page->lightenDarken()});
    }
    return ranges;
}

ExceptionPageList listOf(const Ranges& ranges)
{
    ExceptionPageList list;
    for (const Range& range : ranges)
        addRange(list, range);
    return list;
}

} // namespace

// A few walks spelled out; the random sequences below check every branch.
TEST(ExceptionPageListAdd, NewRangesCutAndSplitWhatTheyOverlap)
{
    // What the list holds, the ranges added one by one, what it holds then.
    const std::tuple<const char*, Ranges, Ranges, Ranges> cases[] = {
        // clang-format off
        {"covering two", {{5, 10, 1}, {12, 15, 2}}, {{1, 20, 9}}, {{1, 20, 9}}},
        {"one page inside", {{1, 3, 1}}, {{2, 2, 9}}, {{1, 1, 1}, {2, 2, 9}, {3, 3, 1}}},
        {"over an end into the next", {{5, 10, 1}, {12, 20, 2}}, {{8, 14, 9}}, {{5, 7, 1}, {8, 14, 9}, {15, 20, 2}}},
        {"page 0 and the last page", {{0, 99999, 1}}, {{0, 0, 8}, {99999, 99999, 9}}, {{0, 0, 8}, {1, 99998, 1}, {99999, 99999, 9}}},
        // clang-format on
    };
    for (const auto& [what, held, added, expected] : cases) {
        ExceptionPageList list = listOf(held);
        for (const Range& range : added)
            addRange(list, range);
        EXPECT_EQ(contents(list), expected) << what;
    }
}

// The halves of a split range are clones of it, with all its settings; the
// list holds its own copies and leaves the caller's page alone. Reversed
// ranges and pages of other kinds are skipped.
TEST(ExceptionPageListAdd, SplitHalvesAreClonesAndBadPagesAreSkipped)
{
    auto whole = makeRange({1, 20, 1});
    whole->setPlex(kPlexDuplex);
    whole->setHalftoneScreen(3);
    whole->imageShift().frontShiftX = 25;
    whole->stock().setType(24);
    whole->stock().setModulus(5);
    const auto reversed = makeRange({6, 5, 9}); // would never end the walk
    const Insert insert;
    ExceptionPageList list;
    const SpecialPage* pages[] = {whole.get(), reversed.get(), &insert, nullptr};
    EXPECT_EQ(list.add(pages), kNoError);
    addRange(list, {5, 10, 9});
    ASSERT_EQ(list.count(), 3);
    for (const ExceptionPage* half : {list.pageAtIndex(0), list.pageAtIndex(2)}) {
        EXPECT_NE(half, whole.get());
        const auto widened = half->clone();
        widened->setStartPage(1);
        widened->setEndPage(20);
        EXPECT_EQ(widened->asTicket(), whole->asTicket());
    }
    EXPECT_EQ(std::pair(whole->startPage(), whole->endPage()), std::pair(1, 20));
}

// Many random sequences of ranges added one by one, against a model that
// records for every page the newest range that contains it.
TEST(ExceptionPageListAdd, RandomSequencesMatchTheNewestRangeModel)
{
    constexpr int kPages = 40;
    std::mt19937 random(20240611);
    std::uniform_int_distribution<int> page(0, kPages - 1), length(1, 8);
    for (int sequence = 0; sequence < 2000; ++sequence) {
        ExceptionPageList list;
        std::array<std::int32_t, kPages + 8> owner{}; // 0: no range
        for (int tag = 1; tag <= 1 + sequence % 12; ++tag) {
            const int start = page(random);
            // Mostly short ranges, sometimes long ones that cover others.
            const int end = std::min(
                kPages + 7, start + (tag % 4 == 0 ? 4 * length(random) : length(random) - 1));
            addRange(list, {start, end, tag});
            std::fill(owner.begin() + start, owner.begin() + end + 1, tag);

            std::array<std::int32_t, kPages + 8> seen{};
            std::int32_t previousEnd = -1;
            for (const auto& [first, last, owning] : contents(list)) {
                ASSERT_LE(first, last) << "sequence " << sequence;
                ASSERT_GT(first, previousEnd)
                    << "sequence " << sequence << ": unsorted or overlapping";
                previousEnd = last;
                std::fill(seen.begin() + first, seen.begin() + last + 1, owning);
            }
            ASSERT_EQ(seen, owner) << "sequence " << sequence << " step " << tag;
        }
    }
}

TEST(ExceptionPageListUpdate, ReplacesThePageByIdentity)
{
    ExceptionPageList list = listOf({{1, 4, 1}, {6, 9, 2}});
    ExceptionPage* edited = list.pageAtIndex(1);
    // An equal range that is not in the list changes nothing.
    const auto stranger = makeRange({6, 9, 2}), replacement = makeRange({3, 7, 9});
    const SpecialPage* pages[] = {replacement.get()};
    EXPECT_EQ(list.update(stranger.get(), pages), kNoError);
    EXPECT_EQ(list.count(), 2);
    EXPECT_EQ(list.update(edited, pages), kNoError);
    EXPECT_EQ(contents(list), (Ranges{{1, 2, 1}, {3, 7, 9}}));
    EXPECT_EQ(list.indexOfPage(edited), -1);

    // Editing into several ranges, as a typed "1, 5-6" gives.
    const auto a = makeRange({1, 1, 10}), b = makeRange({5, 6, 11});
    const SpecialPage* two[] = {a.get(), b.get()};
    EXPECT_EQ(list.update(list.pageAtIndex(1), two), kNoError);
    EXPECT_EQ(contents(list), (Ranges{{1, 1, 10}, {2, 2, 1}, {5, 6, 11}}));
}

TEST(ExceptionPageListOwnership, CopiesAreDeepAndRemoveTakesOnlyItsOwnPages)
{
    ExceptionPageList list = listOf({{1, 4, 1}, {6, 9, 2}, {12, 12, 3}});
    const Ranges all = contents(list);
    const ExceptionPageList copy(list);
    ExceptionPageList assigned;
    assigned = list;
    const auto cloned = list.clone();
    list.remove(list.pageAtIndex(1));
    list.remove(copy.pageAtIndex(0)); // another list's page
    EXPECT_EQ(contents(list), (Ranges{{1, 4, 1}, {12, 12, 3}}));
    EXPECT_EQ(list.pageAtIndex(2), nullptr);
    EXPECT_EQ(list.pageAtIndex(-1), nullptr);
    list.clear();
    EXPECT_EQ(list.count(), 0);
    const ExceptionPageList* others[] = {&copy, &assigned, cloned.get()};
    for (const ExceptionPageList* other : others)
        EXPECT_EQ(contents(*other), all);
}
