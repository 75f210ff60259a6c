// The Job Notes pane in orvan-print: notes typed in the dialog are printed,
// survive the headless run, join the input history and are offered by the
// next dialog.
#include "host/PrintDialog.h"
#include "paperoutput/JobNotesModel.h"
#include "platform/SystemFacts.h"
#include "settings/Bundle.h"
#include "settings/Preferences.h"
#include "settings/PropertyList.h"
#include "settings/SettingMapAccess.h"
#include "settings/TicketFile.h"

#include <QApplication>
#include <QComboBox>
#include <QLineEdit>
#include <QProcess>
#include <QPushButton>
#include <QTemporaryDir>
#include <QTest>

#include <gtest/gtest.h>

using namespace orvan;

namespace {

constexpr const char* kPaneName = "GetJobNotesPanelInterface";

QString Text(const char* key)
{
    static const Bundle bundle(QStringLiteral(ORVAN_PLUGIN_DIR));
    return *bundle.localizedString(key);
}

QStringList Items(const QComboBox* box)
{
    QStringList items;
    for (int i = 0; i < box->count(); ++i)
        items << box->itemText(i);
    return items;
}

// A Print dialog on the sample printer showing the Job Notes pane.
struct JobNotesDialog
{
    explicit JobNotesDialog(PluginHost& plugin, const QString& saveTicket)
        : dialog(session, plugin, {PrinterEntry{.displayName = "Sample", .isSample = true}},
                 PrintDialog::Options{.saveTicketPath = saveTicket})
    {
        const auto& panes = plugin.panes();
        for (std::size_t i = 0; i < panes.size(); ++i)
            if (panes[i]->exportedName() == kPaneName)
                dialog.showPane(static_cast<int>(i));
        pane = dialog.findChild<QWidget*>(kPaneName);
    }
    QComboBox* box(const char* name) const { return pane->findChild<QComboBox*>(name); }
    void retype(const char* boxName, const QString& text) const
    {
        box(boxName)->lineEdit()->clear();
        QTest::keyClicks(box(boxName)->lineEdit(), text);
    }

    PrintSession session;
    PrintDialog dialog;
    QWidget* pane = nullptr;
};

} // namespace

TEST(JobNotesPrint, TypedNotesArePrintedRememberedAndOfferedAgain)
{
    QTemporaryDir home;
    qputenv("XDG_CONFIG_HOME", home.filePath("config").toLocal8Bit());
    qputenv("ORVAN_SHARED_DATA_DIR", home.path().toLocal8Bit());
    QString why;
    const auto plugin = PluginHost::load(ORVAN_PLUGIN_DIR, &why);
    ASSERT_TRUE(plugin) << why.toStdString();

    const QString saved = home.filePath("job.plist");
    {
        JobNotesDialog first(*plugin, saved);
        ASSERT_TRUE(first.pane);
        // No defaults file: every name starts on its automatic item.
        EXPECT_EQ(first.box("JobNameBox")->currentText(), Text("UseJobName"));
        EXPECT_EQ(first.box("SenderNameBox")->currentText(), Text("UseLoginName"));
        EXPECT_EQ(first.box("RecipientNameBox")->currentText(), Text("UseLoginName"));
        first.retype("JobNameBox", "Board minutes");
        first.retype("SenderNameBox", "Ann Lee");
        QTest::keyClicks(first.pane->findChild<QLineEdit*>("BannerMessageField"), "Confidential");
        first.dialog.findChild<QPushButton*>("PrintButton")->click();
        ASSERT_EQ(first.dialog.result(), QDialog::Accepted)
            << first.dialog.lastError().toStdString();
    }

    // The saved job printed headless: the panes read and write it again.
    QProcess headless;
    headless.start(ORVAN_BINARY_DIR "/bin/orvan-print", {"--dump-ticket", "--ticket", saved});
    ASSERT_TRUE(headless.waitForFinished(30000));
    ASSERT_EQ(headless.exitCode(), 0) << headless.readAllStandardError().toStdString();
    PrintSession printed;
    const auto plist = readPropertyList(headless.readAllStandardOutput());
    ASSERT_TRUE(plist && sessionFromPropertyList(*plist, printed));
    const Ticket& ticket = printed.printSettings();
    EXPECT_EQ(ticket.string(kJobNotesJobNameKey), "Board minutes");
    EXPECT_EQ(ticket.boolean(kJobNotesUseJobNameKey), false);
    EXPECT_EQ(ticket.string(kJobNotesSenderNameKey), "Ann Lee");
    EXPECT_EQ(ticket.boolean(kJobNotesRecipientUseLoginNameKey), true);
    EXPECT_EQ(ticket.string(kJobNotesRecipientKey), SessionUserName());
    EXPECT_EQ(ticket.string(kJobNotesSheetMessageKey), "Confidential");
    EXPECT_FALSE(ticket.containsItem(kJobNotesMessageKey));

    const PropertyValue history = *CopyUserPreferences(kInputHistoryFileName);
    EXPECT_EQ(*history.find("jobNotesJobName"), PropertyValue(PropertyArray{"Board minutes"}));
    EXPECT_EQ(*history.find("jobNotesSenderName"), PropertyValue(PropertyArray{"Ann Lee"}));

    // The next job starts from the defaults again and offers what was typed.
    JobNotesDialog second(*plugin, QString());
    EXPECT_EQ(Items(second.box("JobNameBox")), QStringList({Text("UseJobName"), "Board minutes"}));
    EXPECT_EQ(Items(second.box("SenderNameBox")), QStringList({Text("UseLoginName"), "Ann Lee"}));
    EXPECT_EQ(second.box("SenderNameBox")->currentText(), Text("UseLoginName"));
    qunsetenv("XDG_CONFIG_HOME");
    qunsetenv("ORVAN_SHARED_DATA_DIR");
}
