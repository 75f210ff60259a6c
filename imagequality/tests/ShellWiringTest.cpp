// The two panels inside the real plug-in: their tabs, previous/next, sync and
// summary texts; and orvan-print's headless ticket dump of their items.
#include "host/PluginHost.h"
#include "imagequality/AdvancedModel.h"
#include "imagequality/tests/PanelTestSupport.h"
#include "settings/PropertyList.h"
#include "settings/TicketFile.h"
#include "shell/PDEShell.h"

#include <QCheckBox>
#include <QComboBox>
#include <QProcess>
#include <QStackedWidget>
#include <QTabBar>
#include <QTemporaryDir>
#include <QToolButton>

namespace orvan {
namespace {

using testing::SetPpdChoice;

TEST(ShellWiring, TabsNavigationSyncAndSummary)
{
    QString why;
    const auto plugin = PluginHost::load(ORVAN_PLUGIN_DIR, &why);
    ASSERT_TRUE(plugin) << why.toStdString();
    PrintSession session;
    session.setCurrentPrinter(Printer{QString(), testing::kSamplePpd});
    SetPpdChoice(session, "Resolution", "1200x1200dpi");
    SetPpdChoice(session, "JCLBanner", "True");
    QWidget window;
    ASSERT_EQ(plugin->prolog(), kNoError);
    ASSERT_EQ(plugin->initialize({&window}, &session), kNoError); // the shell's pane
    ASSERT_EQ(plugin->sync(&session, true), kNoError);

    // The two panels stand side by side among the shell's tabs.
    auto* tabs = window.findChild<QTabBar*>("ShellTabs");
    ASSERT_TRUE(tabs);
    QStringList tabTitles;
    for (int index = 0; index < tabs->count(); ++index)
        tabTitles << tabs->tabText(index);
    const int imageOptions = tabTitles.indexOf("Image Options") + 1; // tab numbers count from 1
    ASSERT_GT(imageOptions, 0);
    EXPECT_EQ(tabTitles.value(imageOptions), "Booklet/Watermark");
    EXPECT_EQ(tabTitles.value(imageOptions + 1), "Advanced");
    auto* container = window.findChild<QStackedWidget*>("ShellContainer");
    auto* resolution = window.findChild<QComboBox*>("ResolutionPopup");
    auto* banner = window.findChild<QComboBox*>("BannerSheetPopup");
    ASSERT_TRUE(container && resolution && banner);
    EXPECT_EQ(resolution->currentText(), "1200 dpi");
    EXPECT_EQ(banner->currentText(), "On");

    // "Next" goes from Image Options past Booklet/Watermark to Advanced,
    // "Previous" back. Leaving the Image Options panel writes it with its
    // controls present, so both invert flags are stored on and show checked
    // when it comes back.
    ShellHandleControlHit(CurrentShellContext(), kShellTabControlID, imageOptions);
    window.findChild<QToolButton*>("NextPanelButton")->click();
    window.findChild<QToolButton*>("NextPanelButton")->click();
    EXPECT_EQ(_lastTabIndex(), imageOptions + 2);
    EXPECT_TRUE(container->currentWidget()->isAncestorOf(banner));
    window.findChild<QToolButton*>("PreviousPanelButton")->click();
    window.findChild<QToolButton*>("PreviousPanelButton")->click();
    EXPECT_EQ(_lastTabIndex(), imageOptions);
    EXPECT_TRUE(container->currentWidget()->isAncestorOf(resolution));
    EXPECT_EQ(testing::InvertFlags(session.printSettings()), std::pair(1L, 1L));
    EXPECT_TRUE(window.findChild<QCheckBox*>("MirrorImageCheckBox")->isChecked());

    PropertyValue titles, values;
    ASSERT_EQ(plugin->summaryText(&titles, &values), kNoError);
    EXPECT_TRUE(
        testing::Joined(titles).contains("Resolution, Toner Saver, Negative Image, Mirror Image, "
                                         "Booklet Image Order, Output Options, Banner Sheet, "
                                         "Request Offset"));
    EXPECT_TRUE(testing::Joined(values).contains(
        "1200 dpi, Off, On, On, Right to Left, Face Down, On, Off"));
    ASSERT_EQ(plugin->sync(&session, false), kNoError);
    EXPECT_EQ(plugin->close(), kNoError);
    EXPECT_EQ(plugin->terminate(kNoError), kNoError);
}

// orvan-print's headless dump (Prolog, Initialize without a parent, Sync both
// ways) of a session: the session it printed.
PrintSession Dumped(const PrintSession& in)
{
    QTemporaryDir folder;
    EXPECT_TRUE(saveTicketFile(folder.filePath("in.plist"), in));
    QProcess process;
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert("ORVAN_PLUGIN_PATH", ORVAN_PLUGIN_DIR);
    process.setProcessEnvironment(environment);
    process.start(
        ORVAN_BINARY_DIR "/bin/orvan-print",
        {"--dump-ticket", "--ticket", folder.filePath("in.plist"), "--ppd", testing::kSamplePpd});
    EXPECT_TRUE(process.waitForFinished(60000));
    EXPECT_EQ(process.exitCode(), 0) << process.readAllStandardError().constData();
    PrintSession out;
    const auto list = readPropertyList(process.readAllStandardOutput());
    EXPECT_TRUE(list && sessionFromPropertyList(*list, out));
    return out;
}

TEST(OrvanPrint, DumpTicketKeepsTheChoicesAndWritesThePanelsItems)
{
    PrintSession in;
    SetPpdChoice(in, "Resolution", "1200x1200dpi");
    SetPpdChoice(in, "JCLBanner", "True");
    SetPpdChoice(in, "Jog", "EndOfSet");
    SetPpdChoice(in, "NoSuchOption", "True"); // not the printer's: not carried on
    testing::SetInvertFlags(in.printSettings(), PropertyValue::integer(-1),
                            PropertyValue::integer(-1));
    const PrintSession dumped = Dumped(in);
    for (const char* keyword : {"Resolution", "JCLBanner", "Jog"})
        EXPECT_EQ(testing::PpdChoice(dumped, keyword), testing::PpdChoice(in, keyword));
    const Ticket& out = dumped.printSettings();
    EXPECT_FALSE(out.ppdDictionary().contains("NoSuchOption"));
    // Headless: no invert-image controls, so the flags keep what was read:
    // -1 is not negative (only values above 0 are) but is mirror (any but 0).
    EXPECT_EQ(testing::InvertFlags(out), std::pair(0L, 1L));
    // No booklet order in the ticket: the default 2 is written.
    EXPECT_EQ(out.integer(kBookletLayoutOrderKey), kDefaultBookletImageOrder);
}

} // namespace
} // namespace orvan
