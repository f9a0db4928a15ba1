#pragma once
// Missions of a given shape for the benchmarks, built through the document's arrays and lists
// and written by the editor's own saver, on an editor of a scratch database.
#include <algorithm>
#include <cstdint>
#include <filesystem>
#include <stdexcept>
#include <string>
#include <vector>

#include "app/scratch_editor.h"
#include "common/number_text.h"
#include "document/mission_loader.h"
#include "document/mission_reset.h"
#include "document/mission_saver.h"
#include "refdata/recordset.h"
#include "shell/forms/frm_mission.h"

namespace tarvex::bench {

namespace fs = std::filesystem;

struct MissionShape {
    std::string name;
    int groups = 1;
    int pilotsPerGroup = 0;  // 0: as many as the pattern holds
    int paths = 1;
    int waypoints = 3;
    std::vector<int> layoutIds;
    int map = 2;
    int variant = 0;  // varies patterns, aircraft, runways and positions
};

class MissionBuilder : public ScratchEditor {
  public:
    explicit MissionBuilder(const std::string& purpose)
        : ScratchEditor({{fs::path(TARVEX_SOURCE_DIR) / "data" / "refdb" / "schema.sql",
                          fs::path(TARVEX_SOURCE_DIR) / "data" / "refdb" / "seed.sql"},
                         {},
                         fs::path(TARVEX_SOURCE_DIR) / "data" / "maps",
                         true},
                        purpose) {}

    // Layouts of the given sizes in the database, each unit of a known type; their ids.
    std::vector<int> AddLayouts(const std::vector<int>& sizes, int firstId = 900) {
        Editor& e = ed();
        std::vector<int> ids;
        for (size_t k = 0; k < sizes.size(); ++k) {
            const int id = firstId + static_cast<int>(k);
            long total = 0;
            std::string units;
            for (int u = 0; u < sizes[k]; ++u) {
                const int type = 4001 + (u + static_cast<int>(k)) % 20;
                total += type;
                units += std::string(u ? "," : "") + "(" + IntText(id) + "," + IntText(type) +
                         ",1," + IntText(u * 7 % 360) + "," + Format(0.01 * (u % 8), "0.00") + "," +
                         Format(-0.01 * (u / 8), "0.00") + ",0)";
            }
            e.db.theDB.Execute(
                "INSERT INTO GrndNames (ID,LayoutName,UnitTotal,IsDefault,GUType) VALUES (" +
                IntText(id) + ",'Bench " + IntText(id) + "'," + IntText(total) + ",0,1);");
            e.db.theDB.Execute(
                "INSERT INTO GrndTypes (ID,UnitType,Points,Heading,XOffset,YOffset,DamageID) "
                "VALUES " +
                units + ";");
            ids.push_back(id);
        }
        return ids;
    }

    int PatternCapacity(int row) {
        Editor& e = ed();
        Recordset rs =
            e.db.theDB.OpenRecordset("SELECT Count(*) FROM frmPatterns WHERE frmID=" +
                                         IntText(e.FrmMission.cmbFormPattern.ItemData(row)),
                                     kSnapshot);
        return std::min<int>(rs.Fields(0).Long(), Mission::kPilotUpper);
    }

    // Fills the document through its arrays and lists, then saves it into `folder`.
    fs::path Build(const MissionShape& shape, const fs::path& folder) {
        Editor& e = ed();
        ResetMission(e);
        Mission& doc = e.doc;
        auto& frm = e.FrmMission;
        const int v = shape.variant;
        frm.txtTitle.SetText("Bench " + shape.name);
        frm.cmbSelectMap.SetListIndex(shape.map);
        const int patternRows[] = {0, 3, 9, 10, 4, 1};
        for (int g = 0; g < shape.groups; ++g) {
            frm.lstGroupName.AddItem("Group " + IntText(g + 1));
            const int row = patternRows[(g + v) % 6];
            doc.GrpPattern(g) = static_cast<std::uint8_t>(row);
            const int pilots = std::min(shape.pilotsPerGroup > 0 ? shape.pilotsPerGroup : 99,
                                        PatternCapacity(row));
            doc.GrpPaths(g) = IntText(5000 + g % shape.paths);
            doc.GrpTakeoffFlag(g) = static_cast<std::uint8_t>((g + v) % 4);
            doc.GrpTakeoffRwy(g) = static_cast<std::uint8_t>((g * 3 + v) % 40);
            doc.GrpLandingRwy(g) = static_cast<std::uint8_t>((g * 5 + v) % 40);
            for (int p = 0; p < pilots; ++p) {
                doc.PilotName(g, p) = "Pilot " + IntText(p + 1) + " Unit " + IntText(g + 1);
                doc.PilotAC(g, p) = static_cast<std::int16_t>(1 + (g + p + v) % 10);
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
        for (size_t k = 0; k < shape.layoutIds.size(); ++k) {
            const int row = static_cast<int>(k);
            frm.lstGUAdded.AddItem(Format(static_cast<double>(k + 1), "##00") + ". Layout");
            frm.lstGUAdded.SetItemData(row, shape.layoutIds[k]);
            doc.GULat(row) = "N51 " + Format(2.0 * k + 0.25 * (v % 7), "00.0000");
            doc.GULon(row) = "E00 " + Format(1.5 * k + 0.5 * (v % 5), "00.0000");
            doc.GURotation(row) = static_cast<float>((k * 15 + v) % 360);
        }
        doc.GUCount = static_cast<std::uint8_t>(shape.layoutIds.size());
        for (int p = 0; p < shape.paths; ++p) {
            doc.PathPointCount(p) = static_cast<std::uint8_t>(shape.waypoints + 1);
            for (int i = 1; i <= shape.waypoints; ++i) {
                doc.WPLat(p, i) = "N5" + IntText(p % 2) + " " + Format(i * 3.5, "00.00");
                doc.WPLon(p, i) = (i % 2 ? "W00 " : "E00 ") + Format(p * 3.25, "00.00");
                doc.WPAlt(p, i) = 1000 * i;
                doc.WPSpeed(p, i) = static_cast<std::int16_t>(300 + i);
                doc.WPName(p, i) = "Point " + IntText(i);
            }
        }
        doc.HighestPath = static_cast<std::int16_t>(shape.paths - 1);
        doc.MissionPath = (folder / shape.name).string();
        doc.MissionFile = shape.name;
        SaveMission(e);
        if (!dialogs().messages.empty()) throw std::runtime_error(dialogs().LastMessage());
        return doc.MissionPath;
    }

    // File Open of a mission: a fresh document, then the load.
    void Load(const fs::path& file) {
        Editor& e = ed();
        e.doc.MissionPath = file.string();
        e.doc.MissionFile = file.filename().string();
        e.doc.NotLoading = false;
        ResetMission(e);
        LoadMission(e);
        e.doc.NotLoading = true;
    }
};

}  // namespace tarvex::bench
