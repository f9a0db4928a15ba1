#include <gtest/gtest.h>

#include <filesystem>
#include <string>

#include "document/mission_saver.h"
#include "shell/file_menu.h"
#include "shell/settings.h"
#include "shell/startup.h"
#include "support/test_editor.h"
#include "tool_fixture.h"

namespace tarvex::testing {
namespace {

namespace fs = std::filesystem;

class RoundTripTest : public ToolTest {
  protected:
    // Resaves `from` as `to`; both files and the export must come out.
    void Resave(const std::string& from, const std::string& to, bool imperial) {
        const ToolResult r = Run(With({"resave", from, to}, imperial));
        ASSERT_EQ(r.code, 0) << r.err;
    }
    std::string Path(const std::string& name) const { return (folder / name).string(); }
};

// The tool's resave writes what the desktop editor writes when it opens the file and saves
// it as another: the same mission bytes and the same export, from the same database.
TEST_F(RoundTripTest, ResaveWritesWhatTheEditorWrites) {
    const std::string mission = Mission("sweep.mis");
    const fs::path editorDb = folder / "editor.mdb";
    fs::copy_file(db, editorDb);
    Resave(mission, Path("tool.mis"), false);

    TestEditor t;
    auto put = [&](const char* key, const std::string& value) {
        t.settings.values[{kSettingsApp, kSettingsSection, key}] = value;
    };
    put("Path", sim.string() + "/");
    put("Sortak DB", editorDb.string());
    put("Sortak Map", home + "/Sortak/Sortak Maps/");
    put("Measurement", "True");
    ASSERT_TRUE(StartProgram(*t, "", true));
    t.dialogs.QueueOpen(mission);
    mnuOpen_Click(*t);
    t.dialogs.QueueSave(Path("editor.mis"));
    FileSaveAs(*t);
    ASSERT_TRUE(t.dialogs.messages.empty()) << t.dialogs.LastMessage();

    EXPECT_EQ(ReadTextFile(Path("tool.mis")), ReadTextFile(Path("editor.mis")));
    EXPECT_EQ(ReadTextFile(Path("tool.txt")), ReadTextFile(Path("editor.txt")));
    EXPECT_FALSE(ReadTextFile(Path("tool.txt")).empty());
}

// Missions the writer produced come back as a fixed point: once resaved (which settles the
// layout origins, and in imperial units the speed rounding), a resave gives the same bytes.
TEST_F(RoundTripTest, ResavingASavedMissionGivesTheSameBytes) {
    const struct {
        const char* source;
        bool imperial;
    } cases[] = {
        {"golden/sample_mission.mis", false},
        {"golden/sample_mission.mis", true},
        {"missions/channel_sweep.mis", false},
        {"missions/channel_sweep.mis", true},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(std::string(c.source) + (c.imperial ? " imperial" : " metric"));
        std::string from = Mission("start.mis", "", "", c.source);
        const int settle = c.imperial ? 2 : 1;
        for (int i = 0; i < settle; ++i) {
            const std::string to = Path("settle" + std::to_string(i) + ".mis");
            Resave(from, to, c.imperial);
            from = to;
        }
        Resave(from, Path("again.mis"), c.imperial);
        const std::string once = ReadTextFile(from);
        EXPECT_FALSE(once.empty());
        EXPECT_EQ(ReadTextFile(Path("again.mis")), once);
    }
}

// Checking a folder of missions, unknown layouts among them, works on a copy: the user's
// database keeps its bytes. A resave, like the editor's own load, may add to it.
TEST_F(RoundTripTest, CheckNeverChangesTheGivenDatabase) {
    Mission("sweep.mis");
    Mission("strange.mis", "type_id=4090", "type_id=4002");
    const std::string before = ReadTextFile(db);
    const ToolResult r = Run(With({"check", (sim / "missions").string()}));
    EXPECT_EQ(r.code, 0) << r.out << r.err;
    EXPECT_NE(r.out.find("strange.mis: OK"), std::string::npos) << r.out;
    EXPECT_EQ(ReadTextFile(db), before);
    for (const char* command : {"info", "export"}) {
        EXPECT_EQ(Run(With({command, (sim / "missions" / "strange.mis").string()})).code, 0);
        EXPECT_EQ(ReadTextFile(db), before) << command;
    }
    Resave((sim / "missions" / "strange.mis").string(), Path("out.mis"), false);
    EXPECT_NE(ReadTextFile(db), before);
}

}  // namespace
}  // namespace tarvex::testing
