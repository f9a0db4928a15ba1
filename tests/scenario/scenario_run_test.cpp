// Running scenarios on a started editor: where a run stops, and what it says there.
#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <optional>
#include <string>

#include "app/scratch_editor.h"
#include "scenario/scenario_run.h"
#include "scenario/scenario_script.h"

namespace tarvex::scenario {
namespace {

namespace fs = std::filesystem;

struct Played : ScratchEditor {
    Played()
        : ScratchEditor({{fs::path(TARVEX_SOURCE_DIR) / "data" / "refdb" / "schema.sql",
                          fs::path(TARVEX_SOURCE_DIR) / "data" / "refdb" / "seed.sql"},
                         {},
                         fs::path(TARVEX_SOURCE_DIR) / "data" / "maps",
                         true},
                        "scenario") {}

    std::optional<Failure> Play(const std::string& text) {
        ScriptContext context;
        context.folder = Folder().string();
        context.variables["SCRATCH"] = Folder().string();
        const Script script = ParseScenario(text, context);
        EXPECT_TRUE(script.errors.empty()) << script.errors[0].message;
        ScenarioRun run(*this);
        return run.Run(script);
    }
};

const std::string kMission =
    std::string(TARVEX_SOURCE_DIR) + "/tests/data/missions/channel_sweep.mis";

TEST(ScenarioRunTest, StopsAtTheLineThatFailsAndSaysWhy) {
    const struct {
        const char* what;
        std::string text;
        int line;
        const char* message;
    } cases[] = {
        {"a wrong expectation", "new\nexpect SSTab1.Tab = 2\n", 2,
         "expected SSTab1.Tab = \"2\", got \"0\""},
        {"a property the kind lacks", "expect txtTitle.ListCount = 0", 1,
         "txtTitle is a text box: it has no property ListCount"},
        {"an unknown control", "click btnNothing", 1,
         "there is no control btnNothing on FrmMission"},
        {"an array without its index", "click optColor", 1, "optColor is a control array"},
        {"an element beyond the array", "check chkOverlay(16) on", 1,
         "chkOverlay has no element 16"},
        {"a row beyond the list", "pick cmbClouds 7", 1, "row 7 is outside cmbClouds (4 rows)"},
        {"a row text the list lacks", "pick cmbClouds \"Fog\"", 1, "cmbClouds has no row \"Fog\""},
        {"the wrong kind", "pick txtTitle 0", 1, "txtTitle is a text box: pick works on combos"},
        {"a disabled button", "click btnSetWaypoints", 1, "btnSetWaypoints is disabled"},
        {"a hidden button", "click btnDeleteGroup", 1, "btnDeleteGroup is hidden"},
        {"a window not open", "click frmNewRecord.btnAddRecord", 1, "frmNewRecord is not open"},
        {"a point outside the map", "menu mnuWaypoints\npress mapWayPoints -5 10", 2,
         "-5 10 lies outside mapWayPoints"},
        {"a box nobody answered", "new\nsave\nexpect box \"never\"", 2,
         "a message box came with no answer queued (title \"Unable to Save Mission File\"): "
         "\"WAYPOINT TAB ERR"},
        {"a file dialog nobody answered", "menu mnuOpen", 1,
         "an open dialog came with no answer queued"},
        {"an answer no box took", "answer yes\nmenu mnuAutoUpdate", 2,
         "no message box came for the answer yes of line 1"},
        {"an answer at the end", "new\nanswer ok", 2, "no action follows the answer ok"},
        {"a box expected where none came", "new\nexpect box \"x\"", 2,
         "no message box came at line 1"},
        {"a good run",
         "open " + kMission +
             "\n"
             "pick cmbWinds \"Heavy Wind\"\n"
             "type txtTitle \"Sweep\"\n"
             "append txtTitle \" Two\"\n"
             "expect txtTitle.Text = \"Sweep Two\"\n"
             "expect doc MissionPath = \"" +
             kMission +
             "\"\n"
             "new\n"
             "expect txtTitle.Text != \"Sweep Two\"\n"
             "answer ok\n"
             "save\n"
             "expect box.Title = \"Unable to Save Mission File\"\n"
             "expect box contains \"Formations have not been defined.\"\n"
             "menu mnuWaypoints\n"
             "expect mnuWaypoints.Checked = true\n"
             "move mapWayPoints 1200 800\n"
             "expect status contains \"Lat: [N\"\n",
         0, ""},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.what);
        Played editor;
        const auto failure = editor.Play(c.text);
        if (c.line == 0) {
            EXPECT_FALSE(failure) << failure->line << ": " << failure->message;
            continue;
        }
        ASSERT_TRUE(failure);
        EXPECT_EQ(failure->line, c.line);
        EXPECT_NE(failure->message.find(c.message), std::string::npos) << failure->message;
    }
}

TEST(ScenarioRunTest, FileComparisonNamesTheFirstLineThatDiffers) {
    Played editor;
    const fs::path a = editor.Folder() / "a.txt";
    const fs::path b = editor.Folder() / "b.txt";
    std::ofstream(a, std::ios::binary) << "one\r\ntwo\r\nthree\r\n";
    std::ofstream(b, std::ios::binary) << "one\r\ntwo\r\n";
    const auto failure =
        editor.Play("expect file a.txt same-as a.txt\nexpect file a.txt same-as b.txt");
    ASSERT_TRUE(failure);
    EXPECT_EQ(failure->line, 2);
    EXPECT_NE(failure->message.find("differs from " + b.string() +
                                    " at line 3: \"three\\r\\n\" where it has \"\""),
              std::string::npos)
        << failure->message;
}

}  // namespace
}  // namespace tarvex::scenario
