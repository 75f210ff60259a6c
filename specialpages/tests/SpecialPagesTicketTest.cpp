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

} // namespace

// Covers are stored unlocked with the record client. With booklet layout on,
// a back cover equal to the front is not stored, and a stale back cover from
// an earlier sync does not survive either; covers switched off are removed.
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
        const TicketItem* item = ticket.item(kFrontCoverKey);
        ASSERT_NE(item, nullptr);
        EXPECT_EQ(std::pair(item->client, item->locked), std::pair(kRecordClient, false));
        EXPECT_EQ(ticket.containsItem(kBackCoverKey), backStored) << booklet.value_or(-1);
        if (backStored)
            EXPECT_EQ(Cover(ticket.dictionary(kBackCoverKey)), *back);

        std::unique_ptr<Cover> none;
        EXPECT_EQ(SyncCovers(ticket, SpecialPagesSync::WriteTicket, none, none), kNoError);
        EXPECT_FALSE(ticket.containsItem(kFrontCoverKey) || ticket.containsItem(kBackCoverKey));
    }
}

// With booklet layout on, the back cover is a copy of the front and a stored
// one is ignored; without it each cover has its own key, and what is not a
// cover reads as none.
TEST(SyncCoversRead, BookletLayoutMakesTheBackFromTheFront)
{
    Ticket ticket;
    ticket.setItem(kRecordClient, kBackCoverKey, makeCover(kCoverPrintedSimplex, 4)->asTicket());
    ticket.setItem(kRecordClient, kFrontCoverKey, PropertyValue("not a cover"));
    std::unique_ptr<Cover> front = makeCover(1, 1), back;
    SyncCovers(ticket, SpecialPagesSync::ReadTicket, front, back);
    EXPECT_EQ(front, nullptr);
    ASSERT_NE(back, nullptr);
    EXPECT_EQ(*back, *makeCover(kCoverPrintedSimplex, 4));

    setBooklet(ticket, true);
    SyncCovers(ticket, SpecialPagesSync::ReadTicket, front, back);
    EXPECT_EQ(back, nullptr) << "no front cover: no back cover either";
    const auto stored = makeCover(kCoverPrintedDuplex, 5);
    ticket.setItem(kRecordClient, kFrontCoverKey, stored->asTicket());
    EXPECT_EQ(SyncCovers(ticket, SpecialPagesSync::ReadTicket, front, back), kNoError);
    ASSERT_TRUE(front && back);
    EXPECT_NE(front.get(), back.get());
    EXPECT_EQ(*front, *stored);
    EXPECT_EQ(*back, *stored);
}

// The job-level stock is read but left to the Paper/Output panel to write.
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
    EXPECT_FALSE(ticket.containsItem(kJobLevelStockKey));
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
