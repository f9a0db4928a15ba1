#include "common/paths.h"
#include "document/loader_fixture.h"
#include "shell/forms/frm_mission.h"
#include "shell/forms/frm_msg_screen.h"
#include "shell/forms/mdi_mission_ed.h"

namespace tarvex::testing {
namespace {

TEST_F(LoaderTest, ReadsEverySectionOfAWrittenMission) {
    LoadPath(SampleMission("channel_sweep.mis"));
    ASSERT_TRUE(t.dialogs.messages.empty()) << LastReport();
    const Mission& doc = ed.doc;
    auto& frm = ed.FrmMission;

    // Summary and strings.
    EXPECT_EQ(frm.txtTime.Text(), "14:30");
    EXPECT_EQ(frm.lblMap.Caption(), "Map1Bob");
    EXPECT_EQ(frm.cmbSelectMap.ListIndex(), 0);
    EXPECT_EQ(frm.cmbClouds.ListIndex(), 2);
    EXPECT_EQ(frm.cmbVisibility.ListIndex(), 1);
    EXPECT_EQ(frm.cmbWinds.ListIndex(), 3);
    EXPECT_EQ(frm.txtPctReqd.Text(), "75");
    EXPECT_EQ(frm.lblAC.Caption(), "SpitfireMkI");
    EXPECT_EQ(frm.txtTitle.Text(), "Channel Sweep");
    EXPECT_EQ(frm.txtSummary.Text(), "Escort the bombers over Kent");
    EXPECT_EQ(frm.txtType.Text(), "Escort");
    EXPECT_EQ(frm.txtTip.Text(), "God save the King!");
    // The file names the landing field; the rebuild ends with the Summary tab shown again,
    // which gives the player's takeoff field.
    EXPECT_EQ(frm.lblAirfield.Caption(), "Biggin Hill");
    EXPECT_EQ(frm.txtDate.Text(), "08/15/1940");

    // Groups and pilots, named from [strings] in order.
    ASSERT_EQ(frm.lstGroupName.ListCount(), 2);
    EXPECT_EQ(frm.lstGroupName.List(0), "Red Section");
    EXPECT_EQ(frm.lstGroupName.List(1), "Blue Section");
    EXPECT_EQ(doc.GrpPattern(0), 2);
    EXPECT_EQ(doc.GrpDirective(0), 2);
    EXPECT_EQ(doc.GrpTakeoffFlag(0), 3);
    EXPECT_EQ(doc.GrpSuspended(1), 1);
    EXPECT_EQ(doc.GrpPaths(0), "5000:60,5002:40");
    EXPECT_EQ(doc.PilotName(0, 0), "Bob Stanford");
    EXPECT_EQ(doc.PilotName(0, 1), "Al Deere");
    EXPECT_EQ(doc.PilotName(1, 0), "Ginger Lacey");
    EXPECT_EQ(doc.PilotName(0, 2), "");
    EXPECT_EQ(doc.PilotAC(0, 1), 2);
    EXPECT_EQ(doc.PilotSkill(0, 0), 3);
    EXPECT_EQ(doc.PilotLevel(0, 1), 2);
    EXPECT_EQ(doc.PilotDamage(1, 0), 2);
    EXPECT_EQ(doc.PilotPoints(1, 0), 1);
    EXPECT_EQ(doc.PilotIsPlayer(0, 0), 1);
    EXPECT_EQ(doc.PilotIsPlayer(0, 1), 0);
    EXPECT_TRUE(doc.PlayerAssigned);
    EXPECT_EQ(doc.PlayerGroup, 0);
    EXPECT_EQ(doc.PlayerPilot, 0);

    // Paths, with the group's runways at their ends.
    EXPECT_EQ(doc.HighestPath, 2);
    EXPECT_EQ(doc.PathPointCount(0), 4);
    EXPECT_EQ(doc.PathPointCount(1), 0);
    EXPECT_EQ(doc.PathPointCount(2), 3);
    EXPECT_EQ(doc.WPLat(0, 2), "N51 25.50");
    EXPECT_EQ(doc.WPLon(0, 2), "E00 05.25");
    EXPECT_EQ(doc.WPAction(0, 2), 0);
    EXPECT_EQ(doc.WPOnMap(0, 3), 0);
    EXPECT_EQ(doc.WPCap(0, 1), 1);
    EXPECT_EQ(doc.WPAlt(0, 2), 4500);
    EXPECT_EQ(doc.WPSpeed(0, 3), 300);
    EXPECT_EQ(doc.WPName(0, 3), "Target");
    EXPECT_EQ(doc.WPTip(0, 3), "Caf\xC3\xA9 de Paris");
    EXPECT_EQ(doc.WPName(2, 2), "Home");
    EXPECT_EQ(doc.PathGroup(0), 0);
    EXPECT_EQ(doc.PathGroup(2), 1);
    EXPECT_EQ(doc.GrpTakeoffRwy(0), 6);  // Biggin Hill
    EXPECT_EQ(doc.GrpLandingRwy(0), 2);  // Andover
    EXPECT_EQ(doc.PathAirfieldStart(2), 6);
    EXPECT_EQ(doc.WPLat(0, 0), "N51 19.85");
    EXPECT_EQ(doc.WPLon(0, 0), "E00 01.95");
    EXPECT_EQ(doc.WPLat(0, 4), "N51 12.56");
    EXPECT_EQ(doc.WPLon(0, 4), "W01 27.11");
    EXPECT_EQ(doc.WPLat(2, 0), "N51 19.85");

    // The rebuilt tabs.
    ASSERT_EQ(frm.lstPoints.ListCount(), 3);
    EXPECT_EQ(frm.lstPoints.List(0), "01. N51 20.00 W00 10.00");
    EXPECT_EQ(frm.lstPoints.ListIndex(), 0);
    EXPECT_EQ(frm.lstGroupName.ListIndex(), 0);
    EXPECT_EQ(frm.cmbStartAtRwy.ListIndex(), 6);
    EXPECT_EQ(frm.cmbEndAtRwy.ListIndex(), 2);
    EXPECT_EQ(frm.cmbGUMap.ListIndex(), 0);
    EXPECT_TRUE(frm.optColor(2).Enabled());
    EXPECT_FALSE(frm.optColor(1).Enabled());
    EXPECT_EQ(ed.MDIMissionED.Caption(), "Tarvex Mission Editor: channel_sweep.mis");
    EXPECT_TRUE(doc.PilotsAssigned);
    EXPECT_FALSE(ed.frmMsgScreen.Visible());
}

}  // namespace
}  // namespace tarvex::testing

namespace tarvex::testing {
namespace {

TEST_F(LoaderTest, ChoosesTheMissionInTheSimulatorsMissionsFolder) {
    ed.options.SimPath = "/sim/";
    ed.doc.MissionFile = "old.mis";
    t.dialogs.QueueOpen("/sim/missions/new.mis");
    EXPECT_EQ(ChooseMissionToOpen(ed), 0);
    ASSERT_EQ(t.dialogs.opens.size(), 1u);
    EXPECT_EQ(t.dialogs.opens[0].title, "Open Mission File");
    EXPECT_EQ(t.dialogs.opens[0].filter, "(*.mis)|*.mis");
    EXPECT_EQ(t.dialogs.opens[0].initDir, JoinPath("/sim/", "missions"));
    EXPECT_EQ(t.dialogs.opens[0].fileName, "old.mis");
    EXPECT_EQ(ed.doc.MissionPath, "/sim/missions/new.mis");
    EXPECT_EQ(ed.doc.MissionFile, "new.mis");

    // A cancel says nothing and keeps the mission's names.
    t.dialogs.QueueOpenCancel();
    EXPECT_EQ(ChooseMissionToOpen(ed), -1);
    EXPECT_TRUE(t.dialogs.messages.empty());
    EXPECT_EQ(ed.doc.MissionFile, "new.mis");
}

}  // namespace
}  // namespace tarvex::testing
