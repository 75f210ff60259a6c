#include "shell/ShellTicketItems.h"

#include <gtest/gtest.h>

using namespace orvan;

TEST(ShellTicketItems, ClientItemsFollowTheFacts)
{
    struct Row
    {
        const char* what;
        ClientFacts facts;
        bool user, computer, address;
    };
    const QString japanese = QString::fromUtf8("\u7530\u4E2D\u306EMac");
    const Row rows[] = {
        {"all known", {"ada", "Ada's Desk", "10.1.2.3"}, true, true, true},
        {"Latin-1 up to U+00FE",
         {"ada", QString::fromUtf8("Büro-Rechner þ"), {}},
         true,
         true,
         false},
        {"a character above U+00FE", {"ada", japanese, "10.1.2.3"}, true, false, true},
        {"U+00FF is outside the range", {"ada", QString::fromUtf8("ÿ"), {}}, true, false, false},
        {"a control character", {"ada", QStringLiteral("a\tb"), {}}, true, false, false},
        // Without a user, the computer name goes too, whatever it is.
        {"no user", {{}, "Plain Name", "10.1.2.3"}, false, false, true},
        {"nothing known", {}, false, false, false},
    };
    for (const Row& row : rows) {
        Ticket ticket;
        // Items left by an earlier job are replaced or removed, never kept.
        for (const QString& key : {kClientUserNameKey, kClientComputerNameKey, kClientIPAddressKey})
            ticket.setItem(kShellClient, key, PropertyValue("stale"));
        WriteShellTicketItems(ticket, row.facts);
        EXPECT_EQ(ticket.containsItem(kClientUserNameKey), row.user) << row.what;
        EXPECT_EQ(ticket.containsItem(kClientComputerNameKey), row.computer) << row.what;
        EXPECT_EQ(ticket.containsItem(kClientIPAddressKey), row.address) << row.what;
        if (row.computer)
            EXPECT_EQ(ticket.string(kClientComputerNameKey), row.facts.computerName) << row.what;
        for (const auto& [key, item] : ticket.items()) {
            EXPECT_EQ(item.client, "Q") << key.toStdString();
            EXPECT_FALSE(item.locked);
        }
    }
}
