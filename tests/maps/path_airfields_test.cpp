// The airfields of a path: the flyby combo's preview and pick, the open lists of the Start and
// End combos with the warning that names the groups, and the Formations tab's reach.
#include "maps/path_airfields.h"
#include "waypoint_fixture.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace tarvex::testing {
namespace {

class PathAirfieldsTest : public WaypointTest {
  protected:
    std::vector<std::string> Slots(int last) const {
        std::vector<std::string> out;
        for (int i = 0; i <= last; ++i)
            out.push_back(Position(i));
        return out;
    }
};

TEST_F(PathAirfieldsTest, AFlybyIsPreviewedWhileTheListIsOpenAndAddedWhenChosen) {
    ClickPoints(2);
    ComboBox& flyby = frm.cmbRunways;
    flyby.UserHighlight(3);
    // The preview stands as the last waypoint, in a slot of its own, before the End.
    EXPECT_EQ(doc.PathPointCount(0), 4);
    EXPECT_EQ(Position(3), Airfield(3));
    EXPECT_EQ(Position(4), Airfield(8));
    flyby.UserHighlight(5);
    flyby.UserChoose(5);
    EXPECT_EQ(doc.PathPointCount(0), 4);
    ASSERT_EQ(frm.lstPoints.ListCount(), 3);
    EXPECT_EQ(frm.lstPoints.List(2), "03. " + Airfield(5));
    EXPECT_EQ(frm.lstPoints.ItemData(2), kFlybyRow);
    EXPECT_EQ(Position(4), Airfield(8));
    EXPECT_EQ(flyby.ListIndex(), -1);
}

TEST_F(PathAirfieldsTest, AFlybyListClosedWithoutAChoiceLeavesThePathAsItWas) {
    ClickPoints(2);
    const std::vector<std::string> before = Slots(4);
    frm.cmbRunways.UserHighlight(3);
    frm.cmbRunways.UserHighlight(4);
    frm.cmbRunways.UserCancelDrop();
    EXPECT_EQ(doc.PathPointCount(0), 3);
    EXPECT_EQ(Slots(4), before);
    // A row chosen with the keys on the closed list adds nothing either.
    int key = kKeyDown;
    frm.cmbRunways.RaiseKeyDown(key, 0);
    frm.cmbRunways.UserChoose(2);
    frm.cmbRunways.RaiseKeyUp(key, 0);
    EXPECT_EQ(doc.PathPointCount(0), 3);
    EXPECT_EQ(Slots(4), before);
    EXPECT_EQ(frm.lstPoints.ListCount(), 2);
}

TEST_F(PathAirfieldsTest, TheEndFollowsTheHighlightAndTheChoiceWarnsTheGroupsThatLandThere) {
    for (const char* name : {"Red Section", "Blue Section", "Green Section"})
        frm.lstGroupName.AddItem(name);
    doc.GrpPaths(0) = "5000:60,5001:40";
    doc.GrpTakeoffFlag(0) = 3;
    doc.GrpPaths(1) = "5000";  // holds the path too, but stays in the air
    doc.GrpTakeoffFlag(1) = 0;
    doc.GrpPaths(2) = "5002";
    doc.GrpTakeoffFlag(2) = 3;
    for (int p : {1, 0}) {
        frm.optColor(p).SetValue(true);
        ClickPoints(2);
    }
    const std::string otherEnd = Position(3, 1);
    ComboBox& end = frm.cmbEndAtRwy;
    end.UserHighlight(10);
    EXPECT_EQ(Position(3), Airfield(10));
    end.UserChoose(12);
    EXPECT_EQ(Position(3), Airfield(12));
    EXPECT_EQ(doc.GrpLandingRwy(0), 12);
    EXPECT_NE(doc.GrpLandingRwy(1), 12);
    EXPECT_NE(doc.GrpLandingRwy(2), 12);
    EXPECT_EQ(StatusText(),
              "*** Landing Runway for [Red Section]  will be changed according to the new "
              "setting ***");
    EXPECT_EQ(ed.MDIMissionED.Picture1.Operations().back().pen, kStatusWarning);
    // The group's other path keeps its End until the Formations tab is used.
    EXPECT_EQ(Position(3, 1), otherEnd);
    // An open list closed without a choice brings its row back into effect.
    end.UserHighlight(20);
    end.UserCancelDrop();
    EXPECT_EQ(Position(3), Airfield(12));
}

TEST_F(PathAirfieldsTest, OnTheFormationsTabAGroupsAirfieldsReachItsPathsAndTheShortOnes) {
    for (int p : {0, 1, 2}) {
        frm.optColor(p).SetValue(true);
        ClickPoints(p == 2 ? 1 : 2);
    }
    doc.GrpPaths(0) = "5000";
    doc.GrpPaths(1) = "5001";
    frm.SSTab1.SetTab(kFormationsTab);
    const int blueStart = doc.PathAirfieldStart(1);
    frm.cmbStartAtRwy.SetListIndex(30);
    frm.cmbEndAtRwy.SetListIndex(31);
    EXPECT_EQ(doc.GrpTakeoffRwy(0), 30);
    EXPECT_EQ(doc.GrpLandingRwy(0), 31);
    // Its own path, and path 2 of one waypoint, which no group can hold yet.
    for (int p : {0, 2}) {
        EXPECT_EQ(Position(0, p), Airfield(30)) << p;
        EXPECT_EQ(Position(doc.PathPointCount(p), p), Airfield(31)) << p;
    }
    EXPECT_EQ(doc.PathAirfieldStart(1), blueStart);
}

TEST_F(PathAirfieldsTest, AnEndChosenForALoadedPathWithoutOneGoesBehindItsLastWaypoint) {
    ClickPoints(3);
    doc.PathAirfieldEnd(0) = Mission::kNoAirfield;
    frm.cmbEndAtRwy.SetListIndex(-1);
    frm.cmbEndAtRwy.SetListIndex(6);
    EXPECT_EQ(doc.PathPointCount(0), 4);
    EXPECT_EQ(Position(4), Airfield(6));
}

TEST_F(PathAirfieldsTest, ThePathsLabelNamesItsHolder) {
    frm.lstGroupName.AddItem("Red Section");
    doc.PathGroup(4) = 0;
    frm.lblPath(4).RaiseMouseMove(0, 0, 0, 0);
    EXPECT_EQ(StatusText(), "Waypoint [5004] is unassigned. ");
    doc.GrpPaths(0) = "5004";
    frm.lblPath(4).RaiseMouseMove(0, 0, 0, 0);
    EXPECT_EQ(StatusText(), "Waypoint [5004] is assigned to [Red Section] ");
}

}  // namespace
}  // namespace tarvex::testing
