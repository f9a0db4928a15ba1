// The sample simulator folder that ships with the default installation: its missions must
// open and save on a fresh editor, and every aircraft of the database must have the folder
// the aircraft window reads its descriptive name from.
#include <algorithm>
#include <filesystem>
#include <fstream>
#include <string>
#include <vector>

#include "document/loader_fixture.h"
#include "document/mission_saver.h"
#include "document/mission_validation.h"
#include "refdata/recordset.h"
#include "shell/forms/frm_mission.h"

namespace tarvex::testing {
namespace {

namespace fs = std::filesystem;

const fs::path kSimFolder = fs::path(TARVEX_SOURCE_DIR) / "data" / "sim";

std::string ReadBytes(const fs::path& file) {
    std::ifstream in(file, std::ios::binary);
    return std::string(std::istreambuf_iterator<char>(in), std::istreambuf_iterator<char>());
}

std::vector<fs::path> SampleMissionFiles() {
    std::vector<fs::path> files;
    for (const auto& entry : fs::directory_iterator(kSimFolder / "missions"))
        if (entry.path().extension() == ".mis") files.push_back(entry.path());
    std::sort(files.begin(), files.end());
    return files;
}

class SampleMissionsTest : public LoaderTest {};

TEST_F(SampleMissionsTest, EveryMissionLoadsCleanAndValidates) {
    const auto files = SampleMissionFiles();
    ASSERT_GE(files.size(), 8u);
    std::vector<std::string> maps;
    for (const fs::path& file : files) {
        // Each mission on an editor as the program starts, so that none leans on another.
        TestEditor fresh;
        Editor& e = fresh.OpenDatabase();
        LoadFrmMission(e);
        ResetMission(e);
        e.projection.SetDistanceUnits(true);
        fresh.dialogs.ClearRecord();
        e.doc.MissionPath = file.string();
        e.doc.MissionFile = file.filename().string();
        e.doc.NotLoading = false;
        LoadMission(e);
        e.doc.NotLoading = true;
        EXPECT_TRUE(fresh.dialogs.messages.empty())
            << file.filename() << ": " << fresh.dialogs.LastMessage();
        EXPECT_FALSE(e.FrmMission.txtTitle.Text().empty()) << file.filename();
        EXPECT_TRUE(e.doc.PlayerAssigned) << file.filename();
        // Both kinds of ground layout come back: one on the landscape, one on an airfield.
        EXPECT_GE(e.doc.GUCount, 2) << file.filename();
        EXPECT_GE(e.FrmMission.lstGroupName.ListCount(), 2) << file.filename();
        EXPECT_TRUE(ValidateMission(e)) << file.filename() << ": " << fresh.dialogs.LastMessage();
        // A sample is shipped at the fixed point: a resave writes the bytes it read. When the
        // editor's output changes, tools/generate_samples makes them anew.
        EXPECT_TRUE(ComposeMissionText(e) == ReadBytes(file))
            << file.filename() << " changes at a resave: run tools/generate_samples";
        // No landscape layout lies where a runway of the mission takes it by accident.
        for (const LayoutLoadNote& note : e.loader.LayoutNotes) {
            EXPECT_FALSE(note.airfield.empty()) << file.filename() << ": new " << note.layoutName;
            Recordset rs = e.db.theDB.OpenRecordset(
                "SELECT GUType FROM GrndNames WHERE ID=" +
                    std::to_string(
                        LayoutIdFromItemData(e.FrmMission.lstGUAdded.ItemData(note.row))),
                kSnapshot);
            EXPECT_GT(rs.Fields(0).Long(), 1)
                << file.filename() << ": " << note.layoutName << " taken by " << note.airfield;
        }
        maps.push_back(e.FrmMission.cmbSelectMap.Text());
    }
    // One mission per theatre map.
    std::sort(maps.begin(), maps.end());
    EXPECT_EQ(std::unique(maps.begin(), maps.end()) - maps.begin(), 8) << "maps covered";
}

TEST_F(SampleMissionsTest, EveryAircraftHasAFolderWhoseTitleIsItsDescriptiveName) {
    Recordset rs = ed.db.theDB.OpenRecordset("SELECT ShortName,LongName FROM Aircraft", kSnapshot);
    int count = 0;
    while (!rs.Eof()) {
        const std::string shortName = rs.Fields(0).Text();
        const fs::path folder = kSimFolder / "Aircraft" / shortName;
        EXPECT_TRUE(fs::is_regular_file(folder / (shortName + ".air"))) << shortName;
        std::ifstream cfg(folder / "aircraft.cfg", std::ios::binary);
        std::string line, title;
        bool found = false;
        while (!found && std::getline(cfg, line)) {
            if (line.rfind("title=", 0) != 0) continue;
            title = line.substr(6);
            if (!title.empty() && title.back() == '\r') title.pop_back();
            found = true;
        }
        EXPECT_TRUE(found) << shortName;
        EXPECT_EQ(title, rs.Fields(1).Text()) << shortName;
        ++count;
        rs.MoveNext();
    }
    EXPECT_GT(count, 0);
}

}  // namespace
}  // namespace tarvex::testing
