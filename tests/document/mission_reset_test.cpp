#include "document/mission_reset.h"
#include "shell/forms/frm_mission.h"
#include "support/test_editor.h"

#include <gtest/gtest.h>

#include <functional>

#include <string>
#include <vector>

namespace tarvex {
namespace {

using testing::TestEditor;

// Leaves traces everywhere a reset must clean up.
void Dirty(Editor& ed) {
    Mission& doc = ed.doc;
    for (int p = 0; p <= Mission::kPathUpper; ++p) {
        doc.PathPointCount(p) = 5;
        doc.PathAirfieldStart(p) = 3;
        for (int i = 0; i <= Mission::kPointUpper; ++i) {
            doc.WPLat(p, i) = "N51 00.00";
            doc.WPAlt(p, i) = 1234;
            doc.WPCap(p, i) = 1;
        }
    }
    for (int g = 0; g <= Mission::kGroupUpper; ++g) {
        doc.GrpTakeoffFlag(g) = 2;
        doc.GrpPaths(g) = "5000";
        doc.PilotName(g, 0) = "Bader";
        doc.PilotAC(g, 0) = 7;
    }
    for (int l = 0; l <= Mission::kLayoutUpper; ++l)
        doc.GUPoints(l) = 2;
    doc.PlayerAssigned = true;
    doc.PlayerGroup = 2;
    doc.HighestPath = 4;
    doc.GUCount = 3;
    doc.PatternMaxPilots = 4;
    ed.FrmMission.lstGroupName.AddItem("Red");
    ed.FrmMission.lstPoints.AddItem("1");
    ed.FrmMission.txtPoint.SetText("xx");
    ed.FrmMission.lstPointsExtended.SetVisible(true);
}

TEST(MissionResetTest, EmptiesTheDocumentToItsConventions) {
    TestEditor t;
    Editor& ed = *t;
    Dirty(ed);
    ResetMission(ed);
    const Mission& doc = ed.doc;

    EXPECT_FALSE(doc.PlayerAssigned);
    EXPECT_EQ(doc.PlayerGroup, -1);
    EXPECT_EQ(doc.PlayerPilot, -1);
    EXPECT_EQ(doc.HighestPath, 0);
    EXPECT_EQ(doc.GUCount, 0);
    EXPECT_EQ(doc.PatternMaxPilots, 12);

    // Path 0 shows its points on the map and acts on them; only its first point caps.
    EXPECT_EQ(doc.WPOnMap(0, 5), 1);
    EXPECT_EQ(doc.WPAction(0, 16), 1);
    EXPECT_EQ(doc.WPCap(0, 1), 1);
    EXPECT_EQ(doc.WPCap(0, 2), 0);
    EXPECT_EQ(doc.WPOnMap(3, 5), 0);
    EXPECT_EQ(doc.WPCap(3, 1), 0);
    EXPECT_EQ(doc.WPLat(3, 16), "");
    EXPECT_EQ(doc.WPAlt(3, 16), 0);
    // Point 0 is the Start reference and keeps what it held, except path 0's defaults.
    EXPECT_EQ(doc.WPLat(3, 0), "N51 00.00");
    EXPECT_EQ(doc.WPAlt(0, 0), 4000);
    EXPECT_EQ(doc.WPSpeed(0, 0), 400);

    for (int p : {0, 7, 16}) {
        EXPECT_EQ(doc.PathPointCount(p), 0);
        EXPECT_EQ(doc.PathAirfieldEnd(p), 255);
    }
    // Selecting path 0 at the end gives it the default Start row, with or without airfields
    // to show.
    EXPECT_EQ(doc.PathAirfieldStart(0), 16);
    EXPECT_EQ(doc.PathAirfieldStart(7), 255);
    // The first group of a new mission takes off and lands; the others stay in the air.
    EXPECT_EQ(doc.GrpTakeoffFlag(0), 3);
    EXPECT_EQ(doc.GrpTakeoffFlag(1), 0);
    EXPECT_EQ(doc.GrpDirective(5), 1);
    EXPECT_EQ(doc.GrpPaths(5), "");
    EXPECT_EQ(doc.PilotName(4, 0), "");
    for (int v : {int(doc.PilotAC(4, 0)), int(doc.PilotSkill(4, 20)), int(doc.PilotLevel(0, 0)),
                  int(doc.PilotDamage(16, 3))})
        EXPECT_EQ(v, 255);
    EXPECT_EQ(doc.GUPoints(20), 1);
}

TEST(MissionResetTest, PutsTheControlsToTheirStart) {
    TestEditor t;
    Editor& ed = *t;
    Dirty(ed);
    ResetMission(ed);
    auto& frm = ed.FrmMission;

    EXPECT_EQ(frm.lstGroupName.ListCount(), 0);
    EXPECT_EQ(frm.lstPoints.ListCount(), 0);
    EXPECT_EQ(frm.txtPoint.Text(), "");
    EXPECT_FALSE(frm.lstPointsExtended.Visible());
    EXPECT_TRUE(frm.optColor(0).Value());
    EXPECT_FALSE(frm.optColor(15).Value());
    EXPECT_EQ(frm.cmbDirective.ListIndex(), 1);
    EXPECT_EQ(frm.cmbSelectMap.ListIndex(), 0);
    EXPECT_EQ(frm.cmbFormPattern.ListIndex(), 0);
    EXPECT_EQ(frm.cmbRunways.ListIndex(), -1);
    EXPECT_EQ(ed.ActiveMap, &frm.mapWayPoints);
    EXPECT_EQ(ed.ActivePointList, &frm.lstPoints);

    // A new mission has no group: the group and pilot editors are off.
    EXPECT_FALSE(frm.btnSetWaypoints.Enabled());
    EXPECT_TRUE(frm.btnGroupName.Enabled());
    EXPECT_FALSE(frm.cmbFormPattern.Enabled());
    EXPECT_FALSE(frm.btnDeleteGroup.Visible());
    EXPECT_FALSE(frm.cmbSkill.Enabled());
    EXPECT_FALSE(frm.optAllegiance(0).Enabled());
    EXPECT_FALSE(frm.btnDeletePilot.Visible());
    EXPECT_FALSE(frm.lstPilotName.Enabled());
    EXPECT_EQ(frm.lblAC.Caption(), "*Undefined*");
}

TEST(MissionResetTest, SelectsPathZeroLastOnCleanArrays) {
    TestEditor t;
    Editor& ed = *t;
    Dirty(ed);
    ed.FrmMission.optColor(0).SetValue(true);
    std::vector<std::string> clicks;
    for (int p : {0, 15}) {
        ed.FrmMission.optColor(p).Click.Disconnect();
        ed.FrmMission.optColor(p).Click.Connect([&ed, &clicks, p] {
            clicks.push_back(std::to_string(p) + ":" + ed.doc.WPLat(0, 1) + ":" +
                             std::to_string(ed.doc.PathPointCount(0)));
        });
    }
    ResetMission(ed);
    // Path 15 is chosen while the old mission is still there, path 0 after the arrays are clean.
    EXPECT_EQ(clicks, (std::vector<std::string>{"15:N51 00.00:5", "0::0"}));
}

TEST(MissionResetTest, SummaryDefaultsTakeTheUserAndAFortiesDate) {
    const struct {
        DateTime now;
        const char* date;
        const char* time;
    } cases[] = {
        {{1999, 11, 18, 9, 5, 0}, "11/18/1940", "09:05"},
        {{1999, 3, 7, 23, 59, 0}, "03/07/1940", "23:59"},
        {{2026, 11, 23, 0, 0, 0}, "11/23/1940", "00:00"},
    };
    for (const auto& c : cases) {
        TestEditor t;
        t.clock.now = c.now;
        t->options.DefName = "Alan";
        SetSummaryDefaults(*t);
        auto& frm = t->FrmMission;
        EXPECT_EQ(frm.txtDate.Text(), c.date);
        EXPECT_EQ(frm.txtTime.Text(), c.time);
        EXPECT_EQ(frm.txtTitle.Text(), "Alan's Mission");
        EXPECT_EQ(frm.txtSummary.Text(),
                  "This Mission was created with Tarvex Mission Editor Version 3.0.1 by: Bram "
                  "Oskett");
        EXPECT_EQ(frm.txtObjective.Text(), "2 d bug ME");
        EXPECT_EQ(frm.txtType.Text(), "Sortak");
        EXPECT_EQ(frm.txtTip.Text(), "Stay Alive");
        EXPECT_EQ(frm.txtPctReqd.Text(), "50");
    }
}

TEST(MissionResetTest, SetWaypointsNeedsAGroupAndAPathWithAWaypoint) {
    TestEditor t;
    Editor& ed = *t;
    ResetMission(ed);
    auto& frm = ed.FrmMission;
    UpdateSetWaypointsButton(ed, true);
    EXPECT_FALSE(frm.btnSetWaypoints.Enabled());
    frm.lstGroupName.AddItem("Red");
    ed.doc.HighestPath = 2;
    ed.doc.PathPointCount(2) = 1;
    UpdateSetWaypointsButton(ed, true);
    EXPECT_FALSE(frm.btnSetWaypoints.Enabled());
    ed.doc.PathPointCount(2) = 2;
    UpdateSetWaypointsButton(ed, true);
    EXPECT_TRUE(frm.btnSetWaypoints.Enabled());
    UpdateSetWaypointsButton(ed, false);
    EXPECT_FALSE(frm.btnSetWaypoints.Enabled());
}

TEST(MissionArraysTest, AnIndexOutsideTheBoundsIsErrorNine) {
    Mission doc;
    for (auto access : std::vector<std::function<void()>>{
             [&] { doc.WPLat(17, 0); }, [&] { doc.WPLat(0, -1); }, [&] { doc.PilotName(0, 21); },
             [&] { doc.GULat(21); }, [&] { doc.GrpPaths(-1); }}) {
        try {
            access();
            ADD_FAILURE() << "no error";
        } catch (const AppError& e) {
            EXPECT_EQ(e.Number(), 9);
        }
    }
    EXPECT_NO_THROW(doc.PilotName(16, 20));
    EXPECT_NO_THROW(doc.GULat(20));
}

}  // namespace
}  // namespace tarvex
