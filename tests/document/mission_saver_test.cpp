#include "document/mission_saver.h"
#include "common/error.h"
#include "common/atomic_file_writer.h"
#include "shell/forms/frm_mission.h"
#include "shell/forms/frm_msg_screen.h"
#include "shell/forms/mdi_mission_ed.h"
#include "support/test_editor.h"
#include "writer_test_mission.h"

#include <gtest/gtest.h>
#include <sys/wait.h>
#include <unistd.h>

#include <filesystem>
#include <fstream>
#include <functional>
#include <string>

namespace tarvex {
namespace {

namespace fs = std::filesystem;
using testing::ReadBytes;
using testing::TestEditor;

constexpr const char* kOldText = "[mission]\r\nversion=0.1\r\n";

struct SaveFixture {
    TestEditor t;
    fs::path folder = testing::MakeTestFolder("saver");
    fs::path file = folder / "sweep.mis";
    fs::path exportFile = folder / "sweep.txt";
    Editor& ed = t.OpenDatabase();

    SaveFixture() {
        testing::BuildSampleMission(ed);
        ed.doc.MissionPath = file.string();
        ed.doc.MissionFile = "sweep.mis";
    }
    ~SaveFixture() {
        std::error_code ignored;
        fs::permissions(file, fs::perms::owner_all, ignored);
        fs::remove_all(folder, ignored);
    }
    std::vector<std::string> FolderNames() const {
        std::vector<std::string> names;
        for (const auto& entry : fs::directory_iterator(folder))
            names.push_back(entry.path().filename().string());
        std::sort(names.begin(), names.end());
        return names;
    }
};

TEST(MissionSaverTest, EndsASaveWithTheMissionNamedAndRemembered) {
    SaveFixture f;
    f.ed.frmMsgScreen.SetVisible(false);
    SaveMission(f.ed);
    EXPECT_TRUE(f.t.dialogs.messages.empty());
    EXPECT_EQ(f.FolderNames(), (std::vector<std::string>{"sweep.mis", "sweep.txt"}));
    EXPECT_EQ(f.ed.MDIMissionED.Caption(), "Tarvex Mission Editor: sweep.mis");
    EXPECT_EQ(f.ed.options.RecentFiles[1], f.file.string());
    EXPECT_FALSE(f.ed.frmMsgScreen.Visible());
    EXPECT_EQ(f.ed.MDIMissionED.MousePointer(), 0);
    EXPECT_EQ(f.ed.frmMsgScreen.lblMessage.Caption(), "Saving Mission File");
}

// Whatever fails, the report names the step and the error, and the files on disk stay as
// they were: no cut file, no temporary file left behind.
TEST(MissionSaverTest, ReportsAFailureAndLeavesTheOldFileWhole) {
    const struct {
        const char* what;
        std::function<void(SaveFixture&)> arrange;
        std::string report;
        bool missionWritten;  // the failure comes after the mission file was complete
    } cases[] = {
        {"a layout without units",
         [](SaveFixture& f) {
             f.ed.db.theDB.Execute(
                 "INSERT INTO GrndNames (ID,LayoutName,UnitTotal,IsDefault,GUType) "
                 "VALUES (60,'Empty',0,0,1);");
             f.ed.FrmMission.lstGUAdded.SetItemData(1, 60);
         },
         "While [*** Saving Unit Data: Searching MDB.GrndTypes Table for ID 60 ***].\n"
         "The following error occurred\nNo current record. Error [3021]",
         false},
        {"an aircraft gone from the reference table",
         [](SaveFixture& f) { f.ed.doc.PilotAC(0, 1) = 99; },
         "While [*** Saving Unit Type Data: Searching MDB.Aircraft Table for Aircraft ID 99 "
         "***].\nThe following error occurred\nNo current record. Error [3021]",
         false},
        {"a pattern without stations",
         [](SaveFixture& f) { f.ed.db.theDB.Execute("DELETE FROM frmPatterns WHERE frmID=7000;"); },
         "While [*** Saving Formation Data: Searching MDB.frmPatterns Table for Formation ID "
         "7000 ***].\nThe following error occurred\nNo current record. Error [3021]",
         false},
        {"a read-only mission file",
         [](SaveFixture& f) {
             std::ofstream(f.file, std::ios::binary) << kOldText;
             fs::permissions(f.file, fs::perms::owner_read | fs::perms::group_read);
         },
         "While [*** Opening file for Save. ***].\n"
         "The following error occurred\nFILE is read-only Error [75]",
         false},
        {"a folder at the export's name",
         [](SaveFixture& f) { fs::create_directories(f.exportFile / "inside"); },
         "While [*** Saving EXCEL Import File ***].\n"
         "The following error occurred\nEXPORT is a folder Error [75]",
         true},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.what);
        SaveFixture f;
        std::ofstream(f.file, std::ios::binary) << kOldText;
        c.arrange(f);
        const auto before = f.FolderNames();
        f.ed.MDIMissionED.SetCaption("Tarvex Mission Editor: old.mis");

        SaveMission(f.ed);

        ASSERT_EQ(f.t.dialogs.messages.size(), 1u);
        std::string report = c.report;
        if (const auto at = report.find("FILE"); at != std::string::npos)
            report.replace(at, 4, f.file.string());
        if (const auto at = report.find("EXPORT"); at != std::string::npos)
            report.replace(at, 6, f.exportFile.string());
        EXPECT_EQ(f.t.dialogs.messages[0].text, report);
        EXPECT_EQ(f.t.dialogs.messages[0].title, "sweep.mis *** Save Mission File Error ***");
        EXPECT_EQ(f.t.dialogs.messages[0].icon, MsgIcon::Critical);
        EXPECT_EQ(f.FolderNames(), before);
        if (c.missionWritten) {
            EXPECT_EQ(ReadBytes(f.file), ReadBytes(testing::GoldenPath("sample_mission.mis")));
        } else {
            EXPECT_EQ(ReadBytes(f.file), kOldText);
        }
        EXPECT_FALSE(f.ed.frmMsgScreen.Visible());
        EXPECT_EQ(f.ed.MDIMissionED.MousePointer(), 0);
        EXPECT_EQ(f.ed.MDIMissionED.Caption(), "Tarvex Mission Editor: old.mis");
    }
}

TEST(MissionSaverTest, ReportsAFolderStandingAtTheMissionsName) {
    SaveFixture f;
    fs::create_directories(f.file / "inside");
    SaveMission(f.ed);
    EXPECT_EQ(f.t.dialogs.LastMessage(),
              "While [*** Opening file for Save. ***].\n"
              "The following error occurred\n" +
                  f.file.string() + " is a folder Error [75]");
    EXPECT_TRUE(fs::is_directory(f.file / "inside"));
    EXPECT_EQ(f.FolderNames(), std::vector<std::string>{"sweep.mis"});
}

// A rename that the system refuses leaves the target as it was and takes the temporary
// file away.
TEST(MissionSaverTest, AtomicWriterKeepsTheTargetWhenTheRenameFails) {
    const fs::path folder = testing::MakeTestFolder("atomic");
    const std::string target = (folder / "a.mis").string();
    {
        AtomicFileWriter writer(target);
        writer.Write("new text");
        fs::create_directories(folder / "a.mis" / "inside");
        try {
            writer.Commit();
            ADD_FAILURE() << "the rename over a folder succeeded";
        } catch (const AppError& e) {
            EXPECT_EQ(e.Number(), kErrPathAccess);
        }
        EXPECT_FALSE(fs::exists(writer.TemporaryPath()));
    }
    EXPECT_TRUE(fs::is_directory(folder / "a.mis" / "inside"));
    fs::remove_all(folder / "a.mis");

    std::ofstream(target, std::ios::binary) << "old";
    WriteFileAtomically(target, "new");
    EXPECT_EQ(ReadBytes(target), "new");
    EXPECT_EQ(std::distance(fs::directory_iterator(folder), fs::directory_iterator()), 1);
    fs::remove_all(folder);
}

// Save asks for a name only when there is none, Save As always; the dialog starts in the
// missions folder with the bare file name.
TEST(MissionSaverTest, AsksForANameWhenNeeded) {
    SaveFixture f;
    f.ed.options.SimPath = "/sim/";
    f.ed.doc.MissionPath.clear();
    f.ed.doc.MissionFile = "missions\\old.mis";
    f.t.dialogs.QueueSaveCancel();
    FileSave(f.ed);
    ASSERT_EQ(f.t.dialogs.saves.size(), 1u);
    const FileDialogRequest& request = f.t.dialogs.saves[0];
    EXPECT_EQ(request.title, "Save Mission Data");
    EXPECT_EQ(request.filter, "(*.mis)|*.mis");
    EXPECT_EQ(request.initDir, "/sim/missions");
    EXPECT_EQ(request.fileName, "old.mis");
    EXPECT_TRUE(f.FolderNames().empty());

    f.t.dialogs.QueueSave((f.folder / "other.mis").string());
    FileSave(f.ed);
    FileSave(f.ed);
    EXPECT_EQ(f.t.dialogs.saves.size(), 2u);
    EXPECT_EQ(f.ed.doc.MissionFile, "other.mis");
    EXPECT_EQ(f.FolderNames(), (std::vector<std::string>{"other.mis", "other.txt"}));

    // A mission that validation refuses is neither named nor written.
    f.ed.FrmMission.txtTitle.SetText("");
    FileSaveAs(f.ed);
    EXPECT_EQ(f.t.dialogs.saves.size(), 2u);
    EXPECT_EQ(f.t.dialogs.messages.size(), 1u);
}

// The export takes the mission's name with "txt" for its last three characters, so a mission
// is saved only under a name ending in .mis: the dialog adds it, Save asks for a name when the
// mission's own doesn't end in it.
TEST(MissionSaverTest, SavesAMissionOnlyUnderANameEndingInMis) {
    const struct {
        const char* typed;
        const char* saved;
    } cases[] = {{"raid", "raid.mis"}, {"raid.txt", "raid.txt.mis"}, {"Raid.MIS", "Raid.MIS"}};
    for (const auto& c : cases) {
        SCOPED_TRACE(c.typed);
        SaveFixture f;
        f.t.dialogs.QueueSave((f.folder / c.typed).string());
        FileSaveAs(f.ed);
        EXPECT_EQ(f.ed.doc.MissionFile, c.saved);
        EXPECT_EQ(f.ed.doc.MissionPath, (f.folder / c.saved).string());
        EXPECT_TRUE(fs::exists(f.folder / c.saved));
    }
    SaveFixture f;
    const fs::path notes = f.folder / "notes.txt";
    std::ofstream(notes, std::ios::binary) << "my notes";
    f.ed.doc.MissionPath = notes.string();
    f.t.dialogs.QueueSaveCancel();
    FileSave(f.ed);
    EXPECT_EQ(f.t.dialogs.saves.size(), 1u);
    SaveMission(f.ed);  // straight to the saver: refused all the same
    EXPECT_EQ(ReadBytes(notes), "my notes");
}

// A save killed half way leaves its temporary file beside the mission; the next save of that
// mission takes it away, and leaves alone those of writers still running and of other files.
TEST(MissionSaverTest, TheNextSaveRemovesTheTemporaryFilesOfAKilledOne) {
    SaveFixture f;
    const pid_t gone = fork();
    if (gone == 0) _exit(0);
    waitpid(gone, nullptr, 0);
    const std::string dead = "sweep.mis.~" + std::to_string(gone) + "-0.tmp";
    const std::string deadExport = "sweep.txt.~" + std::to_string(gone) + "-3.tmp";
    const std::string running = "sweep.mis.~1-0.tmp";  // process 1 runs as long as the system
    const std::string other = "other.mis.~" + std::to_string(gone) + "-0.tmp";
    for (const std::string& name : {dead, deadExport, running, other})
        std::ofstream(f.folder / name, std::ios::binary) << "[mission]\r\nversi";
    SaveMission(f.ed);
    EXPECT_TRUE(f.t.dialogs.messages.empty()) << f.t.dialogs.LastMessage();
    EXPECT_EQ(f.FolderNames(),
              (std::vector<std::string>{other, "sweep.mis", running, "sweep.txt"}));
}

}  // namespace
}  // namespace tarvex
