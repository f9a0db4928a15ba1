// The saved queries: their fields in the order the program reads them by position, and the
// edits the grids make through them.
#include <gtest/gtest.h>

#include "common/error.h"
#include "test_database.h"

namespace tarvex::testing {
namespace {

using Names = std::vector<std::string>;

class SchemaViewsTest : public ::testing::Test {
  protected:
    TestDatabase db;
};

TEST_F(SchemaViewsTest, ViewsYieldTheirFieldsInOrder) {
    const struct {
        const char* view;
        Names fields;
    } cases[] = {
        {"qryNextGuID", {"NextID"}},
        {"qryNextAcID", {"NextID"}},
        {"qryAllMovingUnits",
         {"AcID", "ShortName", "LongName", "Family", "Allegiance", "Gun", "Cannon", "Rockets",
          "Bombs", "AirforceName", "UnitRole"}},
        {"qryAirFields", {"RwyID", "RwyLat", "RwyLon", "TypeID", "Elevation", "ROT", "Units"}},
        {"qryGroundUnitDetails",
         {"ID", "UnitType", "FullName", "Points", "Heading", "XOffset", "YOffset", "Damage",
          "DamageID", "StationaryName", "Allegiance"}},
        {"qryGUOffsetsMetric",
         {"ID", "FullName", "XOffset", "YOffset", "Expr1", "Expr2", "IsDefault"}},
        {"qryGUOffsetsImp",
         {"ID", "FullName", "XOffset", "YOffset", "Expr1", "Expr2", "IsDefault"}},
    };
    for (const auto& c : cases) {
        EXPECT_EQ(db.ColumnNames(std::string("SELECT * FROM ") + c.view), c.fields) << c.view;
    }
}

TEST_F(SchemaViewsTest, OffsetsAreShownInMetresOrFeet) {
    const auto metric = db.Rows(
        "SELECT XOffset, Expr1, YOffset, Expr2 FROM qryGUOffsetsMetric "
        "WHERE ID=1 AND XOffset <> 0 LIMIT 1");
    ASSERT_EQ(metric.size(), 1u);
    EXPECT_DOUBLE_EQ(std::stod(metric[0][1]), std::stod(metric[0][0]) * 1000.0);
    EXPECT_DOUBLE_EQ(std::stod(metric[0][3]), std::stod(metric[0][2]) * 1000.0);
    EXPECT_DOUBLE_EQ(db.Real("SELECT Expr1 / XOffset FROM qryGUOffsetsImp WHERE XOffset <> 0"),
                     3280.8);
    EXPECT_EQ(db.Int("SELECT Count(*) FROM qryGUOffsetsMetric WHERE IsDefault <> 1"), 0);
    EXPECT_EQ(db.Rows("SELECT DISTINCT Damage, DamageID FROM qryGroundUnitDetails ORDER BY 2"),
              (std::vector<Row>{{"None", "0"}, {"Smoke", "1"}, {"Fire", "2"}}));
}

TEST_F(SchemaViewsTest, AircraftGridEditsTheAircraftTable) {
    const std::string id = db.Text("SELECT NextID FROM qryNextAcID");
    db.Exec("INSERT INTO qryAllMovingUnits (AcID, ShortName, Family, Allegiance) VALUES (" + id +
            ", 'Bf109E7', 1, 2)");
    EXPECT_EQ(db.Rows("SELECT ShortName, LongName, Family, Allegiance, Gun, Add2Combo "
                      "FROM Aircraft WHERE AcID=" +
                      id),
              (std::vector<Row>{{"Bf109E7", "Bf109E7", "1", "2", "0", "1"}}));

    // A change of the family's name alone moves the id behind it.
    db.UpdateThroughView("qryAllMovingUnits", "AcID=" + id,
                         "LongName = 'Messerschmitt Bf 109 E-7', UnitRole = 'Bomber', Bombs = 250");
    EXPECT_EQ(db.Rows("SELECT LongName, Family, Bombs FROM qryAllMovingUnits WHERE AcID=" + id),
              (std::vector<Row>{{"Messerschmitt Bf 109 E-7", "2", "250"}}));

    const long long before = db.Int("SELECT Count(*) FROM Aircraft");
    db.DeleteThroughView("qryAllMovingUnits", "AcID=" + id);
    EXPECT_EQ(db.Int("SELECT Count(*) FROM Aircraft"), before - 1);
    EXPECT_EQ(db.Int("SELECT Count(*) FROM Aircraft WHERE AcID=" + id), 0);
}

TEST_F(SchemaViewsTest, GroundUnitGridEditsOnlyTheRowItShows) {
    const long long units = db.Int("SELECT Count(*) FROM GrndTypes WHERE ID=1");
    const std::string firstGun = "ID=1 AND UnitType=4001 AND XOffset > 0 AND YOffset > 0";

    db.UpdateThroughView("qryGroundUnitDetails", firstGun, "Damage = 'Smoke', Heading = 270");
    EXPECT_EQ(db.Rows("SELECT DamageID, Heading FROM GrndTypes WHERE " + firstGun),
              (std::vector<Row>{{"1", "270"}}));
    EXPECT_EQ(db.Int("SELECT Count(*) FROM GrndTypes WHERE ID=1 AND DamageID <> 0"), 1);

    // A new grid row is filed under its layout with the table's defaults.
    db.Exec("INSERT INTO qryGroundUnitDetails (ID, UnitType) VALUES (1, 4002)");
    EXPECT_EQ(db.Rows("SELECT Points, Heading, XOffset, YOffset, DamageID FROM GrndTypes "
                      "WHERE ID=1 AND UnitType=4002"),
              (std::vector<Row>{{"0", "0", "0.0", "0.0", "0"}}));

    db.DeleteThroughView("qryGroundUnitDetails", firstGun);
    EXPECT_EQ(db.Int("SELECT Count(*) FROM GrndTypes WHERE ID=1"), units);
    EXPECT_EQ(db.Int("SELECT Count(*) FROM GrndTypes WHERE " + firstGun), 0);
}

TEST_F(SchemaViewsTest, OffsetsWindowMovesAndDeletesUnits) {
    const struct {
        const char* view;
        double perUnit;
    } cases[] = {{"qryGUOffsetsMetric", 1000.0}, {"qryGUOffsetsImp", 3280.8}};
    for (const auto& c : cases) {
        TestDatabase fresh;
        const std::string gun = "ID=10 AND FullName='Flak predictor'";
        fresh.UpdateThroughView(c.view, gun, "Expr1 = 250");
        EXPECT_DOUBLE_EQ(fresh.Real("SELECT XOffset FROM GrndTypes WHERE ID=10 AND UnitType=4054"),
                         250.0 / c.perUnit)
            << c.view;
        fresh.UpdateThroughView(c.view, gun, "YOffset = -0.05");
        EXPECT_DOUBLE_EQ(fresh.Real("SELECT YOffset FROM GrndTypes WHERE ID=10 AND UnitType=4054"),
                         -0.05);
        const long long others = fresh.Int("SELECT Count(*) FROM GrndTypes WHERE UnitType<>4054");
        fresh.DeleteThroughView(c.view, gun);
        EXPECT_EQ(fresh.Int("SELECT Count(*) FROM GrndTypes WHERE UnitType=4054"), 0);
        EXPECT_EQ(fresh.Int("SELECT Count(*) FROM GrndTypes WHERE UnitType<>4054"), others);
    }
}

TEST_F(SchemaViewsTest, DeletingALayoutTakesItsUnits) {
    db.Exec("DELETE FROM GrndNames where ID = 16");
    EXPECT_EQ(db.Int("SELECT Count(*) FROM GrndTypes WHERE ID=16"), 0);
    EXPECT_GT(db.Int("SELECT Count(*) FROM GrndTypes WHERE ID=17"), 0);
}

TEST_F(SchemaViewsTest, BadRowsAreRefusedWithAnError) {
    const char* statements[] = {
        "INSERT INTO GrndNames (ID,LayoutName,UnitTotal,IsDefault,GUType) VALUES (10000,'x',0,0,1)",
        "INSERT INTO GrndNames (ID,LayoutName,UnitTotal,IsDefault,GUType) VALUES (1,'x',0,0,1)",
        "INSERT INTO GrndTypes (ID,UnitType,Points,XOffset,YOffset) VALUES (9000,4001,0,0,0)",
        "INSERT INTO Aircraft (AcID, ShortName) VALUES (1, 'Copy')",
        "INSERT INTO qryAllMovingUnits (AcID, ShortName, Family) VALUES (999, 'X', 4)",
        "UPDATE GrndTypes SET DamageID = 3 WHERE ID = 1",
    };
    for (const char* sql : statements) {
        EXPECT_THROW(db.Exec(sql), AppError) << sql;
    }
}

}  // namespace
}  // namespace tarvex::testing
