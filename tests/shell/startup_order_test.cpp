// The start of a run, from the second-copy test to the main window, and its end.
#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <string>

#include "shell/editor.h"
#include "shell/forms/frm_mission.h"
#include "shell/forms/frm_splash.h"
#include "shell/forms/mdi_mission_ed.h"
#include "shell/program_exit.h"
#include "shell/startup.h"
#include "support/test_editor.h"

namespace tarvex {
namespace {

using testing::TestEditor;
namespace fs = std::filesystem;

// A bitmap header without pixels: enough for a picture surface to take its size.
void WriteBitmap(const fs::path& file) {
    std::string b(54, '\0');
    const auto put = [&b](size_t at, int v) {
        for (int i = 0; i < 4; ++i)
            b[at + i] = static_cast<char>((v >> (8 * i)) & 0xFF);
    };
    b[0] = 'B';
    b[1] = 'M';
    put(14, 40);
    put(18, 16);
    put(22, 16);
    std::ofstream(file, std::ios::binary) << b;
}

// An installation of a later run: the simulator's folder, maps with the splash, the database,
// all named in the settings. The current folder is restored at the end.
struct Installation {
    TestEditor t;
    fs::path saved = fs::current_path();
    fs::path root = testing::MakeTestFolder("install");
    fs::path sim = root / "sim";
    fs::path maps = root / "maps";
    fs::path db = root / "data" / "Tarvex Missions.mdb";

    Installation() {
        fs::create_directories(sim / "missions");
        fs::create_directories(maps);
        fs::create_directories(db.parent_path());
        WriteBitmap(maps / "Splash.bmp");
        testing::CopyDefaultDatabase(db);
        Store("Path", sim.string() + "/");
        Store("Sortak DB", db.string());
        Store("Sortak Map", maps.string() + "/");
        Store("Last Tab", "2");
        Store("Sound On", "True");
        Store("Measurement", "True");
        Store("ACListSize", "1.5");
        Store("MDI Left", "100");
        Store("MDI Top", "200");
    }
    ~Installation() {
        t.editor.reset();
        fs::current_path(saved);
        std::error_code ignored;
        fs::remove_all(root, ignored);
    }
    void Store(const std::string& key, const std::string& value) {
        t.settings.Save("Sortak", "Sortak Options", key, value);
    }
    std::string Stored(const std::string& key) {
        return t.settings.Get("Sortak", "Sortak Options", key).value_or("<absent>");
    }
};

TEST(StartupOrderTest, LaterRunComesUpWithItsSettingsApplied) {
    Installation in;
    Editor& ed = *in.t;
    ASSERT_TRUE(StartProgram(ed, "", true));

    EXPECT_TRUE(ed.shell.MainWindowLoaded);
    EXPECT_TRUE(ed.db.theDB.IsOpen());
    EXPECT_FALSE(ed.frmSplash.Visible());
    EXPECT_TRUE(ed.MDIMissionED.Visible());
    EXPECT_TRUE(ed.FrmMission.Visible());
    EXPECT_EQ(ed.FrmMission.SSTab1.Tab(), 2);
    EXPECT_TRUE(ed.doc.EventsOn && ed.doc.NotResetting && ed.doc.NotLoading);
    EXPECT_EQ(ed.MDIMissionED.Left(), 100);
    EXPECT_EQ(ed.MDIMissionED.Top(), 200);
    EXPECT_EQ(ed.MDIMissionED.Height(), 7296);
    EXPECT_EQ(ed.FrmMission.Width(), 9396);
    EXPECT_EQ(ed.FrmMission.Height(), 6312);
    EXPECT_EQ(fs::current_path(), in.sim);

    const auto& m = ed.MDIMissionED;
    EXPECT_TRUE(m.mnuACListDec.Enabled() && m.mnuACListInc.Enabled());
    EXPECT_FALSE(m.mnuACListNorm.Checked());
    EXPECT_EQ(m.mnuSndOn.Caption(), "Dis&abled");
    EXPECT_EQ(m.mnuDist.Caption(), "Metric &Distance");
    EXPECT_FALSE(m.mnuTooltips.Checked());
    EXPECT_FALSE(m.mnuMissions.Enabled()) << "the default database has no mission summaries";

    // The four standing sounds from the simulator's sound folder, at 90 percent.
    const std::string sound = (in.sim / "sound").string() + "/";
    EXPECT_EQ(in.t.sound.loads,
              (std::vector<std::string>{sound + "Checkbox.wav", sound + "Click.wav",
                                        sound + "xflak.wav", sound + "whlhit2.wav"}));
    EXPECT_EQ(in.t.sound.volume, -500);
    EXPECT_TRUE(in.t.dialogs.messages.empty());
}

TEST(StartupOrderTest, TooltipsFollowTheirSettingAndTheMenuHelpIsWatchedOnceUp) {
    for (const bool on : {true, false}) {
        Installation in;
        in.Store("ToolTips On", on ? "True" : "False");
        Editor& ed = *in.t;
        ASSERT_TRUE(StartProgram(ed, "", true));
        EXPECT_EQ(ed.FrmMission.txtTitle.ToolTipText(),
                  on ? "The title is displayed on the Single Mission dialog box and on the Mission "
                       "Briefing screen."
                     : "");
        EXPECT_EQ(ed.MDIMissionED.mnuTooltips.Checked(), on);
        EXPECT_TRUE(ed.shell.MenuWatcherAttached);
    }
}

TEST(StartupOrderTest, SplashWaitsForItsTimerOrAClickWhicheverComesFirst) {
    Installation in;
    Editor& ed = *in.t;
    const fs::path mission = in.sim / "missions" / "Raid.mis";
    fs::copy_file(fs::path(TARVEX_SOURCE_DIR) / "tests/data/missions/channel_sweep.mis", mission);
    ASSERT_TRUE(StartProgram(ed, mission.string(), false));
    EXPECT_TRUE(ed.frmSplash.Visible());
    EXPECT_EQ(ed.frmSplash.Timer1.Interval(), 1000);
    EXPECT_TRUE(ed.frmSplash.Timer1.Running());
    EXPECT_FALSE(ed.db.theDB.IsOpen());

    // A click that comes while the mission of the command line loads changes nothing.
    in.t.clock.onDoEvents = [&ed] { ed.frmSplash.picSplash.UserClick(); };
    ed.frmSplash.picSplash.UserClick();
    EXPECT_GT(in.t.clock.doEventsCount, 0);
    EXPECT_TRUE(ed.shell.MainWindowLoaded);
    EXPECT_FALSE(ed.frmSplash.Timer1.Running());
    EXPECT_FALSE(ed.frmSplash.Visible());
    EXPECT_FALSE(ed.frmSplash.Timer1.Fire());
    EXPECT_EQ(in.t.sound.loads.size(), 4u) << "the main window loads once";
}

TEST(StartupOrderTest, MissingPiecesEndTheProgramAfterTheirQuestion) {
    struct Case {
        const char* name;
        const char* title;
    };
    for (const Case& c : {Case{"Splash.bmp", "Unable to locate <*.bmp>"},
                          Case{"Tarvex Missions.mdb", "Unable to locate <Tarvex Missions.mdb>"}}) {
        Installation in;
        fs::remove(c.name == std::string("Splash.bmp") ? in.maps / c.name : in.db);
        in.t.dialogs.QueueMsgAnswer(MsgAnswer::No);
        bool told = false;
        in.t->shell.OnProgramEnd = [&told] { told = true; };
        EXPECT_FALSE(StartProgram(*in.t, "", true)) << c.name;
        ASSERT_EQ(in.t.dialogs.messages.size(), 1u) << c.name;
        EXPECT_EQ(in.t.dialogs.messages[0].title, c.title);
        EXPECT_TRUE(in.t->shell.Ended && told) << c.name;
        EXPECT_FALSE(in.t->MDIMissionED.Visible()) << c.name;
    }
}

TEST(StartupOrderTest, SplashFoundElsewhereBecomesTheMapFolder) {
    Installation in;
    const fs::path elsewhere = in.root / "pictures";
    fs::create_directories(elsewhere);
    fs::rename(in.maps / "Splash.bmp", elsewhere / "Splash.bmp");
    in.t.dialogs.QueueOpen((elsewhere / "Splash.bmp").string());
    ASSERT_TRUE(StartProgram(*in.t, "", true));
    EXPECT_EQ(in.t.dialogs.messages[0].text,
              "Unable to locate <Sortak\\Sortak Maps\\Splash.bmp> files\nDo you want to try and "
              "locate it yourself?");
    EXPECT_EQ(in.t->options.MapPath, elsewhere.string() + "/");
    EXPECT_EQ(in.t.dialogs.opens[0].filter, "(*.bmp)|*.bmp");
}

TEST(StartupOrderTest, SecondCopyOfAnOpenMissionAsksAndMayEndBeforeTheDatabase) {
    Installation in;
    const fs::path mission = in.sim / "missions" / "Raid.mis";
    std::ofstream(mission) << "[mission]\n";
    const std::string caption = "Tarvex Mission Editor: Raid.mis";
    in.t.instance.prevInstance = true;
    in.t.instance.windows = {caption};
    in.t.dialogs.QueueMsgAnswer(MsgAnswer::No);

    EXPECT_FALSE(StartProgram(*in.t, mission.string(), true));
    ASSERT_EQ(in.t.dialogs.messages.size(), 1u);
    const MessageBoxRequest& box = in.t.dialogs.messages[0];
    EXPECT_EQ(box.text, "Previous instance of " + caption +
                            " exists.\nDo you want to open another copy of this file?");
    EXPECT_EQ(box.title, "Tarvex Editor Duplication");
    EXPECT_EQ(box.icon, MsgIcon::Question);
    EXPECT_EQ(in.t.instance.restored, std::vector<std::string>{caption});
    EXPECT_FALSE(in.t->db.theDB.IsOpen());
    EXPECT_EQ(in.Stored("MDI Left"), "100") << "a copy that ends stores nothing";

    // Yes opens the second copy all the same.
    in.t.Rebuild();
    in.t.dialogs.ClearRecord();
    in.t.dialogs.QueueMsgAnswer(MsgAnswer::Yes);
    EXPECT_TRUE(StartProgram(*in.t, mission.string(), true));
    EXPECT_EQ(in.t->shell.AppTitle, "... duplicate instance.");
    EXPECT_EQ(in.t->frmSplash.Caption(), "");
    EXPECT_TRUE(in.t->db.theDB.IsOpen());
}

TEST(StartupOrderTest, SecondCopyWithoutAFileOpensOffsetAndStoresTheOffset) {
    Installation in;
    in.t.instance.prevInstance = true;
    in.t.instance.windows = {"Tarvex Mission Editor"};
    ASSERT_TRUE(StartProgram(*in.t, "", true));
    EXPECT_TRUE(in.t.dialogs.messages.empty());
    EXPECT_EQ(in.t->MDIMissionED.Left(), 340);
    EXPECT_EQ(in.t->MDIMissionED.Top(), 440);
    EXPECT_EQ(in.Stored("MDI Left"), "340");
    EXPECT_EQ(in.Stored("MDI Top"), "440");
    EXPECT_EQ(in.Stored("Last Tab"), "2") << "the tab of the next start is not disturbed";
}

TEST(StartupOrderTest, OnlyAMisNameOnTheCommandLineOpens) {
    for (const char* name : {"RAID.MIS", "notes.txt"}) {
        Installation in;
        const fs::path file = in.sim / "missions" / name;
        fs::copy_file(fs::path(TARVEX_SOURCE_DIR) / "tests/data/missions/channel_sweep.mis", file);
        ASSERT_TRUE(StartProgram(*in.t, "\"" + file.string() + "\"", true));
        const bool opened = std::string(name) == "RAID.MIS";
        EXPECT_EQ(in.t->doc.MissionPath, opened ? file.string() : "") << name;
        EXPECT_EQ(in.t->MDIMissionED.Caption(),
                  opened ? "Tarvex Mission Editor: RAID.MIS" : "Tarvex Mission Editor");
        EXPECT_TRUE(in.t.dialogs.messages.empty()) << in.t.dialogs.LastMessage();
    }
}

TEST(StartupOrderTest, CloseBoxAsksAndFileExitDoesNot) {
    Installation in;
    Editor& ed = *in.t;
    ASSERT_TRUE(StartProgram(ed, "", true));
    ed.FrmMission.SSTab1.SetTab(3);
    in.t.dialogs.ClearRecord();

    in.t.dialogs.QueueMsgAnswer(MsgAnswer::No);
    EXPECT_FALSE(CloseMainWindow(ed, UnloadMode::FormControlMenu));
    ASSERT_EQ(in.t.dialogs.messages.size(), 1u);
    EXPECT_EQ(in.t.dialogs.messages[0].text, "Are you sure you want to exit?");
    EXPECT_EQ(in.t.dialogs.messages[0].title, "Exit Tarvex Mission Editor");
    EXPECT_FALSE(ed.shell.Ended);
    EXPECT_TRUE(ed.db.theDB.IsOpen());

    ed.aircraftRecords.AircraftChanged = true;
    ed.MDIMissionED.mnuExit.UserClick();
    EXPECT_EQ(in.t.dialogs.messages.size(), 1u);
    EXPECT_TRUE(ed.shell.Ended);
    EXPECT_FALSE(ed.aircraftRecords.AircraftChanged);
    EXPECT_FALSE(ed.db.theDB.IsOpen());
    EXPECT_EQ(in.Stored("Last Tab"), "3");
}

}  // namespace
}  // namespace tarvex
