#include "settings/Ticket.h"
#include "settings/PrintSession.h"

#include <gtest/gtest.h>

using namespace orvan;

TEST(Ticket, ItemsKeepClientAndLockedFlag)
{
    Ticket ticket;
    ASSERT_EQ(ticket.setItem(kShellClient, "com.orvan.print.A", PropertyValue("x")), kNoError);
    ASSERT_EQ(ticket.setItem(kPanelClient, "com.orvan.print.B", PropertyValue::integer(4), true),
              kNoError);
    EXPECT_EQ(ticket.item("com.orvan.print.A")->client, "Q");
    EXPECT_FALSE(ticket.item("com.orvan.print.A")->locked);
    EXPECT_TRUE(ticket.item("com.orvan.print.B")->locked);

    // A locked item can be neither replaced nor removed.
    EXPECT_EQ(ticket.setItem(kPanelClient, "com.orvan.print.B", PropertyValue::integer(5)),
              kTicketItemLocked);
    EXPECT_EQ(ticket.releaseItem("com.orvan.print.B"), kTicketItemLocked);
    EXPECT_EQ(ticket.integer("com.orvan.print.B"), 4);

    EXPECT_EQ(ticket.releaseItem("com.orvan.print.A"), kNoError);
    EXPECT_FALSE(ticket.containsItem("com.orvan.print.A"));
    EXPECT_EQ(ticket.releaseItem("com.orvan.print.A"), kTicketItemNotFound);
    EXPECT_EQ(ticket.setItem(kShellClient, "", PropertyValue("x")), kBadParameter);
    EXPECT_EQ(ticket.setItem(kShellClient, "k", PropertyValue()), kBadParameter);
}

TEST(Ticket, TypedReadersRefuseOtherKinds)
{
    Ticket ticket;
    ticket.setItem(kPanelClient, "s", PropertyValue("text"));
    ticket.setItem(kPanelClient, "n", PropertyValue::integer(1LL << 40, NumberType::SInt64));
    EXPECT_EQ(ticket.string("s"), "text");
    EXPECT_FALSE(ticket.string("n"));
    EXPECT_FALSE(ticket.integer("s"));
    EXPECT_FALSE(ticket.integer("n")); // not a ticket integer: too large for CFIndex
    EXPECT_EQ(ticket.integer("n", NumberType::SInt64), 1LL << 40);
    EXPECT_EQ(ticket.dictionary("s"), nullptr);
    EXPECT_FALSE(ticket.boolean("missing"));
}

TEST(Ticket, CopiesIncludePpdDictionaryAndSubTickets)
{
    Ticket ticket;
    ticket.ppdDictionary().insert("Jog", PropertyValue("EndOfSet"));
    ticket.ensureSubTicket("com.apple.print.PaperInfoTicket")
        .setItem(kPanelClient, "k", PropertyValue("v"));
    Ticket copy = ticket;
    EXPECT_EQ(copy, ticket);
    copy.ensureSubTicket("com.apple.print.PaperInfoTicket")
        .setItem(kPanelClient, "k", PropertyValue("w"));
    EXPECT_NE(copy, ticket);
    EXPECT_EQ(ticket.subTicket("com.apple.print.PaperInfoTicket")->string("k"), "v");
}

TEST(PrintSession, TicketsByKeyAndUntouchedOutputForUnknownKeys)
{
    PrintSession session;
    Ticket* out = nullptr;
    EXPECT_EQ(GetTicketFromSession(&session, kPrintSettingsTicketKey, &out), kNoError);
    EXPECT_EQ(out, &session.printSettings());
    EXPECT_EQ(GetTicketFromSession(&session, kPageFormatTicketKey, &out), kNoError);
    EXPECT_EQ(out, &session.pageFormat());

    Ticket sentinel;
    out = &sentinel;
    EXPECT_EQ(GetTicketFromSession(&session, "NoSuchTicket", &out), kNoError);
    EXPECT_EQ(out, &sentinel);
    EXPECT_EQ(GetTicketFromSession(nullptr, kPrintSettingsTicketKey, &out), kBadParameter);
}

TEST(PrintSession, CurrentSessionIsProcessWide)
{
    PrintSession session;
    SetCurrentPrintSession(&session);
    EXPECT_EQ(GetCurrentPrintSession(), &session);
    SetCurrentPrintSession(nullptr);
    EXPECT_EQ(GetCurrentPrintSession(), nullptr);
}
