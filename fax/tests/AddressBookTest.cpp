#include "fax/AddressBook.h"
#include "fax/FaxRecipient.h"
#include "fax/LANFaxSetupModel.h"
#include "fax/VCard.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include <gtest/gtest.h>

using namespace orvan;

namespace {

void writeFile(const QString& path, const QByteArray& text)
{
    QFile file(path);
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write(text);
}

// One person in the book read from a single card's text.
AddressBookRecord readPerson(const QByteArray& text)
{
    const auto cards = ParseVCards(text);
    EXPECT_EQ(cards.size(), 1u) << text.toStdString();
    if (cards.empty())
        return {};
    return AddressBookRecordFromVCard(cards.front()).value_or(AddressBookRecord{});
}

} // namespace

TEST(AddressBookTest, ReadsCardsAsOtherProgramsWriteThem)
{
    struct Row
    {
        const char* what;
        QByteArray text;
        QString first, last, organization, fax;
    };
    const Row rows[] = {
        {"4.0 with CRLF, URI phone, split TYPE",
         "BEGIN:VCARD\r\nVERSION:4.0\r\nFN:Kim Berg\r\nN:Berg;Kim;;;\r\n"
         "TEL;VALUE=uri;TYPE=work;TYPE=fax:tel:+46-8-555-0100\r\nEND:VCARD\r\n",
         "Kim", "Berg", "", "+46-8-555-0100"},
        {"3.0 with LF, upper-case types, escaped comma",
         "BEGIN:VCARD\nVERSION:3.0\nN:Ortiz;Luz\nFN:Luz Ortiz\nORG:Ortiz\\, Vega & Sons;Sales\n"
         "TEL;TYPE=WORK,FAX:555 0101\nEND:VCARD\n",
         "Luz", "Ortiz", "Ortiz, Vega & Sons", "555 0101"},
        {"folded lines, grouped property, bare 2.1 types",
         "BEGIN:VCARD\r\nVERSION:3.0\r\nFN:Ma\r\n Wei\r\nitem1.TEL;WORK;FAX:555\r\n\t0102\r\n"
         "ORG:Semi\\;colon\r\nEND:VCARD\r\n",
         "MaWei", "", "Semi;colon", "5550102"},
    };
    for (const Row& row : rows) {
        const AddressBookRecord person = readPerson(row.text);
        EXPECT_EQ(person.firstName, row.first) << row.what;
        EXPECT_EQ(person.lastName, row.last) << row.what;
        EXPECT_EQ(person.organization, row.organization) << row.what;
        ASSERT_EQ(person.faxNumbers().size(), 1u) << row.what;
        EXPECT_EQ(person.faxNumbers().front().value, row.fax) << row.what;
    }

    int skipped = 0;
    const auto cards = ParseVCards("junk\r\nBEGIN:VCARD\r\nFN:A\r\nno colon here\r\nEND:VCARD\r\n"
                                   "BEGIN:VCARD\r\nFN:never ends\r\n",
                                   &skipped);
    EXPECT_EQ(cards.size(), 1u);
    EXPECT_EQ(skipped, 3);
}

TEST(AddressBookTest, WrittenCardsReadBackEqual)
{
    AddressBookRecord person;
    person.uid = "urn:uuid:0f0e";
    person.formattedName = "Zoë Ångström, Esq.";
    person.firstName = "Zoë;\\\nX";                 // escapes round trip; edges are trimmed
    person.organization = QString(50, QChar(u'é')); // folds inside two-byte sequences
    person.mailbox = "Box 7";
    person.phones = {{"+1 555 0100", {"work", "fax"}}, {"555 0199", {"work"}}};
    person.emails = {{"zoe@example.org", {"work"}}};
    const QByteArray text = AddressBookRecordToVCard(person);
    for (const QByteArray& line : text.split('\n'))
        EXPECT_LE(line.size(), 76); // 75 octets and the CR
    const auto cards = ParseVCards(text);
    ASSERT_EQ(cards.size(), 1u);
    EXPECT_EQ(AddressBookRecordFromVCard(cards.front()), person);
}

TEST(AddressBookTest, CommittedRecipientIsFoundByItsIdWithoutALastName)
{
    QTemporaryDir dir;
    AddressBook book(dir.filePath("contacts"));
    FaxRecipient ann("Ann", "Lee", "+1 (555) 123-4567");
    ann.setPhoneNumber("555-0199");
    ann.setEmailAddress("ann@example.org");
    ann.setOrganization("Lee & Co");
    ann.setMailbox("12");
    EXPECT_FALSE(ann.abRecord(book));
    ASSERT_EQ(ann.commitToAddressBook(book), kNoError);
    ASSERT_TRUE(ann.uid());

    AddressBook reread(book.folder());
    reread.load();
    const auto record = ann.abRecord(reread);
    ASSERT_TRUE(record);
    EXPECT_EQ(record->firstName, "Ann");
    EXPECT_EQ(record->lastName, "");
    EXPECT_EQ(record->organization, "Lee & Co");
    EXPECT_EQ(record->mailbox, "12");
    const std::vector<LabelledValue> phones = {{"+1 (555) 123-4567", {"work", "fax"}},
                                               {"555-0199", {"work"}}};
    EXPECT_EQ(record->phones, phones);
    EXPECT_EQ(record->emails, (std::vector<LabelledValue>{{"ann@example.org", {"work"}}}));

    FaxRecipient stranger(FaxRecipient(PropertyValue::dictionary()));
    stranger.setUID("urn:uuid:nobody");
    EXPECT_FALSE(stranger.abRecord(reread));
}

TEST(AddressBookTest, GroupsCommitNewMembersAndListThemInOrder)
{
    QTemporaryDir dir;
    writeFile(dir.filePath("kim.vcf"), "BEGIN:VCARD\r\nVERSION:4.0\r\nUID:kim-1\r\nFN:Kim Berg\r\n"
                                       "TEL;TYPE=work,fax:555 0100\r\nEND:VCARD\r\n");
    AddressBook book(dir.path());
    book.load();
    FaxRecipientList list;
    auto kim = std::make_shared<FaxRecipient>("Kim", "Berg", "555 0100");
    kim->setUID("kim-1");
    list.append(std::make_shared<FaxRecipient>("Ann", "Lee", "555 0101"));
    list.append(kim);
    ASSERT_EQ(list.saveAsABGroupWithName(book, "Board"), kNoError);
    ASSERT_TRUE(list.recipientAtIndex(0)->uid());

    AddressBook reread(dir.path());
    reread.load();
    const auto groups = reread.search("Board");
    ASSERT_EQ(groups.size(), 1u);
    EXPECT_EQ(groups.front()->kind, AddressBookRecord::Kind::Group);
    EXPECT_EQ(groups.front()->memberUIDs,
              QStringList({*list.recipientAtIndex(0)->uid(), QString("kim-1")}));
    EXPECT_EQ(reread.records().size(), 3u);

    // Picking the group in the setup adds its members, in order.
    const LANFaxSetupModel setup(nullptr, {}, {}, reread);
    const auto choices = setup.addressBookChoices("Board");
    ASSERT_EQ(choices.size(), 1u);
    const auto members = setup.recipientsForChoice(choices.front());
    ASSERT_EQ(members.size(), 2u);
    EXPECT_EQ(members[0]->firstName(), "Ann");
    EXPECT_EQ(members[1]->uid(), "kim-1");

    // A folder that cannot be made stops before any member is committed.
    writeFile(dir.filePath("file"), "");
    AddressBook blocked(dir.filePath("file/contacts"));
    FaxRecipientList fresh;
    fresh.append(std::make_shared<FaxRecipient>("Bo", "Ek", "555 0102"));
    EXPECT_EQ(fresh.saveAsABGroupWithName(blocked, "Lost"), kAddressBookWriteFailed);
    EXPECT_FALSE(fresh.recipientAtIndex(0)->uid());
}
