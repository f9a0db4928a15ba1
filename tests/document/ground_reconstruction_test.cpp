#include "document/loader_fixture.h"
#include "shell/forms/frm_mission.h"

namespace tarvex::testing {
namespace {

constexpr const char* kUnnamedName = "Unnamed Layout1 in file [channel_sweep]";

TEST_F(LoaderTest, FoldsGroundUnitsIntoKnownNewAndAirfieldLayouts) {
    const long long layoutsBefore = Count("SELECT Count(*) FROM GrndNames");
    LoadPath(SampleMission("channel_sweep.mis"));
    ASSERT_TRUE(t.dialogs.messages.empty()) << LastReport();
    const Mission& doc = ed.doc;
    auto& lst = ed.FrmMission.lstGUAdded;

    ASSERT_EQ(doc.GUCount, 3);
    ASSERT_EQ(lst.ListCount(), 3);
    // Known from its comment line; the origin worked back from the first unit by the
    // record's first offset turned half a circle.
    EXPECT_EQ(lst.List(0), "01. Heavy AA Battery 3.7in");
    EXPECT_EQ(lst.ItemData(0), 1);
    EXPECT_EQ(doc.GULat(0), "N51 29.9600");
    EXPECT_EQ(doc.GULon(0), "W00 05.0700");
    EXPECT_EQ(doc.GUPoints(0), 1);
    EXPECT_EQ(doc.GURotation(0), 0);
    // Unknown: stored for good, its first unit the origin.
    EXPECT_EQ(lst.List(1), std::string("02. ") + kUnnamedName);
    EXPECT_EQ(doc.GULat(1), "N51 40.0000");
    EXPECT_EQ(doc.GULon(1), "W00 20.0000");
    EXPECT_EQ(doc.GUPoints(1), 0);
    // Near runway 102: an airfield layout of Biggin Hill (row 6), at the runway, turned a
    // quarter as a default airfield layout is.
    EXPECT_EQ(lst.List(2), "03. Biggin Hill RAF Satellite Field");
    EXPECT_EQ(lst.ItemData(2), 70017);
    EXPECT_EQ(doc.GULat(2), "N51 19.8500");
    EXPECT_EQ(doc.GULon(2), "E00 01.9500");
    EXPECT_EQ(doc.GURotation(2), 90);
    EXPECT_EQ(lst.ListIndex(), 0);

    // Only the unknown layout stays in the database, with its sum and its two units.
    EXPECT_EQ(Count("SELECT Count(*) FROM GrndNames"), layoutsBefore + 1);
    Recordset rs = ed.db.theDB.OpenRecordset(
        std::string("SELECT ID,UnitTotal,GUType,IsDefault FROM GrndNames WHERE LayoutName='") +
            kUnnamedName + "'",
        kSnapshot);
    rs.MoveFirst();
    const int id = rs.Fields(0).Long();
    EXPECT_EQ(rs.Fields(1).Long(), 4090 + 4091);
    EXPECT_EQ(rs.Fields(2).Long(), 1);
    EXPECT_EQ(rs.Fields(3).Long(), 0);
    Recordset units = ed.db.theDB.OpenRecordset(
        "SELECT UnitType,XOffset,YOffset FROM GrndTypes WHERE ID=" + std::to_string(id), kSnapshot);
    units.MoveFirst();
    EXPECT_EQ(units.Fields(0).Long(), 4090);
    EXPECT_EQ(units.Fields(1).Double(), 0);
    EXPECT_EQ(units.Fields(2).Double(), 0);
    units.MoveNext();
    EXPECT_EQ(units.Fields(0).Long(), 4091);
    EXPECT_GT(units.Fields(1).Double(), 0);  // north of the first unit
    EXPECT_GT(units.Fields(2).Double(), 0);  // east of it
    // The new layout is offered with the landscape layouts.
    EXPECT_GE(ed.FrmMission.lstGrnUnits.FindRow(kUnnamedName), 0);

    // Loading the same units again finds that record by its sum: nothing new remains.
    ResetMission(ed);
    LoadPath(SampleMission("channel_sweep.mis"));
    ASSERT_TRUE(t.dialogs.messages.empty()) << LastReport();
    EXPECT_EQ(Count("SELECT Count(*) FROM GrndNames"), layoutsBefore + 1);
    EXPECT_EQ(ed.FrmMission.lstGUAdded.List(1), std::string("02. ") + kUnnamedName);
    EXPECT_EQ(ed.FrmMission.lstGUAdded.ItemData(1), id);
}

TEST_F(LoaderTest, LayoutWithoutUnitTypeSectionsIsNeverClosed) {
    std::string text = SampleText();
    const auto from = text.find("[unit_type.0]");
    text.erase(from, text.find("[waypoint_path.0]") - from);
    LoadBytes(text);
    ASSERT_TRUE(t.dialogs.messages.empty()) << LastReport();
    // The airfield layout was the last one: nothing closed it.
    EXPECT_EQ(ed.doc.GUCount, 2);
}

}  // namespace
}  // namespace tarvex::testing
