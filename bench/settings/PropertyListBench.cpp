// Reading and writing a watermark-sized property list: seven 2 MB data blobs
// (font programs and pictures) and 2,000 small dictionaries (watermark
// records), about 20 MB of XML.
#include "settings/PropertyList.h"

#include <benchmark/benchmark.h>

#include <random>

using namespace orvan;

namespace {

PropertyValue watermarkLikeValue()
{
    std::mt19937 random(7);
    PropertyValue root = PropertyValue::dictionary();
    for (int blob = 0; blob < 7; ++blob) {
        QByteArray bytes(2 * 1024 * 1024, Qt::Uninitialized);
        for (char& b : bytes)
            b = static_cast<char>(random());
        root.insert(QStringLiteral("FontProgram-%1").arg(blob), PropertyValue::data(bytes));
    }
    PropertyValue names = PropertyValue::array();
    for (int i = 0; i < 2000; ++i) {
        PropertyValue record = PropertyValue::dictionary();
        record.insert("textString",
                      PropertyValue(QStringLiteral("Watermark number %1 & <more>").arg(i)));
        record.insert("fontName", PropertyValue("ArialMT"));
        record.insert("angle", PropertyValue::integer(45));
        record.insert("density", PropertyValue::integer(25));
        record.insert("fontSize", PropertyValue::integer(72));
        record.insert("xOffset", PropertyValue::real(0.125, NumberType::Float32));
        record.insert("wellColorBlue", PropertyValue::real(1.0, NumberType::Float32));
        record.insert("visible", PropertyValue::boolean(i % 2 == 0));
        const QString name = QStringLiteral("Watermark %1").arg(i);
        root.insert(name, std::move(record));
        names.append(PropertyValue(name));
    }
    root.insert("WatermarkList", std::move(names));
    return root;
}

const PropertyValue& sample()
{
    static const PropertyValue value = watermarkLikeValue();
    return value;
}

void BM_WritePropertyList(benchmark::State& state)
{
    const PropertyValue& value = sample();
    std::size_t bytes = 0;
    for (auto _ : state) {
        auto xml = writePropertyList(value);
        bytes = xml->size();
        benchmark::DoNotOptimize(xml);
    }
    state.SetBytesProcessed(static_cast<int64_t>(state.iterations() * bytes));
    state.counters["MB"] = static_cast<double>(bytes) / 1e6;
}
BENCHMARK(BM_WritePropertyList)->Unit(benchmark::kMillisecond);

void BM_ReadPropertyList(benchmark::State& state)
{
    const QByteArray xml = *writePropertyList(sample());
    for (auto _ : state) {
        auto value = readPropertyList(xml);
        if (!value)
            state.SkipWithError("parse failed");
        benchmark::DoNotOptimize(value);
    }
    state.SetBytesProcessed(static_cast<int64_t>(state.iterations() * xml.size()));
}
BENCHMARK(BM_ReadPropertyList)->Unit(benchmark::kMillisecond);

} // namespace
