// The offsets window beside the layout editor: where it opens, what its columns show and take,
// the spinner's steps, Delete, and the lock of a default layout.
#include <gtest/gtest.h>

#include <string>

#include "document/writer_test_mission.h"
#include "ground/ground_tab_fixture.h"
#include "ground/layout_units.h"
#include "ground/offsets_window.h"
#include "refdata/shared_lookup.h"
#include "shell/forms/frm_gu_offsets.h"
#include "shell/forms/mdi_mission_ed.h"
#include "shell/measurement.h"
#include "shell/settings.h"

namespace tarvex {
namespace {

using testing::GroundTab;

class OffsetsWindowTest : public GroundTab {
  protected:
    void SetUp() override {
        GroundTab::SetUp();
        // Three units of one type, sorted in the grid by name as they were added.
        AddLayout(9001, "Decoy Site", 1, "(4001,0.1,0.2),(4001,-0.5,0.25),(4001,1,0)");
        Place("Decoy Site", 1000, 1000);
        ed.options.ShowDataWin = true;
    }
    void Enter(int row = 0) {
        frm.lstGUAdded.SetListIndex(row);
        frm.lstGUAdded.RaiseDblClick();
        ASSERT_EQ(map.Tag(), "True");
        ASSERT_TRUE(w.Visible());
    }
    double Offset(const char* field, int unit) {
        SharedLookup rows(ed.db, std::string("SELECT ") + field + " FROM GrndTypes Where ID=9001");
        Recordset& rs = rows.First();
        for (int i = 0; i < unit; ++i)
            rs.MoveNext();
        return rs.Fields(0).Double();
    }
    frmGUOffsets& w = ed.frmGUOffsets;
    DataGrid& grid = ed.frmGUOffsets.dbgGUOffsets;
};

TEST_F(OffsetsWindowTest, OpensWhereItWasOrBelowTheMainWindowAndRemembersItsPlace) {
    ed.MDIMissionED.Move(300, 200, 12000, 9000);
    Enter();
    EXPECT_EQ(w.Left(), 396);
    EXPECT_EQ(w.Top(), 872);
    EXPECT_EQ(w.Caption(), "Decoy Site");
    EXPECT_TRUE(ed.ground.OffsetsOpen);
    w.Move(5000, 100);
    frm.btnGUClose.UserClick();
    EXPECT_FALSE(w.Loaded());
    EXPECT_FALSE(ed.ground.OffsetsOpen);
    EXPECT_EQ(GetSetting(ed, "frmGUOffset Left"), "5000");
    Enter();
    EXPECT_EQ(w.Left(), 5000);
    EXPECT_EQ(w.Top(), 100);
}

// The headings name the direction a positive change moves a unit, the opposite behind the
// stroke, whatever the turn.
TEST_F(OffsetsWindowTest, CaptionsNameTheDirections) {
    Enter();
    const struct {
        double heading;
        const char *a, *b, *up, *down;
    } cases[] = {
        {360, "360 / 180", "090 / 270", "Move Unit 360 Degrees.", "Move Unit 180 Degrees."},
        {450, "090 / 270", "180 / 360", "Move Unit 90 Degrees.", "Move Unit 270 Degrees."},
        {225.4, "225 / 045", "315 / 135", "Move Unit 225 Degrees.", "Move Unit 45 Degrees."},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.heading);
        SetOffsetCaptions(ed, c.heading, 4, 5);
        EXPECT_EQ(grid.Columns(4).Caption(), c.a);
        EXPECT_EQ(grid.Columns(5).Caption(), c.b);
        EXPECT_EQ(w.lblUpGU.Caption(), c.up);
        EXPECT_EQ(w.lblDownGU.Caption(), c.down);
    }
}

// A value typed in metres or feet lands in layout units two columns to the left; a change of
// the unit system reloads the window in the other unit; a value too far is refused.
TEST_F(OffsetsWindowTest, TypedMetresAndFeetReachTheOffsets) {
    const struct {
        bool metric;
        int col;
        const char* typed;
        const char* field;
        double stored;
        const char* shown;
    } cases[] = {
        {true, 4, "250", "XOffset", 0.25, "250.0"},
        {true, 5, "-75.5m", "YOffset", -0.0755, "-75.5"},
        {false, 4, "3280.8", "XOffset", 1, "3280.8"},
        {false, 5, "1640.4", "YOffset", 0.5, "1640.4"},
    };
    Enter();
    for (const auto& c : cases) {
        SCOPED_TRACE(c.typed);
        if (ed.options.Measurement != c.metric) mnuDist_Click(ed);
        grid.UserMoveTo(0, c.col);
        grid.UserEditCell(c.typed);
        EXPECT_NEAR(Offset(c.field, 0), c.stored, 1e-6);
        EXPECT_EQ(grid.CellText(0, c.col), c.shown);
    }
    grid.UserMoveTo(1, 4);
    grid.UserEditCell("200000");
    EXPECT_EQ(Offset("XOffset", 1), -0.5);
    EXPECT_EQ(ed.MDIMissionED.Picture1.Operations().back().text,
              "An offset takes numbers from -107502 to 107502 Feet.");
    EXPECT_EQ(grid.CellText(1, 4), "-1640.4");
}

// One step of the spinner is a hundredth of a layout unit, a thousandth with Shift at the press;
// the spinner starts again at 0 in each column.
TEST_F(OffsetsWindowTest, TheSpinnerNudgesTheSelectedOffset) {
    Enter();
    const struct {
        int col;
        int shift;
        int steps;
        const char* field;
        double moved;
    } cases[] = {
        {4, 0, 3, "XOffset", 0.03},
        {4, kShiftMask, 2, "XOffset", 0.002},
        {5, 0, -1, "YOffset", -0.01},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.col * 10 + c.shift);
        grid.UserMoveTo(0, 0);
        grid.UserMoveTo(0, c.col);
        ASSERT_TRUE(w.btnOffsetEdit.Enabled());
        EXPECT_EQ(w.btnOffsetEdit.Value(), 0);
        const double before = Offset(c.field, 0);
        w.btnOffsetEdit.RaiseMouseDown(kLeftButton, c.shift, 0, 0);
        for (int i = 0; i < std::abs(c.steps); ++i)
            c.steps > 0 ? w.btnOffsetEdit.UserUp() : w.btnOffsetEdit.UserDown();
        EXPECT_NEAR(Offset(c.field, 0) - before, c.moved, 1e-6);
    }
    grid.UserMoveTo(0, 1);
    EXPECT_FALSE(w.btnOffsetEdit.Enabled());
}

// A row pressed twice is dropped again; Delete removes the selected units and leaves the
// fingerprint as it was.
TEST_F(OffsetsWindowTest, SelectsDropsAndDeletesUnits) {
    Enter();
    grid.UserSelectRow(1, false);
    EXPECT_EQ(ed.ground.SelectedUnit, 1);
    EXPECT_EQ(map.MousePointer(), 2);
    EXPECT_TRUE(w.btnDelGU.Enabled());
    grid.UserSelectRow(1, false);
    EXPECT_EQ(ed.ground.SelectedUnit, -1);
    EXPECT_EQ(map.MousePointer(), 0);

    grid.UserSelectRow(0, false);
    grid.UserSelectRow(2, true);
    w.btnDelGU.UserClick();
    EXPECT_EQ(grid.RowCount(), 1);
    EXPECT_EQ(Offset("XOffset", 0), -0.5);
    SharedLookup total(ed.db, "SELECT UnitTotal FROM GrndNames Where ID=9001");
    EXPECT_EQ(total.First().Fields(0).Long(), 0);
}

// A default layout is locked in every road that changes its units from this window.
TEST_F(OffsetsWindowTest, ADefaultLayoutIsLocked) {
    PlaceOnAirfield("RAF Satellite Field", testing::kHawkingeRow);
    Enter(1);
    SharedLookup before(ed.db,
                        "SELECT Sum(XOffset),Sum(YOffset),Count(*) FROM GrndTypes "
                        "Where ID=17");
    const double x = before.First().Fields(0).Double();
    const int count = before.rs.Fields(2).Long();
    before.rs.Close();
    EXPECT_TRUE(grid.Columns(4).Locked());
    EXPECT_EQ(grid.ToolTipText(),
              "Default Offset data cannot be modified. Use [Save Layout] to create copy first.");
    grid.UserMoveTo(0, 4);
    grid.UserEditCell("999");
    EXPECT_FALSE(w.btnOffsetEdit.Enabled());
    w.btnOffsetEdit.UserUp();
    grid.UserSelectRow(0, false);
    EXPECT_NE(map.MousePointer(), 2);
    w.btnDelGU.UserClick();
    SharedLookup after(ed.db,
                       "SELECT Sum(XOffset),Sum(YOffset),Count(*) FROM GrndTypes "
                       "Where ID=17");
    EXPECT_EQ(after.First().Fields(0).Double(), x);
    EXPECT_EQ(after.rs.Fields(2).Long(), count);
}

// The window grows with its rows up to 5736, and the grid fills what the panel leaves.
TEST_F(OffsetsWindowTest, TheWindowFitsItsRowsWithinItsLimits) {
    ed.db.theDB.Execute("DELETE FROM GrndTypes WHERE ID=9001 AND XOffset<>1");
    Enter();
    const float one = w.Height();
    EXPECT_GE(one, 1400);
    EXPECT_LT(one, 5736);
    for (int i = 0; i < 40; ++i)
        ed.db.theDB.Execute("INSERT INTO GrndTypes (ID,UnitType) VALUES (9001,4001)");
    SetOffsetsSource(ed);
    FitOffsetsWindow(ed);
    EXPECT_EQ(w.Height(), 5736);
    EXPECT_EQ(grid.Top() + grid.Height() + 90 + w.Picture1.Height() + 405, 5736);
    EXPECT_LE(w.Width(), 2544 + 96);
}

}  // namespace
}  // namespace tarvex
