#include <string>

#include "document/loader_fixture.h"
#include "shell/forms/frm_mission.h"

namespace tarvex::testing {
namespace {

// The smallest mission the rebuild accepts: a map, path 0 and one group.
const std::string kHead = "[mission]\nmap=Map2Bob\n\n";
const std::string kPath0 =
    "[waypoint_path.0]\nid=5000\nwaypoint.0=1,1,N51 00.00,E01 00.00,1000,,,,300,,1\n\n";

std::string Pilot(int n, int id, int type = 1, bool damage = true) {
    std::string s = "[unit." + std::to_string(n) + "]\nid=" + std::to_string(id) +
                    "\ntype_id=" + std::to_string(type) + "\nskill=1\nlevel=1\npoints=1\n";
    if (damage) s += "damage=0\n";
    return s + "\n";
}

std::string Formation(int n, const std::string& body) {
    return "[formation." + std::to_string(n) + "]\n;Name=G" + std::to_string(n) +
           "\nid=" + std::to_string(6000 + n) + "\nwaypoint_path_id=5000\n" + body + "\n";
}

TEST_F(LoaderTest, KeysAreFoundAnywhereInALineWithoutRegardToCase) {
    LoadText(kHead + "[mission]\nOVERTIME=11:11\nCLOUD=9\nVisibility=-3\nsome wind=2.5\n\n" +
             kPath0 + Pilot(0, 1000) + Formation(0, "Unit_Id_Position.0=1000\n") +
             "[strings]\n\"summary_string\"=see the title_string\n\"name_string.0\"=Mannock\n");
    ASSERT_TRUE(t.dialogs.messages.empty()) << LastReport();
    auto& frm = ed.FrmMission;
    EXPECT_EQ(frm.txtTime.Text(), "11:11");
    EXPECT_EQ(frm.cmbClouds.ListIndex(), 3);      // kept within 0 to 3
    EXPECT_EQ(frm.cmbVisibility.ListIndex(), 0);  // kept within 0 to 4
    EXPECT_EQ(frm.cmbWinds.ListIndex(), 2);       // 2.5 rounds half to even
    // A value naming an earlier key is taken for that key.
    EXPECT_EQ(frm.txtTitle.Text(), "see the title_string");
    EXPECT_EQ(ed.doc.PilotName(0, 0), "Mannock");
}

TEST_F(LoaderTest, OnlyTheDamageLineClosesAPilot) {
    // The first pilot has no damage line, so the second one's id takes its row.
    LoadText(kHead + Pilot(0, 1000, 1, false) + Pilot(1, 1001, 2) + kPath0 +
             Formation(0, "unit_id_position.0=1000\nunit_id_position.1=1001\n"));
    ASSERT_TRUE(t.dialogs.messages.empty()) << LastReport();
    EXPECT_EQ(ed.doc.PilotName(0, 0), "Pilot 1 Unit 1");
    EXPECT_EQ(ed.doc.PilotAC(0, 0), 2);
    EXPECT_EQ(ed.doc.PilotName(0, 1), "");
}

TEST_F(LoaderTest, SectionsOutOfOrderAreReadWithTheirOwnResults) {
    struct Case {
        const char* what;
        std::string text;
        int pilotsInGroup0;
        const char* firstName;
    };
    const std::string units = Pilot(0, 1000) + Pilot(1, 1001);
    const std::string formation =
        Formation(0, "unit_id_position.0=1000\nunit_id_position.1=1001\n");
    const std::string strings = "[strings]\n\"name_string.0\"=Ball\n\"name_string.1\"=Bishop\n";
    const Case cases[] = {
        {"writer's order", kHead + units + kPath0 + formation + strings, 2, "Ball"},
        {"formations before units", kHead + formation + units + kPath0 + strings, 0, ""},
        // [strings] runs to the end of the file, so what stands behind it is never read.
        {"strings before formations", kHead + units + kPath0 + strings + formation, -1, ""},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.what);
        ResetMission(ed);
        t.dialogs.ClearRecord();
        LoadText(c.text);
        if (c.pilotsInGroup0 < 0) {
            // No group was read: the rebuild fails at the group list.
            EXPECT_NE(LastReport().find("Selecting the 1st Group"), std::string::npos);
            continue;
        }
        ASSERT_TRUE(t.dialogs.messages.empty()) << LastReport();
        int count = 0;
        while (count <= Mission::kPilotUpper && !ed.doc.PilotName(0, count).empty())
            ++count;
        EXPECT_EQ(count, c.pilotsInGroup0);
        EXPECT_EQ(ed.doc.PilotName(0, 0), c.firstName);
    }
}

TEST_F(LoaderTest, OnlySixtyPilotUnitsAreMatchedAndNoneBecomesAGroundUnit) {
    // Four groups of 16 pilots: 64 pilot units.
    std::string units;
    std::string formations;
    int n = 0;
    for (int g = 0; g < 4; ++g) {
        std::string positions;
        for (int p = 0; p < 16; ++p) {
            const int id = 1000 + 20 * g + p;
            units += Pilot(n++, id);
            positions += "unit_id_position." + std::to_string(p) + "=" + std::to_string(id) +
                         ",0,0.0,0.0,0.0\n";
        }
        formations += Formation(g, positions);
    }
    const long long layoutsBefore = Count("SELECT Count(*) FROM GrndNames");
    LoadText(kHead + units + "[unit_type.0]\ntype_id=1\n\n" + kPath0 + formations);
    ASSERT_TRUE(t.dialogs.messages.empty()) << LastReport();
    EXPECT_EQ(ed.loader.FileUnitCount, 60);
    EXPECT_EQ(ed.doc.PilotName(2, 15), "Pilot 16 Unit 3");
    EXPECT_EQ(ed.doc.PilotName(3, 11), "Pilot 12 Unit 4");
    EXPECT_EQ(ed.doc.PilotName(3, 12), "");
    EXPECT_EQ(ed.doc.GUCount, 0);
    // Not even the record made in advance stays.
    EXPECT_EQ(Count("SELECT Count(*) FROM GrndNames"), layoutsBefore);
}

TEST_F(LoaderTest, LineEndsMayBeCrLfLfOrCr) {
    const std::string text = kHead + kPath0 + Pilot(0, 1000) +
                             Formation(0, "unit_id_position.0=1000\n") +
                             "[strings]\n\"title_string\"=Line ends\n";
    for (const char* end : {"\r\n", "\n", "\r"}) {
        SCOPED_TRACE(::testing::PrintToString(end));
        ResetMission(ed);
        std::string bytes;
        for (char c : text)
            bytes += c == '\n' ? std::string(end) : std::string(1, c);
        LoadBytes(bytes);
        ASSERT_TRUE(t.dialogs.messages.empty()) << LastReport();
        EXPECT_EQ(ed.FrmMission.txtTitle.Text(), "Line ends");
        EXPECT_EQ(ed.doc.PathPointCount(0), 2);
    }
}

TEST_F(LoaderTest, AnImperialDisplayGetsTheFilesSpeedsInKnots) {
    ed.options.Measurement = false;
    LoadPath(SampleMission("channel_sweep.mis"));
    ASSERT_TRUE(t.dialogs.messages.empty()) << LastReport();
    EXPECT_EQ(ed.doc.WPSpeed(0, 1), 216);  // 400 km/h
    EXPECT_EQ(ed.doc.WPSpeed(2, 2), 140);  // 260 km/h
}

}  // namespace
}  // namespace tarvex::testing
