#include "specialpages/SpecialPagesTicket.h"
#include "specialpages/SpecialPageKeys.h"

#include <gtest/gtest.h>

#include <tuple>

using namespace orvan;

namespace {

std::unique_ptr<Cover> makeCover(std::int32_t sides, std::int32_t color)
{
    auto cover = std::make_unique<Cover>();
    cover->setSidesImaged(sides);
    cover->stock().setColor(color);
    return cover;
}

void setBooklet(Ticket& ticket, bool on)
{
    ASSERT_EQ(ticket.setItem(kPanelClient, kBookletLayoutKey, PropertyValue::boolean(on)),
              kNoError);
}

std::unique_ptr<Cover> coverIn(const Ticket& ticket, const QString& key)
{
    const PropertyValue* dictionary = ticket.dictionary(key);
    return dictionary ? std::make_unique<Cover>(dictionary) : nullptr;
}

} // namespace

TEST(SyncCoversWrite, StoresCoversWithTheRecordClient)
{
    Ticket ticket;
    auto front = makeCover(kCoverPrintedDuplex, 2);
    auto back = makeCover(kCoverBlankOrPreprinted, 3);
    EXPECT_EQ(SyncCovers(ticket, SpecialPagesSync::WriteTicket, front, back), kNoError);
    const TicketItem* item = ticket.item(kFrontCoverKey);
    ASSERT_NE(item, nullptr);
    EXPECT_EQ(item->client, kRecordClient);
    EXPECT_FALSE(item->locked);
    EXPECT_EQ(item->value, front->asTicket());
    EXPECT_EQ(*coverIn(ticket, kBackCoverKey), *back);

    // Covers switched off remove what an earlier sync stored.
    std::unique_ptr<Cover> none;
    EXPECT_EQ(SyncCovers(ticket, SpecialPagesSync::WriteTicket, none, none), kNoError);
    EXPECT_FALSE(ticket.containsItem(kFrontCoverKey));
    EXPECT_FALSE(ticket.containsItem(kBackCoverKey));
}

// With booklet layout on, a back cover equal to the front is not stored; a
// stale back cover from an earlier sync does not survive either.
TEST(SyncCoversWrite, BookletLayoutStoresEqualCoversOnce)
{
    // Booklet item (none: absent), covers equal, back cover stored.
    const std::tuple<std::optional<bool>, bool, bool> cases[] = {
        {true, true, false}, {true, false, true}, {false, true, true}, {std::nullopt, true, true}};
    for (const auto& [booklet, equalCovers, backStored] : cases) {
        Ticket ticket;
        if (booklet)
            setBooklet(ticket, *booklet);
        auto front = makeCover(kCoverPrintedSimplex, 2);
        auto back = makeCover(kCoverPrintedSimplex, equalCovers ? 2 : 4);
        back->setStartPage(99); // not part of cover equality
        ticket.setItem(kRecordClient, kBackCoverKey, makeCover(1, 9)->asTicket());
        EXPECT_EQ(SyncCovers(ticket, SpecialPagesSync::WriteTicket, front, back), kNoError);
        EXPECT_TRUE(ticket.containsItem(kFrontCoverKey));
        EXPECT_EQ(ticket.containsItem(kBackCoverKey), backStored) << booklet.value_or(-1);
        if (backStored)
            EXPECT_EQ(*coverIn(ticket, kBackCoverKey), *back);
    }
}

TEST(SyncCoversRead, BookletLayoutMakesTheBackFromTheFront)
{
    Ticket ticket;
    setBooklet(ticket, true);
    auto front = makeCover(kCoverPrintedDuplex, 5);
    auto back = makeCover(kCoverPrintedDuplex, 5);
    SyncCovers(ticket, SpecialPagesSync::WriteTicket, front, back);
    ASSERT_FALSE(ticket.containsItem(kBackCoverKey));

    std::unique_ptr<Cover> readFront = makeCover(1, 1);
    std::unique_ptr<Cover> readBack;
    EXPECT_EQ(SyncCovers(ticket, SpecialPagesSync::ReadTicket, readFront, readBack), kNoError);
    ASSERT_TRUE(readFront && readBack);
    EXPECT_NE(readFront.get(), readBack.get());
    EXPECT_EQ(*readFront, *front);
    EXPECT_EQ(*readBack, *front);

    // With booklet layout on, a stored back cover is ignored.
    ticket.setItem(kRecordClient, kBackCoverKey, makeCover(1, 9)->asTicket());
    SyncCovers(ticket, SpecialPagesSync::ReadTicket, readFront, readBack);
    EXPECT_EQ(*readBack, *front);

    // No front cover: no back cover either.
    ticket.releaseItem(kFrontCoverKey);
    SyncCovers(ticket, SpecialPagesSync::ReadTicket, readFront, readBack);
    EXPECT_EQ(readFront, nullptr);
    EXPECT_EQ(readBack, nullptr);
}

TEST(SyncCoversRead, WithoutBookletEachCoverHasItsOwnKey)
{
    Ticket ticket;
    ticket.setItem(kRecordClient, kBackCoverKey, makeCover(kCoverPrintedSimplex, 4)->asTicket());
    ticket.setItem(kRecordClient, kFrontCoverKey, PropertyValue("not a cover"));
    std::unique_ptr<Cover> front = makeCover(1, 1);
    std::unique_ptr<Cover> back;
    SyncCovers(ticket, SpecialPagesSync::ReadTicket, front, back);
    EXPECT_EQ(front, nullptr);
    ASSERT_NE(back, nullptr);
    EXPECT_EQ(*back, *makeCover(kCoverPrintedSimplex, 4));
}

TEST(SpecialPagesState, RoundTripThroughTheTicket)
{
    SpecialPagesState state;
    for (std::int32_t page : {4, 0, 4}) {
        Insert insert;
        insert.setStartPage(page);
        const SpecialPage* pages[] = {&insert};
        state.inserts.add(pages);
    }
    ExceptionPage range;
    range.setEndPage(6);
    range.setPlex(kPlexDuplex);
    range.imageShift().tabExtension = 40;
    const SpecialPage* ranges[] = {&range};
    state.exceptions.add(ranges);
    state.frontCover = makeCover(kCoverPrintedDuplex, 2);
    state.jobLevelStock = std::make_unique<Stock>();

    Ticket ticket;
    EXPECT_EQ(state.writeToTicket(ticket), kNoError);
    EXPECT_EQ(ticket.item(kInsertListKey)->client, kRecordClient);
    EXPECT_EQ(ticket.array(kInsertListKey)->size(), 3u);
    EXPECT_EQ(ticket.array(kExceptionListKey)->size(), 1u);
    EXPECT_TRUE(ticket.containsItem(kFrontCoverKey));
    EXPECT_FALSE(ticket.containsItem(kBackCoverKey));
    EXPECT_FALSE(ticket.containsItem(kJobLevelStockKey)); // the Paper/Output panel's item

    Stock jobStock;
    jobStock.setSize(4);
    ticket.setItem(kPanelClient, kJobLevelStockKey, jobStock.asTicket());
    SpecialPagesState read;
    read.backCover = makeCover(1, 1);
    read.readFromTicket(ticket);
    read.readFromTicket(ticket); // replaces rather than appends
    ASSERT_EQ(read.inserts.count(), 3);
    EXPECT_EQ(read.inserts.pageAtIndex(0)->startPage(), 0);
    EXPECT_EQ(read.inserts.pageAtIndex(2)->startPage(), 4);
    ASSERT_EQ(read.exceptions.count(), 1);
    EXPECT_EQ(read.exceptions.pageAtIndex(0)->asTicket(), range.asTicket());
    ASSERT_TRUE(read.frontCover && read.jobLevelStock);
    EXPECT_EQ(*read.frontCover, *state.frontCover);
    EXPECT_EQ(read.backCover, nullptr);
    EXPECT_EQ(*read.jobLevelStock, jobStock);
}

// Empty lists remove their keys rather than store empty arrays; a locked
// item stops the write.
TEST(SpecialPagesState, EmptyListsRemoveTheirKeys)
{
    Ticket ticket;
    ticket.setItem(kRecordClient, kInsertListKey, PropertyValue::array());
    ticket.setItem(kRecordClient, kExceptionListKey, PropertyValue::array());
    EXPECT_EQ(SpecialPagesState().writeToTicket(ticket), kNoError);
    EXPECT_TRUE(ticket.isEmpty());

    ticket.setItem(kPanelClient, kInsertListKey, PropertyValue::array(), true);
    EXPECT_EQ(SpecialPagesState().writeToTicket(ticket), kTicketItemLocked);
}

// Overlapping ranges in the ticket: later ones win, as when added by hand;
// what is not a list or not a record is passed over.
TEST(SpecialPagesState, ReadingCleansUpWhatTheTicketHolds)
{
    PropertyValue list = PropertyValue::array();
    for (auto [start, end] : {std::pair{1, 10}, {4, 5}, {9, 3}}) {
        ExceptionPage page;
        page.setStartPage(start);
        page.setEndPage(end);
        list.append(page.asTicket());
    }
    list.append(PropertyValue("junk"));
    Ticket ticket;
    ticket.setItem(kRecordClient, kExceptionListKey, list);
    ticket.setItem(kRecordClient, kInsertListKey, PropertyValue("not a list"));

    SpecialPagesState state;
    Insert stale;
    const SpecialPage* pages[] = {&stale};
    state.inserts.add(pages);
    state.jobLevelStock = std::make_unique<Stock>();
    state.readFromTicket(ticket);
    EXPECT_EQ(state.inserts.count(), 0);
    EXPECT_EQ(state.jobLevelStock, nullptr);
    ASSERT_EQ(state.exceptions.count(), 3);
    EXPECT_EQ(state.exceptions.pageAtIndex(0)->endPage(), 3);
    EXPECT_EQ(state.exceptions.pageAtIndex(1)->startPage(), 4);
    EXPECT_EQ(state.exceptions.pageAtIndex(2)->startPage(), 6);
}
