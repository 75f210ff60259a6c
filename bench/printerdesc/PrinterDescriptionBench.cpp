// Opening the sample printer's PPD with its installed options, and filling
// the largest menus: from PPD options (with and without the constraint
// check) and from setting maps.
#include "printerdesc/InstallableOptions.h"
#include "printerdesc/PPDAccess.h"
#include "settings/Bundle.h"
#include "settings/SettingMapAccess.h"
#include "settings/SettingMaps.h"

#include <benchmark/benchmark.h>

namespace orvan {
namespace {

const QString kSamplePpd =
    QStringLiteral(ORVAN_SOURCE_DIR "/resources/bundle/ppd/Orvan-Meridian-5000.ppd");

void BM_OpenSamplePpd(benchmark::State& state)
{
    for (auto _ : state) {
        PpdFilePtr ppd = OpenPPDFile(kSamplePpd);
        benchmark::DoNotOptimize(ppd.get());
    }
}
BENCHMARK(BM_OpenSamplePpd)->Unit(benchmark::kMicrosecond);

void BM_OpenSamplePpdAndLoadInstallableOptions(benchmark::State& state)
{
    for (auto _ : state) {
        PpdFilePtr ppd = OpenPPDFile(kSamplePpd);
        benchmark::DoNotOptimize(LoadInstallableOptions(ppd.get(), _InstalledFeatures));
        UnloadInstallableOptions();
    }
}
BENCHMARK(BM_OpenSamplePpdAndLoadInstallableOptions)->Unit(benchmark::kMicrosecond);

void PopulateFromPpd(benchmark::State& state, const QString& keyword, bool checkConstraints)
{
    PpdFilePtr ppd = OpenPPDFile(kSamplePpd);
    MenuModel menu;
    for (auto _ : state)
        benchmark::DoNotOptimize(
            PPDPopulateMenuWithChoices(&menu, ppd.get(), keyword, 0, checkConstraints));
    state.counters["items"] = menu.count();
}

void BM_PpdMenu_MediaType(benchmark::State& state)
{
    PopulateFromPpd(state, QStringLiteral("MediaType"), false);
}
BENCHMARK(BM_PpdMenu_MediaType)->Unit(benchmark::kMicrosecond);

void BM_PpdMenu_MediaType_CheckConstraints(benchmark::State& state)
{
    PopulateFromPpd(state, QStringLiteral("MediaType"), true);
}
BENCHMARK(BM_PpdMenu_MediaType_CheckConstraints)->Unit(benchmark::kMicrosecond);

void BM_PpdMenu_PageSize(benchmark::State& state)
{
    PopulateFromPpd(state, QStringLiteral("PageSize"), false);
}
BENCHMARK(BM_PpdMenu_PageSize)->Unit(benchmark::kMicrosecond);

void BM_PpdMenu_PageSize_CheckConstraints(benchmark::State& state)
{
    PopulateFromPpd(state, QStringLiteral("PageSize"), true);
}
BENCHMARK(BM_PpdMenu_PageSize_CheckConstraints)->Unit(benchmark::kMicrosecond);

// Every choice of the largest choice maps translated to its value, as a
// ticket sync of the stock does.
void BM_TicketValuesForAllChoices(benchmark::State& state)
{
    std::vector<std::pair<QString, QString>> lookups;
    for (const char* keyword : {"MediaType", "PageSize", "MediaColor", "OutputBin"}) {
        for (const MainKeywordMap* row = _MainKeywordMap; row->mainKeyword; ++row) {
            if (qstrcmp(row->mainKeyword, keyword) != 0)
                continue;
            for (const PPDChoiceMap* choice = row->choices; choice->choice; ++choice)
                lookups.emplace_back(QString::fromUtf8(keyword), QString::fromUtf8(choice->choice));
        }
    }
    for (auto _ : state) {
        for (const auto& [keyword, choice] : lookups)
            benchmark::DoNotOptimize(PPDTicketValueForChoice(keyword, choice));
    }
    state.counters["lookups"] = static_cast<double>(lookups.size());
}
BENCHMARK(BM_TicketValuesForAllChoices)->Unit(benchmark::kMicrosecond);

void PopulateFromMap(benchmark::State& state, const _SettingMap* map)
{
    const Bundle bundle(QStringLiteral(ORVAN_PLUGIN_DIR), QStringLiteral("en"));
    PpdFilePtr ppd = OpenPPDFile(kSamplePpd);
    LoadInstallableOptions(ppd.get(), _InstalledFeatures);
    MenuModel menu;
    for (auto _ : state)
        benchmark::DoNotOptimize(PopulatePopupMenuFromMap(&bundle, menu, map, 0, 0));
    state.counters["items"] = menu.count();
    UnloadInstallableOptions();
}

void BM_MapMenu_JobTypeMap(benchmark::State& state)
{
    PopulateFromMap(state, _JobTypeMap);
}
BENCHMARK(BM_MapMenu_JobTypeMap)->Unit(benchmark::kMicrosecond);

void BM_MapMenu_WatermarkOptionsMap(benchmark::State& state)
{
    PopulateFromMap(state, _WatermarkOptionsMap);
}
BENCHMARK(BM_MapMenu_WatermarkOptionsMap)->Unit(benchmark::kMicrosecond);

} // namespace
} // namespace orvan
