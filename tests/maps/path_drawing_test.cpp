#include "maps/path_drawing.h"
#include "document/mission_reset.h"
#include "maps/path_overlays.h"
#include "shell/forms/frm_mission.h"
#include "shell/mission_form_load.h"
#include "support/test_editor.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace tarvex {
namespace {

using testing::TestEditor;

constexpr Colour kBlack = kCurrentPathColour;
constexpr Colour kYellow = kOverlayPathColour;
constexpr Colour kRed = Rgb(255, 0, 0);
constexpr Colour kBlue = Rgb(0, 0, 255);
constexpr Colour kWhite = Rgb(255, 255, 255);

// One drawing operation as the tests compare it: what, pen, and the fill when it is solid.
std::string Describe(const DrawOp& op) {
    static const char* const kKinds[] = {"circle", "line", "box", "text"};
    std::string text = kKinds[static_cast<int>(op.kind)];
    if (op.kind == DrawKind::Text) text += " '" + op.text + "'";
    text += " pen " + std::to_string(op.pen);
    if (op.kind == DrawKind::Circle && op.fillStyle == kFillSolid)
        text += " fill " + std::to_string(op.fillColor);
    return text;
}

std::vector<std::string> Describe(const PictureSurface& surface) {
    std::vector<std::string> out;
    for (const DrawOp& op : surface.Operations())
        out.push_back(Describe(op));
    return out;
}

std::string Circle(Colour pen, Colour fill = -1) {
    std::string text = "circle pen " + std::to_string(pen);
    return fill < 0 ? text : text + " fill " + std::to_string(fill);
}
std::string Line(Colour pen) {
    return "line pen " + std::to_string(pen);
}
std::string Text(const std::string& text, Colour pen) {
    return "text '" + text + "' pen " + std::to_string(pen);
}

class PathDrawingTest : public ::testing::Test {
  protected:
    void SetUp() override {
        LoadFrmMission(ed);
        ResetMission(ed);
        ed.projection.SetDistanceUnits(false);
        ed.projection.SetMap(5, 8000, 6000);
    }

    // Path p with its Start in slot 0, waypoints from `points` and the End last; one row of
    // lstPoints per waypoint when it is the current path.
    void SetPath(int p, const std::vector<const char*>& lats, int startRow = 0, int endRow = 1) {
        Mission& doc = ed.doc;
        for (size_t i = 0; i < lats.size(); ++i) {
            doc.WPLat(p, static_cast<int>(i)) = lats[i];
            doc.WPLon(p, static_cast<int>(i)) = "W01 30.00";
        }
        doc.PathPointCount(p) = static_cast<std::uint8_t>(lats.size() - 1);
        doc.PathAirfieldStart(p) = static_cast<std::int16_t>(startRow);
        doc.PathAirfieldEnd(p) = static_cast<std::int16_t>(endRow);
    }

    void AddRows(int count, int flybyRow = -1) {
        for (int r = 0; r < count; ++r)
            frm.lstPoints.AddItem("row", -1);
        for (int r = 0; r < count; ++r)
            frm.lstPoints.SetItemData(r, r == flybyRow ? 1 : 0);
    }

    TestEditor t;
    Editor& ed = t.OpenDatabase();
    FrmMission& frm = ed.FrmMission;
};

TEST_F(PathDrawingTest, DrawsCurrentPathThenOverlaysInOrderAndColour) {
    // Path 0: Start, two waypoints (the second a flyby), End; its group takes off and lands.
    SetPath(0, {"N50 00.00", "N51 00.00", "N51 00.00", "N52 00.00"});
    AddRows(2, 1);
    ed.doc.PathCurrentPoint(0) = 1;
    // Path 2, overlaid: Start, one waypoint, End.
    SetPath(2, {"N49 00.00", "N49 30.00", "N50 00.00"});
    frm.chkOverlay(2).SetValue(kChecked);

    PictureSurface& map = frm.mapWayPoints;
    DrawPaths(ed, map);

    const std::string start = frm.cmbStartAtRwy.List(0);
    const std::string end = frm.cmbEndAtRwy.List(1);
    ASSERT_FALSE(start.empty());
    const std::vector<std::string> expected = {
        // Start and End of the current path, with their markers and airfield names.
        Circle(kBlack), Circle(kBlack, kRed), Text(start, kBlack), Circle(kBlack, kRed),
        Circle(kBlack, kBlue), Text(end, kBlack),
        // Its points; past the last row the flyby fill carries on to the End point.
        Circle(kBlack), Line(kBlack), Text("1", kBlack), Circle(kBlack, kWhite), Line(kBlack),
        Text("2", kBlack), Circle(kBlack, kWhite), Line(kBlack), Text("3", kBlack),
        // The overlay, consulting the same rows; its Start and End get no markers.
        Circle(kYellow), Line(kYellow), Text("1", kYellow), Circle(kYellow, kWhite), Line(kYellow),
        Text("2", kYellow),
        // The highlight of the current point: leg, circle, and the circle of its plot, in
        // whatever fill the last point left.
        Line(kRed), Circle(kRed, kWhite), Circle(kRed, kWhite)};
    EXPECT_EQ(Describe(map), expected);

    // Legs join the cached positions of consecutive points; numbers sit by the leg's end.
    const auto& ops = map.Operations();
    EXPECT_FLOAT_EQ(ops[7].x1, ed.doc.WPMapX(0, 0));
    EXPECT_FLOAT_EQ(ops[7].y2, ed.doc.WPMapY(0, 1));
    EXPECT_FLOAT_EQ(ops[6].x1, ed.doc.WPMapX(0, 1));
    // N50 00.00 W01 30.00 on map 5 at 8000 by 6000.
    EXPECT_FLOAT_EQ(ed.doc.WPMapX(0, 0), 2539);
    EXPECT_FLOAT_EQ(ed.doc.WPMapY(0, 0), 3166);

    // 68 miles per degree: Start to 1, 1 to 2 coinciding, 2 to End.
    EXPECT_NEAR(ed.drawing.TotalPathDist, 136.0f, 0.01f);
}

TEST_F(PathDrawingTest, EndsFollowTheTakeoffFlagAndTheEndAirfield) {
    struct Case {
        int flag;
        int endRow;
        std::vector<std::string> ends;  // what comes before the first waypoint
    };
    const std::string start = frm.cmbStartAtRwy.List(0);
    const std::string end = frm.cmbEndAtRwy.List(1);
    const Case cases[] = {
        {0, 1, {Circle(kBlack), Circle(kBlack)}},
        {1, 1, {Circle(kBlack), Circle(kBlack, kRed), Text(start, kBlack), Circle(kBlack, kRed)}},
        {2, 1, {Circle(kBlack), Circle(kBlack), Circle(kBlack, kBlue), Text(end, kBlack)}},
        {3, Mission::kNoAirfield, {Circle(kBlack), Circle(kBlack, kRed), Text(start, kBlack)}},
        {0, Mission::kNoAirfield, {Circle(kBlack)}},
    };
    for (const Case& c : cases) {
        SetPath(0, {"N50 00.00", "N51 00.00", "N52 00.00"}, 0, c.endRow);
        ed.doc.GrpTakeoffFlag(0) = static_cast<std::uint8_t>(c.flag);
        DrawPaths(ed, frm.mapWayPoints);
        std::vector<std::string> ops = Describe(frm.mapWayPoints);
        ASSERT_GE(ops.size(), c.ends.size() + 6);
        const std::vector<std::string> ends(ops.begin(), ops.end() - 6);
        EXPECT_EQ(ends, c.ends) << "flag " << c.flag << " end " << c.endRow;
        // Both legs are drawn and counted whatever the markers.
        EXPECT_NEAR(ed.drawing.TotalPathDist, 136.0f, 0.01f) << c.flag;
    }
}

TEST_F(PathDrawingTest, GroundUnitsMapGetsLegsAndMarkersButNoPointCircles) {
    SetPath(0, {"N50 00.00", "N51 00.00", "N52 00.00"});
    ed.doc.GrpTakeoffFlag(0) = 0;
    frm.mapWayPoints.Cls();
    DrawPaths(ed, frm.mapGroundUnits);
    const std::vector<std::string> expected = {Line(kBlack), Text("1", kBlack), Line(kBlack),
                                               Text("2", kBlack)};
    EXPECT_EQ(Describe(frm.mapGroundUnits), expected);
    // The circles of the plots land on the Waypoints map.
    EXPECT_EQ(Describe(frm.mapWayPoints),
              std::vector<std::string>(4, Circle(kBlack)));  // Start, End, points 1 and 2
}

TEST_F(PathDrawingTest, OverlayBoxesDecideWhichOtherPathsShow) {
    SetPath(0, {"N50 00.00", "N51 00.00", "N52 00.00"});
    SetPath(1, {"N50 00.00", "N50 30.00", "N51 00.00"});
    ed.doc.GrpTakeoffFlag(0) = 0;
    const auto yellowOps = [&] {
        DrawPaths(ed, frm.mapWayPoints);
        int n = 0;
        for (const DrawOp& op : frm.mapWayPoints.Operations())
            n += op.pen == kYellow;
        return n;
    };
    EXPECT_EQ(yellowOps(), 0);
    const auto alone = Describe(frm.mapWayPoints);
    // The current path's own box changes nothing: it is always drawn, in black.
    frm.chkOverlay(0).SetValue(kChecked);
    EXPECT_EQ(Describe(frm.mapWayPoints), alone);
    // A checked box draws its path even while disabled.
    frm.chkOverlay(1).SetValue(kChecked);
    RefreshOverlayChecks(ed);
    EXPECT_TRUE(frm.chkOverlay(1).Enabled());
    EXPECT_FALSE(frm.chkOverlay(5).Enabled());
    frm.chkOverlay(1).SetEnabled(false);
    EXPECT_EQ(yellowOps(), 6);
    // A checked path without points has nothing to draw.
    frm.chkOverlay(5).SetValue(kChecked);
    EXPECT_EQ(yellowOps(), 6);
}

TEST_F(PathDrawingTest, AnOverlaysFirstLegStartsAtItsStartPointWorkedOutFromItsText) {
    SetPath(0, {"N50 00.00", "N51 00.00", "N52 00.00"});
    SetPath(2, {"N49 00.00", "N49 30.00", "N50 00.00"});
    // Never selected since it was loaded: the map position of its Start was never worked out.
    ed.doc.WPMapX(2, 0) = 0;
    ed.doc.WPMapY(2, 0) = 0;
    frm.chkOverlay(2).SetValue(kChecked);
    DrawPaths(ed, frm.mapWayPoints);
    float x = 0;
    float y = 0;
    ed.projection.ProjectPoint("N49 00.00", "W01 30.00", x, y);
    std::vector<DrawOp> yellow;
    for (const DrawOp& op : frm.mapWayPoints.Operations())
        if (op.pen == kYellow && op.kind != DrawKind::Text) yellow.push_back(op);
    ASSERT_EQ(yellow.size(), 4u);  // circle and leg of its two points: no circle for the Start
    EXPECT_EQ(yellow[0].kind, DrawKind::Circle);
    EXPECT_FLOAT_EQ(yellow[1].x1, x);
    EXPECT_FLOAT_EQ(yellow[1].y1, y);
}

TEST_F(PathDrawingTest, OverlayClickRedrawsOrClearsTheActiveMap) {
    SetPath(0, {"N50 00.00", "N51 00.00", "N52 00.00"});
    SetPath(3, {"N50 00.00", "N50 30.00", "N51 00.00"});
    ed.ActiveMap = &frm.mapGroundUnits;  // placing layouts: Tag "False"
    frm.chkOverlay(3).SetValue(kChecked);
    EXPECT_TRUE(ed.drawing.OverlayOn);
    EXPECT_FALSE(frm.mapGroundUnits.Operations().empty());
    frm.chkOverlay(3).SetValue(kUnchecked);
    EXPECT_FALSE(ed.drawing.OverlayOn);
    EXPECT_TRUE(frm.mapGroundUnits.Operations().empty());

    // In the layout editor, and on the Waypoints map, unchecking redraws.
    frm.mapGroundUnits.SetTag("True");
    frm.chkOverlay(3).SetValue(kChecked);
    frm.chkOverlay(3).SetValue(kUnchecked);
    EXPECT_FALSE(frm.mapGroundUnits.Operations().empty());
    ed.ActiveMap = &frm.mapWayPoints;
    frm.chkOverlay(3).SetValue(kChecked);
    frm.chkOverlay(3).SetValue(kUnchecked);
    EXPECT_FALSE(frm.mapWayPoints.Operations().empty());
}

TEST_F(PathDrawingTest, HighlightOnlyForARealPointAndUnhighlightRestoresBlack) {
    SetPath(0, {"N50 00.00", "N51 00.00", "N51 30.00", "N52 00.00"});
    ed.doc.GrpTakeoffFlag(0) = 0;
    PictureSurface& map = frm.mapWayPoints;
    for (int point : {-1, 0}) {
        ed.doc.PathCurrentPoint(0) = static_cast<std::int16_t>(point);
        DrawPaths(ed, map);
        for (const DrawOp& op : map.Operations())
            EXPECT_NE(op.pen, kRed) << point;
    }

    map.Cls();
    HighlightPoint(ed, 2);
    EXPECT_EQ(ed.doc.PathCurrentPoint(0), 2);
    ASSERT_EQ(Describe(map), (std::vector<std::string>{Line(kRed), Circle(kRed), Circle(kRed)}));
    EXPECT_FLOAT_EQ(map.Operations()[0].x1, ed.doc.WPMapX(0, 1));
    EXPECT_FLOAT_EQ(map.Operations()[0].y2, ed.doc.WPMapY(0, 2));
    // The plot of the point leaves its position for the next distance.
    EXPECT_NEAR(ed.projection.CurLat, 51.5f, 1e-5);

    map.Cls();
    UnhighlightPoint(ed);
    EXPECT_EQ(Describe(map), (std::vector<std::string>{Line(kBlack), Circle(kBlack)}));
    ed.doc.PathCurrentPoint(0) = 0;
    map.Cls();
    UnhighlightPoint(ed);
    EXPECT_TRUE(map.Operations().empty());
    EXPECT_EQ(map.ForeColor(), kBlack);
}

}  // namespace
}  // namespace tarvex
