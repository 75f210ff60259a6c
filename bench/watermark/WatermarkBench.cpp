// Preview redraw of a text watermark, as the panel and the editor do it on
// every change (goal: under 16 ms, so dragging a slider feels live), and the
// font-program step run when a job names a watermark.

#include "watermark/FontProgram.h"
#include "watermark/WatermarkDocument.h"
#include "watermark/WatermarkEditorModel.h"
#include "watermark/WatermarkPreview.h"
#include "watermark/WatermarkStore.h"

#include <benchmark/benchmark.h>

#include <QTemporaryDir>

namespace {

using namespace orvan;

constexpr QSizeF kLetter(612, 792);
// The panel's preview area.
constexpr QSize kPreviewArea(170, 220);

_WatermarkData confidential()
{
    _WatermarkData record;
    record.isText = 1;
    record.textString.assignIfFits(std::string_view("Confidential"));
    record.fontName.assignIfFits(std::string_view("ArialMT"));
    record.fontSize = 72;
    record.angle = 45;
    record.density = 25;
    record.wellColorBlue = 1;
    record.wellColorAlpha = 1;
    return record;
}

// A private watermark file holding the record, for the steps that save.
class WatermarkFolder
{
public:
    WatermarkFolder()
    {
        qputenv("ORVAN_SHARED_DATA_DIR", m_dir.path().toUtf8());
        saveWatermarkData(kWatermarkFile, confidential());
    }
    ~WatermarkFolder() { qunsetenv("ORVAN_SHARED_DATA_DIR"); }

private:
    QTemporaryDir m_dir;
};

// The whole redraw: record to PDF in memory (saving glyphs and origin to the
// file, as the drawing does), then the preview image.
void previewRedraw(benchmark::State& state)
{
    const WatermarkFolder folder;
    MemoryDocument document;
    int angle = 0;
    for (auto _ : state) {
        _WatermarkData record = confidential();
        record.angle = angle++ % 360; // as while dragging the angle slider
        RenderWatermarkDocument(record, kLetter, document, kWatermarkFile);
        const QImage preview = DrawWatermarkPreview(document, kPreviewArea);
        benchmark::DoNotOptimize(preview.constBits());
    }
    state.counters["pdf_bytes"] = document.cursor;
}

// Its parts: the document without saving to the file, and the preview image.
void previewDocument(benchmark::State& state)
{
    MemoryDocument document;
    for (auto _ : state) {
        _WatermarkData record = confidential();
        RenderWatermarkDocument(record, kLetter, document);
        benchmark::DoNotOptimize(document.buffer.data());
    }
}

void previewImage(benchmark::State& state)
{
    MemoryDocument document;
    _WatermarkData record = confidential();
    RenderWatermarkDocument(record, kLetter, document);
    for (auto _ : state) {
        const QImage preview = DrawWatermarkPreview(document, kPreviewArea);
        benchmark::DoNotOptimize(preview.constBits());
    }
}

void saveRecord(benchmark::State& state)
{
    const WatermarkFolder folder;
    const _WatermarkData record = confidential();
    for (auto _ : state)
        benchmark::DoNotOptimize(saveWatermarkData(kWatermarkFile, record));
}

// Subset of the drawn text's glyphs, written as a Type 42 program.
void fontProgram(benchmark::State& state)
{
    const std::vector<std::uint16_t> glyphs{38, 82, 81, 73, 76, 71, 72, 81, 87, 76, 68, 79};
    std::size_t size = 0;
    for (auto _ : state) {
        const QByteArray program =
            MakeSubsetFontProgram("ArialMT", "QV-ArialMT-QV", glyphs, "Confidential");
        size = std::size_t(program.size());
        benchmark::DoNotOptimize(program.constData());
    }
    state.counters["program_bytes"] = double(size);
}

// The dialog's whole step: load the record, subset, store in the file.
void convertFontStep(benchmark::State& state)
{
    const WatermarkFolder folder;
    _WatermarkData record = confidential();
    MemoryDocument document;
    RenderWatermarkDocument(record, kLetter, document, kWatermarkFile);
    for (auto _ : state)
        benchmark::DoNotOptimize(convertFont(kWatermarkFile, "Confidential"));
}

// The editor while its angle slider is dragged through 0 to 360: each step
// takes the value into the record and redraws the preview document and image.
void editorAngleDrag(benchmark::State& state)
{
    _WatermarkData record = confidential();
    record.paperWidth = kLetter.width();
    record.paperHeight = kLetter.height();
    WatermarkEditorModel editor(record);
    int angle = 0;
    for (auto _ : state) {
        angle = (angle + 1) % 361;
        editor.setAngle(angle);
        const QImage preview = DrawWatermarkPreview(editor.preview(), QSize(204, 264));
        benchmark::DoNotOptimize(preview.constBits());
    }
    state.counters["redraws"] = double(editor.previewVersion());
}

} // namespace

BENCHMARK(editorAngleDrag)->Unit(benchmark::kMillisecond);
BENCHMARK(previewRedraw)->Unit(benchmark::kMillisecond);
BENCHMARK(previewDocument)->Unit(benchmark::kMillisecond);
BENCHMARK(previewImage)->Unit(benchmark::kMillisecond);
BENCHMARK(saveRecord)->Unit(benchmark::kMillisecond);
BENCHMARK(fontProgram)->Unit(benchmark::kMillisecond);
BENCHMARK(convertFontStep)->Unit(benchmark::kMillisecond);
