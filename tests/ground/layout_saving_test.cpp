// Save Layout and the units added and moved on the map: what reaches the reference database,
// and what a failure leaves behind.
#include <gtest/gtest.h>

#include <filesystem>
#include <string>
#include <vector>

#include "document/mission_saver.h"
#include "document/writer_test_mission.h"
#include "ground/ground_tab_fixture.h"
#include "ground/layout_transform.h"
#include "ground/layout_units.h"
#include "refdata/shared_lookup.h"
#include "shell/forms/frm_gu_offsets.h"

namespace tarvex {
namespace {

using testing::GroundTab;

struct Unit {
    int type = 0;
    int points = 0;
    int heading = 0;
    double x = 0;
    double y = 0;
};

class LayoutSavingTest : public GroundTab {
  protected:
    void Enter(int row = 0) {
        frm.lstGUAdded.SetListIndex(row);
        frm.lstGUAdded.RaiseDblClick();
        ASSERT_EQ(map.Tag(), "True");
    }
    std::vector<Unit> Units(int id) {
        std::vector<Unit> units;
        SharedLookup rows(ed.db,
                          "SELECT UnitType,Points,Heading,XOffset,YOffset FROM GrndTypes "
                          "Where ID=" +
                              std::to_string(id));
        for (Recordset& rs = rows.rs; !rs.Eof(); rs.MoveNext())
            units.push_back({rs.Fields(0).Long(), rs.Fields(1).Long(), rs.Fields(2).Long(),
                             rs.Fields(3).Double(), rs.Fields(4).Double()});
        return units;
    }
    int Count(const std::string& sql) {
        SharedLookup rows(ed.db, sql);
        return rows.First().Fields(0).Long();
    }
    int UnitTotal(int id) {
        return Count("SELECT UnitTotal FROM GrndNames Where ID=" + std::to_string(id));
    }
    int NextId() { return Count("SELECT NextID FROM qryNextGuID"); }
};

// A turned, shifted and spread default airfield layout, saved under a new name: the copy's
// offsets are the source's through the transform of the editor's values, and the copy is the
// designer's own, unlocked and unturned.
TEST_F(LayoutSavingTest, SavesTheTransformIntoTheCopysOffsets) {
    PlaceOnAirfield("RAF Satellite Field", testing::kHawkingeRow);
    Enter();
    ASSERT_TRUE(ed.ground.LayoutLocked);
    frm.btnRotate90.UserClick();
    frm.btnRotate2.SetValue(20);
    frm.btnXPos.SetValue(30);
    frm.btnYPos.SetValue(-40);  // down the screen: GUShiftY -0.4
    frm.btnSpread.SetValue(4);
    const int newId = NextId();
    const std::vector<Unit> source = Units(17);
    ASSERT_EQ(source.size(), 19u);

    t.dialogs.QueueInput("Hawkinge Airfield Dispersal");
    frm.btnSave.UserClick();

    ASSERT_EQ(t.dialogs.inputs.size(), 1u);
    EXPECT_EQ(t.dialogs.inputs[0].title, "Add New Ground Layout");
    EXPECT_EQ(t.dialogs.inputs[0].prompt, "Add a name for the new Ground Layout");
    EXPECT_EQ(t.dialogs.inputs[0].preset, "Airfield Layout1");
    const std::vector<Unit> copy = Units(newId);
    ASSERT_EQ(copy.size(), source.size());
    LayoutTransform second;
    second.SetFromRotation(90 + 90 + 20);
    for (size_t i = 0; i < source.size(); ++i) {
        SCOPED_TRACE(i);
        float a = static_cast<float>(source[i].x);
        float b = static_cast<float>(source[i].y);
        second.ApplyLayoutTransform(a, b, 0.5f, 0.3f, -0.4f);
        EXPECT_EQ(copy[i].x, a);
        EXPECT_EQ(copy[i].y, b);
        EXPECT_EQ(copy[i].type, source[i].type);
        EXPECT_EQ(copy[i].heading, source[i].heading);
        EXPECT_EQ(copy[i].points, source[i].points);
    }
    EXPECT_EQ(UnitTotal(newId), UnitTotal(17));
    EXPECT_EQ(Count("SELECT IsDefault FROM GrndNames Where ID=" + std::to_string(newId)), 0);
    EXPECT_EQ(Count("SELECT GUType FROM GrndNames Where ID=" + std::to_string(newId)), 2);

    // The row now names the copy and, with "Airfield" in the name, keeps its airfield.
    EXPECT_EQ(frm.lstGUAdded.List(0), "01. Hawkinge Airfield Dispersal");
    EXPECT_EQ(frm.lstGUAdded.ItemData(0), (testing::kHawkingeRow + 1) * 10000 + newId);
    EXPECT_EQ(ed.ground.EditedLayoutID, newId);
    EXPECT_FALSE(ed.ground.LayoutLocked);
    EXPECT_EQ(doc.GURotation(0), 0);
    EXPECT_EQ(ed.transform.QuarterTurns, 0);
    EXPECT_EQ(doc.GUShiftX(0), 0);
    EXPECT_EQ(doc.GUSpread(0), 0);
}

// The name decides whether the row stays tied to its airfield; a cancelled box writes nothing
// and uses up no number.
TEST_F(LayoutSavingTest, TheNameDecidesTheItemDataAndCancelWritesNothing) {
    AddLayout(9001, "Decoy Site", 1, "(4001,0.1,0.2)");
    Place("Decoy Site", 1000, 1000);
    PlaceOnAirfield("RAF Satellite Field", testing::kHawkingeRow);
    const int airfieldData = frm.lstGUAdded.ItemData(1);
    ASSERT_GE(airfieldData, 10000);
    const struct {
        int row;
        const char* answer;
        const char* preset;
        bool keepsAirfield;
    } cases[] = {
        {0, "", "Decoy Site1", false},
        {0, "Decoy AIRFIELD", "Decoy Site1", false},
        {1, "Hawkinge Copy", "Airfield Layout2", false},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.answer);
        Enter(c.row);
        const int before = Count("SELECT Count(*) FROM GrndNames");
        const int source = frm.lstGUAdded.ItemData(c.row);
        const int newId = NextId();
        t.dialogs.QueueInput(c.answer);
        frm.btnSave.UserClick();
        EXPECT_EQ(t.dialogs.inputs.back().preset, c.preset);
        if (std::string(c.answer).empty()) {
            EXPECT_EQ(Count("SELECT Count(*) FROM GrndNames"), before);
            EXPECT_EQ(frm.lstGUAdded.ItemData(c.row), source);
        } else {
            // A landscape layout has no airfield to keep: 9001 / 10000 is 0.
            EXPECT_EQ(frm.lstGUAdded.ItemData(c.row), newId);
        }
        frm.btnGUClose.UserClick();
    }
}

// A write that fails half-way (here the third unit) leaves no part of the copy behind, and
// the editor goes on with the source.
TEST_F(LayoutSavingTest, AFailureHalfWayLeavesNoRows) {
    PlaceOnAirfield("RAF Satellite Field", testing::kHawkingeRow);
    Enter();
    const int newId = NextId();
    const int layouts = Count("SELECT Count(*) FROM GrndNames");
    const int units = Count("SELECT Count(*) FROM GrndTypes");
    const std::string rowText = frm.lstGUAdded.List(0);
    ed.db.theDB.Execute(
        "CREATE TEMP TRIGGER full_disk BEFORE INSERT ON GrndTypes WHEN (SELECT Count(*) FROM "
        "GrndTypes WHERE ID = NEW.ID) >= 2 BEGIN SELECT RAISE(ABORT, 'database or disk is "
        "full'); END;");
    t.dialogs.QueueInput("Half Copy");
    frm.btnSave.UserClick();

    ASSERT_EQ(t.dialogs.messages.size(), 1u);
    EXPECT_EQ(t.dialogs.messages[0].text, "Error adding new Ground Layout record.\nError: 3075");
    EXPECT_EQ(t.dialogs.messages[0].title, "Saving Ground Layout Error");
    EXPECT_EQ(t.dialogs.messages[0].icon, MsgIcon::Critical);
    EXPECT_EQ(Count("SELECT Count(*) FROM GrndNames"), layouts);
    EXPECT_EQ(Count("SELECT Count(*) FROM GrndTypes"), units);
    EXPECT_EQ(Count("SELECT Count(*) FROM GrndNames Where ID=" + std::to_string(newId)), 0);
    EXPECT_EQ(ed.ground.EditedLayoutID, 17);
    EXPECT_EQ(frm.lstGUAdded.List(0), rowText);
    EXPECT_TRUE(ed.ground.LayoutLocked);
}

// Units added by a click raise the layout's fingerprint by their type; a selected unit moves
// to the next click; a default layout takes neither.
TEST_F(LayoutSavingTest, AddsAndMovesUnitsOfTheDesignersLayoutOnly) {
    AddLayout(9001, "Decoy Site", 1, "(4001,0.1,0.2)");
    ed.db.theDB.Execute("UPDATE GrndNames SET UnitTotal=4001 WHERE ID=9001");
    Place("Decoy Site", 1000, 1000);
    ed.options.ShowDataWin = true;
    Enter();
    frm.chkStationary.UserClick();
    ASSERT_TRUE(frm.fraStationary.Visible());
    frm.lstStationary.SetListIndex(0);
    const int type = frm.lstStationary.ItemData(0);
    // At the map's centre the offset is 0; a click right of it lies on +YOffset.
    Click(map.Width() / 2, map.Height() / 2);
    Click(map.Width() / 2 + 1215, map.Height() / 2);
    EXPECT_EQ(UnitTotal(9001), 4001 + 2 * type);
    auto units = Units(9001);
    ASSERT_EQ(units.size(), 3u);
    EXPECT_EQ(units[1].x, 0);
    EXPECT_EQ(units[1].y, 0);
    EXPECT_NEAR(units[2].y, 0.729 / 2, 1e-6);
    EXPECT_EQ(ed.frmGUOffsets.dataGUOffsets.Recordset().RecordCount(), 3);

    // The grid's row of the first unit selected: the next click moves it.
    frmGUOffsets& w = ed.frmGUOffsets;
    const int row = [&] {
        for (int r = 0; r < w.dbgGUOffsets.RowCount(); ++r)
            if (w.dbgGUOffsets.CellText(r, 0) == "9001" && w.dbgGUOffsets.CellText(r, 2) == "0.1")
                return r;
        return -1;
    }();
    ASSERT_GE(row, 0);
    w.dbgGUOffsets.UserSelectRow(row, false);
    EXPECT_EQ(ed.ground.SelectedUnit, row);
    Click(map.Width() / 2, map.Height() / 2 - 1215);
    units = Units(9001);
    EXPECT_NEAR(units[0].x, 0.729 / 2, 1e-6);
    EXPECT_EQ(units[0].y, 0);
    frm.btnGUClose.UserClick();

    // The default layout: no unit added, none moved.
    PlaceOnAirfield("RAF Satellite Field", testing::kHawkingeRow);
    Enter(1);
    const double firstX = Units(17)[0].x;
    const int total = UnitTotal(17);
    AddStationaryUnit(ed, 100, 100, 17, type);
    w.dbgGUOffsets.UserSelectRow(0, false);
    Click(100, 100);
    EXPECT_EQ(Units(17).size(), 19u);
    EXPECT_EQ(UnitTotal(17), total);
    EXPECT_EQ(Units(17)[0].x, firstX);
}

// A mission saved after a Save Layout carries the copy.
TEST_F(LayoutSavingTest, AMissionSavedAfterwardsUsesTheCopy) {
    testing::BuildSampleMission(ed);
    SelectTab(ed, kGroundUnitsTab);
    PlaceOnAirfield("RAF Satellite Field", testing::kHawkingeRow);
    const int row = doc.GUCount - 1;
    Enter(row);
    frm.btnXPos.SetValue(20);
    const int newId = NextId();
    t.dialogs.QueueInput("Hawkinge Airfield Copy");
    frm.btnSave.UserClick();
    frm.btnGUClose.UserClick();

    const auto folder = testing::MakeTestFolder("layout-copy");
    doc.MissionPath = (folder / "copy.mis").string();
    doc.MissionFile = "copy.mis";
    SaveMission(ed);
    EXPECT_TRUE(t.dialogs.messages.empty()) << t.dialogs.LastMessage();
    const std::string text = testing::ReadBytes(folder / "copy.mis");
    EXPECT_NE(text.find("; Ground Layout=" + std::to_string(newId) + ","), std::string::npos);
    EXPECT_EQ(text.find("; Ground Layout=17,"), std::string::npos);
    std::filesystem::remove_all(folder);
}

}  // namespace
}  // namespace tarvex
