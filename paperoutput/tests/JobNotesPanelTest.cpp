// The Job Notes pane offscreen: typed names stay out of the input history
// unless the user prints, the fields' lengths, and how the defaults file is
// read and replaced. (Printing from orvan-print: JobNotesPrintTest.)
#include "paperoutput/JobNotesPanel.h"
#include "platform/Alerts.h"
#include "settings/Bundle.h"
#include "settings/Preferences.h"
#include "settings/PrintSession.h"
#include "settings/SettingMapAccess.h"

#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QLineEdit>
#include <QMessageBox>
#include <QPushButton>
#include <QTemporaryDir>
#include <QTest>
#include <QTimer>

#include <gtest/gtest.h>

using namespace orvan;

namespace {

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
        m_panel.close();
        SetAlertPresenter(m_previous);
        qunsetenv("XDG_CONFIG_HOME");
    }
    // Opens the pane as the host does.
    void open()
    {
        ASSERT_EQ(m_panel.initialize(&m_pane, &m_session), kNoError);
        ASSERT_EQ(m_panel.sync(&m_session, true), kNoError);
    }
    QString preferencesPath() const
    {
        return m_dir.filePath("orvan/" + kJobNotesPreferencesFileName);
    }
    QStringList asideFiles() const
    {
        return QFileInfo(preferencesPath())
            .dir()
            .entryList({kJobNotesPreferencesFileName + ".unreadable-*"});
    }
    QComboBox* box(const char* name) const { return m_pane.findChild<QComboBox*>(name); }
    QLineEdit* field(const char* name) const { return m_pane.findChild<QLineEdit*>(name); }
    // Clicks Defaults... and lets `answer` work the dialog.
    void editDefaults(const std::function<void(QWidget*)>& answer)
    {
        QTimer::singleShot(0, [&answer] {
            QWidget* dialog = QApplication::activeModalWidget();
            ASSERT_TRUE(dialog && dialog->objectName() == "JobNotesPrefs");
            answer(dialog);
        });
        m_pane.findChild<QPushButton*>("JobNotesDefaultsButton")->click();
    }

    QTemporaryDir m_dir;
    QStringList m_alerts;
    AlertPresenter m_previous;
    PrintSession m_session;
    QWidget m_pane;
    Bundle m_bundle{QStringLiteral(ORVAN_PLUGIN_DIR)};
    JobNotesPanel m_panel{&m_bundle};
};

} // namespace

TEST_F(JobNotesPaneTest, NamesWrittenWithoutPrintingStayOutOfTheHistory)
{
    open();
    box("JobNameBox")->lineEdit()->clear();
    QTest::keyClicks(box("JobNameBox")->lineEdit(), "Looked at, then cancelled");
    ASSERT_EQ(m_panel.sync(&m_session, false), kNoError); // another pane was chosen
    m_panel.close();
    EXPECT_EQ(m_session.printSettings().string(kJobNotesJobNameKey), "Looked at, then cancelled");
    EXPECT_EQ(CopyUserPreferences(kInputHistoryFileName)->size(), 0u);
}

TEST_F(JobNotesPaneTest, FieldsStopAtTheirLongestText)
{
    open();
    const struct
    {
        QLineEdit* field;
        int limit;
    } cases[] = {
        {field("BannerMessageField"), kBannerMessageLimit},
        {field("JobStartMessageField"), kJobStartMessageLimit},
        {box("RecipientNameBox")->lineEdit(), kJobNotesNameLimit},
    };
    for (const auto& c : cases) {
        c.field->clear();
        c.field->insert(QString(c.limit + 20, 'x'));
        EXPECT_EQ(c.field->text().size(), c.limit) << c.field->objectName().toStdString();
    }
}

TEST_F(JobNotesPaneTest, CorruptDefaultsReadAsOnQuietlyAndAreSetAsideWhenNewOnesAreSaved)
{
    const QByteArray corrupt = "<plist><dict><key>useLoginNameAsSenderName";
    QDir().mkpath(m_dir.filePath("orvan"));
    QFile file(preferencesPath());
    ASSERT_TRUE(file.open(QIODevice::WriteOnly) && file.write(corrupt) > 0);
    file.close();
    open();
    for (const char* name : {"JobNameBox", "SenderNameBox", "RecipientNameBox"})
        EXPECT_NE(box(name)->currentText(), "") << name;
    EXPECT_TRUE(m_alerts.isEmpty());
    for (QWidget* window : QApplication::topLevelWidgets())
        EXPECT_EQ(qobject_cast<QMessageBox*>(window), nullptr);

    // Cancel leaves the file alone; OK replaces it and keeps it beside.
    editDefaults([](QWidget* dialog) { dialog->findChild<QPushButton*>("CancelButton")->click(); });
    EXPECT_TRUE(asideFiles().isEmpty());
    int shownChecked = 0;
    editDefaults([&shownChecked](QWidget* dialog) {
        for (auto* check : dialog->findChildren<QCheckBox*>())
            shownChecked += check->isChecked() ? 1 : 0;
        dialog->findChild<QCheckBox*>("SenderLoginNameCheckBox")->setChecked(false);
        dialog->findChild<QPushButton*>("OKButton")->click();
    });
    EXPECT_EQ(shownChecked, 3);
    JobNotesPreferencesOptions stored;
    RetrieveJobNotesPreferences(&stored);
    EXPECT_EQ(stored, (JobNotesPreferencesOptions{1, 0, 1}));
    ASSERT_EQ(asideFiles().size(), 1);
    QFile aside(QFileInfo(preferencesPath()).dir().filePath(asideFiles()[0]));
    ASSERT_TRUE(aside.open(QIODevice::ReadOnly));
    EXPECT_EQ(aside.readAll(), corrupt);
    // The sender was not typed, so the new default shows at once.
    EXPECT_EQ(box("SenderNameBox")->currentText(), "");
    EXPECT_TRUE(m_alerts.isEmpty());
}
