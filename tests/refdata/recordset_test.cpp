#include "refdata/recordset.h"

#include <gtest/gtest.h>

#include <functional>

#include "common/error.h"
#include "refdata/database.h"
#include "support/reference_folder.h"

namespace tarvex {
namespace {

int ErrorOf(const std::function<void()>& action) {
    try {
        action();
    } catch (const AppError& error) {
        return error.Number();
    }
    return 0;
}

class RecordsetTest : public testing::ReferenceFolderTest {
  protected:
    void SetUp() override {
        ReferenceFolderTest::SetUp();
        db.Open(dbPath);
        layout = db.OpenRecordset("qryNextGuID", kSnapshot).Fields("NextID").Long();
        const std::string id = std::to_string(layout);
        db.Execute(
            "INSERT INTO Stationary (UnitType,FullName,StationaryName,Allegiance) VALUES "
            "(999001,'Test Gun','TestGun',1),(999002,'Test Tent','TestTent',2)");
        db.Execute(" INSERT INTO GrndNames (ID,LayoutName,UnitTotal,IsDefault,GUType) VALUES (" +
                   id + ",'Test layout', 0,0,1);");
        for (const char* unit : {"999001,5,0.5,-0.25", "999002,3,1.5,2"}) {
            db.Execute(" INSERT INTO GrndTypes (ID,UnitType,Points,XOffset,YOffset) VALUES (" + id +
                       "," + unit + ");");
        }
    }

    // The number of rows a text gives, read through a fresh snapshot.
    int Count(const std::string& sql) {
        return db.OpenRecordset("SELECT Count(*) FROM " + sql, kSnapshot).Fields(0).Long();
    }

    Database db;
    int layout = 0;
};

TEST_F(RecordsetTest, EmptyResultHasNoCurrentRecord) {
    for (int type : {kSnapshot, kUpdatable}) {
        Recordset rs = db.OpenRecordset("SELECT ID,UnitTotal FROM GrndNames WHERE ID=-1", type);
        EXPECT_TRUE(rs.Bof());
        EXPECT_TRUE(rs.Eof());
        EXPECT_EQ(rs.RecordCount(), 0);
        EXPECT_EQ(rs.AbsolutePosition(), -1);
        const std::function<void()> actions[] = {
            [&] { rs.MoveFirst(); },      [&] { rs.MoveNext(); },
            [&] { rs.MoveLast(); },       [&] { rs.MovePrevious(); },
            [&] { rs.Fields(0).Long(); }, [&] { rs.Fields("UnitTotal").Text(); },
            [&] { rs.Bookmark(); },       [&] { rs.LastModified(); },
        };
        for (const auto& action : actions)
            EXPECT_EQ(ErrorOf(action), kErrNoCurrentRecord);
    }
}

TEST_F(RecordsetTest, FailuresCarryTheirNumbers) {
    Recordset snapshot = db.OpenRecordset("SELECT ID FROM GrndNames", kSnapshot);
    Recordset closed;
    const struct {
        std::function<void()> action;
        int number;
    } cases[] = {
        {[&] { db.OpenRecordset("SELECT Missing FROM Aircraft", kSnapshot); }, kErrSqlFailed},
        {[&] { db.OpenRecordset("NoSuchTable"); }, kErrSqlFailed},
        {[&] { db.Execute("UPDATE Nowhere SET x = 1"); }, kErrSqlFailed},
        // The layout id is unique.
        {[&] {
             db.Execute("INSERT INTO GrndNames (ID,LayoutName) VALUES (" + std::to_string(layout) +
                        ",'again')");
         },
         kErrSqlFailed},
        {[&] { snapshot.AddNew(); }, kErrReadOnly},
        {[&] { snapshot.Edit(); }, kErrReadOnly},
        {[&] { snapshot.Fields("NoSuchField"); }, kErrItemNotFound},
        {[&] { snapshot.Fields(1); }, kErrItemNotFound},
        {[&] { snapshot.Fields(0) = 5; }, kErrNoUpdateMode},
        {[&] { closed.MoveFirst(); }, kErrObjectClosed},
    };
    for (size_t i = 0; i < std::size(cases); ++i) {
        EXPECT_EQ(ErrorOf(cases[i].action), cases[i].number) << "case " << i;
    }
    try {
        db.OpenRecordset("SELECT Missing FROM Aircraft", kSnapshot);
    } catch (const AppError& error) {
        EXPECT_NE(error.Description().find("no such column: Missing"), std::string::npos);
    }
}

TEST_F(RecordsetTest, FieldsConvertAsTheProgramReadsThem) {
    Recordset rs = db.OpenRecordset(
        "SELECT 2.5 AS a, 3.5 AS b, NULL AS c, 'abc' AS d, 40000 AS e, ' 12 ' AS f, -0.5 AS g, "
        "0.1 AS h",
        kSnapshot);
    EXPECT_EQ(rs.Fields("A").Long(), 2);  // names without regard to case
    EXPECT_EQ(rs.Fields(1).Integer(), 4);
    EXPECT_TRUE(rs.Fields(2).IsNull());
    EXPECT_EQ(rs.Fields(2).Text(), "");
    EXPECT_EQ(rs.Fields(2).Long(), 0);
    EXPECT_EQ(ErrorOf([&] { rs.Fields(3).Long(); }), kErrTypeMismatch);
    EXPECT_EQ(ErrorOf([&] { rs.Fields(4).Integer(); }), kErrOverflow);
    EXPECT_EQ(rs.Fields(4).Long(), 40000);
    EXPECT_EQ(rs.Fields(5).Integer(), 12);
    EXPECT_EQ(rs.Fields(6).Long(), 0);
    EXPECT_EQ(rs.Fields(6).Text(), "-0.5");
    EXPECT_EQ(rs.Fields(7).Text(), "0.1");
    EXPECT_EQ(rs.Fields(0).Name(), "a");
}

TEST_F(RecordsetTest, MovesThroughRowsInStoredOrder) {
    Recordset rs = db.OpenRecordset(
        "SELECT ID,UnitType,Points FROM GrndTypes Where ID=" + std::to_string(layout), kSnapshot);
    ASSERT_EQ(rs.RecordCount(), 2);
    EXPECT_FALSE(rs.Bof());
    EXPECT_EQ(rs.Fields("unittype").Long(), 999001);
    rs.MoveNext();
    EXPECT_EQ(rs.Fields(1).Long(), 999002);
    EXPECT_EQ(rs.AbsolutePosition(), 1);
    rs.MoveNext();
    EXPECT_TRUE(rs.Eof());
    EXPECT_EQ(ErrorOf([&] { rs.MoveNext(); }), kErrNoCurrentRecord);
    rs.MoveLast();
    rs.MovePrevious();
    EXPECT_EQ(rs.Fields(1).Long(), 999001);
    rs.MovePrevious();
    EXPECT_TRUE(rs.Bof());
    rs.SetAbsolutePosition(1);
    EXPECT_EQ(rs.Fields(2).Long(), 3);
}

TEST_F(RecordsetTest, TableRowsAreAddedEditedAndDeletedByRowid) {
    const std::string id = std::to_string(layout);
    // Added through the table by name; the row takes the table's defaults and is reached
    // again by its bookmark.
    Recordset units = db.OpenRecordset("GrndTypes");
    units.AddNew();
    EXPECT_EQ(units.AbsolutePosition(), -1);
    units.Fields("ID") = layout;
    units.Fields("UnitType") = 999001;
    units.Fields("XOffset") = -1.25;
    units.Update();
    units.SetBookmark(units.LastModified());
    EXPECT_EQ(units.Fields("DamageID").Long(), 0);
    EXPECT_EQ(units.Fields("XOffset").Double(), -1.25);
    EXPECT_EQ(Count("GrndTypes WHERE ID=" + id), 3);

    // A row added to a filtered query that doesn't show it stays reachable.
    Recordset other = db.OpenRecordset("SELECT * FROM GrndTypes Where ID=-5");
    other.AddNew();
    other.Fields("ID") = layout;
    other.Fields("UnitType") = 999002;
    other.Update();
    other.SetBookmark(other.LastModified());
    EXPECT_EQ(other.Fields("UnitType").Long(), 999002);
    EXPECT_EQ(other.RecordCount(), 1);

    Recordset total = db.OpenRecordset("SELECT ID,UnitTotal FROM GrndNames WHERE ID =" + id);
    total.Edit();
    total.Fields("UnitTotal") = total.Fields("UnitTotal").Long() + 999001;
    total.Update();
    EXPECT_EQ(total.Fields(1).Long(), 999001);
    EXPECT_EQ(Count("GrndNames WHERE UnitTotal=999001 AND ID=" + id), 1);

    // After a delete there is no current row until the next move, which reaches the row
    // that followed.
    Recordset rs = db.OpenRecordset("SELECT UnitType FROM GrndTypes WHERE ID=" + id);
    ASSERT_EQ(rs.RecordCount(), 4);
    rs.Delete();
    EXPECT_EQ(ErrorOf([&] { rs.Fields(0).Long(); }), kErrNoCurrentRecord);
    rs.MoveNext();
    EXPECT_EQ(rs.Fields(0).Long(), 999002);
    EXPECT_EQ(Count("GrndTypes WHERE ID=" + id), 3);
    rs.MoveLast();
    rs.Delete();
    rs.MoveNext();  // from the deleted last row to the end, as the grids do
    EXPECT_TRUE(rs.Eof());
    rs.MoveLast();

    // Requery sees changes made elsewhere; a table row keeps its bookmark.
    const RecordBookmark mark = rs.Bookmark();
    db.Execute("UPDATE GrndTypes SET Points = 77 WHERE ID=" + id);
    rs.Requery();
    rs.SetBookmark(mark);
    EXPECT_EQ(rs.RecordCount(), 2);
}

TEST_F(RecordsetTest, DeletingALayoutDeletesItsUnits) {
    const std::string id = std::to_string(layout);
    db.Execute("DELETE * FROM GrndNames where ID = " + id);
    EXPECT_EQ(Count("GrndTypes WHERE ID=" + id), 0);
}

TEST_F(RecordsetTest, ViewsChangeTheirTablesThroughTheirTriggers) {
    const std::string id = std::to_string(layout);
    Recordset grid = db.OpenRecordset(
        "select [ID],[UnitType],[FullName],[Points],[Heading],[XOffset],[YOffset],[Damage],"
        "[DamageID] from [qryGroundUnitDetails] where [ID]=" +
        id + " Order BY [Fullname]");
    ASSERT_EQ(grid.RecordCount(), 2);
    EXPECT_EQ(grid.Fields("FullName").Text(), "Test Gun");
    grid.Edit();
    grid.Fields("Points") = 9;
    grid.Fields("Damage") = "Fire";
    grid.Update();
    EXPECT_EQ(grid.Fields("DamageID").Long(), 2);  // read back through the view
    EXPECT_EQ(Count("GrndTypes WHERE UnitType=999001 AND Points=9 AND DamageID=2"), 1);
    grid.MoveNext();
    grid.Delete();
    EXPECT_EQ(Count("GrndTypes WHERE ID=" + id), 1);
    grid.AddNew();
    grid.Fields("ID") = layout;
    grid.Fields("FullName") = "Test Tent";
    grid.Fields("XOffset") = 0.75;
    grid.Update();
    grid.SetBookmark(grid.LastModified());
    EXPECT_EQ(grid.Fields("UnitType").Long(), 999002);
    EXPECT_EQ(Count("GrndTypes WHERE UnitType=999002 AND XOffset=0.75 AND ID=" + id), 1);

    Recordset offsets = db.OpenRecordset(
        "select [ID],[FullName],[XOffset],[YOffset],[Expr1],[Expr2],[IsDefault] from "
        "[qryGUOffsetsMetric] where [ID]=" +
        id + " ORDER BY Fullname");
    ASSERT_EQ(offsets.RecordCount(), 2);
    offsets.Edit();
    offsets.Fields(2) = 0.125;
    offsets.Update();
    EXPECT_EQ(offsets.Fields("Expr1").Double(), 125);
    EXPECT_EQ(Count("GrndTypes WHERE XOffset=0.125 AND ID=" + id), 1);

    Recordset aircraft = db.OpenRecordset(
        "select [AcID],[ShortName],[LongName],[Family],[Allegiance],[Gun],[Cannon],[Rockets],"
        "[Bombs],[AirforceName],[UnitRole] from [qryAllMovingUnits]");
    const int acId = db.OpenRecordset("qryNextAcID", kSnapshot).Fields("NextID").Long();
    aircraft.AddNew();
    aircraft.Fields("AcID") = acId;
    aircraft.Fields("ShortName") = "TestPlane";
    aircraft.Fields("Family") = 2;
    aircraft.Update();
    aircraft.SetBookmark(aircraft.LastModified());
    EXPECT_EQ(aircraft.Fields("LongName").Text(), "TestPlane");
    aircraft.Edit();
    aircraft.Fields("Gun") = 500;
    aircraft.Update();
    EXPECT_EQ(Count("Aircraft WHERE Gun=500 AND Family=2 AND AcID=" + std::to_string(acId)), 1);
    aircraft.Delete();
    EXPECT_EQ(Count("Aircraft WHERE AcID=" + std::to_string(acId)), 0);
}

}  // namespace
}  // namespace tarvex
