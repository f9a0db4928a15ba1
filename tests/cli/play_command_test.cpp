// tarvex-mis play as a designer runs it: the exit code, where it says what differed, one run per
// mission, and the database it works on.
#include <gtest/gtest.h>
#include <sqlite3.h>

#include <filesystem>
#include <fstream>
#include <string>
#include <vector>

#include "tool_fixture.h"

namespace tarvex::testing {
namespace {

namespace fs = std::filesystem;

class PlayTest : public ToolTest {
  protected:
    std::string Scenario(const std::string& name, const std::string& text) {
        const fs::path path = folder / name;
        std::ofstream(path, std::ios::binary) << text;
        return path.string();
    }

    int UnnamedLayouts() {
        sqlite3* handle = nullptr;
        sqlite3_open_v2(db.string().c_str(), &handle, SQLITE_OPEN_READONLY, nullptr);
        sqlite3_stmt* query = nullptr;
        sqlite3_prepare_v2(handle,
                           "SELECT COUNT(*) FROM GrndNames WHERE LayoutName LIKE 'Unnamed%'", -1,
                           &query, nullptr);
        const int count = sqlite3_step(query) == SQLITE_ROW ? sqlite3_column_int(query, 0) : -1;
        sqlite3_finalize(query);
        sqlite3_close(handle);
        return count;
    }
};

TEST_F(PlayTest, AnswersWithTheLineThatDidNotHold) {
    const std::string good = Mission("good.mis");
    const std::string broken = Mission("broken.mis", "map=Map1Bob", "map=NoSuchMap");
    const std::string out = (folder / "out.mis").string();
    const struct {
        const char* what;
        std::string text;
        std::vector<std::string> missions;
        int code;
        std::string inOut, inErr;
    } cases[] = {
        {"all held",
         "open " + good + "\nexpect txtTitle.Text = \"Channel Sweep\"\n",
         {},
         0,
         "held.scn: OK",
         ""},
        {"a wrong expectation",
         "new\n\nexpect cmbClouds.ListCount = 5\n",
         {},
         1,
         "held.scn: failed at line 3",
         "held.scn:3: expected cmbClouds.ListCount = \"5\", got \"4\""},
        {"syntax errors, and nothing runs",
         "saveas " + out + "\nclick\nanswer perhaps\n",
         {},
         1,
         "",
         "held.scn:2: missing a control\n"},
        {"one run per mission",
         "open $MISSION\nexpect cmbSelectMap.Text != \"\"\n",
         {good, broken},
         1,
         "good.mis: OK\n",
         "held.scn:1: " + broken + ": a message box came with no answer queued"},
        {"a folder stands for its missions",
         "open $MISSION\nexpect cmbSelectMap.Text != \"\"\n",
         {(sim / "missions").string()},
         1,
         "good.mis: OK\n",
         "broken.mis: a message box came with no answer queued"},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.what);
        std::vector<std::string> args{"play", Scenario("held.scn", c.text)};
        args.insert(args.end(), c.missions.begin(), c.missions.end());
        const ToolResult r = Run(With(args));
        EXPECT_EQ(r.code, c.code) << r.err;
        EXPECT_NE(r.out.find(c.inOut), std::string::npos) << r.out;
        EXPECT_NE(r.err.find(c.inErr), std::string::npos) << r.err;
        EXPECT_FALSE(fs::exists(out));
    }
    EXPECT_EQ(Run(With({"play", (folder / "absent.scn").string()})).code, 64);
    EXPECT_EQ(Run(With({"play", Scenario("a.scn", "new\n"), sim.string()})).code, 64);
}

// Loading this mission files a layout it doesn't know under a new name: on a copy of the
// database unless told to write.
TEST_F(PlayTest, ChangesTheDatabaseOnlyWhenTold) {
    const std::string scenario = Scenario("load.scn", "open $MISSION\n");
    const std::string mission = Mission("m.mis");
    const int before = UnnamedLayouts();
    ASSERT_GE(before, 0);
    ASSERT_EQ(Run(With({"play", scenario, mission})).code, 0);
    EXPECT_EQ(UnnamedLayouts(), before);
    ASSERT_EQ(Run(With({"play", "--write-db", scenario, mission})).code, 0);
    EXPECT_EQ(UnnamedLayouts(), before + 1);
}

}  // namespace
}  // namespace tarvex::testing
