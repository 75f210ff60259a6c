#include "fax/FaxRecipient.h"

#include <gtest/gtest.h>

using namespace orvan;

namespace {

FaxRecipient person(FaxField first, FaxField last, FaxField fax)
{
    return FaxRecipient(std::move(first), std::move(last), std::move(fax));
}

const FaxField unset;

} // namespace

TEST(FaxRecipientTest, ListFindsOnlyRecipientsWithTheSameNamesAndNumber)
{
    FaxRecipientList list;
    list.append(std::make_shared<FaxRecipient>(person(unset, unset, "555-0100")));
    list.append(std::make_shared<FaxRecipient>(person("Ann", "Smith", "555-0101")));
    list.append(std::make_shared<FaxRecipient>(person("", unset, "555-0102")));

    const struct
    {
        FaxRecipient candidate;
        bool found;
    } rows[] = {
        {person(unset, unset, "555-0100"), true},
        {person("Ann", unset, "555-0100"), false}, // set never equals unset
        {person("Ann", "Smith", "555-0101"), true},
        {person("Ann", "smith", "555-0101"), false}, // case counts
        {person("Ann", "Smith", "5550101"), false},  // no normalising
        {person("", unset, "555-0102"), true},       // empty is a set value
        {person(unset, unset, "555-0102"), false},
    };
    for (const auto& row : rows) {
        FaxRecipient candidate = row.candidate;
        candidate.setOrganization("Other fields do not count");
        EXPECT_EQ(list.containsRecipient(candidate), row.found)
            << DisplayNameFromRecipient(candidate).toStdString() << " "
            << candidate.faxNumber().value_or("-").toStdString();
    }
}

TEST(FaxRecipientTest, DialingStringsAndDisplayNames)
{
    const std::pair<const char*, const char*> dialing[] = {
        {"9,1-800-ABC-defg", "9,1800ABC"},
        {"+1 (55) 2-3", "15523"},
        {"*72#=:!/S$<>ABCD", "*72#=:!/S$<>ABCD"},
        {"555.0100 ext. 12", "555010012"},
        {"", ""},
    };
    for (const auto& [number, expected] : dialing)
        EXPECT_EQ(CopyDialingStringFromFaxNumber(QString::fromUtf8(number)), expected) << number;

    EXPECT_EQ(DisplayNameFromRecipient(person("Ann", "Lee", unset)), "Ann Lee");
    EXPECT_EQ(DisplayNameFromRecipient(person(unset, "Lee", unset)), "Lee");
    EXPECT_EQ(DisplayNameFromRecipient(person("Ann", unset, unset)), "Ann");
    EXPECT_EQ(DisplayNameFromRecipient(person(unset, unset, "555")), "");
}

TEST(FaxRecipientTest, TicketFormHoldsOnlySetFieldsAndReadingClearsAbsentOnes)
{
    FaxRecipient full = person("Ann", "Lee", "+1 (555) 123-4567");
    full.setFaxNumberLabel("work fax");
    full.setOrganization("Lee & Co");
    full.setPhoneNumber("555-0199");
    full.setEmailAddress("ann@example.org");
    full.setMailbox("12");
    full.setUID("urn:uuid:1");
    EXPECT_EQ(full.toTicket().size(), 9u);
    EXPECT_EQ(FaxRecipient(full.toTicket()), full);

    FaxRecipient partial = full;
    partial.setOrganization(unset);
    partial.setUID(unset);
    const PropertyValue ticket = partial.toTicket();
    EXPECT_EQ(ticket.size(), 7u);
    EXPECT_FALSE(ticket.contains("Organization"));
    EXPECT_FALSE(ticket.contains("UID"));

    // Reading clears what the dictionary lacks, and skips values that are
    // not strings; a value that is no dictionary changes nothing.
    FaxRecipient read = full;
    PropertyValue odd = ticket;
    odd.insert("Mailbox", PropertyValue::integer(12));
    read.fromTicket(odd);
    EXPECT_FALSE(read.uid());
    EXPECT_FALSE(read.organization());
    EXPECT_FALSE(read.mailbox());
    EXPECT_EQ(read.firstName(), "Ann");
    read.fromTicket(PropertyValue("not a dictionary"));
    EXPECT_EQ(read.firstName(), "Ann");
}

TEST(FaxRecipientTest, ListKeepsOrderSharesRecordsAndRebuildsFromTicket)
{
    auto ann = std::make_shared<FaxRecipient>(person("Ann", "Lee", "1"));
    auto twin = std::make_shared<FaxRecipient>(*ann);
    auto bo = std::make_shared<FaxRecipient>(person("Bo", unset, "2"));
    FaxRecipientList list;
    list.append(twin);
    list.append(ann);
    list.insertAtIndex(bo, 1);
    ASSERT_EQ(list.count(), 3);
    EXPECT_EQ(list.recipientAtIndex(1), bo);
    EXPECT_EQ(list.recipientAtIndex(3), nullptr);

    // remove() takes the very record, not an equal one.
    list.remove(ann.get());
    EXPECT_EQ(list.count(), 2);
    EXPECT_EQ(list.recipientAtIndex(0), twin);
    // A holder outside the list keeps its record alive.
    std::weak_ptr<FaxRecipient> watch = bo;
    bo.reset();
    list.removeAtIndex(1);
    EXPECT_TRUE(watch.expired());

    list.append(ann);
    const PropertyValue ticket = list.toTicket();
    ASSERT_EQ(ticket.size(), 2u);
    EXPECT_EQ(ticket.asArray()[1].find("FirstName")->toString(), "Ann");

    FaxRecipientList rebuilt;
    rebuilt.fromTicket(ticket);
    ASSERT_EQ(rebuilt.count(), 2);
    EXPECT_NE(rebuilt.recipientAtIndex(1), ann); // fresh records
    EXPECT_EQ(*rebuilt.recipientAtIndex(1), *ann);
    rebuilt.fromTicket(PropertyValue::array());
    EXPECT_EQ(rebuilt.count(), 0);
}
