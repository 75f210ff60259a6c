// The two panels inside the real plug-in: loaded by name in tab order, with
// their tabs, previous/next, sync and summary texts; and orvan-print's
// headless ticket dump and screenshots of both panels.
#include "host/PluginHost.h"
#include "imagequality/AdvancedModel.h"
#include "imagequality/ImageOptionsModel.h"
#include "imagequality/tests/PanelTestSupport.h"
#include "settings/PropertyList.h"
#include "settings/TicketFile.h"
#include "shell/PDEShell.h"

#include <QCheckBox>
#include <QComboBox>
#include <QImage>
#include <QProcess>
#include <QStackedWidget>
#include <QTabBar>
#include <QTemporaryDir>
#include <QToolButton>
#include <QWidget>

#include <gtest/gtest.h>

namespace orvan {
namespace {

using testing::SetPpdChoice;

constexpr std::int32_t kQujn = static_cast<std::int32_t>(FourCharCode("Qujn"));

std::unique_ptr<PluginHost> LoadPlugin()
{
    QString why;
    std::unique_ptr<PluginHost> plugin = PluginHost::load(QStringLiteral(ORVAN_PLUGIN_DIR), &why);
    EXPECT_TRUE(plugin) << qPrintable(why);
    return plugin;
}

TEST(ShellWiring, PanelsLoadByNameInTabOrder)
{
    auto plugin = LoadPlugin();
    ASSERT_TRUE(plugin);
    ASSERT_EQ(plugin->prolog(), kNoError);
    const PDEShellContext* shell = CurrentShellContext();
    ASSERT_NE(shell, nullptr);
    ASSERT_EQ(shell->panelCount, 2);
    EXPECT_EQ(shell->panels[0].title, QStringLiteral("Image Options"));
    EXPECT_EQ(shell->panels[1].title, QStringLiteral("Advanced"));
    EXPECT_EQ(shell->panels[1].tabNumber, 2);
    EXPECT_EQ(plugin->terminate(kNoError), kNoError);
}

TEST(ShellWiring, TabsNavigationSyncAndSummary)
{
    auto plugin = LoadPlugin();
    ASSERT_TRUE(plugin);
    PrintSession session;
    session.setCurrentPrinter(Printer{QString(), testing::SamplePpdPath()});
    SetPpdChoice(session, "Resolution", "1200x1200dpi");
    SetPpdChoice(session, "JCLBanner", "True");
    QWidget window;
    ASSERT_EQ(plugin->prolog(), kNoError);
    ASSERT_EQ(plugin->initialize(&window, &session), kNoError);
    ASSERT_EQ(plugin->sync(&session, true), kNoError);

    auto* tabs = window.findChild<QTabBar*>(QStringLiteral("ShellTabs"));
    ASSERT_TRUE(tabs && tabs->count() == 2);
    EXPECT_EQ(tabs->tabText(1), QStringLiteral("Advanced"));
    auto* container = window.findChild<QStackedWidget*>(QStringLiteral("ShellContainer"));
    auto* resolution = window.findChild<QComboBox*>(QStringLiteral("ResolutionPopup"));
    auto* banner = window.findChild<QComboBox*>(QStringLiteral("BannerSheetPopup"));
    ASSERT_TRUE(container && resolution && banner);
    EXPECT_EQ(resolution->currentText(), QStringLiteral("1200 dpi"));
    EXPECT_EQ(banner->currentText(), QStringLiteral("On"));

    // "Next" goes to the other panel, then wraps back. Leaving the Image
    // Options panel writes it with its controls present, so both invert flags
    // are stored on and show checked when it comes back.
    auto* next = window.findChild<QToolButton*>(QStringLiteral("NextPanelButton"));
    const int start = _lastTabIndex();
    next->click();
    EXPECT_EQ(_lastTabIndex(), start % 2 + 1);
    EXPECT_TRUE(container->currentWidget()->isAncestorOf(start == 1 ? banner : resolution));
    next->click();
    EXPECT_EQ(_lastTabIndex(), start);
    EXPECT_EQ(testing::InvertFlags(session.printSettings()), std::make_pair(1L, 1L));
    EXPECT_TRUE(window.findChild<QCheckBox*>(QStringLiteral("MirrorImageCheckBox"))->isChecked());

    PropertyValue titles, values;
    ASSERT_EQ(plugin->summaryText(&titles, &values), kNoError);
    EXPECT_EQ(testing::Strings(titles),
              QStringList({QStringLiteral("Resolution"), QStringLiteral("Toner Saver"),
                           QStringLiteral("Negative Image"), QStringLiteral("Mirror Image"),
                           QStringLiteral("Booklet Image Order"), QStringLiteral("Output Options"),
                           QStringLiteral("Banner Sheet"), QStringLiteral("Request Offset")}));
    EXPECT_EQ(
        testing::Strings(values),
        QStringList({QStringLiteral("1200 dpi"), QStringLiteral("Off"), QStringLiteral("On"),
                     QStringLiteral("On"), QStringLiteral("Right to Left"),
                     QStringLiteral("Face Down"), QStringLiteral("On"), QStringLiteral("Off")}));

    ASSERT_EQ(plugin->sync(&session, false), kNoError);
    EXPECT_EQ(plugin->close(), kNoError);
    EXPECT_EQ(plugin->terminate(kNoError), kNoError);
}

// --- orvan-print -----------------------------------------------------------------

QByteArray RunOrvanPrint(QStringList arguments)
{
    QProcess process;
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(QStringLiteral("ORVAN_PLUGIN_PATH"), QStringLiteral(ORVAN_PLUGIN_DIR));
    process.setProcessEnvironment(environment);
    arguments << QStringLiteral("--ppd") << testing::SamplePpdPath();
    process.start(QStringLiteral(ORVAN_BINARY_DIR "/bin/orvan-print"), arguments);
    EXPECT_TRUE(process.waitForFinished(60000));
    EXPECT_EQ(process.exitCode(), 0) << process.readAllStandardError().constData();
    return process.readAllStandardOutput();
}

// The headless dump: Prolog, Initialize without a parent, Sync both ways.
Ticket DumpedPrintSettings(const PrintSession& in)
{
    QTemporaryDir folder;
    const QString path = folder.filePath(QStringLiteral("in.plist"));
    EXPECT_TRUE(saveTicketFile(path, in));
    PrintSession out;
    const auto list = readPropertyList(
        RunOrvanPrint({QStringLiteral("--dump-ticket"), QStringLiteral("--ticket"), path}));
    EXPECT_TRUE(list && sessionFromPropertyList(*list, out));
    return out.printSettings();
}

TEST(OrvanPrint, DumpTicketKeepsTheChoicesAndWritesThePanelsItems)
{
    PrintSession in;
    SetPpdChoice(in, "Resolution", "1200x1200dpi");
    SetPpdChoice(in, "JCLBanner", "True");
    SetPpdChoice(in, "Jog", "EndOfSet");
    testing::SetInvertFlags(in.printSettings(), 1, 1);
    Ticket out = DumpedPrintSettings(in);
    const PropertyValue& ppd = out.ppdDictionary();
    EXPECT_EQ(ppd.find(QStringLiteral("Resolution"))->toString(), QStringLiteral("1200x1200dpi"));
    EXPECT_EQ(ppd.find(QStringLiteral("JCLBanner"))->toString(), QStringLiteral("True"));
    EXPECT_EQ(ppd.find(QStringLiteral("Jog"))->toString(), QStringLiteral("EndOfSet"));
    // Headless: no invert-image controls, so both flags are written as 0.
    EXPECT_EQ(testing::InvertFlags(out), std::make_pair(0L, 0L));
    // No booklet order in the ticket: the default 2 is written.
    EXPECT_EQ(out.integer(kBookletLayoutOrderKey), kDefaultBookletImageOrder);
    EXPECT_EQ(out.item(kBookletLayoutOrderKey)->client, kPanelClient);

    in.printSettings().setItem(kPanelClient, kBookletLayoutOrderKey, PropertyValue::integer(kQujn));
    EXPECT_EQ(DumpedPrintSettings(in).integer(kBookletLayoutOrderKey), kQujn);
}

TEST(OrvanPrint, ScreenshotsOfBothPanels)
{
    QTemporaryDir folder;
    for (const int tab : {1, 2}) {
        const QString path = folder.filePath(QStringLiteral("tab%1.png").arg(tab));
        RunOrvanPrint(
            {QStringLiteral("--screenshot"), path, QStringLiteral("--tab"), QString::number(tab)});
        const QImage image(path);
        EXPECT_GE(image.width(), 540) << tab;
        EXPECT_GE(image.height(), 491) << tab;
    }
}

} // namespace
} // namespace orvan
