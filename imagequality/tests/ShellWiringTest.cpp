// The two panels inside the real plug-in: loaded by name in tab order, with
// their tabs, previous/next, sync and summary texts; and orvan-print's
// headless ticket dump and screenshots of both panels.
#include "host/PluginHost.h"
#include "imagequality/AdvancedModel.h"
#include "imagequality/ImageOptionsModel.h"
#include "imagequality/tests/PanelTestSupport.h"
#include "settings/DictionaryAccess.h"
#include "settings/PropertyList.h"
#include "settings/TicketFile.h"
#include "shell/PDEShell.h"

#include <QComboBox>
#include <QFile>
#include <QImage>
#include <QProcess>
#include <QStackedWidget>
#include <QTabBar>
#include <QTemporaryDir>
#include <QToolButton>
#include <QWidget>

#include <gtest/gtest.h>

#include <dlfcn.h>

namespace orvan {
namespace {

using testing::PpdChoice;
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
    EXPECT_EQ(shell->panels[0].tabNumber, 1);
    EXPECT_EQ(shell->panels[1].tabNumber, 2);
    EXPECT_EQ(plugin->terminate(kNoError), kNoError);

    // The exported function hands out the panel's table; its Prolog reports
    // the panel's creator.
    void* library = dlopen(ORVAN_PLUGIN_DIR "/OrvanFeatures.so", RTLD_NOW | RTLD_NOLOAD);
    ASSERT_NE(library, nullptr);
    auto get =
        reinterpret_cast<PanelInterfaceFunction>(dlsym(library, "GetImageOptionsPanelInterface"));
    ASSERT_NE(get, nullptr);
    PDEInterfaceObject* panel = nullptr;
    ASSERT_EQ(get(&panel), kNoError);
    PDEContext context = nullptr;
    std::uint32_t creator = 0, width = 0, height = 0;
    QString kind, title;
    ASSERT_EQ(panel->table->Prolog(&context, &creator, &kind, &title, &width, &height), kNoError);
    EXPECT_EQ(creator, kImageOptionsCreator);
    EXPECT_EQ(panel->table->Terminate(context, kNoError), kNoError);
    dlclose(library);
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
    ASSERT_EQ(plugin->open(), kNoError);

    auto* tabs = window.findChild<QTabBar*>(QStringLiteral("ShellTabs"));
    ASSERT_NE(tabs, nullptr);
    ASSERT_EQ(tabs->count(), 2);
    EXPECT_EQ(tabs->tabText(0), QStringLiteral("Image Options"));
    EXPECT_EQ(tabs->tabText(1), QStringLiteral("Advanced"));
    auto* container = window.findChild<QStackedWidget*>(QStringLiteral("ShellContainer"));
    auto* resolution = window.findChild<QComboBox*>(QStringLiteral("ResolutionPopup"));
    auto* banner = window.findChild<QComboBox*>(QStringLiteral("BannerSheetPopup"));
    ASSERT_TRUE(container && resolution && banner);
    EXPECT_EQ(resolution->currentText(), QStringLiteral("1200 dpi"));
    EXPECT_EQ(banner->currentText(), QStringLiteral("On"));

    // Next from the first panel shows the Advanced panel; next again wraps.
    const int start = _lastTabIndex();
    window.findChild<QToolButton*>(QStringLiteral("NextPanelButton"))->click();
    EXPECT_EQ(_lastTabIndex(), start % 2 + 1);
    window.findChild<QToolButton*>(QStringLiteral("NextPanelButton"))->click();
    EXPECT_EQ(_lastTabIndex(), start);
    EXPECT_EQ(container->currentWidget()->isAncestorOf(_lastTabIndex() == 1 ? resolution : banner),
              true);

    PropertyValue titles, values;
    ASSERT_EQ(plugin->summaryText(&titles, &values), kNoError);
    EXPECT_EQ(testing::Strings(titles),
              QStringList({QStringLiteral("Resolution"), QStringLiteral("Toner Saver"),
                           QStringLiteral("Negative Image"), QStringLiteral("Mirror Image"),
                           QStringLiteral("Booklet Image Order"), QStringLiteral("Output Options"),
                           QStringLiteral("Banner Sheet"), QStringLiteral("Request Offset")}));
    EXPECT_EQ(testing::Strings(values).first(), QStringLiteral("1200 dpi"));
    EXPECT_EQ(testing::Strings(values).at(6), QStringLiteral("On"));

    // With its controls on screen the Image Options panel writes both flags.
    ASSERT_EQ(plugin->sync(&session, false), kNoError);
    const PropertyValue* options = session.printSettings().dictionary(kInvertImageOptionsKey);
    long negative = 0, mirror = 0;
    EXPECT_TRUE(GetCFIndexFromCFDictionary(options, kNegativeImageKey, &negative));
    EXPECT_TRUE(GetCFIndexFromCFDictionary(options, kMirrorImageKey, &mirror));
    EXPECT_EQ(negative, 1);
    EXPECT_EQ(mirror, 1);
    EXPECT_EQ(plugin->close(), kNoError);
    EXPECT_EQ(plugin->terminate(kNoError), kNoError);
}

// --- orvan-print -----------------------------------------------------------------

const QString kOrvanPrint = QStringLiteral(ORVAN_BINARY_DIR "/bin/orvan-print");

QByteArray RunOrvanPrint(const QStringList& arguments, int* exitCode)
{
    QProcess process;
    process.setProgram(kOrvanPrint);
    process.setArguments(arguments);
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(QStringLiteral("ORVAN_PLUGIN_PATH"), QStringLiteral(ORVAN_PLUGIN_DIR));
    process.setProcessEnvironment(environment);
    process.start();
    EXPECT_TRUE(process.waitForFinished(60000));
    *exitCode = process.exitCode();
    const QByteArray errors = process.readAllStandardError();
    if (*exitCode != 0)
        ADD_FAILURE() << errors.constData();
    return process.readAllStandardOutput();
}

TEST(OrvanPrint, DumpTicketKeepsTheChoicesAndWritesThePanelsItems)
{
    QTemporaryDir folder;
    ASSERT_TRUE(folder.isValid());
    PrintSession in;
    SetPpdChoice(in, "Resolution", "1200x1200dpi");
    SetPpdChoice(in, "JCLBanner", "True");
    SetPpdChoice(in, "Jog", "EndOfSet");
    PropertyValue options = PropertyValue::dictionary();
    WriteTicketValue(&options, kNegativeImageKey, 1);
    WriteTicketValue(&options, kMirrorImageKey, 1);
    in.printSettings().setItem(kShellClient, kInvertImageOptionsKey, options);
    const QString ticketPath = folder.filePath(QStringLiteral("in.plist"));
    QString why;
    ASSERT_TRUE(saveTicketFile(ticketPath, in, &why)) << qPrintable(why);

    int exitCode = -1;
    const QByteArray output =
        RunOrvanPrint({QStringLiteral("--dump-ticket"), QStringLiteral("--ticket"), ticketPath,
                       QStringLiteral("--ppd"), testing::SamplePpdPath()},
                      &exitCode);
    ASSERT_EQ(exitCode, 0);
    PropertyListError error;
    const auto list = readPropertyList(output, &error);
    ASSERT_TRUE(list) << qPrintable(error.toString());
    PrintSession out;
    ASSERT_TRUE(sessionFromPropertyList(*list, out, &why)) << qPrintable(why);

    EXPECT_EQ(PpdChoice(out, "Resolution"), QStringLiteral("1200x1200dpi"));
    EXPECT_EQ(PpdChoice(out, "JCLBanner"), QStringLiteral("True"));
    EXPECT_EQ(PpdChoice(out, "Jog"), QStringLiteral("EndOfSet"));
    EXPECT_EQ(PpdChoice(out, "QVEconomode"), QStringLiteral("None")); // the PPD's default
    // Headless: no invert-image controls, so both flags are written as 0.
    const TicketItem* invert = out.printSettings().item(kInvertImageOptionsKey);
    ASSERT_NE(invert, nullptr);
    EXPECT_EQ(invert->client, QStringLiteral("Q"));
    long negative = -1, mirror = -1;
    EXPECT_TRUE(GetCFIndexFromCFDictionary(&invert->value, kNegativeImageKey, &negative));
    EXPECT_TRUE(GetCFIndexFromCFDictionary(&invert->value, kMirrorImageKey, &mirror));
    EXPECT_EQ(negative, 0);
    EXPECT_EQ(mirror, 0);
    // No booklet order in the ticket: the default 2 is written back.
    const TicketItem* order = out.printSettings().item(kBookletLayoutOrderKey);
    ASSERT_NE(order, nullptr);
    EXPECT_EQ(order->value, PropertyValue::integer(kDefaultBookletImageOrder));
    EXPECT_EQ(order->client, kPanelClient);

    // A stored 'Qujn' comes back as 'Qujn'.
    in.printSettings().setItem(kPanelClient, kBookletLayoutOrderKey, PropertyValue::integer(kQujn));
    ASSERT_TRUE(saveTicketFile(ticketPath, in, &why)) << qPrintable(why);
    const QByteArray second =
        RunOrvanPrint({QStringLiteral("--dump-ticket"), QStringLiteral("--ticket"), ticketPath,
                       QStringLiteral("--ppd"), testing::SamplePpdPath()},
                      &exitCode);
    ASSERT_EQ(exitCode, 0);
    PrintSession again;
    ASSERT_TRUE(
        sessionFromPropertyList(readPropertyList(second).value_or(PropertyValue()), again, &why));
    EXPECT_EQ(again.printSettings().integer(kBookletLayoutOrderKey), kQujn);
}

TEST(OrvanPrint, ScreenshotsOfBothPanels)
{
    QTemporaryDir folder;
    ASSERT_TRUE(folder.isValid());
    for (const int tab : {1, 2}) {
        const QString path = folder.filePath(QStringLiteral("tab%1.png").arg(tab));
        int exitCode = -1;
        RunOrvanPrint({QStringLiteral("--screenshot"), path, QStringLiteral("--tab"),
                       QString::number(tab), QStringLiteral("--ppd"), testing::SamplePpdPath()},
                      &exitCode);
        EXPECT_EQ(exitCode, 0) << tab;
        const QImage image(path);
        EXPECT_GE(image.width(), 540) << tab;
        EXPECT_GE(image.height(), 491) << tab;
    }
}

} // namespace
} // namespace orvan
