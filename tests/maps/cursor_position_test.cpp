#include "maps/cursor_position.h"
#include "maps/path_drawing.h"
#include "shell/forms/frm_mission.h"
#include "shell/forms/mdi_mission_ed.h"
#include "support/test_editor.h"

#include <gtest/gtest.h>

#include <string>

namespace tarvex {
namespace {

using testing::TestEditor;

std::string StatusText(Editor& ed) {
    const auto& ops = ed.MDIMissionED.Picture1.Operations();
    return ops.empty() ? std::string() : ops.back().text;
}

class CursorPositionTest : public ::testing::Test {
  protected:
    void SetUp() override {
        ed.projection.SetDistanceUnits(false);
        ed.projection.SetMap(5, 8000, 6000);
        Mission& doc = ed.doc;
        const char* lats[] = {"N50 00.00", "N51 00.00", "N52 00.00"};
        for (int i = 0; i < 3; ++i) {
            doc.WPLat(0, i) = lats[i];
            doc.WPLon(0, i) = "W01 30.00";
        }
        doc.PathPointCount(0) = 2;
    }

    TestEditor t;
    Editor& ed = *t;
};

// On map 5 at 8000 by 6000, N50 00.00 W01 30.00 falls at x 2539, y 3166; the read-out of
// that position comes back within the truncation to whole map units.
TEST_F(CursorPositionTest, ReadsOutTheWorkedExampleOfMap5) {
    ed.FrmMission.SSTab1.SetTab(3);
    ShowCursorPosition(ed, 2539, 3166, "##00.00");
    EXPECT_EQ(ed.projection.CursorLatText, "N50 00.01");
    EXPECT_EQ(ed.projection.CursorLonText, "W01 30.06");
    EXPECT_EQ(StatusText(ed),
              "Lat: [N50 00.01] Lon: [W01 30.06]  Dist from Waypoint 0: [0.0 Mi.]  "
              "Total Path Dist: [0.0 Mi.]");
    EXPECT_EQ(ed.MDIMissionED.Picture1.Operations().back().pen, kSystemButtonText);

    ed.FrmMission.SSTab1.SetTab(2);
    ShowCursorPosition(ed, 2539, 3166, "##00.0000");
    EXPECT_EQ(StatusText(ed), "Lat: [N50 00.0112] Lon: [W01 30.0622] ");
}

TEST_F(CursorPositionTest, DistanceFromTheCurrentPointAndPathLengthFollowTheUnits) {
    ed.FrmMission.SSTab1.SetTab(3);
    ed.doc.PathCurrentPoint(0) = 1;  // N51 00.00
    DrawPaths(ed, ed.FrmMission.mapWayPoints);
    ShowCursorPosition(ed, 2539, 3166, "##00.00");
    EXPECT_EQ(StatusText(ed),
              "Lat: [N50 00.01] Lon: [W01 30.06]  Dist from Waypoint 1: [68.0 Mi.]  "
              "Total Path Dist: [136.0 Mi.]");

    // A new unit shows in both numbers at the next redraw and pointer move.
    ed.projection.SetDistanceUnits(true);
    DrawPaths(ed, ed.FrmMission.mapWayPoints);
    ShowCursorPosition(ed, 2539, 3166, "##00.00");
    EXPECT_EQ(StatusText(ed),
              "Lat: [N50 00.01] Lon: [W01 30.06]  Dist from Waypoint 1: [109.4 Km.]  "
              "Total Path Dist: [218.9 Km.]");
}

}  // namespace
}  // namespace tarvex
