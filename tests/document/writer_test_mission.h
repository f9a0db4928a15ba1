#pragma once
// A small mission built through the arrays and controls, shared by the writer, saver and
// export tests, and the comparison of written files with the golden files.
#include <gtest/gtest.h>

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <string>

#include "document/mission_reset.h"
#include "shell/editor.h"
#include "shell/forms/frm_mission.h"
#include "shell/mission_form_load.h"
#include "support/reference_folder.h"

namespace tarvex::testing {

// A layout that an airfield carries, kept small so that the goldens stay readable: two
// units, one of a type that layout 2 has as well.
inline constexpr int kTestStripLayout = 50;
// Hawkinge (RwyID 113) and Lympne (RwyID 116).
inline constexpr int kHawkingeRow = 28;
inline constexpr int kLympneRow = 34;

inline void AddTestStripLayout(Editor& ed) {
    ed.db.theDB.Execute(
        "INSERT INTO GrndNames (ID,LayoutName,UnitTotal,IsDefault,GUType) VALUES "
        "(50,'Test Strip',8042,0,2);"
        "INSERT INTO GrndTypes (ID,UnitType,Points,Heading,XOffset,YOffset,DamageID) VALUES "
        "(50,4011,1,180,0.25,-0.2,1),(50,4031,0,90,0.35,0.0,2);");
}

// Two groups (the player leads the first), two layouts (a landscape one turned, spread and
// shifted, and an airfield one), and paths 0 and 2 with path 1 unused. Speeds are given in
// km/h, or in knots that turn back into the same km/h when `metric` is false.
inline void BuildSampleMission(Editor& ed, bool metric = true) {
    LoadFrmMission(ed);
    ResetMission(ed);
    AddTestStripLayout(ed);
    ed.options.Measurement = metric;
    Mission& doc = ed.doc;
    auto& frm = ed.FrmMission;

    frm.txtTitle.SetText("Channel Sweep");
    frm.txtSummary.SetText("Escort the Blenheims");
    frm.txtObjective.SetText("Keep the bombers safe");
    frm.txtType.SetText("Sortak");
    frm.txtPctReqd.SetText("75");
    frm.txtTime.SetText("14:30");
    frm.txtDate.SetText("08/15/1940");
    frm.cmbSelectMap.SetListIndex(2);
    frm.cmbClouds.SetListIndex(2);
    frm.cmbVisibility.SetListIndex(1);
    frm.cmbWinds.SetListIndex(1);

    frm.lstGroupName.AddItem("Red Section");
    doc.GrpPattern(0) = 1;  // English Vic
    doc.GrpDirective(0) = 1;
    doc.GrpTakeoffFlag(0) = 3;
    doc.GrpTakeoffRwy(0) = kHawkingeRow;
    doc.GrpLandingRwy(0) = kHawkingeRow;
    doc.GrpPaths(0) = "5000";
    const struct {
        int g, p;
        const char* name;
        int ac, skill, level, points, damage;
    } pilots[] = {
        {0, 0, "Bader", 4, 4, 2, 1, 0},
        {0, 1, "Lacey", 10, 2, 1, 1, 0},
        {1, 0, "Pilot 1 Unit 2", 4, 0, 0, 0, 1},
    };
    frm.lstGroupName.AddItem("Blue Section");
    doc.GrpPattern(1) = 0;  // Finger Four
    doc.GrpSuspended(1) = 1;
    doc.GrpDirective(1) = 2;
    doc.GrpTakeoffFlag(1) = 1;
    doc.GrpTakeoffRwy(1) = kLympneRow;
    doc.GrpLandingRwy(1) = kLympneRow;
    doc.GrpPaths(1) = "5000:60,5002:40";
    for (const auto& pilot : pilots) {
        doc.PilotName(pilot.g, pilot.p) = pilot.name;
        doc.PilotAC(pilot.g, pilot.p) = static_cast<std::int16_t>(pilot.ac);
        doc.PilotSkill(pilot.g, pilot.p) = static_cast<std::uint8_t>(pilot.skill);
        doc.PilotLevel(pilot.g, pilot.p) = static_cast<std::uint8_t>(pilot.level);
        doc.PilotPoints(pilot.g, pilot.p) = static_cast<std::uint8_t>(pilot.points);
        doc.PilotDamage(pilot.g, pilot.p) = static_cast<std::uint8_t>(pilot.damage);
    }
    doc.PilotIsPlayer(0, 0) = 1;
    doc.PlayerGroup = 0;
    doc.PlayerPilot = 0;
    doc.PlayerAssigned = true;
    doc.PilotsAssigned = true;

    frm.lstGUAdded.AddItem("01. Light AA Site Bofors");
    frm.lstGUAdded.SetItemData(0, 2);
    doc.GULat(0) = "N51 05.0000";
    doc.GULon(0) = "E01 10.0000";
    doc.GURotation(0) = 30;
    doc.GUSpread(0) = 0.5f;
    doc.GUShiftX(0) = 0.1f;
    doc.GUShiftY(0) = -0.05f;
    doc.GUPoints(0) = 1;
    frm.lstGUAdded.AddItem("02. Test Strip");
    frm.lstGUAdded.SetItemData(1, (kHawkingeRow + 1) * 10000 + kTestStripLayout);
    doc.GULat(1) = "N51 06.7500";
    doc.GULon(1) = "E01 09.3700";
    doc.GURotation(1) = 0;
    doc.GUPoints(1) = 2;
    doc.GUCount = 2;

    struct Point {
        const char *lat, *lon, *name, *tip;
        int alt, kmh, knots, action, onMap, cap;
    };
    const Point path0[] = {
        {"N51 10.00", "E01 20.00", "Rendezvous", "Meet the bombers", 4000, 400, 216, 1, 1, 1},
        {"N50 55.50", "E01 45.25", "Target", "", 4500, 350, 189, 1, 1, 0},
        {"N51 05.00", "E01 05.00", "", "", 1500, 0, 0, 0, 1, 0},
    };
    const Point path2[] = {
        {"N50 58.00", "E01 30.00", "Patrol", "Watch for 109s", 6000, 480, 259, 0, 0, 1},
        {"N51 01.00", "E01 35.00", "", "", 6000, 300, 162, 0, 0, 0},
    };
    auto fill = [&](int path, const Point* points, int count) {
        doc.PathPointCount(path) = static_cast<std::uint8_t>(count + 1);
        for (int i = 0; i < count; ++i) {
            const Point& pt = points[i];
            doc.WPLat(path, i + 1) = pt.lat;
            doc.WPLon(path, i + 1) = pt.lon;
            doc.WPName(path, i + 1) = pt.name;
            doc.WPTip(path, i + 1) = pt.tip;
            doc.WPAlt(path, i + 1) = pt.alt;
            doc.WPSpeed(path, i + 1) = static_cast<std::int16_t>(metric ? pt.kmh : pt.knots);
            doc.WPAction(path, i + 1) = static_cast<std::uint8_t>(pt.action);
            doc.WPOnMap(path, i + 1) = static_cast<std::uint8_t>(pt.onMap);
            doc.WPCap(path, i + 1) = static_cast<std::uint8_t>(pt.cap);
        }
    };
    fill(0, path0, 3);
    fill(2, path2, 2);
    doc.HighestPath = 2;
}

inline std::string ReadBytes(const std::filesystem::path& file) {
    return ReadTextFile(file);
}

inline std::filesystem::path GoldenPath(const std::string& name) {
    return std::filesystem::path(TARVEX_SOURCE_DIR) / "tests" / "data" / "golden" / name;
}

// The text split before each section header, so that a difference names its section.
inline std::vector<std::string> Sections(const std::string& text) {
    std::vector<std::string> sections;
    size_t start = 0;
    while (start < text.size()) {
        size_t next = text.find("\r\n[", start);
        next = next == std::string::npos ? text.size() : next + 2;
        sections.push_back(text.substr(start, next - start));
        start = next;
    }
    return sections;
}

// Compares the bytes with a golden file, section by section. With TARVEX_UPDATE_GOLDEN set
// the golden is written instead.
inline void ExpectMatchesGolden(const std::string& actual, const std::string& golden) {
    const auto path = GoldenPath(golden);
    if (std::getenv("TARVEX_UPDATE_GOLDEN") != nullptr) {
        std::ofstream(path, std::ios::binary) << actual;
        return;
    }
    const std::string expected = ReadBytes(path);
    ASSERT_FALSE(expected.empty()) << "missing golden " << path;
    const auto want = Sections(expected);
    const auto got = Sections(actual);
    for (size_t i = 0; i < std::min(want.size(), got.size()); ++i)
        EXPECT_EQ(got[i], want[i]) << "section " << i << " of " << golden;
    EXPECT_EQ(got.size(), want.size()) << golden;
    EXPECT_EQ(actual == expected, true) << golden;
}

}  // namespace tarvex::testing
