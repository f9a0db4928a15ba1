// The waypoint editor driven as a designer drives it: the map, the list, the fields, the
// buttons and the Edit menu.
#include "maps/point_deletion.h"
#include "waypoint_fixture.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace tarvex::testing {
namespace {

std::string Row(int number, const std::string& position) {
    return (number < 10 ? "0" : "") + std::to_string(number) + ". " + position;
}

TEST_F(WaypointTest, ClicksBuildAPathBeforeItsEndAndTheFirstPointTakesTheDefaults) {
    frm.optColor(3).SetValue(true);
    // A new path has its End airfield (row 8) in slot 1 and its Start (row 16) in slot 0.
    ASSERT_EQ(doc.PathPointCount(3), 1);
    EXPECT_EQ(Position(1), Airfield(8));
    EXPECT_EQ(Position(0), Airfield(16));
    Click(600, 500);
    EXPECT_EQ(doc.WPAlt(3, 1), 4000);
    EXPECT_EQ(doc.WPSpeed(3, 1), 400);
    frm.txtAlt.SetText("5500");
    Click(1000, 800);
    Click(1400, 1100);

    EXPECT_EQ(doc.PathPointCount(3), 4);
    EXPECT_EQ(doc.HighestPath, 3);
    ASSERT_EQ(frm.lstPoints.ListCount(), 3);
    for (int r = 0; r < 3; ++r)
        EXPECT_EQ(frm.lstPoints.List(r), Row(r + 1, Position(r + 1)));
    EXPECT_EQ(Position(4), Airfield(8));
    EXPECT_EQ(doc.WPAlt(3, 3), 5500);  // inherited from the point before
    EXPECT_EQ(t.sound.plays, std::vector<int>(3, ed.shell.sndFlak));
}

TEST_F(WaypointTest, APressGrabsAWaypointOnlyStrictlyInsideItsBox) {
    const struct {
        float dx, dy;
        bool grabs;
    } cases[] = {{47, 0, true}, {48, 0, false},  {-47.5f, 0, true}, {-48, 0, false},
                 {0, 47, true}, {0, -48, false}, {47, -47, true},   {47, 48, false}};
    ClickPoints(2);
    PictureSurface& map = frm.mapWayPoints;
    for (const auto& c : cases) {
        SCOPED_TRACE(std::to_string(c.dx) + "," + std::to_string(c.dy));
        const float px = doc.WPMapX(0, 1);
        const float py = doc.WPMapY(0, 1);
        map.RaiseMouseMove(0, 0, px + c.dx, py + c.dy);
        map.RaiseMouseDown(kLeftButton, 0, px + c.dx, py + c.dy);
        EXPECT_EQ(ed.waypoints.MapDragging, c.grabs);
        EXPECT_EQ(frm.lstPoints.ListCount(), c.grabs ? 2 : 3);
        map.RaiseMouseMove(kLeftButton, 0, px, py);
        map.RaiseMouseUp(kLeftButton, 0, px, py);
        if (!c.grabs) DeleteSelectedPoint(ed);
    }
    // Waypoint 2 dragged onto waypoint 1: a press on both grabs the lower slot.
    Drag({doc.WPMapX(0, 2), doc.WPMapY(0, 2)}, {doc.WPMapX(0, 1) + 10, doc.WPMapY(0, 1)});
    frm.mapWayPoints.RaiseMouseDown(kLeftButton, 0, doc.WPMapX(0, 1) + 5, doc.WPMapY(0, 1));
    EXPECT_EQ(frm.lstPoints.ListIndex(), 0);
}

TEST_F(WaypointTest, AClickWithAnEarlierRowSelectedInsertsBehindItAndAltitudesStay) {
    ClickPoints(5);
    std::vector<std::string> before = {""};
    for (int i = 1; i <= 6; ++i) {
        before.push_back(Position(i));
        doc.WPAlt(0, i) = 100 * i;
    }
    frm.lstPoints.SetListIndex(1);
    Click(3000, 4200);
    EXPECT_EQ(frm.lstPoints.ListIndex(), 2);
    const std::vector<std::string> after = {before[1], before[2], Position(3), before[3],
                                            before[4], before[5], before[6]};
    for (int i = 1; i <= 7; ++i) {
        EXPECT_EQ(Position(i), after[i - 1]) << i;
        EXPECT_TRUE(i > 5 || doc.WPAlt(0, i) == 100 * i) << i;
        EXPECT_TRUE(i > 6 || frm.lstPoints.List(i - 1) == Row(i, Position(i))) << i;
    }
}

TEST_F(WaypointTest, AFullPathTakesNoMorePointsOnAnyRoad) {
    ClickPoints(15);
    ASSERT_EQ(doc.PathPointCount(0), 16);
    const std::string end = Position(16);
    const auto refused = [&](const char* road) {
        SCOPED_TRACE(road);
        ASSERT_EQ(t.dialogs.messages.size(), 1u);
        EXPECT_EQ(t.dialogs.messages[0].text,
                  "Maximum Number of Allowed WayPoints has been Reached");
        EXPECT_EQ(t.dialogs.messages[0].title, "Maximum Reached");
        EXPECT_EQ(doc.PathPointCount(0), 16);
        EXPECT_EQ(frm.lstPoints.ListCount(), 15);
        EXPECT_EQ(Position(16), end);
        t.dialogs.ClearRecord();
    };
    Click(7000, 1000);
    refused("a new point");
    Click(doc.WPMapX(0, 3), doc.WPMapY(0, 3));
    refused("a grab");
    frm.cmbRunways.UserHighlight(2);
    frm.cmbRunways.UserChoose(2);
    refused("a flyby");
}

TEST_F(WaypointTest, TheEndOfADragMovesTheEndsAGroupDoesNotFlyFromOrTo) {
    const struct {
        int flag, point;
        bool startFollows, endFollows;
    } cases[] = {{2, 1, true, false},
                 {2, 3, false, false},
                 {1, 3, false, true},
                 {1, 1, false, false},
                 {3, 1, false, false}};
    doc.GrpPaths(0) = "5000";
    float target = 2000;
    for (const auto& c : cases) {
        SCOPED_TRACE(std::to_string(c.flag) + " " + std::to_string(c.point));
        doc.GrpTakeoffFlag(0) = static_cast<std::uint8_t>(c.flag);
        ClearPath(ed, 0);
        ClickPoints(3);
        target += 300;
        Drag({doc.WPMapX(0, c.point), doc.WPMapY(0, c.point)}, {target, 4500});
        EXPECT_EQ(Position(0) == Position(1), c.startFollows);
        EXPECT_EQ(Position(4) == Position(3), c.endFollows);
        EXPECT_EQ(frm.lstPoints.List(c.point - 1), Row(c.point, Position(c.point)));
    }
}

TEST_F(WaypointTest, DraggingARowMovesItsPositionAndLeavesTheAltitudes) {
    ClickPoints(3);
    const std::vector<std::string> before = {Position(1), Position(2), Position(3)};
    for (int i = 1; i <= 3; ++i)
        doc.WPAlt(0, i) = 100 * i;
    ListBox& list = frm.lstPoints;
    // The list selects the row under the pointer before each of its mouse events.
    list.SetListIndex(0);
    list.RaiseMouseDown(kLeftButton, 0, 0, 0);
    for (int row : {1, 2}) {
        list.SetListIndex(row);
        list.RaiseMouseMove(kLeftButton, 0, 0, 0);
    }
    list.RaiseMouseUp(kLeftButton, 0, 0, 0);
    const std::vector<std::string> after = {before[1], before[2], before[0]};
    for (int r = 0; r < 3; ++r) {
        EXPECT_EQ(list.List(r), Row(r + 1, after[r]));
        EXPECT_EQ(Position(r + 1), after[r]);
        EXPECT_EQ(doc.WPAlt(0, r + 1), 100 * (r + 1));
    }
    EXPECT_EQ(frm.txtPoint.Text(), after[2]);
}

TEST_F(WaypointTest, ARangeSelectedWithShiftTakesAltitudeAndFlagsAtOnce) {
    ClickPoints(4);
    ListBox& list = frm.lstPoints;
    for (auto [row, shift] : {std::pair{0, 0}, std::pair{2, kShiftMask}}) {
        list.SetListIndex(row);
        list.RaiseMouseDown(kLeftButton, shift, 0, 0);
        list.RaiseMouseUp(kLeftButton, shift, 0, 0);
    }
    ListBox& range = frm.lstPointsExtended;
    ASSERT_TRUE(range.Visible());
    const int lastAlt = doc.WPAlt(0, 4);
    frm.txtAlt.SetText("7000");
    CheckBox& cap = frm.chkWPOptions(2);
    cap.UserClick();
    cap.RaiseMouseUp(kLeftButton, 0, 0, 0);
    for (int i = 1; i <= 3; ++i) {
        EXPECT_EQ(doc.WPAlt(0, i), 7000) << i;
        EXPECT_EQ(doc.WPCap(0, i), cap.Value()) << i;
    }
    EXPECT_EQ(doc.WPAlt(0, 4), lastAlt);
    // A press without Shift goes back to lstPoints, on the row pressed.
    range.SetSelection({1}, 1);
    range.RaiseMouseDown(kLeftButton, 0, 0, 0);
    EXPECT_FALSE(range.Visible());
    EXPECT_EQ(ed.ActivePointList, &list);
    EXPECT_EQ(list.ListIndex(), 1);
}

TEST_F(WaypointTest, TypedValuesOutsideTheirFieldAreRefusedAndOthersReadAsTheirNumber) {
    ClickPoints(2);
    frm.lstPoints.SetListIndex(0);
    const struct {
        TextBox* box;
        const char* text;
        int alt, speed;
        const char* warning;
    } cases[] = {
        {&frm.txtAlt, "abc", 0, 400, ""},
        {&frm.txtAlt, "12000.5", 12000, 400, ""},
        {&frm.txtAlt, "99999999999", 12000, 400,
         "The altitude takes whole numbers from -2147483648 to 2147483647"},
        {&frm.txtSpeed, "40000", 12000, 400, "The speed takes whole numbers from -32768 to 32767"},
        {&frm.txtSpeed, "-32768", 12000, -32768, ""},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.text);
        ShowStatus(ed, "");
        c.box->SetText(c.text);
        EXPECT_EQ(doc.WPAlt(0, 1), c.alt);
        EXPECT_EQ(doc.WPSpeed(0, 1), c.speed);
        EXPECT_EQ(StatusText(), c.warning);
    }
    // A coordinate is taken as typed, even one too short for its slices.
    frm.txtPoint.SetText("n51 10.00 w01 20.00");
    EXPECT_EQ(frm.lstPoints.List(0), "01. N51 10.00 W01 20.00");
    EXPECT_EQ(Position(1), "N51 10.00 W01 20.00");
    frm.txtPoint.SetText("N5");
    EXPECT_EQ(Position(1), "N5 N5");
}

TEST_F(WaypointTest, DeletingMovesTheLaterPointsDownButNotTheirNames) {
    ClickPoints(3);
    const std::string third = Position(3);
    doc.WPAlt(0, 3) = 300;
    doc.WPName(0, 2) = "B";
    frm.lstPoints.SetListIndex(1);
    frm.btnClrPoint.UserClick();
    EXPECT_EQ(Position(2), third);
    EXPECT_EQ(doc.WPAlt(0, 2), 300);
    EXPECT_EQ(doc.WPName(0, 2), "B");
    EXPECT_EQ(frm.lstPoints.List(1), Row(2, third));
    ed.MDIMissionED.mnuDel.UserClick();
    ed.MDIMissionED.mnuDel.UserClick();
    EXPECT_EQ(doc.PathPointCount(0), 1);
    EXPECT_FALSE(frm.btnClrPoint.Visible());
}

TEST_F(WaypointTest, NamesAndTipsAreAskedForBesideTheMainWindow) {
    ClickPoints(2);
    ed.MDIMissionED.Move(300, 200);
    t.dialogs.QueueInput("Rendezvous");
    frm.btnWPNames.UserClick();
    frm.btnWPTips.UserClick();  // unchanged preset: a tip stays empty
    ASSERT_EQ(t.dialogs.inputs.size(), 2u);
    const InputBoxRequest& names = t.dialogs.inputs[0];
    EXPECT_EQ(names.title + "|" + names.prompt + "|" + t.dialogs.inputs[1].title + "|" +
                  t.dialogs.inputs[1].prompt,
              "Waypoint Names|Enter Name for Waypoint 2|Waypoint Tips|Enter Tip for Waypoint 2");
    EXPECT_EQ(names.x * 10000 + names.y, 2300 * 10000 + 2000);
    frm.lstPoints.SetListIndex(0);
    frm.lstPoints.SetListIndex(1);
    EXPECT_EQ(StatusText(), " Waypoint Name: Rendezvous. ");
}

}  // namespace
}  // namespace tarvex::testing
