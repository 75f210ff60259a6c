// The Job Notes pane offscreen: what the user types reaches the ticket and
// the input history, the next dialog offers it, and the defaults file is
// read and replaced the way a user can trust.
#include "paperoutput/JobNotesPanel.h"
#include "platform/Alerts.h"
#include "platform/SystemFacts.h"
#include "settings/Bundle.h"
#include "settings/Preferences.h"
#include "settings/PrintSession.h"
#include "settings/SettingMapAccess.h"
#include "shell/CommandEvent.h"
#include "shell/PDEShell.h"
#include "ui/InputLimitValidator.h"

#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QDir>
#include <QFile>
#include <QLineEdit>
#include <QMessageBox>
#include <QPushButton>
#include <QTemporaryDir>
#include <QTest>
#include <QTimer>

#include <gtest/gtest.h>

using namespace orvan;

namespace {

const Bundle& PluginBundle()
{
    static const Bundle bundle(QStringLiteral(ORVAN_PLUGIN_DIR));
    return bundle;
}

// A pane with the panel in it, read from the session as the host does.
struct OpenPane
{
    explicit OpenPane(PrintSession& session) : panel(&PluginBundle())
    {
        EXPECT_EQ(panel.initialize(&pane, &session), kNoError);
        EXPECT_EQ(panel.sync(&session, true), kNoError);
    }
    ~OpenPane()
    {
        panel.close();
        panel.terminate(kNoError);
    }
    // What the Print button does: the OK command to the window, then the
    // sync that writes the job.
    Status print(PrintSession& session)
    {
        CommandEvent ok(kCommandOK);
        QCoreApplication::sendEvent(pane.window(), &ok);
        return panel.sync(&session, false);
    }
    QComboBox* box(const char* name) const { return pane.findChild<QComboBox*>(name); }
    QLineEdit* field(const char* name) const { return pane.findChild<QLineEdit*>(name); }
    static void type(QWidget* field, const QString& text) { QTest::keyClicks(field, text); }

    QWidget pane;
    JobNotesPanel panel;
};

class JobNotesPaneTest : public ::testing::Test
{
protected:
    void SetUp() override
    {
        ASSERT_TRUE(m_dir.isValid());
        qputenv("XDG_CONFIG_HOME", m_dir.path().toUtf8());
        m_previous = SetAlertPresenter([this](const Alert& alert) { m_alerts << alert.title; });
    }
    void TearDown() override
    {
        SetAlertPresenter(m_previous);
        qunsetenv("XDG_CONFIG_HOME");
    }
    QString preferencesPath() const
    {
        return m_dir.filePath("orvan/" + kJobNotesPreferencesFileName);
    }
    static QString text(const char* key) { return *PluginBundle().localizedString(key); }

    QTemporaryDir m_dir;
    QStringList m_alerts;
    AlertPresenter m_previous;
};

QStringList Items(const QComboBox* box)
{
    QStringList items;
    for (int i = 0; i < box->count(); ++i)
        items << box->itemText(i);
    return items;
}

} // namespace

TEST_F(JobNotesPaneTest, TypedNotesReachTheTicketAndTheHistoryAndTheNextDialogOffersThem)
{
    PrintSession session;
    {
        OpenPane open(session);
        // No defaults file: all three names start on their automatic items.
        EXPECT_EQ(open.box("JobNameBox")->currentText(), text("UseJobName"));
        EXPECT_EQ(open.box("SenderNameBox")->currentText(), text("UseLoginName"));
        EXPECT_EQ(open.box("RecipientNameBox")->currentText(), text("UseLoginName"));

        open.box("JobNameBox")->lineEdit()->clear();
        OpenPane::type(open.box("JobNameBox")->lineEdit(), "Board minutes");
        open.box("SenderNameBox")->lineEdit()->clear();
        OpenPane::type(open.box("SenderNameBox")->lineEdit(), "Ann Lee");
        OpenPane::type(open.field("BannerMessageField"), "Confidential");
        ASSERT_EQ(open.print(session), kNoError);
    }
    const Ticket& ticket = session.printSettings();
    EXPECT_EQ(ticket.string(kJobNotesJobNameKey), "Board minutes");
    EXPECT_EQ(ticket.boolean(kJobNotesUseJobNameKey), false);
    EXPECT_EQ(ticket.string(kJobNotesSenderNameKey), "Ann Lee");
    EXPECT_EQ(ticket.string(kJobNotesRecipientKey), SessionUserName());
    EXPECT_EQ(ticket.boolean(kJobNotesRecipientUseLoginNameKey), true);
    EXPECT_EQ(ticket.string(kJobNotesSheetMessageKey), "Confidential");
    EXPECT_FALSE(ticket.containsItem(kJobNotesMessageKey));

    const PropertyValue history = *CopyUserPreferences(kInputHistoryFileName);
    EXPECT_EQ(*history.find("jobNotesJobName"), PropertyValue(PropertyArray{"Board minutes"}));
    EXPECT_EQ(*history.find("jobNotesSenderName"), PropertyValue(PropertyArray{"Ann Lee"}));
    // The automatic item is not an entry of its own.
    const PropertyValue* recipients = history.find("jobNotesRecipientName");
    EXPECT_TRUE(!recipients || recipients->size() == 0);

    // A new job offers the names typed before, below the automatic items.
    PrintSession next;
    OpenPane second(next);
    EXPECT_EQ(Items(second.box("JobNameBox")), QStringList({text("UseJobName"), "Board minutes"}));
    EXPECT_EQ(Items(second.box("SenderNameBox")), QStringList({text("UseLoginName"), "Ann Lee"}));
    EXPECT_EQ(second.box("JobNameBox")->currentText(), text("UseJobName"));
}

TEST_F(JobNotesPaneTest, CancelledDialogLeavesTheHistoryAndEmptyFieldsRemoveTheirItems)
{
    PrintSession session;
    session.printSettings().setItem(kPanelClient, kJobNotesSheetMessageKey, PropertyValue("Old"));
    session.printSettings().setItem(kPanelClient, kJobNotesUseJobNameKey,
                                    PropertyValue::boolean(false));
    session.printSettings().setItem(kPanelClient, kJobNotesJobNameKey, PropertyValue("Draft"));
    {
        OpenPane open(session);
        EXPECT_EQ(open.field("BannerMessageField")->text(), "Old");
        EXPECT_EQ(open.box("JobNameBox")->currentText(), "Draft");
        open.field("BannerMessageField")->clear();
        OpenPane::type(open.box("SenderNameBox")->lineEdit(), " typed but cancelled");
        // Written when the user looked at another pane, then cancelled.
        ASSERT_EQ(open.panel.sync(&session, false), kNoError);
    }
    EXPECT_EQ(CopyUserPreferences(kInputHistoryFileName)->size(), 0u);
    {
        OpenPane open(session);
        open.field("BannerMessageField")->clear();
        ASSERT_EQ(open.print(session), kNoError);
    }
    EXPECT_FALSE(session.printSettings().containsItem(kJobNotesSheetMessageKey));
}

TEST_F(JobNotesPaneTest, FieldsStopAtTheirLongestText)
{
    PrintSession session;
    OpenPane open(session);
    const struct
    {
        QLineEdit* field;
        int limit;
    } cases[] = {
        {open.field("BannerMessageField"), kBannerMessageLimit},
        {open.field("JobStartMessageField"), kJobStartMessageLimit},
        {open.box("RecipientNameBox")->lineEdit(), kJobNotesNameLimit},
    };
    for (const auto& c : cases) {
        c.field->clear();
        c.field->insert(QString(c.limit + 20, 'x'));
        EXPECT_EQ(c.field->text().size(), c.limit) << c.field->objectName().toStdString();
    }
}

TEST_F(JobNotesPaneTest, CorruptDefaultsReadAsOnQuietlyAndAreSetAsideWhenNewOnesAreSaved)
{
    QDir().mkpath(m_dir.filePath("orvan"));
    {
        QFile corrupt(preferencesPath());
        ASSERT_TRUE(corrupt.open(QIODevice::WriteOnly));
        corrupt.write("<plist><dict><key>useLoginNameAsSenderName");
    }
    PrintSession session;
    OpenPane open(session);
    for (const char* name : {"JobNameBox", "SenderNameBox", "RecipientNameBox"})
        EXPECT_NE(open.box(name)->currentText(), "") << name;
    EXPECT_TRUE(m_alerts.isEmpty());
    for (QWidget* window : QApplication::topLevelWidgets())
        EXPECT_EQ(qobject_cast<QMessageBox*>(window), nullptr);

    // Cancel leaves the file as it is.
    QTimer::singleShot(0, [] {
        QWidget* dialog = QApplication::activeModalWidget();
        ASSERT_TRUE(dialog && dialog->objectName() == "JobNotesPrefs");
        dialog->findChild<QPushButton*>("CancelButton")->click();
    });
    open.pane.findChild<QPushButton*>("JobNotesDefaultsButton")->click();
    EXPECT_TRUE(QFile::exists(preferencesPath()));
    EXPECT_FALSE(QFile::exists(preferencesPath() + ".unreadable"));

    // Saving replaces it, the unreadable one kept beside it.
    QStringList shownChecked;
    QTimer::singleShot(0, [&shownChecked] {
        QWidget* dialog = QApplication::activeModalWidget();
        ASSERT_TRUE(dialog);
        for (auto* box : dialog->findChildren<QCheckBox*>())
            if (box->isChecked())
                shownChecked << box->objectName();
        dialog->findChild<QCheckBox*>("SenderLoginNameCheckBox")->setChecked(false);
        dialog->findChild<QPushButton*>("OKButton")->click();
    });
    open.pane.findChild<QPushButton*>("JobNotesDefaultsButton")->click();
    EXPECT_EQ(shownChecked.size(), 3);
    JobNotesPreferencesOptions stored;
    RetrieveJobNotesPreferences(&stored);
    EXPECT_EQ(stored, (JobNotesPreferencesOptions{1, 0, 1}));
    QFile aside(preferencesPath() + ".unreadable");
    ASSERT_TRUE(aside.open(QIODevice::ReadOnly));
    EXPECT_EQ(aside.readAll(), "<plist><dict><key>useLoginNameAsSenderName");
    // The sender was not typed, so the new default shows at once.
    EXPECT_EQ(open.box("SenderNameBox")->currentText(), "");
    EXPECT_TRUE(m_alerts.isEmpty());
}
