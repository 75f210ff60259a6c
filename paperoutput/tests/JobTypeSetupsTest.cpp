// The setup and booklet dialogs driven as a user would, offscreen, found by
// object name: what they return, what the panel's model then writes, and
// that a passcode never lands in the user's preference or history files.
#include "paperoutput/JobTypeSetups.h"
#include "paperoutput/BookletCreation.h"
#include "paperoutput/JobTypeSetupRules.h"
#include "paperoutput/LongDateClock.h"
#include "paperoutput/PaperOutputModel.h"
#include "paperoutput/tests/PaperOutputTestSupport.h"
#include "platform/Alerts.h"
#include "settings/PrintSession.h"
#include "settings/Ticket.h"
#include "shell/PanelText.h"

#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QDialog>
#include <QDialogButtonBox>
#include <QDirIterator>
#include <QDoubleSpinBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QSpinBox>
#include <QTest>
#include <QTimeEdit>
#include <QTimer>

#include <functional>

namespace orvan {
namespace {

using testing::PluginBundle;

// Runs a dialog; drive works on it once it is shown and clicks OK or
// Cancel. Whether it was still open after drive returned is reported.
template <typename Run>
bool Drive(Run run, const std::function<void(QDialog*)>& drive, bool* stayedOpen = nullptr)
{
    QTimer::singleShot(0, [&] {
        auto* dialog = qobject_cast<QDialog*>(QApplication::activeModalWidget());
        ASSERT_NE(dialog, nullptr);
        drive(dialog);
        if (stayedOpen)
            *stayedOpen = dialog->isVisible();
        if (dialog->isVisible())
            dialog->reject();
    });
    return run();
}

void ClickOk(QDialog* dialog)
{
    dialog->findChild<QDialogButtonBox*>()->button(QDialogButtonBox::Ok)->click();
}

void Type(QDialog* dialog, const char* field, const QString& text)
{
    auto* edit = dialog->findChild<QLineEdit*>(field);
    ASSERT_NE(edit, nullptr) << field;
    edit->clear();
    QTest::keyClicks(edit, text);
}

class SetupDialogs : public ::testing::Test
{
protected:
    void SetUp() override
    {
        qputenv("XDG_CONFIG_HOME", m_home.path().toUtf8());
        m_alerts = SetAlertPresenter([this](const Alert& alert) { shown << alert.title; });
        QString error;
        PPDSetCurrent(OpenPPDFile(testing::kSamplePpd, &error));
        ASSERT_TRUE(PPDGetCurrent()) << error.toStdString();
        model.load(&PluginBundle(), PPDGetCurrent());
        model.open(ticket);
        model.syncFromTicket(ticket, &pageFormat);
    }
    void TearDown() override
    {
        PPDCloseCurrent();
        SetAlertPresenter(m_alerts);
        qunsetenv("XDG_CONFIG_HOME");
    }

    // Every file under the user's configuration folder, concatenated.
    QByteArray PreferenceFiles() const
    {
        QByteArray all;
        QDirIterator files(m_home.path(), QDir::Files, QDirIterator::Subdirectories);
        while (files.hasNext()) {
            QFile file(files.next());
            if (file.open(QIODevice::ReadOnly))
                all += file.readAll();
        }
        return all;
    }
    QString Title(const char* key) const { return PanelText(&PluginBundle(), key); }

    QStringList shown;
    PaperOutputModel model;
    Ticket ticket;
    Ticket pageFormat;

private:
    QTemporaryDir m_home;
    AlertPresenter m_alerts;
};

TEST_F(SetupDialogs, SecurePrintPasscodes)
{
    const struct
    {
        const char* name;
        const char* held;
        std::function<void(QDialog*)> typing;
        bool closes;
        const char* passcode;
        const char* alert;
    } rows[] = {
        {"digits only, at most ten; confirm waits for four", nullptr,
         [](QDialog* d) {
             Type(d, "PasscodeField", "123");
             EXPECT_FALSE(d->findChild<QLineEdit*>("ConfirmPasscodeField")->isEnabled());
             Type(d, "PasscodeField", "12a34-567890123");
             Type(d, "ConfirmPasscodeField", "1234567890");
         },
         true, "1234567890", nullptr},
        {"mismatch stays open", "5555", [](QDialog* d) { Type(d, "ConfirmPasscodeField", "5556"); },
         false, "5555", "Invalid Secure Print Passcode Header"},
    };
    for (const auto& row : rows) {
        shown.clear();
        QString passcode = row.held ? QString::fromLatin1(row.held) : QString();
        bool stayedOpen = false;
        const bool ok =
            Drive([&] { return RunModalSecurePrintSetup(&PluginBundle(), passcode, nullptr); },
                  [&](QDialog* dialog) {
                      row.typing(dialog);
                      ClickOk(dialog);
                  },
                  &stayedOpen);
        EXPECT_EQ(ok, row.closes) << row.name;
        EXPECT_EQ(stayedOpen, !row.closes) << row.name;
        EXPECT_EQ(passcode, row.passcode) << row.name;
        EXPECT_EQ(shown, row.alert ? QStringList{Title(row.alert)} : QStringList()) << row.name;
    }
}

TEST_F(SetupDialogs, DelayedPrintTimeStartsFromTheHeldOneAndMovesToTomorrowWhenPast)
{
    const QDate today(2026, 11, 22);
    const NowSource previous = SetNowSource([today] { return QDateTime(today, QTime(10, 0, 30)); });
    const std::int64_t held = LongDateToSeconds(QDate(2026, 11, 20), QTime(18, 45));
    std::int64_t time = held;
    const auto run = [&] { return RunModalDelayedPrintSetup(&PluginBundle(), time, nullptr); };
    EXPECT_FALSE(Drive(run, [](QDialog* dialog) { dialog->reject(); }));
    EXPECT_EQ(time, held);
    EXPECT_TRUE(Drive(run, [&](QDialog* dialog) {
        auto* edit = dialog->findChild<QTimeEdit*>("TimeToPrint");
        EXPECT_EQ(edit->time(), QTime(18, 45));
        edit->setTime(QTime(10, 0, 29));
        ClickOk(dialog);
    }));
    EXPECT_EQ(time, LongDateToSeconds(today.addDays(1), QTime(10, 0, 29)));
    SetNowSource(previous);
}

TEST_F(SetupDialogs, SecureSavedJobUsesTheJobNameAndKeepsThePasscodeOutOfHistory)
{
    PaperOutputRecord& record = model.record();
    record.jobType = kJobTypeSavedJob;
    record.savedJobName = "Minutes";
    EXPECT_TRUE(Drive(
        [&] { return RunModalSavedJobDialog(&PluginBundle(), record, nullptr); },
        [&](QDialog* dialog) {
            EXPECT_EQ(dialog->findChild<QLabel*>("StatusText")->text(), Title("Values restored."));
            EXPECT_EQ(dialog->findChild<QComboBox*>("SavedJobName")->currentText(), "Minutes");
            auto* passcode = dialog->findChild<QLineEdit*>("PasscodeField");
            EXPECT_FALSE(passcode->isEnabled());
            dialog->findChild<QCheckBox*>("WithPasscode")->click();
            EXPECT_TRUE(passcode->isEnabled());
            Type(dialog, "PasscodeField", "98765");
            Type(dialog, "ConfirmPasscodeField", "98765");
            auto* name = dialog->findChild<QComboBox*>("SavedJobName");
            name->setCurrentIndex(0); // "UseJobName"
            auto* folder = dialog->findChild<QComboBox*>("SavedJobFolder");
            folder->setEditText("Team Reports");
            dialog->findChild<QRadioButton*>("SavePrintRadio")->click();
            ClickOk(dialog);
        }));
    EXPECT_TRUE(record.useJobName);
    EXPECT_FALSE(record.defaultLocation);
    EXPECT_EQ(record.savedJobLocation, "Team Reports");
    EXPECT_EQ(record.saveDisposition, kSaveAndPrint);
    EXPECT_TRUE(record.withPasscode);
    EXPECT_EQ(record.securePrintPasscode, "98765");

    // The folder went into the input history; the passcode nowhere.
    const QByteArray files = PreferenceFiles();
    EXPECT_TRUE(files.contains("Team Reports"));
    EXPECT_FALSE(files.contains("98765"));

    // Reopened, the typed folder is offered again and restored.
    EXPECT_TRUE(Drive([&] { return RunModalSavedJobDialog(&PluginBundle(), record, nullptr); },
                      [&](QDialog* dialog) {
                          auto* folder = dialog->findChild<QComboBox*>("SavedJobFolder");
                          EXPECT_EQ(folder->currentText(), "Team Reports");
                          EXPECT_GE(folder->findText("Team Reports"), 1);
                          EXPECT_EQ(dialog->findChild<QLineEdit*>("PasscodeField")->text(),
                                    "98765");
                          dialog->reject();
                      }) == false);
}

TEST_F(SetupDialogs, BookletDialogsKeepHeldDetailsWhileLayoutIsOffAndClampTheGutter)
{
    PaperOutputRecord& record = model.record();
    record.twoSided = kSimplex;
    record.fold = kCFold; // not a booklet fold: shows "None"
    record.drawOutlines = kDrawOutlinesOn;
    record.bookletSize = 123456; // not in the size menu
    record.gutter = 36;
    record.creep = 15;
    const BookletCreationParams held = BookletParamsFromRecord(record);

    // Layout off: details disabled, and written back unchanged.
    BookletCreationParams params = held;
    EXPECT_TRUE(
        Drive([&] { return RunModalBookletCreationDialog(&PluginBundle(), params, nullptr); },
              [&](QDialog* dialog) {
                  EXPECT_TRUE(dialog->findChild<QRadioButton*>("FoldNone")->isChecked());
                  EXPECT_TRUE(dialog->findChild<QRadioButton*>("BookletLayoutOff")->isChecked());
                  for (const char* name : {"DrawOutlines", "NewSize", "Gutter", "Creep"})
                      EXPECT_FALSE(dialog->findChild<QWidget*>(name)->isEnabled()) << name;
                  EXPECT_EQ(dialog->findChild<QDoubleSpinBox*>("Creep")->text(),
                            QLocale().toString(1.5, 'f', 1));
                  EXPECT_EQ(dialog->findChild<QLabel*>("BookletPreview")->toolTip(),
                            "BookletCreation_None.gif");
                  ClickOk(dialog);
              }));
    BookletCreationParams expected = held;
    expected.fold = kFinishingNone;
    EXPECT_EQ(params, expected);

    // Layout on with fold and staple. (What the model then writes: PaperOutputModelTest.)
    EXPECT_TRUE(
        Drive([&] { return RunModalBookletOptionsDialog(&PluginBundle(), params, nullptr); },
              [&](QDialog* dialog) {
                  EXPECT_EQ(dialog->windowTitle(), Title("Booklet Options Title"));
                  dialog->findChild<QRadioButton*>("BookletLayoutOn")->click();
                  dialog->findChild<QRadioButton*>("BookletFoldStaple")->click();
                  EXPECT_TRUE(dialog->findChild<QWidget*>("Gutter")->isEnabled());
                  EXPECT_EQ(dialog->findChild<QLabel*>("BookletPreview")->toolTip(),
                            "BookletCreation_Booklet-Fold-Staple-Outlines.gif");
                  dialog->findChild<QComboBox*>("NewSize")->setCurrentIndex(0); // "Off"
                  dialog->findChild<QSpinBox*>("Gutter")->setValue(500);        // clamped to 216
                  ClickOk(dialog);
              }));
    EXPECT_EQ(params.layout, kBookletLayoutOn);
    EXPECT_EQ(params.fold, kBookletFoldStaple);
    EXPECT_EQ(params.gutter, kGutterMaximum);
    EXPECT_EQ(params.creep, 15);
}

} // namespace
} // namespace orvan
