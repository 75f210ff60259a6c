// The insert list: ordered by page, adding order kept on one page, moves
// that only a neighbour's start page can stop, copies and edits.
#include "specialpages/InsertList.h"
#include "specialpages/ExceptionPage.h"

#include <gtest/gtest.h>

using namespace orvan;

namespace {

using Names = std::vector<std::int32_t>;

// An insert's quantity serves as its name in these tests.
std::unique_ptr<Insert> makeInsert(std::int32_t startPage, std::int32_t name)
{
    auto insert = std::make_unique<Insert>();
    insert->setStartPage(startPage);
    insert->setQuantity(name);
    return insert;
}

// Inserts {start page, name} added in one call.
InsertList listOf(std::initializer_list<std::pair<std::int32_t, std::int32_t>> inserts)
{
    std::vector<std::unique_ptr<Insert>> made;
    for (const auto& [page, name] : inserts)
        made.push_back(makeInsert(page, name));
    InsertList list;
    EXPECT_EQ(list.add(BorrowPages(made)), kNoError);
    return list;
}

Names names(const InsertList& list)
{
    Names result;
    for (long i = 0; i < list.count(); ++i)
        result.push_back(list.pageAtIndex(i)->quantity());
    return result;
}

Insert* named(const InsertList& list, std::int32_t name)
{
    for (long i = 0; i < list.count(); ++i) {
        if (list.pageAtIndex(i)->quantity() == name)
            return list.pageAtIndex(i);
    }
    return nullptr;
}

} // namespace

TEST(InsertListAdd, OrdersByPageKeepsAddingOrderAndClones)
{
    EXPECT_EQ(names(listOf({{3, 1}, {1, 2}, {3, 3}, {0, 4}, {1, 5}, {9, 6}, {0, 7}})),
              (Names{4, 7, 2, 5, 1, 3, 6}));
    const auto insert = makeInsert(2, 1);
    const ExceptionPage exception;
    const SpecialPage* pages[] = {insert.get(), &exception, nullptr};
    InsertList list;
    EXPECT_EQ(list.add(pages), kNoError);
    ASSERT_EQ(list.count(), 1) << "other kinds are skipped";
    EXPECT_NE(list.pageAtIndex(0), insert.get());
    EXPECT_EQ(list.pageAtIndex(0)->startPage(), 2);
}

// Only the neighbour's start page counts: an insert before page 1 (start
// page 0) can never be passed; moving past another page's insert is allowed.
TEST(InsertListMove, OnlyTheNeighboursStartPageStopsASwap)
{
    // before page 1: 1; after page 3: 2, 3; after page 5: 4.
    InsertList list = listOf({{0, 1}, {3, 2}, {3, 3}, {5, 4}});
    Insert* three = named(list, 3);
    list.promote(named(list, 1)); // first: nothing happens
    list.promote(three);
    list.promote(three); // blocked by the insert before page 1
    EXPECT_EQ(names(list), (Names{1, 3, 2, 4}));
    EXPECT_EQ(three->startPage(), 3);
    list.demote(named(list, 4)); // last: nothing happens
    list.promote(named(list, 4));
    EXPECT_EQ(names(list), (Names{1, 3, 4, 2}));
    EXPECT_EQ(named(list, 4)->startPage(), 5);
    // The insert before page 1 moves down, and then no neighbour can pass it.
    list.demote(named(list, 1));
    EXPECT_EQ(names(list), (Names{3, 1, 4, 2}));
    EXPECT_FALSE(list.canDemote(named(list, 3)));
    EXPECT_FALSE(list.canPromote(named(list, 4)));
    const auto stranger = makeInsert(3, 9);
    EXPECT_FALSE(list.canPromote(stranger.get()));
    EXPECT_FALSE(list.canDemote(stranger.get()));
}

TEST(InsertListCopyAndUpdate, CopiesReorderByPageAndEditsMoveToTheirPage)
{
    InsertList list = listOf({{2, 1}, {2, 2}, {4, 3}});
    list.promote(named(list, 2));
    list.promote(named(list, 3)); // page 4's insert before one of page 2
    EXPECT_EQ(names(list), (Names{2, 3, 1}));
    const auto copy = list.clone(); // added anew: back in page order
    EXPECT_EQ(names(*copy), (Names{2, 1, 3}));
    EXPECT_NE(copy->pageAtIndex(0), list.pageAtIndex(0));

    InsertList edited = listOf({{1, 1}, {3, 2}, {5, 3}});
    const auto moved = makeInsert(4, 2);
    const SpecialPage* pages[] = {moved.get()};
    EXPECT_EQ(edited.update(named(edited, 2), pages), kNoError);
    EXPECT_EQ(names(edited), (Names{1, 2, 3}));
    EXPECT_EQ(edited.pageAtIndex(1)->startPage(), 4);
    EXPECT_EQ(edited.asTicket().size(), 3u);
    edited.clear();
    EXPECT_TRUE(edited.asTicket().isNull());
}
