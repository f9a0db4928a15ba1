#include <random>
#include <string>

#include "document/loader_fixture.h"
#include "shell/forms/frm_mission.h"
#include "shell/forms/frm_msg_screen.h"

namespace tarvex::testing {
namespace {

std::string Report(const std::string& step, const std::string& error) {
    return "While [*** " + step + " ***]\nThe following error occurred.\n" + error;
}

std::string Replace(std::string text, const std::string& from, const std::string& to) {
    const auto at = text.find(from);
    if (at == std::string::npos)
        ADD_FAILURE() << "not in the sample: " << from;
    else
        text.replace(at, from.size(), to);
    return text;
}

std::string Cut(std::string text, const std::string& from, const std::string& to) {
    const auto a = text.find(from);
    const auto b = text.find(to);
    if (a == std::string::npos || b == std::string::npos)
        ADD_FAILURE() << from << " " << to;
    else
        text.erase(a, b - a);
    return text;
}

TEST_F(LoaderTest, AValueThatCantBeUsedEndsInTheLoadReport) {
    const std::string sample = SampleText();
    struct Case {
        const char* what;
        std::string text;
        std::string report;
    };
    const Case cases[] = {
        {"unknown map", Replace(sample, "map=Map1Bob", "map=Atlantis"),
         Report("Loading Summary Data: Accessing MDB.Maps Table",
                "No current record. Error [3021]")},
        {"unknown aircraft", Replace(sample, "id=1001\r\ntype_id=2", "id=1001\r\ntype_id=999"),
         Report("Loading UnitData 1001: Searching MDB.Aircraft Table for Aircraft ID 999",
                "No current record. Error [3021]")},
        {"unknown takeoff runway",
         Replace(sample, "takeoff_runway_id=102", "takeoff_runway_id=999"),
         Report("Loading Formation ID 6000: Takeoff Runway ID 999",
                "No current record. Error [3021]")},
        {"unknown landing runway",
         Replace(sample, "landing_runway_id=101", "landing_runway_id=998"),
         Report("Loading Formation ID 6000: Landing Runway ID 998",
                "No current record. Error [3021]")},
        {"a blank in the path list",
         Replace(sample, "waypoint_path_id=5000:60,5002:40", "waypoint_path_id=5000:60, 5002:40"),
         Report("Loading Formation ID 6000\nImproperly formatted data. [waypoint_path_id=5000:60, "
                "5002:40] was found.\nWith a text editor, remove any spaces within this line",
                "Subscript out of range Error [9]")},
        {"no path 0", Replace(sample, "[waypoint_path.0]", "[waypoint_path.1]"),
         Report("Selecting the 1st Waypoint for this mission on the [Waypoints List]",
                "Invalid property value Error [380]")},
        {"no group", Cut(sample, "[formation.0]", "[runway.0]"),
         Report("Selecting the 1st Group for this mission on the [Groups List]",
                "Invalid property value Error [380]")},
        {"sixteen waypoints",
         Replace(sample, "[waypoint_path.2]",
                 [] {
                     std::string s = "[waypoint_path.3]\r\n";
                     for (int i = 0; i < 16; ++i)
                         s += "waypoint." + std::to_string(i) +
                              "=1,1,N51 00.00,E01 00.00,1,,,,1,,1\r\n";
                     return s + "\r\n[waypoint_path.2]";
                 }()),
         Report("Loading Waypoint ID ", "Subscript out of range Error [9]")},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.what);
        ResetMission(ed);
        t.dialogs.ClearRecord();
        LoadBytes(c.text, "bad.mis");
        ASSERT_EQ(t.dialogs.messages.size(), 1u);
        const MessageBoxRequest& box = t.dialogs.messages.front();
        EXPECT_EQ(box.text, c.report);
        EXPECT_EQ(box.title, "bad.mis *** Load Mission File Error ***");
        EXPECT_EQ(box.icon, MsgIcon::Critical);
        EXPECT_FALSE(ed.frmMsgScreen.Visible());
        EXPECT_FALSE(ed.db.theRS.IsOpen());
    }
}

TEST_F(LoaderTest, TheDocumentStaysAsFarAsItCame) {
    LoadBytes(Replace(SampleText(), "takeoff_runway_id=102", "takeoff_runway_id=999"), "bad.mis");
    ASSERT_EQ(t.dialogs.messages.size(), 1u);
    EXPECT_EQ(ed.FrmMission.lblMap.Caption(), "Map1Bob");
    EXPECT_EQ(ed.doc.PathPointCount(2), 3);
    EXPECT_EQ(ed.doc.GUCount, 3);
    EXPECT_EQ(ed.FrmMission.lstGroupName.ListCount(), 1);
    EXPECT_EQ(ed.FrmMission.txtTitle.Text().find("Channel"), std::string::npos);
}

TEST_F(LoaderTest, AMissingFileIsReportedAtItsOpening) {
    LoadPath(t.folder / "nowhere.mis");
    ASSERT_EQ(t.dialogs.messages.size(), 1u);
    EXPECT_EQ(t.dialogs.messages[0].text,
              Report("Opening Mission File", "File not found Error [53]"));
}

TEST_F(LoaderTest, AnyInputEndsInALoadOrInTheReport) {
    const std::string sample = SampleText();
    std::vector<std::string> inputs = {
        "", "\r\n", "[", "[unit.]", "[unit.0", "[strings]", std::string(1, '\0')};
    for (std::size_t cut = 0; cut < sample.size(); cut += 211)
        inputs.push_back(sample.substr(0, cut));
    // Lines built from the file's own words with random values and bytes, which reach far
    // deeper into the readers than plain noise.
    const char* words[] = {"[mission]",
                           "[unit.",
                           "[unit_type.0]",
                           "[waypoint_path.",
                           "[formation.",
                           "[runway.",
                           "[strings]",
                           "id=",
                           "type_id=",
                           "; Ground Layout=",
                           "position_lat=",
                           "position_lon=",
                           "damage=",
                           "points=",
                           "waypoint.",
                           "waypoint_path_id=",
                           "unit_id_position.0=",
                           "takeoff_runway_id=",
                           "base_lat=",
                           "base_lon=",
                           "map=",
                           "\"name_string.0\"=",
                           "\"waypointname.",
                           "is_player_aircraft="};
    const char* values[] = {"0",
                            "1",
                            "-1",
                            "1000",
                            "2000",
                            "2061",
                            "4001",
                            "5000:60,5001",
                            "N51 20.00",
                            "E0 01.95",
                            "1,1,N51 00.00,E01 00.00,1,,,,1,,1",
                            "17,0,90",
                            "99999999999",
                            "0]",
                            "3]",
                            "Map1Bob",
                            "102",
                            ""};
    std::mt19937 rng(1234);
    for (int n = 0; n < 60; ++n) {
        std::string text;
        const int lineCount = 1 + static_cast<int>(rng() % 60);
        for (int i = 0; i < lineCount; ++i) {
            switch (rng() % 4) {
                case 0:
                    text += "\r\n";
                    break;
                case 1:
                    for (int b = static_cast<int>(rng() % 20); b > 0; --b)
                        text += static_cast<char>(rng() % 256);
                    text += "\n";
                    break;
                default:
                    text += std::string(words[rng() % std::size(words)]) +
                            values[rng() % std::size(values)] + "\r\n";
            }
        }
        inputs.push_back(text);
    }
    for (std::size_t i = 0; i < inputs.size(); ++i) {
        SCOPED_TRACE(i);
        ResetMission(ed);
        t.dialogs.ClearRecord();
        ASSERT_NO_THROW(LoadBytes(inputs[i], "junk.mis"));
        ASSERT_LE(t.dialogs.messages.size(), 1u);
        if (!t.dialogs.messages.empty()) {
            EXPECT_EQ(t.dialogs.messages[0].title, "junk.mis *** Load Mission File Error ***");
        }
        EXPECT_FALSE(ed.db.theRS.IsOpen());
    }
}

}  // namespace
}  // namespace tarvex::testing
