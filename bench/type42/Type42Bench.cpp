// Conversion speed of the Type 42 writer on a real font, in bytes of font
// input per second.

#include "watermark/type42/HexDump.h"
#include "watermark/type42/Type42Converter.h"

#include <benchmark/benchmark.h>

#include <fstream>
#include <iterator>
#include <string>
#include <vector>

namespace {

std::vector<std::uint8_t> readFont(const char* path)
{
    std::ifstream in(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(in), std::istreambuf_iterator<char>()};
}

void convertFont(benchmark::State& state, const char* path, const char* name)
{
    const std::vector<std::uint8_t> font = readFont(path);
    if (font.empty()) {
        state.SkipWithError("font file missing");
        return;
    }
    std::string program;
    for (auto _ : state) {
        program.clear();
        const orvan::Type42Result result =
            orvan::convertTTFtoPS42(font, name, program, orvan::Type42Diagnostics::Silent);
        benchmark::DoNotOptimize(result);
        benchmark::DoNotOptimize(program.data());
    }
    state.SetBytesProcessed(static_cast<std::int64_t>(state.iterations() * font.size()));
    state.counters["program_bytes"] = static_cast<double>(program.size());
}

// A fresh output buffer every time, as a caller storing each program has.
void convertFontFreshBuffer(benchmark::State& state, const char* path, const char* name)
{
    const std::vector<std::uint8_t> font = readFont(path);
    if (font.empty()) {
        state.SkipWithError("font file missing");
        return;
    }
    for (auto _ : state) {
        std::string program;
        orvan::convertTTFtoPS42(font, name, program, orvan::Type42Diagnostics::Silent);
        benchmark::DoNotOptimize(program.data());
    }
    state.SetBytesProcessed(static_cast<std::int64_t>(state.iterations() * font.size()));
}

void hexDump(benchmark::State& state)
{
    std::vector<std::uint8_t> bytes(65534);
    for (std::size_t i = 0; i < bytes.size(); ++i)
        bytes[i] = static_cast<std::uint8_t>(i * 131 + 7);
    std::string out(orvan::hexDumpSize(0, bytes.size(), 0), '\0');
    for (auto _ : state) {
        orvan::writeHexDump(out.data(), bytes.data(), 0, bytes.size(), 0);
        benchmark::DoNotOptimize(out.data());
        benchmark::ClobberMemory();
    }
    state.SetBytesProcessed(static_cast<std::int64_t>(state.iterations() * bytes.size()));
}

constexpr const char* kDejaVuSans = "/usr/share/fonts/truetype/dejavu/DejaVuSans.ttf";
constexpr const char* kLiberationSans =
    "/usr/share/fonts/truetype/liberation/LiberationSans-Regular.ttf";

} // namespace

BENCHMARK_CAPTURE(convertFont, DejaVuSans, kDejaVuSans, "DejaVuSans")
    ->Unit(benchmark::kMicrosecond);
BENCHMARK_CAPTURE(convertFontFreshBuffer, DejaVuSans, kDejaVuSans, "DejaVuSans")
    ->Unit(benchmark::kMicrosecond);
BENCHMARK_CAPTURE(convertFont, LiberationSans, kLiberationSans, "LiberationSans")
    ->Unit(benchmark::kMicrosecond);
BENCHMARK(hexDump)->Unit(benchmark::kMicrosecond);
