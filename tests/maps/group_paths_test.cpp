// A group's paths: the panel's boxes against the text GrpPaths, what is on offer, the close,
// and the group view.
#include "maps/group_paths.h"
#include "waypoint_fixture.h"

#include <gtest/gtest.h>

#include <string>
#include <utility>
#include <vector>

namespace tarvex::testing {
namespace {

using Boxes = std::vector<std::pair<int, const char*>>;

class GroupPathsTest : public WaypointTest {
  protected:
    void SetUp() override {
        WaypointTest::SetUp();
        frm.lstGroupName.AddItem("Red Section");
        frm.lstGroupName.AddItem("Blue Section");
        // Paths 0 to 2 of two waypoints, path 3 of one: too short for a group.
        for (int p = 0; p <= 3; ++p) {
            frm.optColor(p).SetValue(true);
            ClickPoints(p == 3 ? 1 : 2);
        }
        doc.GrpPaths(1) = "5002";
        frm.SSTab1.SetTab(kFormationsTab);
        t.dialogs.ClearRecord();
    }

    void SetBoxes(const Boxes& boxes) {
        doc.PathChecksArmed = false;
        for (int p = 0; p < 16; ++p) {
            frm.chkWP(p).SetValue(kUnchecked);
            frm.txtWPPct(p).SetText("");
        }
        for (auto [p, percent] : boxes) {
            frm.chkWP(p).SetValue(kChecked);
            frm.txtWPPct(p).SetText(percent);
        }
        doc.PathChecksArmed = true;
    }
};

TEST_F(GroupPathsTest, TheListIsBuiltFromTheBoxesAndALonePathIsItsId) {
    const struct {
        Boxes boxes;
        const char* list;
        int percentLeft;
    } cases[] = {
        {{{0, ""}}, "5000", 100},
        {{{0, "100"}}, "5000", 0},
        {{{0, "60"}, {1, "40"}}, "5000:60,5001:40", 0},
        {{{0, "60"}, {1, "abc"}}, "5000:60,5001:0", 40},
        {{{0, "5,7"}}, "5000:5", 95},
        {{{3, "999999"}}, "5003:999999", -32768},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.list);
        SetBoxes(c.boxes);
        std::string list = "old";
        BuildGroupPathList(ed, list);
        EXPECT_EQ(list, c.list);
        EXPECT_EQ(doc.PercentLeft, c.percentLeft);
    }
    // Read back, a lone id shows 100, and ids that name no path are left out.
    ShowGroupPathList(ed, "5003:33.5,5099:40,junk");
    EXPECT_EQ(frm.txtWPPct(3).Text(), "33.5");
    ShowGroupPathList(ed, "5002");
    for (int p = 0; p < 16; ++p)
        EXPECT_EQ(frm.chkWP(p).Value(), p == 2 ? kChecked : kUnchecked) << p;
    EXPECT_EQ(frm.txtWPPct(2).Text(), "100");
}

TEST_F(GroupPathsTest, TwoPathsAt60And40AndTheGroupViewStepsThroughThem) {
    frm.btnSetWaypoints.UserClick();
    ASSERT_TRUE(frm.fraWPSelect.Visible());
    // Held by the other group, or of one waypoint: not on offer.
    for (int p = 0; p < 16; ++p)
        EXPECT_EQ(frm.chkWP(p).Enabled(), p <= 1) << p;
    frm.chkWP(0).UserClick();
    EXPECT_EQ(doc.GrpPaths(0), "5000");
    EXPECT_EQ(frm.txtWPPct(0).Text(), "100");
    EXPECT_EQ(doc.GrpTakeoffRwy(0), doc.PathAirfieldStart(0));
    frm.txtWPPct(0).SetText("60");
    frm.chkWP(1).UserClick();
    EXPECT_EQ(frm.txtWPPct(1).Text(), "40");
    frm.btnWPClose.UserClick();
    EXPECT_TRUE(t.dialogs.messages.empty()) << t.dialogs.LastMessage();
    EXPECT_EQ(doc.GrpPaths(0), "5000:60,5001:40");
    EXPECT_FALSE(frm.fraWPSelect.Visible());

    // The other group keeps its own path on offer.
    doc.CurrentGroup = 1;
    frm.btnSetWaypoints.UserClick();
    for (int p = 0; p < 16; ++p)
        EXPECT_EQ(frm.chkWP(p).Enabled(), p == 2) << p;
    frm.btnWPClose.UserClick();

    frm.btnGrpView.UserClick();
    ASSERT_EQ(frm.cmbGroups.ListCount(), 2);
    frm.cmbGroups.SetListIndex(0);
    std::vector<std::string> shown = {frm.lblGrpWP.Caption()};
    for (bool up : {true, true, false, false}) {
        up ? frm.updwnGroupView.UserUp() : frm.updwnGroupView.UserDown();
        shown.push_back(frm.lblGrpWP.Caption());
    }
    // Up wraps after the last path; down stops at the first.
    EXPECT_EQ(shown, (std::vector<std::string>{"5000", "5001", "5000", "5000", "5000"}));
    EXPECT_TRUE(frm.optColor(0).Value());
    // Looking at another group's path leaves the selected group's runways alone.
    const int takeoff = doc.GrpTakeoffRwy(0);
    doc.PathAirfieldStart(2) = static_cast<std::int16_t>(takeoff + 4);
    frm.cmbGroups.SetListIndex(1);
    EXPECT_EQ(frm.lblGrpWP.Caption(), "5002");
    EXPECT_EQ(frm.cmbStartAtRwy.ListIndex(), takeoff + 4);
    EXPECT_EQ(doc.GrpTakeoffRwy(0), takeoff);
    EXPECT_FALSE(frm.updwnGroupView.Visible());
}

TEST_F(GroupPathsTest, TheCloseWarnsOfWhatIsLeftAndRefusesTooMuch) {
    const struct {
        Boxes boxes;
        const char* text;
        const char* title;
        bool closes;
    } cases[] = {
        {{{0, "60"}}, "A total of 40% is still unassigned to this group.", "Path Assignment", true},
        {{{0, "60"}, {1, "50"}},
         "You have assigned 10% too much to this group.",
         "ERROR: Too many waypoints assigned",
         false},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.text);
        frm.btnSetWaypoints.UserClick();
        SetBoxes(c.boxes);
        t.dialogs.ClearRecord();
        frm.btnWPClose.UserClick();
        ASSERT_EQ(t.dialogs.messages.size(), 1u);
        EXPECT_EQ(t.dialogs.messages[0].text, c.text);
        EXPECT_EQ(t.dialogs.messages[0].title, c.title);
        EXPECT_EQ(frm.fraWPSelect.Visible(), !c.closes);
    }
    // With every path held or too short, the panel says so and stays closed.
    frm.fraWPSelect.SetVisible(false);
    doc.CurrentGroup = 1;
    doc.GrpPaths(1).clear();
    doc.PathPointCount(2) = 2;
    t.dialogs.ClearRecord();
    frm.btnSetWaypoints.UserClick();
    EXPECT_EQ(t.dialogs.LastMessage(),
              "There are no (more) paths available to assign.\nYou have to define Waypoints "
              "first.");
    EXPECT_EQ(t.dialogs.messages.back().title, "Unassigned Paths Not Available");
    EXPECT_FALSE(frm.fraWPSelect.Visible());
}

}  // namespace
}  // namespace tarvex::testing
