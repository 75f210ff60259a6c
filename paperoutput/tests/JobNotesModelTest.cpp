#include "paperoutput/JobNotesModel.h"
#include "platform/SystemFacts.h"
#include "settings/Preferences.h"
#include "settings/PrintSession.h"
#include "settings/PropertyList.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include <gtest/gtest.h>

using namespace orvan;

namespace {

constexpr std::int32_t kUseJobNameItem = 0x51756a6e;   // 'Qujn'
constexpr std::int32_t kUseLoginNameItem = 0x4a6e554c; // 'JnUL'

// The user's preference folder in a fresh temporary folder.
class JobNotesTest : public ::testing::Test
{
protected:
    void SetUp() override
    {
        ASSERT_TRUE(m_dir.isValid());
        qputenv("XDG_CONFIG_HOME", m_dir.path().toUtf8());
    }
    void TearDown() override { qunsetenv("XDG_CONFIG_HOME"); }

    QString preferencesPath() const
    {
        return m_dir.filePath("orvan/" + kJobNotesPreferencesFileName);
    }
    void writePreferencesFile(const QByteArray& bytes) const
    {
        QDir().mkpath(m_dir.filePath("orvan"));
        QFile file(preferencesPath());
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(bytes);
    }
    static QByteArray contents(const QString& path)
    {
        QFile file(path);
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    }

    QTemporaryDir m_dir;
};

QString loginName()
{
    return SessionUserName().value_or(QString());
}

} // namespace

TEST_F(JobNotesTest, DefaultsFallBackToOnWithoutAFileAndSurviveACorruptOne)
{
    struct Case
    {
        const char* file; // nullptr: no file
        JobNotesPreferencesOptions expected;
    };
    const Case cases[] = {
        {nullptr, {1, 1, 1}},
        {"not a property list", {1, 1, 1}},
        {"<?xml "
         "version=\"1.0\"?><plist><dict><key>useLoginNameAsSenderName</key><integer>0</integer>"
         "</dict></plist>",
         {1, 0, 1}},
        {"<?xml version=\"1.0\"?><plist><dict><key>useDocumentNameAsJobName</key><string>0</string>"
         "</dict></plist>",
         {1, 1, 1}},
    };
    for (const Case& c : cases) {
        QFile::remove(preferencesPath());
        if (c.file)
            writePreferencesFile(c.file);
        JobNotesPreferencesOptions read{0, 0, 0};
        EXPECT_EQ(RetrieveJobNotesPreferences(&read), kNoError);
        EXPECT_EQ(read, c.expected) << (c.file ? c.file : "no file");
        // Reading never rewrites the file.
        EXPECT_EQ(contents(preferencesPath()), QByteArray(c.file ? c.file : ""))
            << (c.file ? c.file : "no file");
    }
    EXPECT_EQ(RetrieveJobNotesPreferences(nullptr), kBadParameter);
}

TEST_F(JobNotesTest, StoringDefaultsKeepsOtherKeysAndSetsACorruptFileAside)
{
    writePreferencesFile("garbage");
    ASSERT_EQ(StoreJobNotesPreferences({0, 1, 0}), kNoError);
    EXPECT_EQ(contents(preferencesPath() + ".unreadable"), "garbage");
    const auto file = CopyUserPreferences(kJobNotesPreferencesFileName);
    ASSERT_TRUE(file);
    const PropertyValue* stored = file->find(kUseDocumentNameAsJobNameKey);
    ASSERT_TRUE(stored);
    EXPECT_EQ(stored->numberType(), NumberType::CFIndex);

    PropertyValue withOther = *file;
    withOther.insert("other", PropertyValue("kept"));
    ASSERT_TRUE(WriteUserPreferences(kJobNotesPreferencesFileName, withOther));
    ASSERT_EQ(StoreJobNotesPreferences({1, 0, 1}), kNoError);
    JobNotesPreferencesOptions read;
    RetrieveJobNotesPreferences(&read);
    EXPECT_EQ(read, (JobNotesPreferencesOptions{1, 0, 1}));
    EXPECT_EQ(CopyUserPreferences(kJobNotesPreferencesFileName)->find("other")->toString(), "kept");
}

TEST_F(JobNotesTest, WritingTheTicket)
{
    struct Case
    {
        const char* what;
        JobNotesNameField name;
        std::optional<QString> written; // nullopt: the item is removed
    };
    const Case cases[] = {
        {"typed", {"Quarterly report", false}, QString("Quarterly report")},
        {"automatic", {"", true}, loginName()},
        {"empty", {"", false}, std::nullopt},
    };
    const QString nameKeys[] = {kJobNotesJobNameKey, kJobNotesSenderNameKey, kJobNotesRecipientKey};
    const QString flagKeys[] = {kJobNotesUseJobNameKey, kJobNotesSenderUseLoginNameKey,
                                kJobNotesRecipientUseLoginNameKey};
    for (const Case& c : cases) {
        for (std::size_t i = 0; i < kJobNotesNames.size(); ++i) {
            const JobNotesName which = kJobNotesNames[i];
            JobNotesModel model;
            const std::int32_t on = c.name.automatic ? 1 : 0;
            model.applyDefaults({on, on, on});
            if (!c.name.automatic)
                model.setName(which, c.name.typed.isEmpty() ? kXComboBoxEmpty : kNoError,
                              PropertyValue(c.name.typed));
            Ticket ticket;
            ticket.setItem(kPanelClient, nameKeys[i], PropertyValue("stale"));
            ASSERT_EQ(model.syncToTicket(ticket), kNoError);
            EXPECT_EQ(ticket.boolean(flagKeys[i]), c.name.automatic) << c.what << " " << i;
            EXPECT_EQ(ticket.string(nameKeys[i]), c.written) << c.what << " " << i;
            if (const TicketItem* item = ticket.item(flagKeys[i]))
                EXPECT_EQ(item->client, kPanelClient);
        }
    }
}

TEST_F(JobNotesTest, EmptyMessagesAndTheAdditionalInformationAreRemoved)
{
    Ticket ticket;
    for (const QString& key :
         {kJobNotesMessageKey, kJobNotesSheetMessageKey, kJobNotesAdditionalInfoKey})
        ticket.setItem(kPanelClient, key, PropertyValue("old"));
    JobNotesModel model;
    model.setJobStartMessage("Staple in the top left corner");
    ASSERT_EQ(model.syncToTicket(ticket), kNoError);
    EXPECT_EQ(ticket.string(kJobNotesMessageKey), "Staple in the top left corner");
    EXPECT_FALSE(ticket.containsItem(kJobNotesSheetMessageKey));
    EXPECT_FALSE(ticket.containsItem(kJobNotesAdditionalInfoKey));

    // A locked item is reported, and the rest is still written.
    ticket.setItem(kPanelClient, kJobNotesSheetMessageKey, PropertyValue("locked"), true);
    model.setJobStartMessage("");
    EXPECT_EQ(model.syncToTicket(ticket), kTicketItemLocked);
    EXPECT_FALSE(ticket.containsItem(kJobNotesMessageKey));
    EXPECT_TRUE(ticket.containsItem(kJobNotesRecipientUseLoginNameKey));
}

TEST_F(JobNotesTest, ReadingTheTicket)
{
    struct Case
    {
        const char* what;
        std::optional<bool> flag;
        std::optional<QString> name;
        bool defaultOn;
        JobNotesNameField expected;
    };
    const Case cases[] = {
        {"typed name", false, QString("Ann"), true, {"Ann", false}},
        {"automatic with a name", true, QString("ann"), false, {"", true}},
        {"no items, default on", std::nullopt, std::nullopt, true, {"", true}},
        {"no items, default off", std::nullopt, std::nullopt, false, {"", false}},
        {"flag without name", false, std::nullopt, true, {"", false}},
        {"name without flag, default off", std::nullopt, QString("Bob"), false, {"Bob", false}},
    };
    for (const Case& c : cases) {
        Ticket ticket;
        if (c.flag)
            ticket.setItem(kPanelClient, kJobNotesSenderUseLoginNameKey,
                           PropertyValue::boolean(*c.flag));
        if (c.name)
            ticket.setItem(kPanelClient, kJobNotesSenderNameKey, PropertyValue(*c.name));
        JobNotesModel model;
        model.setBannerMessage("left over");
        model.applyDefaults({1, c.defaultOn ? 1 : 0, 1});
        model.syncFromTicket(ticket);
        EXPECT_EQ(model.name(JobNotesName::Sender), c.expected) << c.what;
        EXPECT_EQ(model.bannerMessage(), "") << c.what;
    }
}

TEST_F(JobNotesTest, WhatTheComboBoxGivesChoosesOrTypesTheName)
{
    JobNotesModel model;
    model.applyDefaults({0, 0, 0});
    model.setName(JobNotesName::Job, kNoError, PropertyValue("Budget"));
    EXPECT_EQ(model.name(JobNotesName::Job), (JobNotesNameField{"Budget", false}));
    // The other map's placeholder is not this box's automatic item.
    model.setName(JobNotesName::Job, kNoError, PropertyValue::integer(kUseLoginNameItem));
    EXPECT_FALSE(model.name(JobNotesName::Job).automatic);
    model.setName(JobNotesName::Job, kNoError, PropertyValue::integer(kUseJobNameItem));
    EXPECT_EQ(model.name(JobNotesName::Job), (JobNotesNameField{"Budget", true}));
    EXPECT_EQ(model.boxValue(JobNotesName::Job), PropertyValue::integer(kUseJobNameItem));
    model.setName(JobNotesName::Job, kXComboBoxEmpty, PropertyValue());
    EXPECT_EQ(model.name(JobNotesName::Job), JobNotesNameField{});
    EXPECT_EQ(model.boxValue(JobNotesName::Job), PropertyValue(""));
}

TEST_F(JobNotesTest, SyncRoundTripsAndNeedsASession)
{
    JobNotesModel written;
    written.applyDefaults({1, 0, 0});
    written.setName(JobNotesName::Sender, kNoError, PropertyValue("Dana"));
    written.setBannerMessage("For the board");
    written.setJobStartMessage("Load letterhead");
    PrintSession session;
    ASSERT_EQ(written.sync(&session, false), kNoError);

    JobNotesModel read;
    read.applyDefaults({0, 1, 1});
    ASSERT_EQ(read.sync(&session, true), kNoError);
    for (JobNotesName which : kJobNotesNames)
        EXPECT_EQ(read.name(which), written.name(which)) << static_cast<int>(which);
    EXPECT_EQ(read.bannerMessage(), "For the board");
    EXPECT_EQ(read.jobStartMessage(), "Load letterhead");

    EXPECT_EQ(read.sync(nullptr, true), kSyncMissingContext);
    EXPECT_EQ(read.sync(nullptr, false), kSyncMissingContext);
    EXPECT_EQ(read.bannerMessage(), "For the board");
}

TEST_F(JobNotesTest, SavedDefaultsApplyToTheNamesNotTypedYet)
{
    JobNotesModel model;
    model.loadDefaults();
    for (JobNotesName which : kJobNotesNames)
        EXPECT_TRUE(model.name(which).automatic);
    model.setName(JobNotesName::Sender, kNoError, PropertyValue("Eve"));
    ASSERT_EQ(model.saveDefaults({0, 0, 1}), kNoError);
    EXPECT_FALSE(model.name(JobNotesName::Job).automatic);
    EXPECT_EQ(model.name(JobNotesName::Sender), (JobNotesNameField{"Eve", false}));
    EXPECT_TRUE(model.name(JobNotesName::Recipient).automatic);

    JobNotesModel next;
    next.loadDefaults();
    EXPECT_EQ(next.defaults(), (JobNotesPreferencesOptions{0, 0, 1}));
}
