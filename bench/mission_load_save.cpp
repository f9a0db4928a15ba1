// Loading and saving a mission in process, as File Open and File Save do, on the default
// reference database. The maximal mission (16 groups at their patterns' capacity, 16 paths of
// 15 waypoints, 20 layouts of up to 59 units, each layout looked up and placed) must load
// and save within 10 ms each; a typical one (4 groups, 12 pilots, 4 paths, 5 layouts) within
// 2 ms.
#include <benchmark/benchmark.h>

#include <filesystem>
#include <fstream>
#include <iterator>
#include <memory>
#include <stdexcept>
#include <string>
#include <vector>

#include "app/scratch_editor.h"
#include "common/number_text.h"
#include "document/mission_loader.h"
#include "document/mission_reset.h"
#include "document/mission_saver.h"
#include "shell/forms/frm_mission.h"

namespace {

using namespace tarvex;
namespace fs = std::filesystem;

// A started editor on a fresh database in a temporary folder of its own.
struct Bench : ScratchEditor {
    Editor* ed;
    fs::path folder;

    Bench()
        : ScratchEditor({{fs::path(TARVEX_SOURCE_DIR) / "data" / "refdb" / "schema.sql",
                          fs::path(TARVEX_SOURCE_DIR) / "data" / "refdb" / "seed.sql"},
                         {},
                         fs::path(TARVEX_SOURCE_DIR) / "data" / "maps",
                         true},
                        "bench"),
          ed(&HeadlessEditor::ed()),
          folder(Folder()) {}

    // Layouts of the given sizes in the database, each unit of a known type.
    std::vector<int> AddLayouts(const std::vector<int>& sizes) {
        std::vector<int> ids;
        for (size_t k = 0; k < sizes.size(); ++k) {
            const int id = 900 + static_cast<int>(k);
            long total = 0;
            std::string units;
            for (int u = 0; u < sizes[k]; ++u) {
                const int type = 4001 + (u + static_cast<int>(k)) % 20;
                total += type;
                units += std::string(u ? "," : "") + "(" + IntText(id) + "," + IntText(type) +
                         ",1," + IntText(u * 7 % 360) + "," + Format(0.01 * (u % 8), "0.00") + "," +
                         Format(-0.01 * (u / 8), "0.00") + ",0)";
            }
            ed->db.theDB.Execute(
                "INSERT INTO GrndNames (ID,LayoutName,UnitTotal,IsDefault,GUType) "
                "VALUES (" +
                IntText(id) + ",'Bench " + IntText(id) + "'," + IntText(total) + ",0,1);");
            ed->db.theDB.Execute(
                "INSERT INTO GrndTypes (ID,UnitType,Points,Heading,XOffset,YOffset,DamageID) "
                "VALUES " +
                units + ";");
            ids.push_back(id);
        }
        return ids;
    }

    int PatternCapacity(int row) {
        Recordset rs =
            ed->db.theDB.OpenRecordset("SELECT Count(*) FROM frmPatterns WHERE frmID=" +
                                           IntText(ed->FrmMission.cmbFormPattern.ItemData(row)),
                                       kSnapshot);
        return std::min<int>(rs.Fields(0).Long(), Mission::kPilotUpper);
    }

    // Fills the document through its arrays and lists, then saves it as `name`.
    fs::path Build(const std::string& name, int groups, int pilotsPerGroup, int paths,
                   int waypoints, const std::vector<int>& layoutIds) {
        Editor& e = *ed;
        ResetMission(e);
        Mission& doc = e.doc;
        auto& frm = e.FrmMission;
        frm.txtTitle.SetText("Bench " + name);
        frm.cmbSelectMap.SetListIndex(2);
        const int patternRows[] = {0, 3, 9, 10, 4, 1};
        for (int g = 0; g < groups; ++g) {
            frm.lstGroupName.AddItem("Group " + IntText(g + 1));
            const int row = patternRows[g % 6];
            doc.GrpPattern(g) = static_cast<std::uint8_t>(row);
            const int pilots = pilotsPerGroup > 0 ? pilotsPerGroup : PatternCapacity(row);
            doc.GrpPaths(g) = IntText(5000 + g % paths);
            doc.GrpTakeoffFlag(g) = static_cast<std::uint8_t>(g % 4);
            doc.GrpTakeoffRwy(g) = static_cast<std::uint8_t>(g * 3 % 40);
            doc.GrpLandingRwy(g) = static_cast<std::uint8_t>(g * 5 % 40);
            for (int p = 0; p < pilots; ++p) {
                doc.PilotName(g, p) = "Pilot " + IntText(p + 1) + " Unit " + IntText(g + 1);
                doc.PilotAC(g, p) = static_cast<std::int16_t>(1 + (g + p) % 10);
                // A reset leaves 255 in every pilot value: each is given.
                doc.PilotSkill(g, p) = static_cast<std::uint8_t>(p % 5);
                doc.PilotLevel(g, p) = static_cast<std::uint8_t>(p % 3);
                doc.PilotPoints(g, p) = 1;
                doc.PilotDamage(g, p) = 0;
                doc.PilotIsPlayer(g, p) = 0;
            }
        }
        doc.PilotIsPlayer(0, 0) = 1;
        doc.PlayerGroup = 0;
        doc.PlayerPilot = 0;
        doc.PlayerAssigned = true;
        doc.PilotsAssigned = true;
        for (size_t k = 0; k < layoutIds.size(); ++k) {
            frm.lstGUAdded.AddItem(Format(static_cast<double>(k + 1), "##00") + ". Layout");
            frm.lstGUAdded.SetItemData(static_cast<int>(k), layoutIds[k]);
            doc.GULat(static_cast<int>(k)) = "N51 " + Format(2.0 * k, "00.0000");
            doc.GULon(static_cast<int>(k)) = "E00 " + Format(1.5 * k, "00.0000");
            doc.GURotation(static_cast<int>(k)) = static_cast<float>(k * 15 % 360);
        }
        doc.GUCount = static_cast<std::uint8_t>(layoutIds.size());
        for (int p = 0; p < paths; ++p) {
            doc.PathPointCount(p) = static_cast<std::uint8_t>(waypoints + 1);
            for (int i = 1; i <= waypoints; ++i) {
                doc.WPLat(p, i) = "N5" + IntText(p % 2) + " " + Format(i * 3.5, "00.00");
                doc.WPLon(p, i) = (i % 2 ? "W00 " : "E00 ") + Format(p * 3.25, "00.00");
                doc.WPAlt(p, i) = 1000 * i;
                doc.WPSpeed(p, i) = static_cast<std::int16_t>(300 + i);
                doc.WPName(p, i) = "Point " + IntText(i);
            }
        }
        doc.HighestPath = static_cast<std::int16_t>(paths - 1);
        doc.MissionPath = (folder / "sim" / "missions" / name).string();
        doc.MissionFile = name;
        SaveMission(e);
        if (!dialogs().messages.empty()) throw std::runtime_error(dialogs().LastMessage());
        return doc.MissionPath;
    }

    void Load(const fs::path& file) {
        Editor& e = *ed;
        e.doc.MissionPath = file.string();
        e.doc.MissionFile = file.filename().string();
        LoadedFlagGuard guard(e);
        ResetMission(e);
        LoadMission(e);
    }

    struct LoadedFlagGuard {
        explicit LoadedFlagGuard(Editor& e) : doc(e.doc) { doc.NotLoading = false; }
        ~LoadedFlagGuard() { doc.NotLoading = true; }
        Mission& doc;
    };
};

struct Shape {
    const char* name;
    int groups, pilotsPerGroup, paths, waypoints;
    std::vector<int> layoutSizes;
};

Shape Maximal() {
    return {"maximal.mis", 16, 0, 16, 15, std::vector<int>(20, 59)};
}
Shape Typical() {
    return {"typical.mis", 4, 3, 4, 5, {9, 5, 7, 4, 6}};
}

void RunLoad(benchmark::State& state, const Shape& shape) {
    Bench b;
    const fs::path file = b.Build(shape.name, shape.groups, shape.pilotsPerGroup, shape.paths,
                                  shape.waypoints, b.AddLayouts(shape.layoutSizes));
    b.Load(file);  // the first load may add layouts; later ones find them
    for (auto _ : state)
        b.Load(file);
    if (!b.dialogs().messages.empty()) state.SkipWithError(b.dialogs().LastMessage().c_str());
    state.counters["bytes"] = static_cast<double>(fs::file_size(file));
}

void RunSave(benchmark::State& state, const Shape& shape) {
    Bench b;
    const fs::path file = b.Build(shape.name, shape.groups, shape.pilotsPerGroup, shape.paths,
                                  shape.waypoints, b.AddLayouts(shape.layoutSizes));
    b.Load(file);
    for (auto _ : state)
        SaveMission(*b.ed);
    if (!b.dialogs().messages.empty()) state.SkipWithError(b.dialogs().LastMessage().c_str());
}

void BM_LoadMaximal(benchmark::State& state) {
    RunLoad(state, Maximal());
}
void BM_SaveMaximal(benchmark::State& state) {
    RunSave(state, Maximal());
}
void BM_LoadTypical(benchmark::State& state) {
    RunLoad(state, Typical());
}
void BM_SaveTypical(benchmark::State& state) {
    RunSave(state, Typical());
}

BENCHMARK(BM_LoadMaximal)->Unit(benchmark::kMillisecond);
BENCHMARK(BM_SaveMaximal)->Unit(benchmark::kMillisecond);
BENCHMARK(BM_LoadTypical)->Unit(benchmark::kMillisecond);
BENCHMARK(BM_SaveTypical)->Unit(benchmark::kMillisecond);

}  // namespace
