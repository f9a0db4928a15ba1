// The list of recent missions and its entries in the File menu.
#include <gtest/gtest.h>

#include <filesystem>
#include <string>
#include <vector>

#include "common/paths.h"
#include "shell/editor.h"
#include "shell/forms/mdi_mission_ed.h"
#include "shell/mission_form_load.h"
#include "shell/recent_files.h"
#include "support/test_editor.h"

namespace tarvex {
namespace {

using testing::TestEditor;
namespace fs = std::filesystem;

std::vector<std::string> Entries(Editor& ed) {
    return {ed.options.RecentFiles.begin() + 1, ed.options.RecentFiles.end()};
}

void Remember(Editor& ed, const std::string& path, const std::string& title) {
    ed.doc.MissionPath = path;
    ed.doc.MissionFile = title;
    RememberMission(ed);
}

TEST(RecentFilesTest, MissionsOfTheSimulatorAreKeptByNameOthersByPath) {
    TestEditor t;
    Editor& ed = *t;
    Remember(ed, "missions\\Raid.mis", "Raid.mis");
    Remember(ed, "/home/me/sim/Missions/Dawn.mis", "Dawn.mis");
    Remember(ed, "/home/me/work/Test.mis", "Test.mis");
    EXPECT_EQ(Entries(ed),
              (std::vector<std::string>{"/home/me/work/Test.mis", "Dawn.mis", "Raid.mis", ""}));
}

TEST(RecentFilesTest, ReopeningMovesToTheTopAndAFifthPushesOutTheOldest) {
    TestEditor t;
    Editor& ed = *t;
    for (const char* name : {"a.mis", "b.mis", "c.mis"})
        AddRecentFile(ed, name);
    AddRecentFile(ed, "a.mis");
    EXPECT_EQ(Entries(ed), (std::vector<std::string>{"a.mis", "c.mis", "b.mis", ""}));
    AddRecentFile(ed, "a.mis");
    EXPECT_EQ(Entries(ed), (std::vector<std::string>{"a.mis", "c.mis", "b.mis", ""}));
    AddRecentFile(ed, "d.mis");
    AddRecentFile(ed, "e.mis");
    EXPECT_EQ(Entries(ed), (std::vector<std::string>{"e.mis", "d.mis", "a.mis", "c.mis"}));
    AddRecentFile(ed, "c.mis");
    EXPECT_EQ(Entries(ed), (std::vector<std::string>{"c.mis", "e.mis", "d.mis", "a.mis"}));
}

TEST(RecentFilesTest, MenuShowsTheEntriesAndKeepsItsSeparator) {
    TestEditor t;
    Editor& ed = *t;
    auto& menu = ed.MDIMissionED.mnudummy;
    ShowRecentFiles(ed);
    for (int k = 0; k <= 4; ++k)
        EXPECT_FALSE(menu(k).Visible()) << k;

    AddRecentFile(ed, "a.mis");
    EXPECT_TRUE(menu(0).Visible());
    EXPECT_TRUE(menu(1).Visible());
    EXPECT_EQ(menu(1).Caption(), "a.mis");
    EXPECT_FALSE(menu(2).Visible());

    ed.options.RecentFiles[1].clear();
    ShowRecentFiles(ed);
    EXPECT_FALSE(menu(1).Visible());
    EXPECT_TRUE(menu(0).Visible()) << "nothing hides the separator again";
}

TEST(RecentFilesTest, StoredListComesBackOnTheNextRun) {
    TestEditor t;
    AddRecentFile(*t, "b.mis");
    AddRecentFile(*t, "/x/a.mis");
    SaveRecentFiles(*t);
    Editor& later = t.Rebuild();
    LoadRecentFiles(later);
    EXPECT_EQ(Entries(later), (std::vector<std::string>{"/x/a.mis", "b.mis", "", ""}));
    EXPECT_EQ(later.MDIMissionED.mnudummy(2).Caption(), "b.mis");
    EXPECT_TRUE(later.MDIMissionED.mnudummy(2).Visible());
}

TEST(RecentFilesTest, EntryOpensFromItsOwnPathOrTheMissionsFolder) {
    // A bare entry is found in the missions folder under the current folder, the simulator's.
    const fs::path saved = fs::current_path();
    TestEditor t;
    Editor& ed = t.OpenDatabase();
    LoadFrmMission(ed);
    const fs::path sample = fs::path(TARVEX_SOURCE_DIR) / "tests/data/missions/channel_sweep.mis";
    const fs::path elsewhere = t.folder / "work" / "Test.mis";
    fs::create_directories(t.folder / "missions");
    fs::create_directories(elsewhere.parent_path());
    fs::copy_file(sample, t.folder / "missions" / "Raid.mis");
    fs::copy_file(sample, elsewhere);
    fs::current_path(t.folder);
    AddRecentFile(ed, "Raid.mis");
    AddRecentFile(ed, elsewhere.string());

    ed.MDIMissionED.mnudummy(1).UserClick();
    EXPECT_EQ(ed.doc.MissionPath, elsewhere.string());
    EXPECT_EQ(ed.doc.MissionFile, elsewhere.string());
    ed.MDIMissionED.mnudummy(2).UserClick();
    EXPECT_EQ(ed.doc.MissionPath, JoinPath("missions", "Raid.mis"));
    EXPECT_EQ(ed.MDIMissionED.Caption(), "Tarvex Mission Editor: Raid.mis");
    EXPECT_TRUE(ed.doc.NotLoading);
    EXPECT_TRUE(t.dialogs.messages.empty()) << t.dialogs.LastMessage();
    fs::current_path(saved);
}

}  // namespace
}  // namespace tarvex
