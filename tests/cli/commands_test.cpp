#include <gtest/gtest.h>

#include <algorithm>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <string>
#include <vector>

#include "tool_fixture.h"

namespace tarvex::testing {
namespace {

namespace fs = std::filesystem;

class CommandTest : public ToolTest {};

// Each command on a good mission, a broken one, one that fails validation and a missing one:
// the exit code, what it says and where, and which files it leaves behind.
TEST_F(CommandTest, AnswersEachKindOfMissionWithItsCodeAndReport) {
    const std::string good = Mission("good.mis");
    const std::string broken = Mission("broken.mis", "map=Map1Bob", "map=NoSuchMap");
    const std::string invalid =
        Mission("invalid.mis", "waypoint_path_id=5002\r\n", "", "missions/channel_sweep.mis");
    const std::string missing = (sim / "missions" / "absent.mis").string();
    const std::string out = (folder / "out.mis").string();
    const struct {
        const char* what;
        std::vector<std::string> args;
        int code;
        std::string inOut, inErr;
        bool outWritten;
    } cases[] = {
        {"resave good", {"resave", good, out}, 0, "Saved", "", true},
        {"resave broken", {"resave", broken, out}, 1, "", ": Accessing MDB.Maps Table", false},
        {"resave invalid",
         {"resave", invalid, out},
         2,
         "",
         "FORMATION TAB ERR: Formation 6001 does not have path(s) assigned.",
         false},
        {"resave missing", {"resave", missing, out}, 1, "", "File not found Error [53]", false},
        {"check good", {"check", good}, 0, "good.mis: OK", "", false},
        {"check all",
         {"check", good, broken, invalid},
         1,
         "broken.mis: While [*** Loading Summary Data: Accessing MDB.Maps Table ***]",
         "",
         false},
        {"check invalid", {"check", invalid}, 2, "invalid.mis: FORMATION TAB ERR", "", false},
        {"check missing", {"check", missing}, 1, "File not found Error [53]", "", false},
        {"export good", {"export", good}, 0, "good.txt", "", false},
        {"export broken", {"export", broken}, 1, "", "Accessing MDB.Maps Table", false},
        {"info good", {"info", good}, 0, "Title:   Channel Sweep", "", false},
        {"info json", {"info", good, "--json"}, 0, "\"title\": \"Channel Sweep\"", "", false},
        {"info missing", {"info", missing}, 1, "", "File not found Error [53]", false},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.what);
        fs::remove(out);
        const ToolResult r = Run(With(c.args));
        EXPECT_EQ(r.code, c.code) << r.err;
        EXPECT_NE(r.out.find(c.inOut), std::string::npos) << r.out;
        EXPECT_NE(r.err.find(c.inErr), std::string::npos) << r.err;
        EXPECT_EQ(fs::exists(out), c.outWritten);
        EXPECT_EQ(fs::exists(folder / "out.txt"), c.outWritten);
        fs::remove(folder / "out.txt");
    }
    EXPECT_TRUE(fs::exists(sim / "missions" / "good.txt"));
}

// The paths the info lists are those a save writes, with their length along the waypoints.
TEST_F(CommandTest, InfoListsGroupsPathsAndLayouts) {
    const ToolResult r = Run(With({"info", Mission("good.mis")}));
    ASSERT_EQ(r.code, 0) << r.err;
    for (const char* line :
         {"Groups:  2", "  6000 Red Section", "Bob Stanford: ", "[player]", "Paths:   2",
          "  5000: 3 waypoints, ", "  5002: 2 waypoints, ", "Layouts: 3"})
        EXPECT_NE(r.out.find(line), std::string::npos) << line << "\n" << r.out;
    // N50 50 W01 00 to N50 55 W00 50, by the map distance of the program.
    EXPECT_NE(r.out.find("5002: 2 waypoints, 14.7 km"), std::string::npos) << r.out;
    const ToolResult miles = Run(With({"info", Mission("good.mis")}, true));
    EXPECT_NE(miles.out.find("5002: 2 waypoints, 9.1 mi"), std::string::npos) << miles.out;
}

TEST_F(CommandTest, RefusesBadArgumentsWithOneLine) {
    const std::vector<std::vector<std::string>> bad = {
        {},
        {"frobnicate"},
        {"resave", "only-one.mis"},
        {"check"},
        {"info", "a.mis", "--colour"},
        {"export", "a.mis", "--db"},
    };
    for (const auto& args : bad) {
        const ToolResult r = Run(args);
        EXPECT_EQ(r.code, 64) << (args.empty() ? "" : args[0]);
        EXPECT_EQ(std::count(r.err.begin(), r.err.end(), '\n'), 1) << r.err;
        EXPECT_EQ(r.err.rfind("tarvex-mis: ", 0), 0u) << r.err;
    }
    for (const char* command : {"resave", "check", "export", "info"}) {
        const ToolResult help = Run({command, "--help"});
        EXPECT_EQ(help.code, 0);
        EXPECT_NE(help.out.find("--db"), std::string::npos) << command;
    }
}

// Without --db the database is the editor's, found in its settings file, else the default
// installation's; a database that is missing or isn't one ends the run before any mission.
TEST_F(CommandTest, FindsTheDatabaseOrSaysWhyNot) {
    const std::string good = Mission("good.mis");
    home = (folder / "nowhere").string();
    ToolResult r = Run({"check", good});
    EXPECT_EQ(r.code, 66);
    EXPECT_NE(r.err.find("nowhere/Sortak/Sortak Data/Tarvex Missions.mdb"), std::string::npos)
        << r.err;

    fs::create_directories(config / "Sortak");
    std::ofstream(config / "Sortak" / "Sortak.ini")
        << "[General]\nPath=/elsewhere\n\n[Sortak%20Options]\nPath=" << sim.string()
        << "/\nSortak%20DB=" << db.string() << "\n";
    r = Run({"check", good});
    EXPECT_EQ(r.code, 0) << r.err;

    std::ofstream(folder / "garbage.mdb") << "this is no database";
    r = Run({"check", good, "--db", (folder / "garbage.mdb").string()});
    EXPECT_EQ(r.code, 66);
    EXPECT_NE(r.err.find("garbage.mdb"), std::string::npos) << r.err;
}

// What the tool refuses, with the file and the cause in its first line, and what it leaves
// as it was: a mission is never overwritten by an export, a --db that isn't a reference
// database is never written to.
TEST_F(CommandTest, RefusesWhatWouldOverwriteOrIsntOurs) {
    const std::string good = Mission("good.mis");
    const std::string notes = (sim / "missions" / "notes.txt").string();
    std::ofstream(notes, std::ios::binary) << "my notes";
    const fs::path empty = folder / "empty.mdb";
    std::ofstream(empty, std::ios::binary).flush();
    const fs::path notAMission = sim / "missions" / "folder.mis";
    fs::create_directories(notAMission);
    const struct {
        const char* what;
        std::vector<std::string> args;
        int code;
        std::string say;  // in the output or the complaints
    } cases[] = {
        {"an export over its mission", With({"export", notes}), 64,
         "notes.txt: a mission file's name must end in .mis"},
        {"a resave to another kind of name", With({"resave", good, notes}), 64,
         "notes.txt: a mission file's name must end in .mis"},
        {"an empty --db",
         {"check", good, "--db", empty.string(), "--sim", sim.string()},
         66,
         "tarvex-mis: not a Tarvex reference database: " + empty.string()},
        {"a folder for a mission", With({"info", notAMission.string()}), 1,
         notAMission.string() + " is a folder, not a mission file"},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.what);
        const ToolResult r = Run(c.args);
        EXPECT_EQ(r.code, c.code) << r.out << r.err;
        EXPECT_NE((r.out + r.err).find(c.say), std::string::npos) << r.out << r.err;
    }
    EXPECT_EQ(ReadTextFile(notes), "my notes");
    EXPECT_EQ(fs::file_size(empty), 0u);
}

// A resave whose mission is written but whose export isn't says so with a code of its own.
TEST_F(CommandTest, AnExportThatFailsAfterTheMissionIsSaid) {
    const std::string out = (folder / "out.mis").string();
    fs::create_directories(folder / "out.txt" / "inside");
    const ToolResult r = Run(With({"resave", Mission("good.mis"), out}));
    EXPECT_EQ(r.code, 4) << r.err;
    EXPECT_NE(r.err.find("saved, but its export"), std::string::npos) << r.err;
    EXPECT_TRUE(fs::is_regular_file(out));
}

// check says what the first save of a mission changes, and diff shows it line by line.
TEST_F(CommandTest, SaysWhatAFirstSaveChanges) {
    const std::string mission = Mission("sweep.mis");
    const ToolResult check = Run(With({"check", mission}));
    EXPECT_EQ(check.code, 0) << check.err;
    for (const char* line :
         {"sweep.mis: OK", "a first save changes ",
          "layout 2 'Unnamed Layout1 in file [sweep]' is new: the load made it from the file's "
          "units",
          " km from ", "and is taken by its runway: its "})
        EXPECT_NE(check.out.find(line), std::string::npos) << line << "\n" << check.out;

    const ToolResult diff = Run(With({"diff", mission}));
    EXPECT_EQ(diff.code, 0) << diff.err;
    EXPECT_EQ(diff.out.rfind("--- " + mission + "\n+++ " + mission + " (resaved)\n@@ -", 0), 0u)
        << diff.out;
    EXPECT_NE(diff.out.find("\n-position_lat="), std::string::npos) << diff.out;
}

// The scratch copy of the database goes when the run is ended by a signal, and a later run
// removes what a killed one left.
TEST_F(CommandTest, LeavesNoScratchCopyBehind) {
    const fs::path temp = folder / "temp";
    fs::create_directories(temp / "tarvex-mis-999999-abcdef");
    // Enough missions that the run is still busy when the signal comes.
    for (int i = 0; i < 400; ++i)
        Mission("m" + std::to_string(1000 + i) + ".mis");
    std::string command =
        "cd " + Quote(folder.string()) + " && env TMPDIR=" + Quote(temp.string()) +
        " HOME=" + Quote(config.string()) + " TARVEX_HOME=" + Quote(home) + " " +
        Quote(TARVEX_MIS) + " check " + Quote((sim / "missions").string()) + " --db " +
        Quote(db.string()) + " --sim " + Quote(sim.string()) +
        " >/dev/null 2>&1 & pid=$!; sleep 0.2; kill -TERM $pid; wait $pid 2>/dev/null";
    std::system(command.c_str());
    std::vector<std::string> left;
    for (const auto& entry : fs::directory_iterator(temp))
        left.push_back(entry.path().filename().string());
    EXPECT_TRUE(left.empty()) << left.front();
}

}  // namespace
}  // namespace tarvex::testing
