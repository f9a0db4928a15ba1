// `tarvex-mis check` of a thousand generated missions, in process, beside a read of the same
// bytes as `cat` does it: the check (load, validation and a composed first save of each)
// should take no more than ten times the read.
//
// TARVEX_BENCH_MISSIONS=DIR keeps the missions and their database in DIR (made once, reused
// after), so that the command-line figure can be taken on the same files:
//   bench/check_vs_cat.sh DIR
#include <benchmark/benchmark.h>
#include <fcntl.h>
#include <unistd.h>

#include <chrono>
#include <cstdlib>
#include <filesystem>
#include <memory>
#include <sstream>
#include <string>
#include <vector>

#include "cli/mission_session.h"
#include "cli/resave_preview.h"
#include "mission_builder.h"

namespace {

using namespace tarvex;
using tarvex::bench::MissionBuilder;
using tarvex::bench::MissionShape;
namespace fs = std::filesystem;

constexpr int kMissions = 1000;

// A thousand missions of many shapes: up to 8 groups and 6 paths of up to 15 waypoints, up
// to 8 layouts of the database; one in ten without ground units, one in twenty with a layout
// the database doesn't know (the load makes it anew).
void Generate(const fs::path& folder) {
    MissionBuilder b("genmissions");
    std::vector<int> sizes;
    for (int k = 0; k < 40; ++k)
        sizes.push_back(3 + k);
    const std::vector<int> known = b.AddLayouts(sizes, 900);
    fs::create_directories(folder / "missions");
    b.ed().db.CloseReferenceDatabase();
    fs::copy_file(b.DatabasePath(), folder / "Tarvex Missions.mdb",
                  fs::copy_options::overwrite_existing);
    b.ed().db.theDB.Open(b.DatabasePath().string());
    const std::vector<int> unknown = b.AddLayouts({7, 12, 19}, 1900);
    for (int i = 0; i < kMissions; ++i) {
        MissionShape shape;
        shape.name = "generated_" + std::to_string(1000 + i) + ".mis";
        shape.groups = 1 + i % 8;
        shape.pilotsPerGroup = i % 5 == 0 ? 0 : 1 + i % 4;
        shape.paths = 1 + i % 6;
        shape.waypoints = 3 + i % 13;
        shape.map = i % 8;
        shape.variant = i;
        if (i % 10 != 0) {
            for (int k = 0; k <= i % 8; ++k)
                shape.layoutIds.push_back(known[(i * 7 + k * 3) % known.size()]);
            if (i % 20 == 7) shape.layoutIds.push_back(unknown[i % unknown.size()]);
        }
        b.Build(shape, folder / "missions");
    }
}

struct Batch {
    std::unique_ptr<TempFolder> temp;
    fs::path folder;
    std::vector<fs::path> files;
    std::uintmax_t bytes = 0;
};

Batch& TheBatch() {
    static Batch batch = [] {
        Batch b;
        if (const char* kept = std::getenv("TARVEX_BENCH_MISSIONS"); kept && *kept) {
            b.folder = kept;
        } else {
            b.temp = std::make_unique<TempFolder>("checkbench");
            b.folder = b.temp->Path();
        }
        if (!fs::exists(b.folder / "Tarvex Missions.mdb")) Generate(b.folder);
        for (const auto& entry : fs::directory_iterator(b.folder / "missions")) {
            if (entry.path().extension() != ".mis") continue;
            b.files.push_back(entry.path());
            b.bytes += entry.file_size();
        }
        std::sort(b.files.begin(), b.files.end());
        return b;
    }();
    return batch;
}

double gCatSeconds = 0;

// What `cat FILES > /dev/null` does: every byte of every file read and written to nowhere.
void BM_CatBatch(benchmark::State& state) {
    Batch& batch = TheBatch();
    std::vector<char> buffer(128 * 1024);
    const int sink = ::open("/dev/null", O_WRONLY);
    for (auto _ : state) {
        const auto start = std::chrono::steady_clock::now();
        for (const fs::path& file : batch.files) {
            const int fd = ::open(file.c_str(), O_RDONLY);
            for (ssize_t got; (got = ::read(fd, buffer.data(), buffer.size())) > 0;)
                if (::write(sink, buffer.data(), static_cast<size_t>(got)) != got) break;
            ::close(fd);
        }
        gCatSeconds =
            std::chrono::duration<double>(std::chrono::steady_clock::now() - start).count();
    }
    ::close(sink);
    state.SetBytesProcessed(static_cast<std::int64_t>(state.iterations() * batch.bytes));
    state.counters["files"] = static_cast<double>(batch.files.size());
}

// What `tarvex-mis check` does with each file, on one editor and a scratch copy of the
// database: load, validate, compose the first save and compare it with the file.
void BM_CheckBatch(benchmark::State& state) {
    Batch& batch = TheBatch();
    TempFolder scratch("checkbench-db");
    fs::copy_file(batch.folder / "Tarvex Missions.mdb", scratch.Path() / "Tarvex Missions.mdb");
    HeadlessEditor editor;
    std::string error;
    const EditorFolders folders{(scratch.Path() / "Tarvex Missions.mdb").string(),
                                (batch.folder / "").string(),
                                (fs::path(TARVEX_SOURCE_DIR) / "data" / "maps" / "").string()};
    if (!editor.Start(folders, true, error)) {
        state.SkipWithError(error.c_str());
        return;
    }
    int failed = 0;
    double seconds = 0;
    for (auto _ : state) {
        failed = 0;
        const auto start = std::chrono::steady_clock::now();
        for (const fs::path& file : batch.files) {
            cli::Outcome outcome = cli::OpenMission(editor, file.string());
            if (outcome.ok) outcome = cli::ValidateLoadedMission(editor);
            if (!outcome.ok || !cli::PreviewResave(editor, file.string()).ok) ++failed;
        }
        seconds = std::chrono::duration<double>(std::chrono::steady_clock::now() - start).count();
    }
    state.SetBytesProcessed(static_cast<std::int64_t>(state.iterations() * batch.bytes));
    state.counters["failed"] = failed;
    if (gCatSeconds > 0) state.counters["x_cat"] = seconds / gCatSeconds;
}

BENCHMARK(BM_CatBatch)->Unit(benchmark::kMillisecond)->MinTime(0.5);
BENCHMARK(BM_CheckBatch)->Unit(benchmark::kMillisecond)->Iterations(1)->Repetitions(3);

}  // namespace
