#include <gtest/gtest.h>

#include <filesystem>
#include <string>

#include "document/mission_loader.h"
#include "document/mission_reset.h"
#include "document/mission_saver.h"
#include "document/mission_writers.h"
#include "support/test_editor.h"
#include "writer_test_mission.h"

namespace tarvex {
namespace {

namespace fs = std::filesystem;
using testing::BuildSampleMission;
using testing::ExpectMatchesGolden;
using testing::ReadBytes;
using testing::TestEditor;

struct SavedMission {
    TestEditor t;
    fs::path folder = testing::MakeTestFolder("writer");
    fs::path file = folder / "sweep.mis";

    Editor& Build(bool metric) {
        Editor& ed = t.OpenDatabase();
        BuildSampleMission(ed, metric);
        ed.doc.MissionPath = file.string();
        ed.doc.MissionFile = "sweep.mis";
        return ed;
    }
    ~SavedMission() { fs::remove_all(folder); }
};

// Every section of the file, byte for byte. The imperial mission holds its speeds in knots
// and must still write the same km/h.
TEST(MissionWriterTest, WritesEverySectionAsTheGoldenFile) {
    for (const bool metric : {true, false}) {
        SCOPED_TRACE(metric ? "metric" : "imperial");
        SavedMission m;
        Editor& ed = m.Build(metric);
        SaveMission(ed);
        ASSERT_TRUE(m.t.dialogs.messages.empty()) << m.t.dialogs.LastMessage();
        ExpectMatchesGolden(ReadBytes(m.file), "sample_mission.mis");
    }
}

TEST(MissionWriterTest, TurnsKnotsIntoTheFilesKilometresPerHour) {
    const struct {
        std::int16_t speed;
        bool metric;
        std::int32_t written;
    } cases[] = {
        {400, true, 400},  {0, false, 0},     {-5, false, -5},   {1, false, 2},
        {216, false, 400}, {259, false, 480}, {100, false, 185}, {17000, false, 31484},
    };
    for (const auto& c : cases)
        EXPECT_EQ(FileSpeed(c.speed, c.metric), c.written) << c.speed;
}

// A pattern with fewer stations than the group has pilots: the surplus pilots are units of
// the file but stand in no formation.
TEST(MissionWriterTest, WritesNoMoreStationsThanThePatternHas) {
    SavedMission m;
    Editor& ed = m.Build(true);
    ed.db.theDB.Execute("DELETE FROM frmPatterns WHERE frmID=7002 AND (frmX < -20 OR frmY > 0);");
    ed.doc.PilotName(0, 2) = "Tuck";
    ed.doc.PilotAC(0, 2) = 1;
    FileText out;
    WriteUnitSections(ed, out);
    WriteFormationSections(ed, out);
    const std::string& text = out.Text();
    EXPECT_NE(text.find("id=1002\r\n"), std::string::npos);
    EXPECT_NE(text.find("unit_id_position.1=1001,1,-20.0,-25.0,0.0\r\n"), std::string::npos);
    EXPECT_EQ(text.find("unit_id_position.2="), std::string::npos);
}

// Names leave in Windows-1252; what that code page lacks becomes "?".
TEST(MissionWriterTest, WritesTextInTheSimulatorsCodePage) {
    SavedMission m;
    Editor& ed = m.Build(true);
    ed.doc.PilotName(0, 1) =
        "J\xC3\xB6rg \xC5\x81"
        "aski";  // "Jörg Łaski"
    SaveMission(ed);
    EXPECT_NE(ReadBytes(m.file).find("\"name_string.1\"=J\xF6rg ?aski\r\n"), std::string::npos);
}

// What the file leaves out comes back from the reference database on a load, so the first
// resave may differ; from then on saving what was loaded gives the same bytes.
TEST(MissionWriterTest, ResavingAResavedMissionGivesTheSameBytes) {
    for (const bool metric : {true, false}) {
        SCOPED_TRACE(metric ? "metric" : "imperial");
        SavedMission m;
        Editor& ed = m.Build(metric);
        SaveMission(ed);
        std::string texts[3];
        for (std::string& text : texts) {
            ResetMission(ed);
            ed.doc.MissionPath = m.file.string();
            LoadMission(ed);
            SaveMission(ed);
            ASSERT_TRUE(m.t.dialogs.messages.empty()) << m.t.dialogs.LastMessage();
            text = ReadBytes(m.file);
        }
        EXPECT_EQ(texts[2], texts[1]);
    }
}

}  // namespace
}  // namespace tarvex
