#include "paperoutput/JobNotesModel.h"
#include "settings/PrintSession.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include <gtest/gtest.h>

using namespace orvan;

namespace {

// The user's preferences in a fresh temporary folder.
class JobNotesTest : public ::testing::Test
{
protected:
    void SetUp() override
    {
        ASSERT_TRUE(m_dir.isValid());
        qputenv("XDG_CONFIG_HOME", m_dir.path().toUtf8());
        QDir().mkpath(m_dir.filePath("orvan"));
    }
    void TearDown() override { qunsetenv("XDG_CONFIG_HOME"); }
    QString preferencesPath() const
    {
        return m_dir.filePath("orvan/" + kJobNotesPreferencesFileName);
    }

    QTemporaryDir m_dir;
};

} // namespace

TEST_F(JobNotesTest, DefaultsReadAsOnUnlessTheFileSaysOtherwise)
{
    const struct
    {
        const char* file; // nullptr: no file
        JobNotesPreferencesOptions expected;
    } cases[] = {
        {nullptr, {1, 1, 1}},
        {"<plist><dict><key>useLoginNameAsSenderName</key><integer>0</integer></dict></plist>",
         {1, 0, 1}},
        {"<plist><dict><key>useDocumentNameAsJobName</key><string>0</string></dict></plist>",
         {1, 1, 1}},
    };
    for (const auto& c : cases) {
        QFile file(preferencesPath());
        file.remove();
        if (c.file)
            ASSERT_TRUE(file.open(QIODevice::WriteOnly) && file.write(c.file) > 0);
        file.close();
        JobNotesPreferencesOptions read{0, 0, 0};
        EXPECT_EQ(RetrieveJobNotesPreferences(&read), kNoError);
        EXPECT_EQ(read, c.expected) << (c.file ? c.file : "no file");
    }
    EXPECT_EQ(RetrieveJobNotesPreferences(nullptr), kBadParameter);

    ASSERT_EQ(StoreJobNotesPreferences({0, 1, 0}), kNoError);
    JobNotesPreferencesOptions stored;
    RetrieveJobNotesPreferences(&stored);
    EXPECT_EQ(stored, (JobNotesPreferencesOptions{0, 1, 0}));
}

// Names neither typed nor automatic, and empty banner texts, remove their
// items rather than writing "". (Typed and login names: JobNotesPrintTest.)
TEST_F(JobNotesTest, WritingEmptyNamesAndMessagesRemovesTheirItems)
{
    JobNotesModel model;
    model.applyDefaults({0, 0, 0});
    model.setJobStartMessage("Load letterhead");
    Ticket ticket;
    for (const QString& key :
         {kJobNotesJobNameKey, kJobNotesSheetMessageKey, kJobNotesAdditionalInfoKey})
        ticket.setItem(kPanelClient, key, PropertyValue("stale"));
    ASSERT_EQ(model.syncToTicket(ticket), kNoError);
    for (const QString& key : {kJobNotesUseJobNameKey, kJobNotesSenderUseLoginNameKey,
                               kJobNotesRecipientUseLoginNameKey})
        EXPECT_EQ(ticket.boolean(key), false) << key.toStdString();
    for (const QString& key : {kJobNotesJobNameKey, kJobNotesSenderNameKey, kJobNotesRecipientKey,
                               kJobNotesSheetMessageKey, kJobNotesAdditionalInfoKey})
        EXPECT_FALSE(ticket.containsItem(key)) << key.toStdString();
    EXPECT_EQ(ticket.item(kJobNotesMessageKey)->client, kPanelClient);
}

TEST_F(JobNotesTest, ReadingTheTicket)
{
    const struct
    {
        std::optional<bool> flag;
        std::optional<QString> name;
        bool defaultOn;
        JobNotesNameField expected;
    } cases[] = {
        {false, QString("Ann"), true, {"Ann", false}},
        {true, QString("ann"), false, {"", true}},
        {std::nullopt, std::nullopt, true, {"", true}},
        {std::nullopt, QString("Bob"), true, {"Bob", false}},
        {false, std::nullopt, true, {"", false}},
    };
    for (const auto& c : cases) {
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
        EXPECT_EQ(model.name(JobNotesName::Sender), c.expected)
            << c.name.value_or("-").toStdString();
        EXPECT_EQ(model.bannerMessage(), "");
    }
    JobNotesModel model;
    model.setBannerMessage("kept");
    EXPECT_EQ(model.sync(nullptr, true), kSyncMissingContext);
    EXPECT_EQ(model.bannerMessage(), "kept");
}

TEST_F(JobNotesTest, SavedDefaultsApplyToTheNamesNotTypedYet)
{
    JobNotesModel model;
    model.loadDefaults();
    model.setName(JobNotesName::Sender, kNoError, PropertyValue("Eve"));
    ASSERT_EQ(model.saveDefaults({0, 0, 1}), kNoError);
    EXPECT_EQ(model.name(JobNotesName::Job), JobNotesNameField{});
    EXPECT_EQ(model.name(JobNotesName::Sender), (JobNotesNameField{"Eve", false}));
    EXPECT_TRUE(model.name(JobNotesName::Recipient).automatic);
}
