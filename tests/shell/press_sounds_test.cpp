// Which press makes which sound, on a mission open in every window that has a sound of its
// own, and silence everywhere with sound off.
#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <functional>
#include <string>
#include <vector>

#include "shell/controls/user_gestures.h"
#include "shell/editor.h"
#include "shell/forms/frm_aircraft.h"
#include "shell/forms/frm_mission.h"
#include "shell/forms/frm_new_record.h"
#include "shell/forms/frm_tbl_missions.h"
#include "shell/forms/mdi_mission_ed.h"
#include "shell/mission_form_load.h"
#include "shell/sounds.h"
#include "support/test_editor.h"

namespace tarvex {
namespace {

using testing::TestEditor;
namespace fs = std::filesystem;

const fs::path kSample = fs::path(TARVEX_SOURCE_DIR) / "tests/data/missions/channel_sweep.mis";

void Press(Control& control, int button = kLeftButton) {
    ASSERT_TRUE(control.Enabled()) << control.Name();
    control.RaiseMouseDown(button, 0, control.Width() / 2, control.Height() / 2);
}

void Release(Control& control, int button = kLeftButton) {
    control.RaiseMouseUp(button, 0, control.Width() / 2, control.Height() / 2);
}

void Click(Control& control) {
    ASSERT_TRUE(control.Enabled()) << control.Name();
    UserClickControl(control);
}

void PressRow(ListBox& list, int row, int button = kLeftButton) {
    ASSERT_LT(row, list.ListCount()) << list.Name();
    UserPressRow(list, row, button, 0);
}

class PressSoundsTest : public ::testing::Test {
  protected:
    void SetUp() override {
        ed.options.SimPath = t.folder.string();
        StartSoundEngine(ed);
        LoadFrmMission(ed);
        t.dialogs.QueueOpen(kSample.string());
        ed.MDIMissionED.mnuOpen.UserClick();
        ASSERT_TRUE(t.dialogs.messages.empty()) << t.dialogs.LastMessage();
    }

    // The sound files played since the last call, by name.
    std::vector<std::string> Played() {
        std::vector<std::string> names;
        for (int handle : t.sound.plays)
            names.push_back(fs::path(t.sound.PathOf(handle)).filename().string());
        t.sound.plays.clear();
        return names;
    }

    TestEditor t;
    Editor& ed = t.OpenDatabase();
    FrmMission& frm = ed.FrmMission;

    void PressEverything(bool soundOn);
};

void PressSoundsTest::PressEverything(bool soundOn) {
    const struct {
        const char* press;
        std::vector<std::string> sounds;
        std::function<void()> act;
    } rows[] = {
        {"press on btnClrPoint", {"Checkbox.wav"}, [&] { Press(frm.btnClrPoint); }},
        {"press on btnDeleteGrndUnit", {"Checkbox.wav"}, [&] { Press(frm.btnDeleteGrndUnit); }},
        {"press on btnDeleteGroup", {"Checkbox.wav"}, [&] { Press(frm.btnDeleteGroup); }},
        {"press on btnDeletePilot", {"Checkbox.wav"}, [&] { Press(frm.btnDeletePilot); }},
        // Path 0's box opens once another path is chosen.
        {"press on chkOverlay",
         {"Checkbox.wav"},
         [&] {
             Click(frm.optColor(2));
             Played();
             Press(frm.chkOverlay(0));
         }},
        {"press on chkPlayer", {"Checkbox.wav"}, [&] { Press(frm.chkPlayer); }},
        {"press on chkPoints", {"Checkbox.wav"}, [&] { Press(frm.chkPoints); }},
        {"press on chkSuspend", {"Checkbox.wav"}, [&] { Press(frm.chkSuspend); }},
        {"press on chkWP", {"Checkbox.wav"}, [&] { Press(frm.chkWP(1)); }},
        {"press on chkWPOptions", {"Checkbox.wav"}, [&] { Press(frm.chkWPOptions(1)); }},
        {"release of chkWP", {"Checkbox.wav"}, [&] { Release(frm.chkWP(1)); }},
        {"release of chkDataWindow", {"Checkbox.wav"}, [&] { Release(frm.chkDataWindow); }},
        {"release of chkPilotIsAC", {"Checkbox.wav"}, [&] { Release(frm.chkPilotIsAC); }},
        // The right button's press shows the group's path; its release takes it away.
        {"right button in lstGroupName",
         {"Click.wav", "Checkbox.wav"},
         [&] {
             PressRow(frm.lstGroupName, 0, kRightButton);
             Release(frm.lstGroupName, kRightButton);
         }},
        // In the layout editor, which a double click on a placed layout opens, on a copy of the
        // layout: a default layout is locked.
        {"click on chkStationary",
         {"Checkbox.wav"},
         [&] {
             PressRow(frm.lstGUAdded, 0);
             frm.lstGUAdded.RaiseDblClick();
             Click(frm.btnRotate90);
             t.dialogs.QueueInput("Sound Check Camp");
             Click(frm.btnSave);
             Played();
             Click(frm.chkStationary);
             Click(frm.btnGUClose);
         }},
        {"press on optAllegiance", {"Click.wav"}, [&] { Press(frm.optAllegiance(1)); }},
        {"press on OptFamily", {"Click.wav"}, [&] { Press(frm.OptFamily(1)); }},
        {"press on optGndHasPoints", {"Click.wav"}, [&] { Press(frm.optGndHasPoints(1)); }},
        {"press on optColor", {"Click.wav"}, [&] { Press(frm.optColor(0)); }},
        {"press on a row of lstGroupName", {"Click.wav"}, [&] { PressRow(frm.lstGroupName, 1); }},
        {"press on a row of lstPilotName", {"Click.wav"}, [&] { PressRow(frm.lstPilotName, 0); }},
        {"press on a row of lstGrnUnits", {"Click.wav"}, [&] { PressRow(frm.lstGrnUnits, 1); }},
        {"press on a row of lstGUAdded", {"Click.wav"}, [&] { PressRow(frm.lstGUAdded, 1); }},
        {"press on a row of lstPoints", {"Click.wav"}, [&] { PressRow(frm.lstPoints, 1); }},
        {"press on a tab header",
         {"whlhit2.wav"},
         [&] { UserPressTab(frm.SSTab1, 2, kLeftButton, 0, 3000, 120); }},
        {"btnReplace of frmNewRecord",
         {"Checkbox.wav"},
         [&] {
             Click(frm.btnGroupName);
             Click(ed.frmNewRecord.btnReplace);
         }},
        {"btnAddRecord of frmNewRecord",
         {"Click.wav"},
         [&] {
             Click(ed.frmNewRecord.btnAddRecord);
             Click(ed.frmNewRecord.btnCancel);
         }},
        {"a change of filter in frmAircraft",
         {"Checkbox.wav"},
         [&] {
             ed.MDIMissionED.mnuAddAC.UserClick();
             Played();
             ed.frmAircraft.cmbAirforce.SetListIndex(1);
         }},
        {"a click in the grid of frmAircraft",
         {"Click.wav"},
         [&] {
             Click(ed.frmAircraft.grdDataGrid);
             ed.frmAircraft.UserClose();
         }},
        {"press on optAllegiance in frmtblMissions",
         {"Checkbox.wav"},
         [&] {
             ed.frmtblMissions.Show();
             Press(ed.frmtblMissions.optAllegiance(2));
         }},
        {"a click in the grid of frmtblMissions",
         {"Click.wav"},
         [&] {
             Click(ed.frmtblMissions.grdDataGrid);
             ed.frmtblMissions.UserClose();
         }},
    };
    ed.options.SoundOn = soundOn;
    for (const auto& row : rows) {
        SCOPED_TRACE(row.press);
        Played();
        row.act();
        EXPECT_EQ(Played(), soundOn ? row.sounds : std::vector<std::string>{});
    }
    EXPECT_TRUE(t.dialogs.unanswered.empty()) << t.dialogs.unanswered.front().text;
}

TEST_F(PressSoundsTest, EachPressPlaysItsSound) {
    PressEverything(true);
}

TEST_F(PressSoundsTest, NothingPlaysWithSoundOff) {
    PressEverything(false);
}

}  // namespace
}  // namespace tarvex
