// The rows of the default installation: the rules the program relies on without checking.
#include <gtest/gtest.h>

#include <set>

#include "test_database.h"

namespace tarvex::testing {
namespace {

class ReferenceDataTest : public ::testing::Test {
  protected:
    TestDatabase db;
};

TEST_F(ReferenceDataTest, AirfieldRecnumIsPositionInNameOrder) {
    // The airfield combos turn list index i into Recnum i + 1 without a search.
    const auto rows = db.Rows("SELECT Recnum FROM Airfields ORDER BY Name");
    ASSERT_GE(rows.size(), 40u);
    for (size_t i = 0; i < rows.size(); ++i)
        EXPECT_EQ(rows[i][0], std::to_string(i + 1)) << i;
    // A new path defaults to list rows 16 and 8.
    EXPECT_EQ(db.Int("SELECT Count(*) FROM Airfields WHERE Recnum IN (9, 17)"), 2);
}

TEST_F(ReferenceDataTest, AirfieldsLieInTheTheatreWithUsableRunways) {
    EXPECT_EQ(db.Int("SELECT Count(*) FROM Airfields WHERE RwyLat NOT BETWEEN 48 AND 53 "
                     "OR RwyLon NOT BETWEEN -3 AND 5 OR ROT NOT BETWEEN 0 AND 359 "
                     "OR Elevation NOT BETWEEN -10 AND 300 OR Name <> trim(Name)"),
              0);
    // units_across comes from the runway type; every airfield must find one.
    EXPECT_EQ(db.Int("SELECT Count(*) FROM qryAirFields WHERE Units IS NULL OR Units < 1"), 0);
    EXPECT_EQ(db.Int("SELECT Count(*) FROM Airfields a LEFT JOIN RunwayTypes t "
                     "ON t.TypeID = a.TypeID WHERE t.TypeID IS NULL"),
              0);
}

TEST_F(ReferenceDataTest, MapsStandInComboOrderWithCorners) {
    const char* names[] = {"Map1Bob", "Map2Bob", "Map3Bob", "Map4Bob",
                           "Map1BfE", "Map2BfE", "Map3BfE", "Map4BfE"};
    const auto rows = db.Rows("SELECT Recnum,Name,Top,Left,Bottom,Right FROM Maps ORDER BY Recnum");
    ASSERT_EQ(rows.size(), 8u);
    for (int i = 0; i < 8; ++i) {
        EXPECT_EQ(rows[i][0], std::to_string(i + 1));
        EXPECT_EQ(rows[i][1], names[i]);
        // Corners are two-decimal coordinate texts, like "N52 28.00" and "W01 38.00".
        EXPECT_EQ(rows[i][2].substr(0, 1), "N");
        EXPECT_EQ(rows[i][4].substr(0, 1), "N");
        for (int c = 2; c <= 5; ++c)
            EXPECT_EQ(rows[i][c].size(), 9u) << rows[i][c];
    }
    EXPECT_EQ(rows[0][3], "W01 38.00");
    EXPECT_EQ(rows[7][3], "E03 36.00");
}

TEST_F(ReferenceDataTest, FamilyAndAllegianceListsHaveThreeRowsInOrder) {
    EXPECT_EQ(db.Rows("SELECT UnitRole,Family FROM tblFamily"),
              (std::vector<Row>{{"Fighter", "1"}, {"Bomber", "2"}, {"Other", "3"}}));
    EXPECT_EQ(db.Rows("SELECT AirforceName,Allegiance FROM tblAllegiance"),
              (std::vector<Row>{{"RAF", "1"}, {"Luftwaffe", "2"}, {"USAAF", "3"}}));
}

TEST_F(ReferenceDataTest, InstallationHoldsEnoughOfEverything) {
    const struct {
        const char* sql;
        long long atLeast;
    } cases[] = {
        {"SELECT Count(*) FROM Airfields", 40},
        {"SELECT Count(*) FROM Aircraft", 40},
        {"SELECT Count(*) FROM Stationary", 40},
        {"SELECT Count(*) FROM GrndNames WHERE IsDefault=True", 12},
        {"SELECT Count(*) FROM GrndNames WHERE GUType=1", 1},
        {"SELECT Count(*) FROM GrndNames WHERE GUType=2", 1},
        {"SELECT Count(*) FROM GrndNames WHERE GUType=3", 1},
        {"SELECT Count(DISTINCT Allegiance) FROM Aircraft", 3},
        {"SELECT Count(DISTINCT Family) FROM Aircraft", 3},
        {"SELECT Count(*) FROM Aircraft WHERE Family=3 AND Allegiance=2", 4},
        {"SELECT Count(*) FROM Aircraft WHERE Family=3 AND Allegiance=1", 4},
    };
    for (const auto& c : cases)
        EXPECT_GE(db.Int(c.sql), c.atLeast) << c.sql;
    EXPECT_EQ(db.Int("SELECT Count(*) FROM tblMissions "), 0);
}

TEST_F(ReferenceDataTest, NewPilotListOffersOnlyFlyableAircraft) {
    // The program filters with "Add2Combo=True": booleans must be stored as 1.
    const auto offered =
        db.Rows("SELECT ShortName,ACId FROM Aircraft WHERE Add2Combo=True ORDER BY ShortName;");
    EXPECT_GE(offered.size(), 30u);
    EXPECT_EQ(db.Int("SELECT Count(*) FROM Aircraft WHERE Add2Combo=True AND Family=3"), 0);
    EXPECT_EQ(db.Int("SELECT Count(*) FROM Aircraft WHERE ShortName LIKE '% %' OR ShortName=''"),
              0);
}

TEST_F(ReferenceDataTest, UnitTotalIsTheSumOfEachLayoutsTypes) {
    EXPECT_EQ(db.Int("SELECT Count(*) FROM GrndNames n WHERE UnitTotal <> "
                     "(SELECT COALESCE(SUM(UnitType), 0) FROM GrndTypes t WHERE t.ID = n.ID)"),
              0);
    // A mission without layout comments finds its layout by this sum alone.
    EXPECT_EQ(db.Int("SELECT Count(DISTINCT UnitTotal) FROM GrndNames"),
              db.Int("SELECT Count(*) FROM GrndNames"));
}

TEST_F(ReferenceDataTest, LayoutsFitTheMissionFile) {
    // Ids below 10000, at most 60 units each (unit ids are 60 apart), every type known,
    // offsets small enough to be turned in the editor.
    EXPECT_EQ(db.Int("SELECT Count(*) FROM GrndNames WHERE ID NOT BETWEEN 1 AND 9999"), 0);
    EXPECT_EQ(db.Int("SELECT Count(*) FROM (SELECT ID FROM GrndTypes GROUP BY ID "
                     "HAVING Count(*) > 60 OR Count(*) < 1)"),
              0);
    EXPECT_EQ(db.Int("SELECT Count(*) FROM GrndNames n WHERE NOT EXISTS "
                     "(SELECT 1 FROM GrndTypes t WHERE t.ID = n.ID)"),
              0);
    EXPECT_EQ(db.Int("SELECT Count(*) FROM qryGroundUnitDetails WHERE FullName IS NULL "
                     "OR StationaryName IS NULL OR Allegiance IS NULL"),
              0);
    EXPECT_EQ(db.Int("SELECT Count(*) FROM GrndTypes WHERE abs(XOffset) > 2 OR abs(YOffset) > 2"),
              0);
}

TEST_F(ReferenceDataTest, EveryPatternHoldsStationsForItsPilots) {
    const int ids[] = {7000, 7002, 7003, 7004, 7005, 7007, 7009, 7010,
                       7011, 7050, 7051, 7052, 7053, 7054, 7056};
    for (int id : ids) {
        const auto limit =
            db.Rows("SELECT frmID,TotalUnits FROM frmNames Where frmID=" + std::to_string(id));
        ASSERT_EQ(limit.size(), 1u) << id;
        const int total = std::stoi(limit[0][1]);
        EXPECT_GE(total, 1) << id;
        EXPECT_LE(total, 20) << id;  // pilot ids of a group are 20 apart
        const auto stations = db.Rows("SELECT frmID, frmX,frmY,frmZ FROM frmPatterns Where frmID=" +
                                      std::to_string(id));
        EXPECT_GE(static_cast<int>(stations.size()), total) << id;
        // The leader flies the first station; no two pilots share one.
        ASSERT_FALSE(stations.empty());
        EXPECT_EQ(stations[0], (Row{std::to_string(id), "0", "0", "0"})) << id;
        EXPECT_EQ(std::set<Row>(stations.begin(), stations.end()).size(), stations.size()) << id;
    }
    EXPECT_EQ(db.Int("SELECT Count(*) FROM frmNames"), 15);
}

TEST_F(ReferenceDataTest, NextIdsAreFreeAndInRange) {
    const long long guId = db.Int("SELECT NextID FROM qryNextGuID");
    EXPECT_GT(guId, 0);
    EXPECT_LT(guId, 10000);
    EXPECT_EQ(db.Int("SELECT Count(*) FROM GrndNames WHERE ID=" + std::to_string(guId)), 0);
    EXPECT_EQ(db.Int("SELECT Count(*) FROM qryNextGuID"), 1);

    // Once the top id is taken, a gap below is used instead of 10000.
    db.Exec(
        "INSERT INTO GrndNames (ID,LayoutName,UnitTotal,IsDefault,GUType) "
        "VALUES (9999,'Top', 0,0,1);");
    const long long gap = db.Int("SELECT NextID FROM qryNextGuID");
    EXPECT_LT(gap, 9999);
    EXPECT_EQ(db.Int("SELECT Count(*) FROM GrndNames WHERE ID=" + std::to_string(gap)), 0);

    const long long acId = db.Int("SELECT NextID FROM qryNextAcID");
    EXPECT_GT(acId, 0);
    EXPECT_LE(acId, 32767);
    EXPECT_EQ(db.Int("SELECT Count(*) FROM Aircraft WHERE ACID=" + std::to_string(acId)), 0);
}

}  // namespace
}  // namespace tarvex::testing
