#include "document/mission_validation.h"
#include "document/mission_reset.h"
#include "shell/forms/frm_mission.h"
#include "shell/mission_form_load.h"
#include "support/test_editor.h"
#include "writer_test_mission.h"

#include <gtest/gtest.h>

#include <functional>
#include <string>

namespace tarvex {
namespace {

using testing::TestEditor;

constexpr const char* kNoWaypoints = "WAYPOINT TAB ERR: No waypoints have been assigned \n";
constexpr const char* kNoGroups = "FORMATION TAB ERR: Formations have not been defined.\n";

std::string OneWaypoint(int pathId) {
    return "WAYPOINT TAB ERR: Path " + std::to_string(pathId) +
           " has only 1 waypoints assigned.\n"
           "You must have 2 or more waypoints assigned for each path.\n\n";
}

TEST(MissionValidationTest, ListsEveryFaultInOneBox) {
    const struct {
        const char* what;
        bool sample;  // start from the sample mission, else from a new one
        std::function<void(Editor&)> change;
        std::string faults;  // empty: the mission may be saved
    } cases[] = {
        {"sample mission", true, [](Editor&) {}, ""},
        {"new mission", false, [](Editor&) {}, std::string(kNoWaypoints) + kNoGroups},
        {"paths of one waypoint: only the first is named", true,
         [](Editor& ed) {
             ed.doc.PathPointCount(0) = 2;
             ed.doc.PathPointCount(2) = 2;
         },
         OneWaypoint(5000)},
        {"a path of one waypoint behind a good one", true,
         [](Editor& ed) { ed.doc.PathPointCount(2) = 2; }, OneWaypoint(5002)},
        {"paths of no waypoint are neither faults nor counted", true,
         [](Editor& ed) {
             ed.doc.PathPointCount(0) = 1;
             ed.doc.PathPointCount(2) = 0;
         },
         kNoWaypoints},
        {"pilots not assigned", true, [](Editor& ed) { ed.doc.PilotsAssigned = false; },
         "FORMATION TAB ERR: Pilots have not been assigned to 1 or more formation(s).\n"},
        {"no player", true, [](Editor& ed) { ed.doc.PlayerAssigned = false; },
         "FORMATION TAB ERR: The Player has not been assigned to any formation.\n"},
        {"groups without paths", true,
         [](Editor& ed) {
             ed.doc.GrpPaths(0).clear();
             ed.doc.GrpPaths(1).clear();
         },
         "FORMATION TAB ERR: Formation 6000 does not have path(s) assigned.\n"
         "FORMATION TAB ERR: Formation 6001 does not have path(s) assigned.\n"},
        {"no title", true, [](Editor& ed) { ed.FrmMission.txtTitle.SetText(""); },
         "SUMMARY TAB ERR: A Mission Title has not been provide"},
        {"everything at once, in order", true,
         [](Editor& ed) {
             ed.doc.PathPointCount(2) = 2;
             ed.doc.PilotsAssigned = false;
             ed.doc.GrpPaths(1).clear();
             ed.FrmMission.txtTitle.SetText("");
         },
         OneWaypoint(5002) +
             "FORMATION TAB ERR: Pilots have not been assigned to 1 or more formation(s).\n"
             "FORMATION TAB ERR: Formation 6001 does not have path(s) assigned.\n"
             "SUMMARY TAB ERR: A Mission Title has not been provide"},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.what);
        TestEditor t;
        Editor& ed = t.OpenDatabase();
        if (c.sample) {
            testing::BuildSampleMission(ed);
        } else {
            LoadFrmMission(ed);
            ResetMission(ed);
        }
        c.change(ed);
        EXPECT_EQ(ValidateMission(ed), c.faults.empty());
        if (c.faults.empty()) {
            EXPECT_TRUE(t.dialogs.messages.empty());
            continue;
        }
        ASSERT_EQ(t.dialogs.messages.size(), 1u);
        EXPECT_EQ(t.dialogs.messages[0].text, c.faults);
        EXPECT_EQ(t.dialogs.messages[0].title, "Unable to Save Mission File");
        EXPECT_EQ(t.dialogs.messages[0].icon, MsgIcon::Exclamation);
    }
}

}  // namespace
}  // namespace tarvex
