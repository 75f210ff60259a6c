// The Paper/Output panel inside the real plug-in: the first tab, its controls,
// the shell's OK guard reading it; and orvan-print's headless round trip of
// every Paper/Output item.
#include "host/PluginHost.h"
#include "paperoutput/PaperOutputModel.h"
#include "paperoutput/tests/PaperOutputTestSupport.h"
#include "platform/Alerts.h"
#include "settings/PrintSession.h"
#include "settings/PropertyList.h"
#include "settings/TicketFile.h"

#include <QApplication>
#include <QComboBox>
#include <QLabel>
#include <QPlainTextEdit>
#include <QProcess>
#include <QTabBar>
#include <QTimer>

namespace orvan {
namespace {

using testing::Entry;

void SetJobType(PrintSession& session, std::int32_t jobType, const char* passcode = nullptr)
{
    PaperOutputRecord record;
    record.jobType = jobType;
    if (passcode)
        record.securePrintPasscode = QString::fromLatin1(passcode);
    session.printSettings().setItem(kPanelClient, kJobTypeKey, JobTypeDictionary(nullptr, record));
}

TEST(PaperOutputShell, FirstTabDrivesTheOkGuardAndShowsFinishing)
{
    QString why;
    const auto plugin = PluginHost::load(ORVAN_PLUGIN_DIR, &why);
    ASSERT_TRUE(plugin) << why.toStdString();
    PrintSession session;
    session.setCurrentPrinter(Printer{QString(), testing::kSamplePpd});
    SetJobType(session, kJobTypeSecure);
    std::vector<Alert> alerts;
    const AlertPresenter previous =
        SetAlertPresenter([&alerts](const Alert& alert) { alerts.push_back(alert); });
    QWidget window;
    ASSERT_EQ(plugin->prolog(), kNoError);
    ASSERT_EQ(plugin->initialize({&window}, &session), kNoError); // the shell's pane
    ASSERT_EQ(plugin->sync(&session, true), kNoError);

    auto* tabs = window.findChild<QTabBar*>("ShellTabs");
    ASSERT_TRUE(tabs && tabs->count() >= 3);
    EXPECT_EQ(tabs->tabText(0), "Paper/Output");

    const struct
    {
        std::int32_t jobType;
        const char* passcode;
        OkGuardDecision decision;
    } rows[] = {
        {kJobTypeSecure, nullptr, OkGuardDecision::RefusedSecurePrintPasscode},
        {kJobTypeSecure, "2468", OkGuardDecision::Print},
        {kJobTypeLANFax, nullptr, OkGuardDecision::OpenedFaxSetup},
    };
    for (const auto& row : rows) {
        SetJobType(session, row.jobType, row.passcode);
        ASSERT_EQ(plugin->sync(&session, true), kNoError);
        // The fax setup is a real modal dialog: the user cancels it.
        QTimer::singleShot(0, [] {
            if (QWidget* dialog = QApplication::activeModalWidget())
                dialog->close();
        });
        EXPECT_EQ(ShellOkGuard(CurrentShellContext()), row.decision) << row.jobType;
    }
    ASSERT_EQ(alerts.size(), 1u);
    EXPECT_EQ(alerts.front().title, "Secure Print needs a passcode");
    SetAlertPresenter(previous);
    // The fax setup made the fax items; they travel with the ticket.
    ASSERT_EQ(plugin->sync(&session, false), kNoError);
    EXPECT_TRUE(session.printSettings().dictionary(kFaxOptionsKey));
    EXPECT_TRUE(session.printSettings().array(kFaxRecipientListKey));

    auto* staples = window.findChild<QComboBox*>("StaplePopup");
    auto* summary = window.findChild<QPlainTextEdit*>("FinishingSummary");
    ASSERT_TRUE(staples && summary);
    EXPECT_EQ(summary->toPlainText(), "- No Staple\n");
    const int single = staples->findText("1 Staple");
    ASSERT_GE(single, 0);
    staples->setCurrentIndex(single);
    emit staples->activated(single);
    EXPECT_EQ(summary->toPlainText(), "- 1 Staple\n");
    EXPECT_EQ(window.findChild<QLabel*>("FinishingIcon")->toolTip(), "OfficeFinishing_1St.gif");
    EXPECT_FALSE(window.findChild<QLabel*>("FinishingIcon")->pixmap().isNull());
    ASSERT_EQ(plugin->sync(&session, false), kNoError);
    EXPECT_EQ(session.printSettings().ppdDictionary().find("StapleLocation")->toString(),
              "SinglePortrait");
    EXPECT_EQ(plugin->close(), kNoError);
    EXPECT_EQ(plugin->terminate(kNoError), kNoError);
}

// The session a headless run saved (--save-ticket); what it printed goes to
// *printed.
PrintSession Dumped(const PrintSession& in, QByteArray* printed)
{
    QTemporaryDir folder;
    EXPECT_TRUE(saveTicketFile(folder.filePath("in.plist"), in));
    QProcess process;
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert("ORVAN_PLUGIN_PATH", ORVAN_PLUGIN_DIR);
    process.setProcessEnvironment(environment);
    process.start(ORVAN_BINARY_DIR "/bin/orvan-print",
                  {"--dump-ticket", "--ticket", folder.filePath("in.plist"), "--ppd",
                   testing::kSamplePpd, "--save-ticket", folder.filePath("out.plist")});
    EXPECT_TRUE(process.waitForFinished(60000));
    EXPECT_EQ(process.exitCode(), 0) << process.readAllStandardError().constData();
    *printed = process.readAllStandardOutput() + process.readAllStandardError();
    EXPECT_EQ(QFile::permissions(folder.filePath("out.plist")) & 0x0077, 0)
        << "a saved ticket may hold a passcode: its owner's only";
    PrintSession out;
    EXPECT_TRUE(loadTicketFile(folder.filePath("out.plist"), out));
    return out;
}

TEST(OrvanPrint, DumpTicketKeepsThePaperOutputItems)
{
    PrintSession in;
    Ticket& ticket = in.printSettings();
    PropertyValue jobType = PropertyValue::dictionary();
    jobType.insert(kJobTypeValueKey, PropertyValue::integer(kJobTypeSecure, NumberType::SInt32));
    jobType.insert(kSecurePrintPasswordKey, QStringLiteral("0012"));
    jobType.insert(kDelayedPrintTimeKey, PropertyValue::integer(3900000000LL, NumberType::SInt64));
    ticket.setItem(kPanelClient, kJobTypeKey, jobType);
    const std::pair<QString, PropertyValue> items[] = {
        {kFinishingOptionsKey, PropertyValue::integer(30, NumberType::Long)},
        {kFinishingOffsetKey, PropertyValue::integer(1, NumberType::SInt32)},
        {kFinishingOffsetEnableSubsetKey, PropertyValue::integer(1, NumberType::SInt32)},
        {kFinishingOffsetPagesPerSubsetKey, PropertyValue::integer(5, NumberType::SInt32)},
        {kFinishingSlipSheetKey, PropertyValue::integer(2, NumberType::SInt32)},
        {kFinishingBindValueKey, PropertyValue::integer(3, NumberType::SInt32)},
        {kFinishingCustomKey, QStringLiteral("Tape the spine")},
        {kFinishingDuplexKey, PropertyValue::integer(3)},
        {kBookletLayoutKey, PropertyValue::boolean(true)},
        {kBookletDrawOutlinesKey, PropertyValue::integer(2)},
        {kGutterKey, PropertyValue::integer(36)},
        {kCreepKey, PropertyValue::integer(4)},
        {kSeparatorOptionKey, PropertyValue::integer(kSeparatorPrinted)},
    };
    for (const auto& [key, value] : items)
        ticket.setItem(kPanelClient, key, value);
    PropertyValue fax = PropertyValue::dictionary();
    fax.insert(QStringLiteral("Resolution"), PropertyValue::integer(2));
    ticket.setItem(kPanelClient, kFaxOptionsKey, fax);
    for (const auto& [keyword, choice] :
         {std::pair{"QVPunch", "3HolePunch"}, std::pair{"OutputBin", "Top"},
          std::pair{"MediaColor", "Blue"}})
        ticket.ppdDictionary().insert(keyword, choice);

    QByteArray printed;
    const PrintSession dumped = Dumped(in, &printed);
    EXPECT_FALSE(printed.contains("0012")) << "the passcode is never printed";
    EXPECT_TRUE(printed.contains(kHiddenSecret.toUtf8()));
    const Ticket& out = dumped.printSettings();
    PropertyValue top = PropertyValue::dictionary();
    for (const auto& [key, item] : out.items())
        top.insert(key, item.value);
    for (const auto& [key, value] : items) {
        if (key == kBookletLayoutKey)
            EXPECT_EQ(Entry(&top, key), "false") << "every opening starts with booklet layout off";
        else if (key == kFinishingDuplexKey)
            EXPECT_EQ(Entry(&top, key), "CFIndex:3");
        else
            EXPECT_EQ(*out.value(key), value) << key.toStdString();
        if (value.isNumber() && key != kFinishingDuplexKey)
            EXPECT_EQ(out.value(key)->numberType(), value.numberType()) << key.toStdString();
    }
    EXPECT_EQ(Entry(&top, kDuplexingKey), "CFIndex:3");
    EXPECT_EQ(*out.value(kFaxOptionsKey), fax);
    const PropertyValue* jobTypeOut = out.dictionary(kJobTypeKey);
    ASSERT_TRUE(jobTypeOut);
    EXPECT_EQ(jobTypeOut->find(kJobTypeValueKey)->toInteger(), kJobTypeSecure);
    EXPECT_EQ(jobTypeOut->find(kSecurePrintPasswordKey)->toString(), "0012");
    EXPECT_EQ(jobTypeOut->find(kDelayedPrintTimeKey)->toInteger(), 3900000000LL);
    for (const auto& [keyword, choice] :
         {std::pair{"QVPunch", "3HolePunch"}, std::pair{"OutputBin", "Top"},
          std::pair{"MediaColor", "Blue"}, std::pair{"Duplex", "DuplexTumble"},
          std::pair{"StapleLocation", "None"}})
        EXPECT_EQ(out.ppdDictionary().find(keyword)->toString(), choice) << keyword;
    EXPECT_TRUE(out.dictionary(kJobLevelStockKey));
}

} // namespace
} // namespace orvan
