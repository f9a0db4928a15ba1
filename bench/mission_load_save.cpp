// Loading and saving a mission in process, as File Open and File Save do, on the default
// reference database. The maximal mission (16 groups at their patterns' capacity, 16 paths of
// 15 waypoints, 20 layouts of up to 59 units, each layout looked up and placed) must load
// and save within 10 ms each; a typical one (4 groups, 12 pilots, 4 paths, 5 layouts) within
// 2 ms.
#include <benchmark/benchmark.h>

#include <filesystem>
#include <vector>

#include "mission_builder.h"

namespace {

using namespace tarvex;
using tarvex::bench::MissionBuilder;
using tarvex::bench::MissionShape;
namespace fs = std::filesystem;

MissionShape Maximal() {
    return {"maximal.mis", 16, 0, 16, 15, {}};
}
MissionShape Typical() {
    return {"typical.mis", 4, 3, 4, 5, {}};
}
std::vector<int> MaximalLayouts() {
    return std::vector<int>(20, 59);
}
std::vector<int> TypicalLayouts() {
    return {9, 5, 7, 4, 6};
}

void RunLoad(benchmark::State& state, MissionShape shape, const std::vector<int>& layouts) {
    MissionBuilder b("bench");
    shape.layoutIds = b.AddLayouts(layouts);
    const fs::path file = b.Build(shape, b.SimFolder() / "missions");
    b.Load(file);  // the first load may add layouts; later ones find them
    for (auto _ : state)
        b.Load(file);
    if (!b.dialogs().messages.empty()) state.SkipWithError(b.dialogs().LastMessage().c_str());
    state.counters["bytes"] = static_cast<double>(fs::file_size(file));
}

void RunSave(benchmark::State& state, MissionShape shape, const std::vector<int>& layouts) {
    MissionBuilder b("bench");
    shape.layoutIds = b.AddLayouts(layouts);
    const fs::path file = b.Build(shape, b.SimFolder() / "missions");
    b.Load(file);
    for (auto _ : state)
        SaveMission(b.ed());
    if (!b.dialogs().messages.empty()) state.SkipWithError(b.dialogs().LastMessage().c_str());
}

void BM_LoadMaximal(benchmark::State& state) {
    RunLoad(state, Maximal(), MaximalLayouts());
}
void BM_SaveMaximal(benchmark::State& state) {
    RunSave(state, Maximal(), MaximalLayouts());
}
void BM_LoadTypical(benchmark::State& state) {
    RunLoad(state, Typical(), TypicalLayouts());
}
void BM_SaveTypical(benchmark::State& state) {
    RunSave(state, Typical(), TypicalLayouts());
}

BENCHMARK(BM_LoadMaximal)->Unit(benchmark::kMillisecond);
BENCHMARK(BM_SaveMaximal)->Unit(benchmark::kMillisecond);
BENCHMARK(BM_LoadTypical)->Unit(benchmark::kMillisecond);
BENCHMARK(BM_SaveTypical)->Unit(benchmark::kMillisecond);

}  // namespace
