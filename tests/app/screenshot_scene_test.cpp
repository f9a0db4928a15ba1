// The scene an unattended run pictures, set up through the forms on a loaded sample mission.
#include "app/screenshot_scene.h"

#include <gtest/gtest.h>

#include <string>

#include "document/mission_loader.h"
#include "document/mission_reset.h"
#include "shell/forms/frm_aircraft.h"
#include "shell/forms/frm_gu_offsets.h"
#include "shell/forms/frm_mission.h"
#include "shell/mission_form_load.h"
#include "support/test_editor.h"

namespace tarvex::testing {
namespace {

class ScreenshotSceneTest : public ::testing::Test {
  protected:
    void SetUp() override {
        ed.options.MapPath = std::string(TARVEX_SOURCE_DIR) + "/data/maps/";
        ed.projection.SetDistanceUnits(true);
        LoadFrmMission(ed);
        ResetMission(ed);
        ed.doc.NotLoading = false;
        Open(std::string(TARVEX_SOURCE_DIR) + "/data/sim/missions/Tangmere_Stuka_Raid.mis");
        ed.doc.NotLoading = true;
        ed.doc.EventsOn = true;
    }
    void Open(const std::string& path) {
        ed.doc.MissionPath = path;
        ed.doc.MissionFile = "mission.mis";
        LoadMission(ed);
    }
    // What the command line with these words sets up.
    std::string Prepare(const std::vector<std::string>& words) {
        line = ParseEditorCommandLine(words);
        EXPECT_EQ(line.action, EditorCommandLine::Action::Run);
        return PrepareScene(ed, line);
    }

    TestEditor t;
    Editor& ed = t.OpenDatabase();
    EditorCommandLine line;
};

TEST_F(ScreenshotSceneTest, ShowsTheTabAndTheWindowAsked) {
    EXPECT_EQ(Prepare({"--screenshot", "a.png", "--tab", "3", "--form", "FRMAIRCRAFT", "x.mis"}),
              "");
    EXPECT_EQ(ed.FrmMission.SSTab1.Tab(), 3);
    EXPECT_TRUE(ed.frmAircraft.Visible());
    EXPECT_TRUE(NamedMissionLoaded(ed, line));
    EXPECT_EQ(FindForm(ed, "frmAircraft"), &ed.frmAircraft);
}

TEST_F(ScreenshotSceneTest, OpensTheLayoutEditorOnTheRowAsADoubleClickDoes) {
    ed.options.ShowDataWin = true;
    EXPECT_EQ(Prepare({"--screenshot", "a.png", "--edit-layout", "1"}), "");
    EXPECT_EQ(ed.FrmMission.SSTab1.Tab(), 2);
    EXPECT_EQ(ed.FrmMission.lstGUAdded.ListIndex(), 1);
    EXPECT_EQ(ed.FrmMission.mapGroundUnits.Tag(), "True");
    EXPECT_TRUE(ed.frmGUOffsets.Visible());
}

TEST_F(ScreenshotSceneTest, RefusesWhatItCannotShow) {
    EXPECT_NE(Prepare({"--screenshot", "a.png", "--form", "frmNone"}).find("frmNone"),
              std::string::npos);
    EXPECT_NE(Prepare({"--screenshot", "a.png", "--edit-layout", "99"}).find("99"),
              std::string::npos);
    // A mission whose load failed leaves no mission behind, and the picture is refused.
    Open(std::string(TARVEX_SOURCE_DIR) + "/CMakeLists.txt.mis");
    line = ParseEditorCommandLine({"--screenshot", "a.png", "missing.mis"});
    EXPECT_FALSE(NamedMissionLoaded(ed, line));
}

}  // namespace
}  // namespace tarvex::testing
