// The mission summary scan over a folder of 10,000 missions, beside the time to read the same
// bytes. The scan must stay under twice the read, and its memory must not grow with the
// number of files: it holds one file's text at a time.
//
// The missions are written once, by the editor's own loader and saver, into the build folder
// (bench-data/summary-scan/missions): the eight sample missions in turn (11 to 21 KB), each
// with a summary of its own length, so that the files vary in size and content.
#include <benchmark/benchmark.h>

#include <filesystem>
#include <fstream>
#include <stdexcept>
#include <string>
#include <vector>

#include "app/scratch_editor.h"
#include "common/file_bytes.h"
#include "common/number_text.h"
#include "document/mission_loader.h"
#include "document/mission_reset.h"
#include "document/mission_saver.h"
#include "library/mission_summary_scan.h"
#include "shell/forms/frm_mission.h"

namespace {

using namespace tarvex;
namespace fs = std::filesystem;

constexpr int kMissions = 10000;

ScratchOptions Options() {
    const fs::path source(TARVEX_SOURCE_DIR);
    return {{source / "data" / "refdb" / "schema.sql", source / "data" / "refdb" / "seed.sql"},
            {},
            source / "data" / "maps",
            true};
}

std::vector<fs::path> MissionFiles(const fs::path& folder) {
    std::vector<fs::path> files;
    std::error_code error;
    for (const auto& entry : fs::directory_iterator(folder, error))
        if (entry.path().extension() == ".mis") files.push_back(entry.path());
    return files;
}

// The folder of missions, written on the first run.
fs::path MissionFolder() {
    const fs::path folder =
        fs::path(TARVEX_BINARY_DIR) / "bench-data" / "summary-scan" / "missions";
    if (MissionFiles(folder).size() == kMissions) return folder;
    fs::remove_all(folder);
    fs::create_directories(folder);

    ScratchEditor editor(Options(), "scan-gen");
    Editor& ed = editor.ed();
    std::vector<fs::path> samples =
        MissionFiles(fs::path(TARVEX_SOURCE_DIR) / "data" / "sim" / "missions");
    std::sort(samples.begin(), samples.end());
    const std::string words = "Escort the bombers to the target and bring them home. ";
    for (int i = 0; i < kMissions; ++i) {
        const fs::path& sample = samples[i % samples.size()];
        ed.doc.NotLoading = false;
        ResetMission(ed);
        ed.doc.MissionPath = sample.string();
        ed.doc.MissionFile = sample.filename().string();
        LoadMission(ed);
        ed.doc.NotLoading = true;
        std::string summary;
        for (int k = 0; k < (i * 7) % 8; ++k)
            summary += words;
        ed.FrmMission.txtSummary.SetText(summary);
        ed.doc.MissionPath = (folder / ("Mission_" + IntText(i) + ".mis")).string();
        SaveMission(ed);
        if (!editor.dialogs().messages.empty())
            throw std::runtime_error(editor.dialogs().LastMessage());
        fs::remove(fs::path(ed.doc.MissionPath).replace_extension(".txt"));
    }
    return folder;
}

// Resident memory in kilobytes, where the system tells it.
long ResidentKb() {
    std::ifstream statm("/proc/self/statm");
    long size = 0;
    long resident = 0;
    statm >> size >> resident;
    return resident * 4;
}

void BM_ScanTenThousandMissions(benchmark::State& state) {
    const fs::path folder = MissionFolder();
    ScratchEditor editor(Options(), "scan");
    std::string last;
    // The first run brings the files into the system's cache, as the read below has them.
    ScanMissionFolder(editor.ed(), folder.string(), last);
    const long before = ResidentKb();
    int rows = 0;
    for (auto _ : state)
        rows = ScanMissionFolder(editor.ed(), folder.string(), last);
    state.counters["files"] = rows;
    state.counters["rss_growth_kb"] = static_cast<double>(ResidentKb() - before);
}

// The bytes of the same files read whole, one after the other: what the scan can't beat.
void BM_ReadTheSameBytes(benchmark::State& state) {
    const fs::path folder = MissionFolder();
    std::vector<std::string> names;
    for (const fs::path& file : MissionFiles(folder))
        names.push_back(file.filename().string());
    FolderReader files(folder.string());
    std::string storage;
    size_t bytes = 0;
    for (auto _ : state) {
        bytes = 0;
        for (const std::string& name : names)
            bytes += files.Read(name, storage).size();
        benchmark::DoNotOptimize(bytes);
    }
    state.counters["bytes"] = static_cast<double>(bytes);
}

BENCHMARK(BM_ScanTenThousandMissions)->Unit(benchmark::kMillisecond)->MinTime(2.0);
BENCHMARK(BM_ReadTheSameBytes)->Unit(benchmark::kMillisecond)->MinTime(2.0);

}  // namespace
