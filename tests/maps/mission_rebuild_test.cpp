// A loaded mission comes back as the editor would leave it: the rebuild runs the waypoint
// editor's handlers on path 0, and a resave writes what they did.
#include "document/loader_fixture.h"
#include "document/mission_saver.h"
#include "refdata/reference_lookups.h"
#include "shell/forms/frm_mission.h"
#include "support/reference_folder.h"

#include <gtest/gtest.h>

#include <string>

namespace tarvex::testing {
namespace {

class MissionRebuildTest : public LoaderTest {};

void ReplaceOnce(std::string& text, const std::string& from, const std::string& to) {
    const size_t at = text.find(from);
    ASSERT_NE(at, std::string::npos) << from;
    text.replace(at, from.size(), to);
}

TEST_F(MissionRebuildTest, PathZerosFirstWaypointTakesTheEditorsDefaultsAndKeepsThemOnSave) {
    ed.options.Measurement = true;
    std::string text = SampleText();
    // The first waypoints of paths 0 and 2 without altitude or speed.
    ReplaceOnce(text, "waypoint.0=1,1,N51 20.00,W00 10.00,3000,,,,400,,1",
                "waypoint.0=1,1,N51 20.00,W00 10.00,0,,,,0,,1");
    ReplaceOnce(text, "waypoint.0=1,1,N50 50.00,W01 00.00,2000,,,,250,,1",
                "waypoint.0=1,1,N50 50.00,W01 00.00,0,,,,0,,1");
    LoadBytes(text);
    ASSERT_TRUE(t.dialogs.messages.empty()) << LastReport();

    auto& frm = ed.FrmMission;
    const Mission& doc = ed.doc;
    // Selecting the first row of path 0 copied slot 0's altitude and speed into it.
    EXPECT_EQ(frm.lstPoints.ListIndex(), 0);
    EXPECT_EQ(frm.txtPoint.Text(), "N51 20.00 W00 10.00");
    EXPECT_EQ(frm.txtAlt.Text(), "4000");
    EXPECT_EQ(doc.WPAlt(0, 1), 4000);
    EXPECT_EQ(doc.WPSpeed(0, 1), 400);
    EXPECT_TRUE(frm.btnClrPoint.Visible());
    // The End point of path 0 is the landing airfield of the first group.
    std::string lat, lon;
    std::int16_t type = 0, elevation = 0, rwy = 0;
    double rot = 0;
    LoadAirfieldPoint(ed, lat, lon, doc.GrpLandingRwy(0), type, elevation, rot, rwy);
    EXPECT_EQ(doc.WPLat(0, doc.PathPointCount(0)), lat);
    EXPECT_EQ(doc.WPLon(0, doc.PathPointCount(0)), lon);

    ed.doc.MissionPath = (t.folder / "resaved.mis").string();
    ed.doc.MissionFile = "resaved.mis";
    SaveMission(ed);
    ASSERT_TRUE(t.dialogs.messages.empty()) << LastReport();
    const std::string saved = ReadTextFile(t.folder / "resaved.mis");
    EXPECT_NE(saved.find("waypoint.0=1,1,N51 20.00,W00 10.00,4000,,,,400,,1\r\n"),
              std::string::npos);
    // Only path 0 is selected by the rebuild: path 2 is saved as it was read.
    EXPECT_NE(saved.find("waypoint.0=1,1,N50 50.00,W01 00.00,0,,,,0,,1\r\n"), std::string::npos);
}

}  // namespace
}  // namespace tarvex::testing
