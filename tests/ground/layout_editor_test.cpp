// The layout editor: entering it on a layout, the spin controls and buttons that shift, turn
// and spread the layout, the picture, and leaving it.
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "document/coord_text.h"
#include "ground/ground_tab_fixture.h"
#include "ground/layout_drawing.h"
#include "ground/layout_lists.h"
#include "ground/layout_view_geometry.h"
#include "shell/forms/mdi_mission_ed.h"
#include "shell/status_strip.h"

namespace tarvex {
namespace {

using testing::GroundTab;

class LayoutEditorTest : public GroundTab {
  protected:
    void SetUp() override {
        GroundTab::SetUp();
        Place("Light AA Site Bofors", 1000, 1000);
    }
    void Enter(int row = 0) {
        frm.lstGUAdded.SetListIndex(row);
        frm.lstGUAdded.RaiseDblClick();
    }
    bool Editing() const { return map.Tag() == "True"; }
    std::string Status() const {
        const auto& ops = ed.MDIMissionED.Picture1.Operations();
        return ops.empty() ? std::string() : ops.back().text;
    }
    // The circles of the picture of a radius, in drawing order.
    std::vector<DrawOp> Circles(float radius) const {
        std::vector<DrawOp> found;
        for (const DrawOp& op : map.Operations())
            if (op.kind == DrawKind::Circle && op.radius == radius) found.push_back(op);
        return found;
    }
    int Lines() const {
        int n = 0;
        for (const DrawOp& op : map.Operations())
            n += op.kind == DrawKind::Line ? 1 : 0;
        return n;
    }
};

// The stored rotation is split into quarter turns and a fine turn with its sign, and Close puts
// the two back together.
TEST_F(LayoutEditorTest, EntrySplitsTheRotationAndCloseStoresItAgain) {
    const struct {
        float rotation;
        int quarterTurns, fine;
    } cases[] = {{135, 1, 45}, {-30, 0, -30}, {80, 0, 80}, {270, 3, 0}, {-90, -1, 0}};
    for (const auto& c : cases) {
        SCOPED_TRACE(c.rotation);
        doc.GURotation(0) = c.rotation;
        doc.GUSpread(0) = 0.5f;
        frm.btnZoom.SetValue(50);
        Enter();
        ASSERT_TRUE(Editing());
        EXPECT_EQ(ed.transform.QuarterTurns, c.quarterTurns);
        EXPECT_EQ(frm.btnRotate2.Value(), c.fine);
        EXPECT_EQ(frm.lblRotate2.Caption(), "Rotate " + std::to_string(c.fine));
        EXPECT_EQ(frm.btnZoom.Value(), 20);
        // The stored spread stays, behind a control that shows 0.
        EXPECT_EQ(frm.btnSpread.Value(), 0);
        EXPECT_EQ(ed.ground.ViewSpread, 0.5f);
        EXPECT_EQ(doc.GUSpread(0), 0.5f);
        EXPECT_EQ(map.Width(), 9100);
        EXPECT_TRUE(map.Picture().empty());
        EXPECT_FALSE(frm.lstGUAdded.Enabled());
        EXPECT_FALSE(ed.MDIMissionED.mnuSave.Enabled());

        frm.btnGUClose.UserClick();
        EXPECT_FALSE(Editing());
        EXPECT_EQ(doc.GURotation(0), c.rotation);
        EXPECT_TRUE(ed.MDIMissionED.mnuSave.Enabled());
        EXPECT_FALSE(map.Picture().empty());  // the map's bitmap again
    }
}

TEST_F(LayoutEditorTest, ShiftsAndSpreadAreStoredAsTheyChangeTheTurnOnlyAtClose) {
    Enter();
    frm.btnXPos.SetValue(30);
    frm.btnYPos.SetValue(-45);
    frm.btnSpread.SetValue(4);
    EXPECT_EQ(Status(), "Ground Layout Spread Factor: 4");
    frm.btnRotate2.SetValue(20);
    EXPECT_EQ(doc.GUShiftX(0), 0.3f);
    EXPECT_EQ(doc.GUShiftY(0), -0.45f);
    EXPECT_EQ(doc.GUSpread(0), 0.5f);
    EXPECT_EQ(doc.GURotation(0), 0);
    // A change of tab ends the editing; the turn made since the entry is lost.
    SelectTab(ed, kFormationsTab);
    EXPECT_FALSE(Editing());
    EXPECT_EQ(doc.GURotation(0), 0);
    EXPECT_EQ(doc.GUShiftX(0), 0.3f);
}

TEST_F(LayoutEditorTest, RotateNinetyTurnsTheCursorAboutTheCentreAndFourTimesComeBack) {
    Enter();
    frm.btnXPos.SetValue(50);
    const struct {
        int x, y, turns;
        const char* status;
    } presses[] = {
        {0, -50, 1, "Ground Layout Rotated 90 Degrees from Normal"},
        {-50, 0, 2, "Ground Layout Rotated 180 Degrees from Normal"},
        {0, 50, 3, "Ground Layout Rotated 270 Degrees from Normal"},
        {50, 0, 0, "Ground Layout Rotated 0 Degrees from Normal"},
    };
    for (const auto& p : presses) {
        frm.btnRotate90.UserClick();
        EXPECT_EQ(frm.btnXPos.Value(), p.x);
        EXPECT_EQ(frm.btnYPos.Value(), p.y);
        EXPECT_EQ(doc.GUShiftX(0), p.x / 100.0f);
        EXPECT_EQ(doc.GUShiftY(0), p.y / 100.0f);
        EXPECT_EQ(ed.transform.QuarterTurns, p.turns);
    }
    EXPECT_EQ(ed.ground.AxisXSlot, 0);
    EXPECT_EQ(ed.ground.AxisYSlot, 1);
    // ShowLayoutInfo follows the turn's own text on the strip.
    EXPECT_EQ(Status().rfind("Original Center: [", 0), 0u);

    // An X shift beyond the reach of the Y control is not handed over.
    frm.btnXPos.SetValue(200);
    frm.btnRotate90.UserClick();
    EXPECT_EQ(frm.btnXPos.Value(), 200);
    EXPECT_EQ(ed.transform.QuarterTurns, 0);
    EXPECT_EQ(ed.MDIMissionED.Picture1.ForeColor(), kStatusWarning);
}

TEST_F(LayoutEditorTest, FineTurnAtNinetyBecomesAQuarterTurn) {
    Enter();
    frm.btnRotate2.SetValue(89);
    frm.btnRotate2.UserUp();
    EXPECT_EQ(frm.btnRotate2.Value(), 0);
    EXPECT_EQ(frm.lblRotate2.Caption(), "Rotate 0");
    EXPECT_EQ(ed.transform.QuarterTurns, 1);
    frm.btnRotate2.SetValue(-25);
    frm.btnGUClose.UserClick();
    EXPECT_EQ(doc.GURotation(0), 65);
}

TEST_F(LayoutEditorTest, ResetAllReturnsToThePlainStateOfTheLayout) {
    PlaceOnAirfield("RAF Sector Station", 28);
    const struct {
        int row;
        float rotation;
        int turns;
    } cases[] = {{0, 0, 0}, {1, 90, 1}};  // a default airfield layout keeps its quarter turn
    for (const auto& c : cases) {
        SCOPED_TRACE(c.row);
        // A spread stored at an earlier visit goes too.
        doc.GUSpread(c.row) = 0.25f;
        doc.GURotation(c.row) = 200;
        Enter(c.row);
        frm.btnXPos.SetValue(40);
        frm.btnYPos.SetValue(10);
        frm.btnRotate2.SetValue(-15);
        frm.btnGUReset.UserClick();
        EXPECT_EQ(doc.GURotation(c.row), c.rotation);
        EXPECT_EQ(ed.transform.QuarterTurns, c.turns);
        EXPECT_EQ(doc.GUShiftX(c.row), 0);
        EXPECT_EQ(doc.GUShiftY(c.row), 0);
        EXPECT_EQ(doc.GUSpread(c.row), 0);
        EXPECT_EQ(frm.btnRotate2.Value(), 0);
        EXPECT_EQ(ed.ground.CenterLat, doc.GULat(c.row));
        frm.btnGUClose.UserClick();
        EXPECT_EQ(doc.GURotation(c.row), c.rotation);
    }
}

// The picture: one runway line for an airfield layout of type 2, three for type 3 with their
// controls, none for a landscape layout; the legend one row per type in the colour sequence.
TEST_F(LayoutEditorTest, DrawsTheRunwaysAndALegendRowPerType) {
    PlaceOnAirfield("RAF Satellite Field", 28);
    PlaceOnAirfield("RAF Sector Station", 28);
    const struct {
        int row;
        int runwayLines;
        bool aircraft, runwayControls;
    } cases[] = {{0, 0, false, false}, {1, 1, true, false}, {2, 3, true, true}};
    for (const auto& c : cases) {
        SCOPED_TRACE(c.row);
        Enter(c.row);
        // Two lines of the cursor come first.
        EXPECT_EQ(Lines(), 2 + c.runwayLines);
        EXPECT_EQ(frm.picAC.Visible(), c.aircraft);
        EXPECT_EQ(frm.btnX.Visible(), c.runwayControls);
        frm.btnGUClose.UserClick();
    }

    Enter(0);
    // Bofors guns, a Lewis gun post and a hut: three types, three legend rows.
    const auto legend = Circles(48);
    ASSERT_EQ(legend.size(), 3u);
    const int colours[] = {15, 13, 11};
    for (int k = 0; k < 3; ++k) {
        EXPECT_EQ(legend[k].fillColor, QBColor(colours[k]));
        EXPECT_EQ(legend[k].x1, 9100 - 1000);
        EXPECT_EQ(legend[k].y1, 60 + 120 * k);
    }
    const auto units = Circles(36);
    ASSERT_EQ(units.size(), 5u);
    EXPECT_EQ(units[0].fillColor, QBColor(15));
    EXPECT_EQ(units[4].fillColor, QBColor(11));

    int colour = 15;
    std::vector<int> sequence;
    for (int k = 0; k < 17; ++k, colour = NextLegendColour(colour))
        sequence.push_back(colour);
    EXPECT_EQ(sequence,
              (std::vector<int>{15, 13, 11, 9, 7, 5, 3, 1, 14, 12, 10, 8, 6, 4, 2, 0, 15}));
}

// A unit ahead of the origin stands above the centre; a click there reads back its offset,
// in feet or metres.
TEST_F(LayoutEditorTest, MapToOffsetReadsBackTheOffsetDrawnUnderThePointer) {
    AddLayout(60, "One Hut", 1, "(4031,1,0)");
    Place("One Hut", 3000, 3000);
    Enter(1);
    const auto units = Circles(36);
    ASSERT_EQ(units.size(), 1u);
    EXPECT_NEAR(units[0].x1, 4550, 0.01);
    EXPECT_NEAR(units[0].y1, 2695 - 1666.67 * 2, 0.01);

    const struct {
        bool metric;
        float x, y, a, b;
        const char* status;
    } cases[] = {
        {true, units[0].x1, units[0].y1, -1, 0,
         "Latitude Offset :1000 Meters.  Longtitude Offset :0 Meters."},
        {false, units[0].x1, units[0].y1, -1, 0,
         "Latitude Offset :3281 Feet.  Longtitude Offset :0 Feet."},
        {true, 4550 + 1000.0f, 2695 + 500.0f, 0.15f, 0.3f,
         "Latitude Offset :-150 Meters.  Longtitude Offset :300 Meters."},
        {false, 4550 + 1000.0f, 2695 + 500.0f, 0.15f, 0.3f,
         "Latitude Offset :-492 Feet.  Longtitude Offset :984 Feet."},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.status);
        ed.projection.SetDistanceUnits(c.metric);
        float a = 0;
        float b = 0;
        MapToOffset(ed, a, b, c.x, c.y);
        EXPECT_NEAR(a, c.a, 1e-4);
        EXPECT_NEAR(b, c.b, 1e-4);
        EXPECT_EQ(Status(), c.status);
        // The pointer's move shows the same.
        map.RaiseMouseMove(0, 0, c.x, c.y);
        EXPECT_EQ(Status(), c.status);
    }
}

// With the heading 360 a shift up moves the centre north and a shift right east.
TEST_F(LayoutEditorTest, PositionControlsMoveTheCentreAlongTheHeading) {
    Enter();
    const std::string lat = doc.GULat(0);
    const std::string lon = doc.GULon(0);
    frm.btnYPos.SetValue(100);
    EXPECT_GT(ed.ground.CenterLat, lat);
    EXPECT_EQ(ed.ground.CenterLon, lon);
    frm.btnXPos.SetValue(100);
    EXPECT_GT(CoordTextToDegrees(ed.ground.CenterLon), CoordTextToDegrees(lon));
    double north = 0;
    double east = 0;
    DestinationPoint(north, east, 51.0, 1.0, 0, 90);
    EXPECT_NEAR(east, 1.0, 1e-12);  // no distance, no move
}

TEST_F(LayoutEditorTest, ALayoutGoneFromTheDatabaseLeavesTheMissionAnEmptyOneOpens) {
    AddLayout(60, "Nothing Yet");
    Place("Nothing Yet", 3000, 3000);
    // A layout without units: the origin, the cursor and the headings, no legend, no box.
    Enter(1);
    EXPECT_TRUE(Editing());
    EXPECT_TRUE(t.dialogs.messages.empty());
    EXPECT_TRUE(Circles(48).empty());
    EXPECT_EQ(Circles(24).size(), 1u);
    frm.btnGUClose.UserClick();

    // Another running copy deletes it.
    ed.db.theDB.Execute("DELETE FROM GrndNames WHERE ID=60;");
    Enter(1);
    EXPECT_FALSE(Editing());
    ASSERT_EQ(t.dialogs.messages.size(), 1u);
    EXPECT_EQ(t.dialogs.messages[0].text, "Unable to display the Ground Layout.");
    EXPECT_EQ(t.dialogs.messages[0].title, "*** Record not found ***");
    EXPECT_EQ(t.dialogs.messages[0].icon, MsgIcon::Exclamation);
    EXPECT_EQ(doc.GUCount, 1);
    EXPECT_EQ(frm.lstGUAdded.List(0), "01. Light AA Site Bofors");
    EXPECT_TRUE(frm.lstGUAdded.Enabled());
    EXPECT_TRUE(ed.doc.EventsOn);
}

TEST_F(LayoutEditorTest, StationaryListFollowsTheLockAndFloatsWhereItIsDropped) {
    AddLayout(60, "My Site");
    Place("My Site", 3000, 3000);
    ed.ground.StationaryShown = true;
    frm.chkStationary.SetValue(kChecked);

    // A default layout: no list, nothing to add.
    Enter(0);
    EXPECT_TRUE(ed.ground.LayoutLocked);
    EXPECT_FALSE(frm.chkStationary.Enabled());
    EXPECT_FALSE(frm.fraStationary.Visible());
    frm.btnGUClose.UserClick();

    Enter(1);
    EXPECT_FALSE(ed.ground.LayoutLocked);
    EXPECT_TRUE(frm.fraStationary.Visible());
    ASSERT_GT(frm.lstStationary.ListCount(), 10);
    frm.lstStationary.SetListIndex(2);
    EXPECT_EQ(map.MousePointer(), 2);
    EXPECT_EQ(Status(), "Click the layout to add [" + frm.lstStationary.List(2) +
                            "] to this layout. Right click the layout to cancel.");
    // A right click drops the choice.
    map.RaiseMouseDown(kRightButton, 0, 4000, 2000);
    EXPECT_EQ(frm.lstStationary.ListIndex(), -1);
    EXPECT_EQ(map.MousePointer(), 0);

    // The frame is dropped with the point it was held by under the pointer, wherever the
    // release happens: on the map, on the frame itself or on its list.
    Frame& frame = frm.fraStationary;
    frm.lstStationary.Move(120, 240, 2760, 1900);
    const struct {
        Control* target;
        float x, y, left, top;
    } drops[] = {{&map, 2000, 1500, 1950, 1460},
                 {&frame, 300, 200, 1950 + 250, 1460 + 160},
                 {&frm.lstStationary, 100, 100, 2200 + 120 + 50, 1620 + 240 + 60}};
    for (const auto& d : drops) {
        frame.RaiseMouseDown(kLeftButton, 0, 50, 40);
        d.target->RaiseMouseUp(kLeftButton, 0, d.x, d.y);
        EXPECT_EQ(frame.Left(), d.left);
        EXPECT_EQ(frame.Top(), d.top);
    }
}

}  // namespace
}  // namespace tarvex
