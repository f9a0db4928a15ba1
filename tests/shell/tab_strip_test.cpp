// The tab strip as the user meets it: presses on the headers, and files dropped on it.
#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <string>
#include <vector>

#include "document/mission_reset.h"
#include "shell/controls/user_gestures.h"
#include "shell/editor.h"
#include "shell/forms/frm_mission.h"
#include "shell/forms/mdi_mission_ed.h"
#include "shell/mission_form_load.h"
#include "support/test_editor.h"

namespace tarvex {
namespace {

using testing::TestEditor;
namespace fs = std::filesystem;

const fs::path kSample = fs::path(TARVEX_SOURCE_DIR) / "tests/data/missions/channel_sweep.mis";

class TabStripTest : public ::testing::Test {
  protected:
    void SetUp() override {
        ed.options.MapPath = t.folder.string();
        // A bitmap header without pixels is all a map needs to load.
        std::string bmp(54, '\0');
        bmp[0] = 'B';
        bmp[1] = 'M';
        bmp[14] = 40;
        bmp[18] = bmp[22] = 16;
        std::ofstream(t.folder / "Map1.bmp", std::ios::binary) << bmp;
        LoadFrmMission(ed);
        ResetMission(ed);
        ed.shell.sndWhlHit = 44;
    }

    std::string Save(const std::string& name) {
        const fs::path file = t.folder / name;
        t.dialogs.QueueSave(file.string());
        ed.MDIMissionED.mnuSaveAs.UserClick();
        return testing::ReadTextFile(file);
    }

    TestEditor t;
    Editor& ed = t.OpenDatabase();
    FrmMission& frm = ed.FrmMission;
    TabControl& strip = frm.SSTab1;
};

TEST_F(TabStripTest, OnlyALeftPressOnTheHeadersChangesAndPreparesTheTab) {
    const struct {
        const char* what;
        int button;
        float y;
        bool soundOn;
        bool prepared;
        int played;
    } cases[] = {
        {"left on a header", kLeftButton, 120, true, true, 1},
        {"left on the headers' lower edge", kLeftButton, 240, true, true, 1},
        {"left with sound off", kLeftButton, 120, false, true, 0},
        {"right on a header", kRightButton, 120, true, false, 0},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.what);
        ed.options.SoundOn = c.soundOn;
        strip.SetTab(0);
        ed.MDIMissionED.mnuGroundUnits.SetChecked(false);
        t.sound.plays.clear();

        UserPressTab(strip, 2, c.button, 0, 3000, c.y);
        EXPECT_EQ(strip.Tab(), c.prepared ? 2 : 0);
        EXPECT_EQ(ed.MDIMissionED.mnuGroundUnits.Checked(), c.prepared);
        if (c.prepared) {
            EXPECT_NE(frm.mapGroundUnits.Picture().find("Map1.bmp"), std::string::npos);
            EXPECT_EQ(ed.ActiveMap, &frm.mapGroundUnits);
        }
        EXPECT_EQ(t.sound.plays, std::vector<int>(c.played, 44));
    }

    // A press on the page itself, below the headers, is no change of tab.
    t.sound.plays.clear();
    strip.SetTab(1);
    strip.RaiseMouseDown(kLeftButton, 0, 3000, 241);
    EXPECT_FALSE(ed.MDIMissionED.mnuFormations.Checked());
    EXPECT_TRUE(t.sound.plays.empty());
}

TEST_F(TabStripTest, DroppedMissionOpensAsTheFileMenuWouldOpenIt) {
    EXPECT_EQ(strip.RaiseDragOver(DragData{true, {kSample.string()}}), kDropEffectCopy);
    EXPECT_EQ(strip.RaiseDragOver(DragData{false, {}}), kDropEffectNone);

    t.dialogs.QueueOpen(kSample.string());
    ed.MDIMissionED.mnuOpen.UserClick();
    const std::string opened = Save("opened.mis");

    ed.MDIMissionED.mnuNew.UserClick();
    strip.RaiseDragDrop(DragData{true, {kSample.string()}});
    EXPECT_EQ(ed.MDIMissionED.Caption(), "Tarvex Mission Editor: channel_sweep.mis");
    EXPECT_EQ(ed.doc.MissionPath, kSample.string());
    EXPECT_TRUE(t.dialogs.messages.empty()) << t.dialogs.LastMessage();
    EXPECT_EQ(Save("dropped.mis"), opened);
}

TEST_F(TabStripTest, DropsThatAreNoMissionLeaveTheMissionOrEndInTheLoadReport) {
    const fs::path folder = t.folder / "Folder.mis";
    fs::create_directories(folder);
    const fs::path garbage = t.folder / "Garbage.MIS";
    std::ofstream(garbage) << "this is no mission\r\n[mission]\r\nmap=Nowhere\r\n";
    const fs::path text = t.folder / "notes.txt";
    std::ofstream(text) << "notes";

    const struct {
        const char* what;
        DragData data;
        const char* report;  // the title of the load report; empty when nothing is loaded
    } cases[] = {
        {"a text file", {true, {text.string()}}, ""},
        {"a text file before a mission", {true, {text.string(), kSample.string()}}, ""},
        {"no files", {false, {}}, ""},
        {"a folder named as a mission", {true, {folder.string()}}, "Folder.mis"},
        {"a file that is no mission", {true, {garbage.string(), kSample.string()}}, "Garbage.MIS"},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.what);
        ed.MDIMissionED.mnuNew.UserClick();
        t.dialogs.ClearRecord();
        strip.RaiseDragDrop(c.data);
        if (*c.report == 0) {
            EXPECT_TRUE(t.dialogs.messages.empty()) << t.dialogs.LastMessage();
            EXPECT_EQ(ed.MDIMissionED.Caption(), "Tarvex Mission Editor");
        } else {
            ASSERT_EQ(t.dialogs.messages.size(), 1u);
            EXPECT_EQ(t.dialogs.messages[0].title,
                      std::string(c.report) + " *** Load Mission File Error ***");
        }
    }
}

}  // namespace
}  // namespace tarvex
