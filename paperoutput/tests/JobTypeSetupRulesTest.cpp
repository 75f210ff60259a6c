// The setup dialogs' rules without a display: passcode pairs and their
// alerts, the long date-time scale and delayed times, saved-job values, and
// the booklet dialog's preview pictures.
#include "paperoutput/JobTypeSetupRules.h"
#include "paperoutput/BookletCreation.h"
#include "paperoutput/LongDateClock.h"
#include "paperoutput/PaperOutputIcons.h"
#include "paperoutput/tests/PaperOutputTestSupport.h"
#include "platform/Alerts.h"
#include "shell/PanelText.h"

#include <QFile>
#include <QTemporaryFile>

#include <cstdio>
#include <unistd.h>

namespace orvan {
namespace {

using testing::PluginBundle;

class PasscodeRules : public ::testing::Test
{
protected:
    void SetUp() override
    {
        m_random = SetPasscodeRandomSource([] { return std::uint32_t{123456}; });
    }
    void TearDown() override { SetPasscodeRandomSource(m_random); }

private:
    PasscodeRandomSource m_random;
};

TEST_F(PasscodeRules, PairsAreAcceptedReplacedOrRefusedWithTheirAlert)
{
    const struct
    {
        const char* passcode;
        const char* confirmation;
        bool closes;
        const char* result; // 123456 mod 9000 + 1000 = 7456
        const char* alertTitle;
    } rows[] = {
        // (Ten digits and a typed mismatch: the dialog's test.)
        {"0012", "0012", true, "0012", nullptr},
        {"123", "123", true, "7456", "Passcode Required Header"},
        {"", "", true, "7456", "Passcode Required Header"},
        {"1234", "", false, "", "Invalid Secure Print Passcode Header"},
    };
    for (const auto& row : rows) {
        QList<Alert> shown;
        const AlertPresenter previous =
            SetAlertPresenter([&shown](const Alert& alert) { shown << alert; });
        QString result;
        EXPECT_EQ(ConfirmPasscodePair(&PluginBundle(), row.passcode, row.confirmation, &result),
                  row.closes)
            << row.passcode;
        SetAlertPresenter(previous);
        EXPECT_EQ(result, row.result) << row.passcode;
        ASSERT_EQ(shown.size(), row.alertTitle ? 1 : 0) << row.passcode;
        if (!row.alertTitle)
            continue;
        EXPECT_EQ(shown[0].title, PanelText(&PluginBundle(), row.alertTitle));
        EXPECT_TRUE(shown[0].message.contains("4") && shown[0].message.contains("10"));
        // Only the alert that tells a generated passcode holds it.
        EXPECT_EQ(shown[0].holdsSecret, row.closes);
        EXPECT_EQ(shown[0].message.contains("7456"), row.closes);
    }
    EXPECT_EQ(GeneratedPasscode(0), "1000");
    EXPECT_EQ(GeneratedPasscode(8999), "9999");
    EXPECT_EQ(GeneratedPasscode(0xffffffffu), "6295"); // 4294967295 mod 9000 = 5295
}

TEST_F(PasscodeRules, GeneratedPasscodeNeverReachesStandardError)
{
    // With no presenter, alerts go to standard error: the title only when
    // the message holds a secret.
    const AlertPresenter previous = SetAlertPresenter({});
    QTemporaryFile capture;
    ASSERT_TRUE(capture.open());
    std::fflush(stderr);
    const int saved = dup(STDERR_FILENO);
    dup2(capture.handle(), STDERR_FILENO);
    QString result;
    ConfirmPasscodePair(&PluginBundle(), "12", "12", &result);
    std::fflush(stderr);
    dup2(saved, STDERR_FILENO);
    close(saved);
    SetAlertPresenter(previous);
    QFile written(capture.fileName());
    ASSERT_TRUE(written.open(QIODevice::ReadOnly));
    const QByteArray text = written.readAll();
    EXPECT_TRUE(text.contains(PanelText(&PluginBundle(), "Passcode Required Header").toUtf8()));
    EXPECT_FALSE(text.contains("7456")) << text.constData();
}

TEST(LongDateClock, WallClockSecondsSince1904)
{
    const QDate date(2026, 3, 29); // a daylight-saving change in much of Europe
    const std::int64_t midnight = LongDateToSeconds(date, QTime(0, 0));
    EXPECT_EQ(LongDateToSeconds(QDate(1904, 1, 1), QTime(0, 0)), 0);
    EXPECT_EQ(LongDateToSeconds(QDate(2001, 1, 1), QTime(0, 0)), 3061152000LL);
    EXPECT_EQ(LongDateToSeconds(QDateTime(date, QTime(23, 59, 59, 999))), midnight + 86399);
    EXPECT_EQ(SecondsToLongDate(midnight + 3 * 3600), QDateTime(date, QTime(3, 0)));
    EXPECT_EQ(SecondsToLongDate(-1), QDateTime(QDate(1903, 12, 31), QTime(23, 59, 59)));

    const QDateTime now(date, QTime(15, 30, 20, 500));
    const std::int64_t at = midnight + 15 * 3600 + 30 * 60;
    EXPECT_EQ(DelayedPrintSeconds(QTime(15, 30, 20), now), at + 20);         // this second: today
    EXPECT_EQ(DelayedPrintSeconds(QTime(15, 30, 19), now), at + 19 + 86400); // past: tomorrow
    EXPECT_EQ(DelayedPrintSeconds(QTime(0, 0), QDateTime(date, QTime(0, 0))), midnight);
}

TEST(SavedJobValues, RestoreAndSave)
{
    const std::int64_t useJobName = FourCharCode("Qujn"), publicFolder = FourCharCode("Qfln");
    PaperOutputRecord record;
    record.savedJobName = "Minutes";
    record.savedJobLocation = "file:///job-repository/team/";
    record.saveDisposition = kSaveAndPrint;
    record.securePrintPasscode = "0042";

    SavedJobUIValues shown = RestoreUIValuesFromData(record);
    EXPECT_EQ(shown, (SavedJobUIValues{kSaveAndPrint, PropertyValue(QString("Minutes")),
                                       PropertyValue(QString("file:///job-repository/team/")),
                                       false, "0042"}));
    record.useJobName = record.defaultLocation = true;
    shown = RestoreUIValuesFromData(record);
    EXPECT_EQ(shown.jobName, PropertyValue::integer(useJobName));
    EXPECT_EQ(shown.folder, PropertyValue::integer(publicFolder));

    const struct
    {
        const char* name;
        PropertyValue jobName;
        bool withPasscode;
        bool useJobName;
        const char* savedJobName;
        const char* passcode;
    } rows[] = {
        {"empty text", PropertyValue(QString("")), false, true, "Minutes", "0042"},
        {"typed text", PropertyValue(QString("Budget 2027")), true, false, "Budget 2027", "9876"},
    };
    for (const auto& row : rows) {
        PaperOutputRecord saved = record;
        SaveUIValuesToData({kSaveOnly, row.jobName, PropertyValue::integer(publicFolder),
                            row.withPasscode, "9876"},
                           saved);
        EXPECT_EQ(saved.useJobName, row.useJobName) << row.name;
        EXPECT_EQ(saved.savedJobName, row.savedJobName) << row.name;
        EXPECT_EQ(saved.securePrintPasscode, row.passcode) << row.name;
        EXPECT_EQ(saved.withPasscode, row.withPasscode) << row.name;
        EXPECT_TRUE(saved.defaultLocation) << row.name;
        EXPECT_EQ(saved.saveDisposition, kSaveOnly) << row.name;
    }
}

// (The radios and the details kept while the layout is off: JobTypeSetupsTest.)
TEST(BookletCreation, PreviewPictureForEveryFoldLayoutAndOutline)
{
    const struct
    {
        std::int32_t fold, layout, outlines;
        const char* picture;
    } rows[] = {
        {kFinishingNone, kBookletLayoutOff, kDrawOutlinesOn, "None"},
        {kFinishingNone, kBookletLayoutOn, kDrawOutlinesOff, "Booklet"},
        {kFinishingNone, kBookletLayoutOn, kDrawOutlinesOn, "Booklet-Outlines"},
        {kBookletFold, kBookletLayoutOff, kDrawOutlinesOn, "Fold"},
        {kBookletFold, kBookletLayoutOn, kDrawOutlinesOff, "Booklet-Fold"},
        {kBookletFold, kBookletLayoutOn, kDrawOutlinesOn, "Booklet-Fold-Outlines"},
        {kBookletFoldStaple, kBookletLayoutOff, kDrawOutlinesOff, "Fold-Staple"},
        {kBookletFoldStaple, kBookletLayoutOn, kDrawOutlinesOff, "Booklet-Fold-Staple"},
        {kBookletFoldStaple, kBookletLayoutOn, kDrawOutlinesOn, "Booklet-Fold-Staple-Outlines"},
    };
    for (const auto& row : rows) {
        const QString name = BookletPreviewImageName({row.fold, row.layout, row.outlines});
        EXPECT_EQ(name, QStringLiteral("BookletCreation_%1.gif").arg(row.picture));
        EXPECT_FALSE(PluginBundle().resourcePath(PaperOutputImagePath(name)).isEmpty())
            << name.toStdString();
    }
}

} // namespace
} // namespace orvan
