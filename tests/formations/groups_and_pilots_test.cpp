// Groups and pilots on the Formations tab: selection with the unset-value rule, the values
// that go to all selected pilots, points, the player, and the shifts of a delete.
#include "formations/pilot_attributes.h"
#include "formations_fixture.h"

namespace tarvex::testing {
namespace {

TEST_F(FormationsTest, NewPilotTakesOverWhatThePreviousPilotShowed) {
    AddGroups(1);
    AddPilots({"Red 1"});
    frm.cmbSkill.SetListIndex(4);
    frm.cmbDamage.SetListIndex(2);
    // Values are stored at the first selection: the new pilot inherits the combos' rows.
    AddPilots({"Red 2"});
    EXPECT_EQ(doc.PilotSkill(0, 1), 4);
    EXPECT_EQ(doc.PilotDamage(0, 1), 2);
    frm.cmbSkill.SetListIndex(1);
    // A pilot with a value shows it again; only the selected pilot changed.
    SelectPilots({0});
    EXPECT_EQ(frm.cmbSkill.ListIndex(), 4);
    EXPECT_EQ(doc.PilotSkill(0, 1), 1);
}

TEST_F(FormationsTest, ValuesGoToEverySelectedPilot) {
    AddGroups(1);
    AddPilots({"A", "B", "C"});
    SelectPilots({0, 2});
    frm.cmbSkill.SetListIndex(4);
    frm.cmbLevel.SetListIndex(2);
    EXPECT_EQ(doc.PilotSkill(0, 0), 4);
    EXPECT_NE(doc.PilotSkill(0, 1), 4);
    EXPECT_EQ(doc.PilotSkill(0, 2), 4);
    EXPECT_EQ(doc.PilotLevel(0, 2), 2);
    // A multiple selection can't take the player mark.
    frm.lstPilotName.RaiseMouseUp(kLeftButton, kShiftMask, 0, 0);
    EXPECT_FALSE(frm.chkPlayer.Enabled());
}

TEST(PointsNameTest, AsterisksOnAndOff) {
    const struct {
        const char* name;
        const char* on;
        const char* off;
    } cases[] = {
        {"Bob", "*Bob*", "Bob"},   {"*Bob", "*Bob*", "Bob"}, {"Bob*", "*Bob*", "Bob"},
        {"*Bob*", "*Bob*", "Bob"}, {"*", "*", "*"},          {"**", "**", "**"},
    };
    for (const auto& c : cases) {
        EXPECT_EQ(PointsName(c.name, true), c.on) << c.name;
        EXPECT_EQ(PointsName(c.name, false), c.off) << c.name;
        EXPECT_EQ(PointsName(PointsName(c.name, true), false), PointsName(c.name, false));
    }
}

TEST_F(FormationsTest, PointsMarkTheSelectedPilotsAtTheRelease) {
    AddGroups(1);
    AddPilots({"Bob", "*Al", "Cy"});
    SelectPilots({0, 1});
    frm.chkPoints.SetValue(kChecked);
    frm.chkPoints.RaiseMouseUp(kLeftButton, 0, 0, 0);
    EXPECT_EQ(doc.PilotName(0, 0), "*Bob*");
    EXPECT_EQ(doc.PilotName(0, 1), "*Al*");
    EXPECT_EQ(doc.PilotName(0, 2), "Cy");
    EXPECT_EQ(frm.lstPilotName.List(1), "*Al*");
    EXPECT_EQ(doc.PilotPoints(0, 1), 1);
    frm.chkPoints.SetValue(kUnchecked);
    frm.chkPoints.RaiseMouseUp(kLeftButton, 0, 0, 0);
    EXPECT_EQ(doc.PilotName(0, 0), "Bob");
    EXPECT_EQ(doc.PilotPoints(0, 0), 0);
}

TEST_F(FormationsTest, PlayerMarkIsFreeOnlyWhileNobodyHasIt) {
    AddGroups(2);
    SelectGroup(0);
    AddPilots({"A", "B"});
    SelectPilots({1});
    frm.chkPlayer.UserClick();
    EXPECT_TRUE(doc.PlayerAssigned);
    EXPECT_EQ(doc.PlayerGroup, 0);
    EXPECT_EQ(doc.PlayerPilot, 1);
    SelectGroup(1);
    AddPilots({"C"});
    EXPECT_FALSE(frm.chkPlayer.Enabled());
    SelectGroup(0);
    SelectPilots({1});
    EXPECT_TRUE(frm.chkPlayer.Enabled());
    EXPECT_EQ(frm.chkPlayer.Value(), kChecked);
    frm.chkPlayer.UserClick();
    EXPECT_FALSE(doc.PlayerAssigned);
    EXPECT_EQ(doc.PlayerPilot, -1);
    EXPECT_EQ(doc.PilotIsPlayer(0, 1), 0);
}

// Four groups; path 3 held by group 2, path 5 by the deleted group 1; the player in group 2.
TEST_F(FormationsTest, DeletingAGroupShiftsEverythingBehindIt) {
    AddGroups(4);
    for (int g = 0; g < 4; ++g) {
        SelectGroup(g);
        AddPilots({g == 2 ? "P2a" : "P", "Q"});
    }
    SelectGroup(2);
    SelectPilots({1});
    frm.chkPlayer.UserClick();
    doc.GrpPaths(2) = "5003";
    doc.PathGroup(3) = 2;
    doc.GrpPaths(1) = "5005";
    doc.PathGroup(5) = 1;
    doc.GrpDirective(2) = 3;
    frm.lstGroupName.SetListIndex(1);
    frm.btnDeleteGroup.UserClick();

    ASSERT_EQ(frm.lstGroupName.ListCount(), 3);
    EXPECT_EQ(frm.lstGroupName.List(1), "Group3");
    EXPECT_EQ(doc.PathGroup(3), 1);
    EXPECT_EQ(doc.PathGroup(5), 0);
    EXPECT_EQ(doc.GrpPaths(1), "5003");
    EXPECT_EQ(doc.GrpDirective(1), 3);
    EXPECT_EQ(doc.PilotName(1, 0), "P2a");
    EXPECT_TRUE(doc.PilotName(3, 0).empty());
    EXPECT_TRUE(doc.PlayerAssigned);
    EXPECT_EQ(doc.PlayerGroup, 1);
    EXPECT_EQ(doc.PlayerPilot, 1);
    EXPECT_EQ(doc.PilotIsPlayer(1, 1), 1);
    // The row that took the deleted one's place is selected, with its pilots.
    EXPECT_EQ(frm.lstGroupName.ListIndex(), 1);
    EXPECT_EQ(frm.lstPilotName.List(0), "P2a");

    // Deleting the player's group frees the mark for any pilot.
    frm.btnDeleteGroup.UserClick();
    EXPECT_FALSE(doc.PlayerAssigned);
    EXPECT_EQ(doc.PlayerGroup, -1);
    EXPECT_TRUE(frm.chkPlayer.Enabled());
    // Down to no group: every control of the tab is off.
    frm.btnDeleteGroup.UserClick();
    frm.btnDeleteGroup.UserClick();
    EXPECT_EQ(frm.lstGroupName.ListCount(), 0);
    EXPECT_FALSE(frm.btnDeleteGroup.Visible());
    EXPECT_FALSE(frm.lstPilotName.Enabled());
    for (int g = 0; g <= Mission::kGroupUpper; ++g)
        EXPECT_TRUE(doc.PilotName(g, 0).empty()) << g;
}

TEST_F(FormationsTest, DeletingAPilotMovesThePlayerMarkUp) {
    AddGroups(1);
    AddPilots({"A", "B", "C"});
    SelectPilots({2});
    frm.chkPlayer.UserClick();
    SelectPilots({0});
    frm.btnDeletePilot.UserClick();
    EXPECT_EQ(doc.PilotName(0, 0), "B");
    EXPECT_EQ(doc.PilotName(0, 1), "C");
    EXPECT_TRUE(doc.PilotName(0, 2).empty());
    EXPECT_EQ(doc.PlayerPilot, 1);
    EXPECT_EQ(doc.PilotIsPlayer(0, 1), 1);
    EXPECT_EQ(frm.lstPilotName.ListIndex(), 0);
    // The player itself, then the last pilot: the group stays, its pilot controls go.
    SelectPilots({1});
    frm.btnDeletePilot.UserClick();
    EXPECT_FALSE(doc.PlayerAssigned);
    frm.btnDeletePilot.UserClick();
    EXPECT_EQ(frm.lstPilotName.ListCount(), 0);
    EXPECT_FALSE(frm.btnDeletePilot.Visible());
    EXPECT_TRUE(frm.btnDeleteGroup.Visible());
}

// The right button held on a group shows its first path beside the pointer, then puts the
// map back; a group without a path shows nothing.
TEST_F(FormationsTest, RightButtonPreviewsTheGroupsFirstPath) {
    AddGroups(2);
    doc.GrpPaths(1) = "5002:60,5004:40";
    PictureSurface& map = frm.mapWayPoints;
    map.Move(72, 384);
    map.SetVisible(false);
    ed.drawing.OverlayOn = true;
    const float rowOne = frm.lstGroupName.RowHeight() * 1.5f;

    frm.lstGroupName.RaiseMouseDown(kRightButton, 0, 300, rowOne);
    EXPECT_EQ(frm.lstGroupName.ListIndex(), 1);
    EXPECT_TRUE(frm.optColor(2).Value());
    EXPECT_TRUE(map.Visible());
    EXPECT_FALSE(ed.drawing.OverlayOn);
    EXPECT_FLOAT_EQ(map.Left(), frm.lstGroupName.Left() + frm.fraGroupInfo.Left() + 300);
    EXPECT_FLOAT_EQ(map.Top(), frm.fraGroupInfo.Top());
    EXPECT_EQ(Status(), "Assigned Path :5002:60,5004:40");
    frm.lstGroupName.RaiseMouseUp(kRightButton, 0, 300, rowOne);
    EXPECT_FALSE(map.Visible());
    EXPECT_TRUE(ed.drawing.OverlayOn);
    EXPECT_FLOAT_EQ(map.Left(), 72);

    frm.lstGroupName.RaiseMouseDown(kRightButton, 0, 300, 10);
    EXPECT_EQ(frm.lstGroupName.ListIndex(), 1);
    EXPECT_FALSE(map.Visible());
}

}  // namespace
}  // namespace tarvex::testing
