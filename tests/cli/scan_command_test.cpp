#include <sqlite3.h>

#include "cli/tool_fixture.h"

namespace tarvex::testing {
namespace {

namespace fs = std::filesystem;

using ScanCommandTest = ToolTest;

long long Rows(const fs::path& db) {
    sqlite3* handle = nullptr;
    sqlite3_open(db.string().c_str(), &handle);
    sqlite3_stmt* count = nullptr;
    sqlite3_prepare_v2(handle, "SELECT Count(*) FROM tblMissions", -1, &count, nullptr);
    sqlite3_step(count);
    const long long rows = sqlite3_column_int64(count, 0);
    sqlite3_finalize(count);
    sqlite3_close(handle);
    return rows;
}

TEST_F(ScanCommandTest, FillsTheTableFromTheSampleFolderAndStopsAtAnUnknownMap) {
    const fs::path samples = fs::path(TARVEX_SOURCE_DIR) / "data" / "sim" / "missions";
    int missions = 0;
    for (const auto& entry : fs::directory_iterator(samples)) {
        if (entry.path().extension() != ".mis") continue;
        fs::copy_file(entry.path(), sim / "missions" / entry.path().filename());
        ++missions;
    }
    ToolResult r = Run(With({"scan"}));
    EXPECT_EQ(r.code, 0) << r.err;
    EXPECT_EQ(r.out, std::to_string(missions) + " missions read\n");
    EXPECT_EQ(Rows(db), missions);

    r = Run(With({"scan", "--json"}));
    EXPECT_NE(r.out.find("\"Title\": \"Fortresses to Amsterdam\""), std::string::npos) << r.out;

    // A file naming a map the table lacks ends the scan; the missions before it stay.
    std::ofstream(sim / "missions" / "zz.mis", std::ios::binary) << "map=Nowhere\r\n";
    r = Run(With({"scan"}));
    EXPECT_EQ(r.code, 1);
    EXPECT_NE(r.err.find("zz.mis: No current record. Error [3021]"), std::string::npos) << r.err;
    EXPECT_EQ(Rows(db), missions);
}

}  // namespace
}  // namespace tarvex::testing
