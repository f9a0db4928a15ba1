// The ground layout records: picking, entering, renaming and deleting layouts, and the grid of
// their units with its checks and drop-down lists.
#include <gtest/gtest.h>

#include <string>

#include "ground/layout_lists.h"
#include "ground/layout_record_grid.h"
#include "ground/layout_records.h"
#include "refdata/shared_lookup.h"
#include "shell/forms/frm_grnd_names.h"
#include "shell/forms/frm_mission.h"
#include "shell/forms/mdi_mission_ed.h"
#include "shell/mission_form_load.h"
#include "shell/status_strip.h"
#include "support/test_editor.h"

namespace tarvex {
namespace {

class LayoutRecordsTest : public ::testing::Test {
  protected:
    void SetUp() override {
        LoadFrmMission(ed);
        ed.db.theDB.Execute(
            "INSERT INTO GrndNames (ID,LayoutName,UnitTotal,IsDefault,GUType) VALUES "
            "(9001,'AA Decoy',8003,0,1);"
            "INSERT INTO GrndTypes (ID,UnitType,XOffset,YOffset) VALUES "
            "(9001,4001,0.1,0.2),(9001,4002,-0.5,0.25);");
        FillLayoutLists(ed);
        ed.MDIMissionED.mnuGULayout.UserClick();
        Pick("AA Decoy");
    }
    void Pick(const std::string& name) {
        const int row = f.cmbGULayoutName.FindRow(name);
        ASSERT_GE(row, 0) << name;
        f.cmbGULayoutName.SetListIndex(row);
    }
    long Scalar(const std::string& sql) {
        SharedLookup rows(ed.db, sql);
        return rows.rs.Eof() ? -1 : rows.First().Fields(0).Long();
    }
    std::string Status() const {
        const auto& ops = ed.MDIMissionED.Picture1.Operations();
        return ops.empty() ? std::string() : ops.back().text;
    }

    testing::TestEditor t;
    Editor& ed = t.OpenDatabase();
    frmGrndNames& f = ed.frmGrndNames;
    DataGrid& grid = ed.frmGrndNames.grdDataGrid;
};

TEST_F(LayoutRecordsTest, ShowsTheLayoutAndItsUnits) {
    EXPECT_EQ(f.Label1.Caption(), "9001");
    EXPECT_EQ(f.lblUnitCount.Caption(), "2");
    EXPECT_EQ(grid.CellText(0, 0), "3.7 inch heavy AA gun");
    EXPECT_TRUE(f.cmdDeleteLayout.Enabled());
    EXPECT_FALSE(ed.MDIMissionED.mnuCompact.Enabled());
    Pick("RAF Satellite Field");
    EXPECT_EQ(f.lblUnitCount.Caption(), "19");
    EXPECT_FALSE(f.cmdDeleteLayout.Enabled());
    EXPECT_FALSE(f.cmdDeleteUnits.Enabled());
    f.cmdClose.UserClick();
    EXPECT_FALSE(f.Loaded());
    EXPECT_TRUE(ed.MDIMissionED.mnuCompact.Enabled());
}

// A new layout's id must be free and between 1 and 9999; a refused one writes nothing and the
// entry stays for correction. Leaving the last field stores an accepted one.
TEST_F(LayoutRecordsTest, RefusesALayoutIdInUseOrOutOfRange) {
    const struct {
        const char* id;
        const char* message;
    } refused[] = {
        {"0", "The Ground Layout ID must be a whole number from 1 to 9999."},
        {"10000", "The Ground Layout ID must be a whole number from 1 to 9999."},
        {"12.5", "The Ground Layout ID must be a whole number from 1 to 9999."},
        {"abc", "The Ground Layout ID must be a whole number from 1 to 9999."},
        {"17",
         "The Ground Layout ID 17 is already used by [RAF Satellite Field].\nPlease "
         "choose another ID."},
    };
    const long layouts = Scalar("SELECT Count(*) FROM GrndNames");
    f.cmdAdd.UserClick();
    EXPECT_EQ(f.cmdAdd.Caption(), "Filter");
    EXPECT_TRUE(f.fraLayoutAdd.Visible());
    f.txtLayoutName.SetText("Decoy Harbour");
    f.txtLayoutTotal.SetText("12");
    for (const auto& c : refused) {
        SCOPED_TRACE(c.id);
        f.txtLayoutID.SetText(c.id);
        f.txtLayoutTotal.RaiseLostFocus();
        EXPECT_EQ(t.dialogs.LastMessage(), c.message);
        EXPECT_EQ(Scalar("SELECT Count(*) FROM GrndNames"), layouts);
        EXPECT_TRUE(f.fraLayoutAdd.Visible());
        EXPECT_EQ(f.txtLayoutName.Text(), "Decoy Harbour");
    }
    f.txtLayoutID.SetText("4321");
    f.txtLayoutTotal.RaiseLostFocus();
    EXPECT_EQ(Scalar("SELECT UnitTotal FROM GrndNames WHERE ID=4321 AND LayoutName='Decoy "
                     "Harbour' AND IsDefault=0 AND GUType=1"),
              12);
    EXPECT_FALSE(f.fraLayoutAdd.Visible());
    EXPECT_EQ(f.Label1.Caption(), "4321");
}

TEST_F(LayoutRecordsTest, RenamesByTypingInTheCombo) {
    f.cmbGULayoutName.SetText("AA Decoy North");
    EXPECT_TRUE(f.cmdUpdate.Enabled());
    f.cmdUpdate.UserClick();
    EXPECT_EQ(Scalar("SELECT Count(*) FROM GrndNames WHERE LayoutName='AA Decoy North'"), 1);
    EXPECT_EQ(f.cmbGULayoutName.Text(), "AA Decoy North");
    EXPECT_FALSE(f.cmdUpdate.Enabled());
}

// Deleting a layout asks first and takes its units along; the tab's lists lose it too.
TEST_F(LayoutRecordsTest, DeletesALayoutWithItsUnitsAfterAsking) {
    t.dialogs.QueueMsgAnswer(MsgAnswer::No);
    f.cmdDeleteLayout.UserClick();
    EXPECT_EQ(t.dialogs.messages.back().text, "Are you sure you want to delete [AA Decoy]");
    EXPECT_EQ(t.dialogs.messages.back().title, "Delete Ground Layout");
    EXPECT_EQ(Scalar("SELECT Count(*) FROM GrndNames WHERE ID=9001"), 1);
    ASSERT_GE(ed.FrmMission.lstGrnUnits.FindRow("AA Decoy"), 0);
    t.dialogs.QueueMsgAnswer(MsgAnswer::Yes);
    f.cmdDeleteLayout.UserClick();
    EXPECT_EQ(Scalar("SELECT Count(*) FROM GrndNames WHERE ID=9001"), 0);
    EXPECT_EQ(Scalar("SELECT Count(*) FROM GrndTypes WHERE ID=9001"), 0);
    EXPECT_EQ(f.cmbGULayoutName.ListIndex(), 0);
    EXPECT_EQ(ed.FrmMission.lstGrnUnits.FindRow("AA Decoy"), -1);
}

// Units are deleted together, and the layout's fingerprint stays; nothing selected is said.
TEST_F(LayoutRecordsTest, DeletesSelectedUnitsAndKeepsTheFingerprint) {
    f.cmdDeleteUnits.UserClick();
    EXPECT_EQ(Status(), "No Record has been selected");
    grid.UserSelectRow(0, false);
    grid.UserSelectRow(1, true);
    f.cmdDeleteUnits.UserClick();
    EXPECT_EQ(Scalar("SELECT Count(*) FROM GrndTypes WHERE ID=9001"), 0);
    EXPECT_EQ(Scalar("SELECT UnitTotal FROM GrndNames WHERE ID=9001"), 8003);
    EXPECT_EQ(f.lblUnitCount.Caption(), "0");
}

// Numbers typed into the grid are checked against their fields: a value out of range keeps
// the old one and says the range; an unknown type is refused with a box.
TEST_F(LayoutRecordsTest, ChecksNumbersTypedIntoTheGrid) {
    const struct {
        int col;
        const char* typed;
        const char* field;
        long stored;
        const char* status;
    } cases[] = {
        {3, "7 pts", "Points", 7, ""},
        {3, "256", "Points", 7, "Points takes whole numbers from 0 to 255."},
        {4, "-90", "Heading", -90, ""},
        {4, "40000", "Heading", -90, "Heading takes whole numbers from -32768 to 32767."},
        {8, "3", "DamageID", 0, "DamageID takes whole numbers from 0 to 2."},
        {2, "4002", "UnitType", 4002, ""},
        {2, "3999", "UnitType", 4002, ""},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.typed);
        ShowStatus(ed, "");
        grid.UserMoveTo(0, c.col);
        grid.UserEditCell(c.typed);
        EXPECT_EQ(Status(), c.status);
        grid.UserMoveTo(1, c.col);
        EXPECT_EQ(Scalar(std::string("SELECT ") + c.field +
                         " FROM GrndTypes WHERE ID=9001 AND XOffset=0.1"),
                  c.stored);
    }
    EXPECT_EQ(t.dialogs.LastMessage(),
              "There is no Stationary unit of type 3999.\nPick a type from the list of the "
              "cell's button.");
}

// A unit typed into the new row is filed under the layout by the type chosen from the list;
// the damage list sets the damage.
TEST_F(LayoutRecordsTest, TheDropDownListsFillTheRow) {
    grid.UserMoveTo(2, 2);
    ASSERT_TRUE(grid.OnNewRow());
    grid.UserButtonClick();
    ASSERT_TRUE(f.lstStationaryName.Visible());
    EXPECT_EQ(f.lstStationaryName.ListIndex(), 0);
    f.txtStationaryName.SetText("l");
    int key = 'L';
    f.txtStationaryName.RaiseKeyUp(key, 0);
    const int row = f.lstStationaryName.ListIndex();
    EXPECT_EQ(f.lstStationaryName.List(row).substr(0, 1), "L");
    EXPECT_NE(f.lstStationaryName.List(row - 1).substr(0, 1), "L");
    f.lstStationaryName.RaiseMouseUp(kLeftButton, 0, 10, 10);
    EXPECT_FALSE(f.lstStationaryName.Visible());
    EXPECT_EQ(Scalar("SELECT Count(*) FROM GrndTypes WHERE ID=9001"), 3);
    EXPECT_EQ(Scalar("SELECT UnitType FROM GrndTypes WHERE ID=9001 AND rowid=(SELECT Max(rowid) "
                     "FROM GrndTypes)"),
              f.lstStationaryName.ItemData(row));

    grid.UserMoveTo(0, 7);
    grid.UserButtonClick();
    ASSERT_TRUE(f.theDamageList.Visible());
    f.theDamageList.RaiseMouseMove(0, 0, 10, 2 * 192 + 5);
    f.theDamageList.RaiseMouseUp(kLeftButton, 0, 10, 2 * 192 + 5);
    EXPECT_EQ(Scalar("SELECT DamageID FROM GrndTypes WHERE ID=9001 AND XOffset=0.1"), 2);
}

TEST_F(LayoutRecordsTest, ADefaultLayoutsUnitsStayAsTheyAre) {
    Pick("RAF Satellite Field");
    const long before = Scalar("SELECT Sum(Heading)+Sum(Points) FROM GrndTypes WHERE ID=17");
    grid.UserMoveTo(0, 4);
    grid.UserEditCell("123");
    grid.UserMoveTo(1, 4);
    EXPECT_FALSE(grid.AllowAddNew());
    std::int32_t type = 4001;
    updateStationary(ed, type);
    EXPECT_EQ(Scalar("SELECT Sum(Heading)+Sum(Points) FROM GrndTypes WHERE ID=17"), before);
    EXPECT_EQ(Scalar("SELECT Count(*) FROM GrndTypes WHERE ID=17"), 19);
}

}  // namespace
}  // namespace tarvex
