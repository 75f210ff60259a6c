// The preview of a 20-page document: from opening the file to the first sheet
// on screen (goal: within 150 ms), the renderer alone and through the pane
// with its thread; and a saved PDF of it, two pages a sheet with a watermark.
#include "host/DocumentPreparer.h"
#include "host/PreviewPane.h"
#include "host/PreviewRenderer.h"
#include "host/tests/PdfFixtures.h"

#include <QApplication>
#include <QEventLoop>
#include <QTemporaryDir>
#include <QTimer>

#include <benchmark/benchmark.h>

namespace orvan {
namespace {

using namespace orvan::testing;

const QSize kPreviewBox(292, 292);

const QString& TwentyPages()
{
    static QTemporaryDir folder;
    static const QString path = [] {
        const QString file = folder.filePath(QStringLiteral("twenty.pdf"));
        WritePdfDocument(file, 20);
        return file;
    }();
    return path;
}

PreviewSettings TwoUpWithWatermark()
{
    PreviewSettings settings{PageSetup{{"A4", "A4", kA4Points}, Orientation::Landscape, 2}};
    settings.watermark = WatermarkStamp{WatermarkPdf(), WatermarkLayer::Foreground, false};
    return settings;
}

void BM_FirstSheetRendered(benchmark::State& state)
{
    const PreviewSettings settings = TwoUpWithWatermark();
    for (auto _ : state) {
        PreviewRenderer renderer;
        renderer.open(TwentyPages(), nullptr);
        benchmark::DoNotOptimize(renderer.renderSpread(settings, 0, kPreviewBox));
    }
    state.SetLabel("open + first 2-up sheet with a watermark");
}
BENCHMARK(BM_FirstSheetRendered)->Unit(benchmark::kMillisecond);

void BM_FirstSheetShownByThePane(benchmark::State& state)
{
    int argc = 1;
    char name[] = "host_preview_bench";
    char* argv[] = {name, nullptr};
    qputenv("QT_QPA_PLATFORM", "offscreen");
    static QApplication app(argc, argv);
    for (auto _ : state) {
        PreviewPane pane;
        QEventLoop loop;
        QObject::connect(&pane, &PreviewPane::spreadShown, &loop, &QEventLoop::quit);
        QTimer::singleShot(5000, &loop, &QEventLoop::quit);
        pane.setSettings(TwoUpWithWatermark());
        pane.setDocument(TwentyPages());
        loop.exec();
        if (!pane.isShowingPages())
            state.SkipWithError("no sheet shown");
    }
    state.SetLabel("dialog asks -> first sheet on screen");
}
BENCHMARK(BM_FirstSheetShownByThePane)->Unit(benchmark::kMillisecond);

void BM_SavedPdfTwoUpWithWatermark(benchmark::State& state)
{
    QTemporaryDir folder;
    DocumentPreparation preparation;
    preparation.watermark = WatermarkStamp{WatermarkPdf(), WatermarkLayer::Foreground, false};
    preparation.sheets = PageSetup{{"A4", "A4", kA4Points}, Orientation::Landscape, 2};
    for (auto _ : state)
        PrepareDocument(TwentyPages(), preparation, folder.filePath(QStringLiteral("out.pdf")));
}
BENCHMARK(BM_SavedPdfTwoUpWithWatermark)->Unit(benchmark::kMillisecond);

} // namespace
} // namespace orvan
