// Opening the dialog: the plug-in folder loaded through PluginHost, then
// Prolog, Initialize, the first Sync(true), Close and Terminate on the sample
// printer, as the Print dialog runs them each time it opens. Headless (no
// parent: the panels keep their models only) and with the panes built
// offscreen.
#include "host/PluginHost.h"
#include "settings/PrintSession.h"

#include <QApplication>
#include <QWidget>

#include <benchmark/benchmark.h>

#include <cstdio>
#include <memory>

namespace orvan {
namespace {

const QString kSamplePpd =
    QStringLiteral(ORVAN_SOURCE_DIR "/resources/bundle/ppd/Orvan-Meridian-5000.ppd");

PluginHost& Plugin()
{
    static const std::unique_ptr<PluginHost> plugin = [] {
        QString why;
        auto loaded = PluginHost::load(QStringLiteral(ORVAN_PLUGIN_DIR), &why);
        if (!loaded)
            std::fprintf(stderr, "%s\n", qPrintable(why));
        return loaded;
    }();
    return *plugin;
}

// window null: headless; otherwise every pane gets a widget inside it.
void OpenAndClose(PluginHost& plugin, PrintSession& session, QWidget* window)
{
    plugin.prolog();
    std::vector<QWidget*> parents;
    if (window)
        for (std::size_t i = 0; i < plugin.panes().size(); ++i)
            parents.push_back(new QWidget(window));
    plugin.initialize(parents, &session);
    plugin.sync(&session, true);
    plugin.open();
    plugin.close();
    plugin.terminate(0);
}

void BM_LoadPluginFolder(benchmark::State& state)
{
    for (auto _ : state) {
        QString why;
        auto plugin = PluginHost::load(QStringLiteral(ORVAN_PLUGIN_DIR), &why);
        benchmark::DoNotOptimize(plugin.get());
    }
}
BENCHMARK(BM_LoadPluginFolder)->Unit(benchmark::kMicrosecond);

void BM_OpenDialogHeadless(benchmark::State& state)
{
    PluginHost& plugin = Plugin();
    PrintSession session;
    session.setCurrentPrinter(Printer{QString(), kSamplePpd});
    for (auto _ : state)
        OpenAndClose(plugin, session, nullptr);
}
BENCHMARK(BM_OpenDialogHeadless)->Unit(benchmark::kMillisecond);

void BM_OpenDialogWithPanes(benchmark::State& state)
{
    PluginHost& plugin = Plugin();
    PrintSession session;
    session.setCurrentPrinter(Printer{QString(), kSamplePpd});
    for (auto _ : state) {
        QWidget window;
        OpenAndClose(plugin, session, &window);
    }
}
BENCHMARK(BM_OpenDialogWithPanes)->Unit(benchmark::kMillisecond);

} // namespace
} // namespace orvan

int main(int argc, char** argv)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication application(argc, argv);
    benchmark::Initialize(&argc, argv);
    if (benchmark::ReportUnrecognizedArguments(argc, argv))
        return 1;
    benchmark::RunSpecifiedBenchmarks();
    benchmark::Shutdown();
    return 0;
}
