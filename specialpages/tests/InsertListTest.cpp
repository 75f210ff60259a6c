#include "specialpages/InsertList.h"
#include "specialpages/ExceptionPage.h"

#include <gtest/gtest.h>

using namespace orvan;

namespace {

// An insert's quantity serves as its name in these tests.
std::unique_ptr<Insert> makeInsert(std::int32_t startPage, std::int32_t name)
{
    auto insert = std::make_unique<Insert>();
    insert->setStartPage(startPage);
    insert->setQuantity(name);
    return insert;
}

InsertList listOf(std::initializer_list<std::pair<std::int32_t, std::int32_t>> inserts)
{
    std::vector<std::unique_ptr<Insert>> made;
    for (const auto& [page, name] : inserts)
        made.push_back(makeInsert(page, name));
    InsertList list;
    EXPECT_EQ(list.add(BorrowPages(made)), kNoError);
    return list;
}

std::vector<std::int32_t> names(const InsertList& list)
{
    std::vector<std::int32_t> result;
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

TEST(InsertListAdd, OrdersByPageAndKeepsAddingOrderOnOnePage)
{
    const InsertList list = listOf({{3, 1}, {1, 2}, {3, 3}, {0, 4}, {1, 5}, {9, 6}, {0, 7}});
    EXPECT_EQ(names(list), (std::vector<std::int32_t>{4, 7, 2, 5, 1, 3, 6}));
}

TEST(InsertListAdd, KeepsClonesAndSkipsOtherKinds)
{
    const auto insert = makeInsert(2, 1);
    const ExceptionPage exception;
    const SpecialPage* pages[] = {insert.get(), &exception, nullptr};
    InsertList list;
    EXPECT_EQ(list.add(pages), kNoError);
    ASSERT_EQ(list.count(), 1);
    EXPECT_NE(list.pageAtIndex(0), insert.get());
    EXPECT_EQ(list.indexOfPage(insert.get()), -1);
    EXPECT_EQ(list.pageAtIndex(0)->startPage(), 2);
}

TEST(InsertListMove, NeighbourStartPageDecides)
{
    // before page 1: a; after page 3: b, c; after page 5: d.
    const InsertList list = listOf({{0, 1}, {3, 2}, {3, 3}, {5, 4}});
    struct Case
    {
        std::int32_t name;
        bool up;
        bool down;
    };
    const Case cases[] = {
        {1, false, true}, // first in the list; the insert before page 1 may itself move down
        {2, false, true}, // its predecessor is before page 1
        {3, true, true},  // same page on both sides
        {4, true, false}, // last; moving past an insert of another page is allowed
    };
    for (const Case& c : cases) {
        EXPECT_EQ(list.canPromote(named(list, c.name)), c.up) << c.name;
        EXPECT_EQ(list.canDemote(named(list, c.name)), c.down) << c.name;
    }
    const auto stranger = makeInsert(3, 9);
    EXPECT_FALSE(list.canPromote(stranger.get()));
    EXPECT_FALSE(list.canDemote(stranger.get()));
    EXPECT_FALSE(list.canPromote(nullptr));
}

TEST(InsertListMove, SwapsWithoutChangingStartPages)
{
    InsertList list = listOf({{0, 1}, {3, 2}, {3, 3}, {5, 4}});
    Insert* c = named(list, 3);
    list.promote(c);
    EXPECT_EQ(names(list), (std::vector<std::int32_t>{1, 3, 2, 4}));
    list.promote(c); // blocked by the insert before page 1
    EXPECT_EQ(names(list), (std::vector<std::int32_t>{1, 3, 2, 4}));
    EXPECT_EQ(c->startPage(), 3);

    list.demote(named(list, 4)); // last: nothing happens
    list.promote(named(list, 4));
    EXPECT_EQ(names(list), (std::vector<std::int32_t>{1, 3, 4, 2}));
    EXPECT_EQ(named(list, 4)->startPage(), 5);

    // The insert before page 1 moves down past page 3's insert, and then no
    // neighbour can pass it again.
    list.demote(named(list, 1));
    EXPECT_EQ(names(list), (std::vector<std::int32_t>{3, 1, 4, 2}));
    EXPECT_FALSE(list.canDemote(named(list, 3)));
    EXPECT_FALSE(list.canPromote(named(list, 4)));
}

TEST(InsertListCopy, CopiesReorderByPageButKeepSamePageMoves)
{
    InsertList list = listOf({{2, 1}, {2, 2}, {4, 3}});
    list.promote(named(list, 2));
    list.promote(named(list, 3)); // now 2, 3, 1: insert 3 (page 4) before an insert of page 2
    EXPECT_EQ(names(list), (std::vector<std::int32_t>{2, 3, 1}));
    const auto copy = list.clone();
    EXPECT_EQ(names(*copy), (std::vector<std::int32_t>{2, 1, 3}));
    EXPECT_NE(copy->pageAtIndex(0), list.pageAtIndex(0));
}

TEST(InsertListUpdate, MovesAnEditedInsertToItsNewPage)
{
    InsertList list = listOf({{1, 1}, {3, 2}, {5, 3}});
    const auto edited = makeInsert(4, 2);
    const SpecialPage* pages[] = {edited.get()};
    EXPECT_EQ(list.update(named(list, 2), pages), kNoError);
    EXPECT_EQ(names(list), (std::vector<std::int32_t>{1, 2, 3}));
    EXPECT_EQ(list.pageAtIndex(1)->startPage(), 4);
    EXPECT_EQ(list.asTicket().size(), 3u);
    list.clear();
    EXPECT_TRUE(list.asTicket().isNull());
}
