#include "document/mission_export.h"
#include "shell/forms/frm_mission.h"
#include "support/test_editor.h"
#include "writer_test_mission.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <string>

namespace tarvex {
namespace {

namespace fs = std::filesystem;
using testing::BuildSampleMission;
using testing::ReadBytes;
using testing::TestEditor;

struct Export {
    TestEditor t;
    fs::path folder = testing::MakeTestFolder("export");
    Editor& ed = t.OpenDatabase();

    explicit Export(bool metric = true) {
        BuildSampleMission(ed, metric);
        ed.doc.MissionPath = (folder / "sweep.mis").string();
    }
    std::string Run() {
        ExportForSpreadsheet(ed);
        return ReadBytes(folder / "sweep.txt");
    }
    ~Export() { fs::remove_all(folder); }
};

TEST(MissionExportTest, WritesTheThreeBlocksAsTheGoldenFile) {
    Export e;
    testing::ExpectMatchesGolden(e.Run(), "sample_mission.txt");
}

// The export shows speeds as the designer sees them, in knots on an imperial display; an
// airfield layout leaves it at its runway's two-decimal position.
TEST(MissionExportTest, KeepsDisplaySpeedsAndMovesAirfieldLayoutsToTheirRunway) {
    Export e(false);
    const std::string text = e.Run();
    EXPECT_NE(text.find(";1;N51 10.00;E01 20.00; 4000 ; 216 \r\n"), std::string::npos);
    EXPECT_EQ(e.ed.doc.GULat(1), "N51 06.75");
    EXPECT_EQ(e.ed.doc.GULon(1), "E01 09.37");
    EXPECT_EQ(e.ed.doc.GULat(0), "N51 05.0000");
}

TEST(MissionExportTest, KeepsBlockHeadersOfAnEmptyMission) {
    Export e;
    e.ed.FrmMission.lstGroupName.Clear();
    e.ed.FrmMission.lstGUAdded.Clear();
    e.ed.doc.HighestPath = 0;
    e.ed.doc.PathPointCount(0) = 0;
    EXPECT_EQ(e.Run(),
              "Group;Name;Formation Pattern;Path;Suspend;Directive;Unit;Name;Type;Skill;Level;"
              "Points;Damage;Player?;Ground?;Lat;Lon;Alt;Heading;Takeoff & Land Flag;Takeoff "
              "Runway;Landing Runway\r\n \r\n"
              "Unit;Name;Type;Skill;Level;Points;Damage;Lat;Lon;Alt;Heading\r\n \r\n"
              "W.P. ID;Map;Action;CAP?;Point;Lat;Lon;Alt;Speed;Name;Tip Text\r\n");
}

}  // namespace
}  // namespace tarvex
