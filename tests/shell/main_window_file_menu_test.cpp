// The File menu's mission commands and the database tool, on a loaded mission window.
#include <gtest/gtest.h>

#include <filesystem>
#include <string>

#include "shell/editor.h"
#include "shell/forms/frm_mission.h"
#include "shell/forms/frm_msg_screen.h"
#include "shell/forms/mdi_mission_ed.h"
#include "shell/mission_form_load.h"
#include "support/test_editor.h"

namespace tarvex {
namespace {

using testing::TestEditor;
namespace fs = std::filesystem;

const fs::path kSample = fs::path(TARVEX_SOURCE_DIR) / "tests/data/missions/channel_sweep.mis";

TEST(MainWindowFileMenuTest, OpenSaveAsSaveAndNew) {
    TestEditor t;
    Editor& ed = t.OpenDatabase();
    LoadFrmMission(ed);
    auto& m = ed.MDIMissionED;

    t.dialogs.QueueOpenCancel();
    m.mnuOpen.UserClick();
    EXPECT_EQ(m.Caption(), "Tarvex Mission Editor");
    EXPECT_TRUE(ed.doc.NotLoading);

    t.dialogs.QueueOpen(kSample.string());
    m.mnuOpen.UserClick();
    EXPECT_EQ(m.Caption(), "Tarvex Mission Editor: channel_sweep.mis");
    EXPECT_EQ(ed.doc.MissionPath, kSample.string());
    EXPECT_TRUE(ed.doc.NotLoading);
    EXPECT_TRUE(t.dialogs.messages.empty()) << t.dialogs.LastMessage();

    // Save As asks for a name; Save then writes there without asking again.
    const fs::path copy = t.folder / "Copy.mis";
    t.dialogs.QueueSave(copy.string());
    m.mnuSaveAs.UserClick();
    EXPECT_EQ(ed.doc.MissionPath, copy.string());
    EXPECT_TRUE(fs::exists(copy));
    fs::remove(copy);
    m.mnuSave.UserClick();
    EXPECT_EQ(t.dialogs.saves.size(), 1u);
    EXPECT_TRUE(fs::exists(copy));
    EXPECT_TRUE(t.dialogs.messages.empty()) << t.dialogs.LastMessage();

    // New discards it without a question.
    m.mnuNew.UserClick();
    EXPECT_EQ(m.Caption(), "Tarvex Mission Editor");
    EXPECT_TRUE(ed.doc.MissionPath.empty());
    EXPECT_EQ(ed.FrmMission.lstGroupName.ListCount(), 0);
    EXPECT_TRUE(ed.doc.NotResetting);
    EXPECT_TRUE(t.dialogs.messages.empty());
}

TEST(MainWindowFileMenuTest, CompactShowsItsMessageAndKeepsTheDatabaseOpen) {
    TestEditor t;
    Editor& ed = t.OpenDatabase();
    bool shown = false;
    t.clock.onDoEvents = [&] {
        shown = ed.frmMsgScreen.Visible() &&
                ed.frmMsgScreen.lblMessage.Caption() == "Compacting Database";
    };
    ed.MDIMissionED.mnuCompact.UserClick();
    EXPECT_TRUE(shown);
    EXPECT_FALSE(ed.frmMsgScreen.Visible());
    EXPECT_TRUE(ed.db.theDB.IsOpen());
    EXPECT_TRUE(t.dialogs.messages.empty()) << t.dialogs.LastMessage();
}

}  // namespace
}  // namespace tarvex
