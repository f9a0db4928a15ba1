// Every SQL text and name the program sends, run against the schema and the default rows:
// each must run and yield exactly the fields its readers take by position.
#include <gtest/gtest.h>

#include "common/error.h"
#include "common/text.h"
#include "refdata/database.h"
#include "support/reference_folder.h"

namespace tarvex {
namespace {

class ProgramQueriesTest : public testing::ReferenceFolderTest {
  protected:
    void SetUp() override {
        ReferenceFolderTest::SetUp();
        db.Open(dbPath);
    }
    Database db;
};

std::string FieldList(Recordset& rs) {
    std::string list;
    for (int i = 0; i < rs.FieldCount(); ++i)
        list += (i ? "," : "") + rs.FieldName(i);
    return list;
}

TEST_F(ProgramQueriesTest, EveryTextYieldsItsFieldsInOrder) {
    const std::string layoutFields = "ID,UnitType,Points,Heading,XOffset,YOffset,DamageID";
    const std::string gridUnits = "ID,UnitType,FullName,Points,Heading,XOffset,YOffset";
    const std::string offsets = "ID,FullName,XOffset,YOffset,Expr1,Expr2,IsDefault";
    const std::string aircraftGrid =
        "AcID,ShortName,LongName,Family,Allegiance,Gun,Cannon,Rockets,Bombs,AirforceName,"
        "UnitRole";
    const std::string missions =
        "MissionID,Title,Type,Summary,Objective,Date,Time,Reqrd,Clouds,Wind,Visibility,Map,"
        "Allegiance,Filename";
    const std::string missionsSource =
        "select [MissionID],[Title],[Type],[Summary],[Objective],[Date],[Time],[Reqrd],"
        "[Clouds],[Wind],[Visibility],[Map],[Allegiance],[Filename] from [tblMissions] ";
    const std::string unitsSource =
        "select [ID],[UnitType],[FullName],[Points],[Heading],[XOffset],[YOffset]";
    const std::string offsetsSource =
        "select [ID],[FullName],[XOffset],[YOffset],[Expr1],[Expr2],[IsDefault] from [";
    const std::string aircraftSource =
        "select [AcID],[ShortName],[LongName],[Family],[Allegiance],[Gun],[Cannon],[Rockets],"
        "[Bombs],[AirforceName],[UnitRole] from [qryAllMovingUnits]";
    const struct {
        std::string sql;
        int type;
        std::string fields;
        bool rows;  // the default rows give at least one
    } cases[] = {
        {"SELECT ShortName,ACId FROM Aircraft ORDER BY Family ASC,ShortName Asc;", kSnapshot,
         "ShortName,ACId", true},
        {"SELECT ShortName,ACId FROM Aircraft WHERE Allegiance=2 And Family=1 ORDER BY Family "
         "ASC,ShortName Asc;",
         kSnapshot, "ShortName,ACId", true},
        {"SELECT ShortName,ACId FROM Aircraft WHERE Family=2 ORDER BY Family ASC,ShortName Asc;",
         kSnapshot, "ShortName,ACId", true},
        {"SELECT ShortName,ACId FROM Aircraft WHERE Add2Combo=True ORDER BY ShortName;", kSnapshot,
         "ShortName,ACId", true},
        {"SELECT ShortName,ACId FROM Aircraft WHERE Allegiance=1 AND Add2Combo=True ORDER BY "
         "ShortName;",
         kSnapshot, "ShortName,ACId", true},
        {"SELECT AcID,Family,Allegiance,Gun,Cannon,Rockets,Bombs FROM Aircraft Where ACID=1",
         kSnapshot, "AcID,Family,Allegiance,Gun,Cannon,Rockets,Bombs", true},
        {"SELECT AcID FROM Aircraft Where ACID=1", kSnapshot, "AcID", true},
        {"SELECT AcID,ShortName,Family,Allegiance,Gun,Cannon,Rockets,Bombs FROM Aircraft Where "
         "ACID=1",
         kSnapshot, "AcID,ShortName,Family,Allegiance,Gun,Cannon,Rockets,Bombs", true},
        {"SELECT ACID FROM Aircraft Where ACId=1", kSnapshot, "ACID", true},
        {"SELECT UnitRole,Family FROM tblFamily", kSnapshot, "UnitRole,Family", true},
        {"SELECT AirforceName,Allegiance FROM tblAllegiance", kSnapshot, "AirforceName,Allegiance",
         true},
        {"SELECT Name,RwyID FROM Airfields ORDER BY Name;", kSnapshot, "Name,RwyID", true},
        {"SELECT Recnum,RwyID,RwyLat,RwyLon,TypeID,Elevation,ROT FROM Airfields Where Recnum=1",
         kSnapshot, "Recnum,RwyID,RwyLat,RwyLon,TypeID,Elevation,ROT", true},
        {"SELECT Recnum,RwyID,RwyLat,RwyLon FROM Airfields Where RwyID=201", kSnapshot,
         "Recnum,RwyID,RwyLat,RwyLon", true},
        {"SELECT RwyID,RwyLat,RwyLon,TypeID,Elevation,ROT,Units FROM qryAirFields Where "
         "RwyID=201",
         kSnapshot, "RwyID,RwyLat,RwyLon,TypeID,Elevation,ROT,Units", true},
        {"SELECT Recnum FROM Maps Where Name=\"Map1Bob\"", kSnapshot, "Recnum", true},
        {"SELECT Recnum,Name FROM Maps Where Name=\"Map1Bob\"", kSnapshot, "Recnum,Name", true},
        {"SELECT Recnum,Name,Top,Left,Bottom,Right FROM Maps Where Recnum=1", kSnapshot,
         "Recnum,Name,Top,Left,Bottom,Right", true},
        {"SELECT frmID,TotalUnits FROM frmNames Where frmID=7000", kSnapshot, "frmID,TotalUnits",
         true},
        {"SELECT frmID, frmX,frmY,frmZ FROM frmPatterns Where frmID=7000", kSnapshot,
         "frmID,frmX,frmY,frmZ", true},
        {"SELECT LayoutName,ID FROM GrndNames WHERE GUType=1 ORDER BY LayoutName;", kSnapshot,
         "LayoutName,ID", true},
        {"SELECT LayoutName,ID FROM GrndNames WHERE GUType > 1 ORDER BY LayoutName;", kSnapshot,
         "LayoutName,ID", true},
        {"SELECT LayoutName,ID FROM GrndNames order by LayoutName", kSnapshot, "LayoutName,ID",
         true},
        {"SELECT IsDefault,GUType FROM GrndNames Where ID=1", kSnapshot, "IsDefault,GUType", true},
        {"SELECT IsDefault FROM GrndNames Where ID=1", kUpdatable, "IsDefault", true},
        {"SELECT GUType,IsDefault FROM GrndNames Where ID=1", kSnapshot, "GUType,IsDefault", true},
        {"SELECT UnitTotal,GUType FROM GrndNames Where ID=1", kUpdatable, "UnitTotal,GUType", true},
        {"SELECT UnitTotal FROM GrndNames Where ID=1", kSnapshot, "UnitTotal", true},
        {"SELECT ID,UnitTotal FROM GrndNames WHERE ID =1", kUpdatable, "ID,UnitTotal", true},
        {"SELECT UnitTotal,ID,LayoutName,IsDefault,GUType FROM GrndNames Where ID=1", kSnapshot,
         "UnitTotal,ID,LayoutName,IsDefault,GUType", true},
        {"SELECT UnitTotal,ID,LayoutName,IsDefault,GUType FROM GrndNames Where UnitTotal=-1",
         kSnapshot, "UnitTotal,ID,LayoutName,IsDefault,GUType", false},
        {"SELECT * FROM GrndTypes Where ID=1", kSnapshot, layoutFields, true},
        {"SELECT ID,UnitType,Points,Heading,XOffset,YOffset FROM GrndTypes Where ID=1", kSnapshot,
         "ID,UnitType,Points,Heading,XOffset,YOffset", true},
        {"SELECT ID,UnitType,Points,Heading,XOffset,YOffset,DamageID FROM GrndTypes Where ID=1",
         kSnapshot, layoutFields, true},
        {"SELECT ID,UnitType FROM GrndTypes Where ID=1", kSnapshot, "ID,UnitType", true},
        {"SELECT ID,FullName,XOffset,YOffset FROM qryGroundUnitDetails Where ID=1 ORDER BY "
         "Fullname",
         kSnapshot, "ID,FullName,XOffset,YOffset", true},
        {"SELECT ID,Points,FullName FROM qryGroundUnitDetails Where ID=1", kSnapshot,
         "ID,Points,FullName", true},
        {"SELECT UnitType,StationaryName,Allegiance FROM qryGroundUnitDetails Where "
         "UnitType=4001 ORDER BY GrndTypes.ID",
         kSnapshot, "UnitType,StationaryName,Allegiance", true},
        {"SELECT FullName,UnitType FROM Stationary order by FullName,UnitType", kSnapshot,
         "FullName,UnitType", true},
        {"SELECT DISTINCT Fullname,UnitType FROM Stationary ORDER BY Fullname;", kSnapshot,
         "Fullname,UnitType", true},
        {"select [ID],[LayoutName],[UnitTotal],[IsDefault] from [GrndNames] where [ID]=1",
         kUpdatable, "ID,LayoutName,UnitTotal,IsDefault", true},
        {unitsSource + ",[Damage],[DamageID] from [qryGroundUnitDetails] where [ID]=1 Order BY "
                       "[Fullname]",
         kUpdatable, gridUnits + ",Damage,DamageID", true},
        {unitsSource + " from [qryGroundUnitDetails] where [ID]=1 Order By XOffset", kUpdatable,
         gridUnits, true},
        {offsetsSource + "qryGUOffsetsMetric] where [ID]=1 ORDER BY Fullname", kUpdatable, offsets,
         true},
        {offsetsSource + "qryGUOffsetsImp] where [ID]=1 ORDER BY Fullname", kUpdatable, offsets,
         true},
        {aircraftSource, kUpdatable, aircraftGrid, true},
        {aircraftSource + " where [Allegiance]=2 and [Family]=1 order by [ShortName]", kUpdatable,
         aircraftGrid, true},
        {"SELECT Count(*) FROM tblMissions ", kSnapshot, "Count(*)", true},
        {missionsSource + "order by [Title]", kUpdatable, missions, false},
        {missionsSource + "where allegiance=3 order by [Title]", kUpdatable, missions, false},
        {"GrndNames", kUpdatable, "ID,LayoutName,UnitTotal,IsDefault,GUType", true},
        {"GrndTypes", kUpdatable, layoutFields, true},
        {"tblMissions", kUpdatable,
         "MissionID,Title,Type,Summary,Objective,Date,Time,Reqrd,Clouds,Wind,Visibility,"
         "Allegiance,Map,Filename",
         false},
        {"qryNextGuID", kUpdatable, "NextID", true},
        {"qryNextAcID", kSnapshot, "NextID", true},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.sql);
        try {
            Recordset rs = db.OpenRecordset(c.sql, c.type);
            // Field names match without regard to case.
            EXPECT_TRUE(SameText(FieldList(rs), c.fields)) << FieldList(rs);
            EXPECT_EQ(rs.RecordCount() > 0, c.rows);
        } catch (const AppError& error) {
            ADD_FAILURE() << error.Number() << " " << error.Description();
        }
    }
}

// The statements of a layout that a mission brings in: a free id, the layout, its units,
// its fingerprint, the search by fingerprint, and the delete of a layout that didn't match.
TEST_F(ProgramQueriesTest, ExecutedTextsChangeTheLayoutTables) {
    const int id = db.OpenRecordset("qryNextGuID").Fields("NextID").Long();
    ASSERT_GT(id, 0);
    ASSERT_LT(id, 10000);
    const std::string ids = std::to_string(id);
    db.Execute(" INSERT INTO GrndNames (ID,LayoutName,UnitTotal,IsDefault,GUType) VALUES (" + ids +
               ",'Brought by a mission', 0,0,1);");
    db.Execute(" INSERT INTO GrndTypes (ID,UnitType,Points,XOffset,YOffset) VALUES (" + ids +
               ",4001,2,0.125,-0.5);");
    db.Execute(" INSERT INTO GrndTypes (ID,UnitType,Points,XOffset,YOffset) VALUES (" + ids +
               ",4002,0,1,2);");
    db.Execute("UPDATE GrndNames Set UnitTotal = 8003 where ID = " + ids);
    Recordset rs = db.OpenRecordset(
        "SELECT UnitTotal,ID,LayoutName,IsDefault,GUType FROM GrndNames Where UnitTotal=8003",
        kSnapshot);
    ASSERT_FALSE(rs.Eof());
    EXPECT_EQ(rs.Fields(1).Long(), id);
    EXPECT_EQ(rs.Fields(2).Text(), "Brought by a mission");
    EXPECT_FALSE(rs.Fields(3).Bool());
    rs.Close();
    EXPECT_NE(db.OpenRecordset("qryNextGuID", kSnapshot).Fields(0).Long(), id);

    db.Execute("DELETE * FROM GrndNames where ID = " + ids);
    EXPECT_TRUE(db.OpenRecordset("SELECT ID FROM GrndTypes Where ID=" + ids, kSnapshot).Eof());

    db.Execute("INSERT INTO tblMissions (Title) VALUES ('x')");
    db.Execute("DELETE * FROM tblMissions");
    EXPECT_EQ(db.OpenRecordset("SELECT Count(*) FROM tblMissions ", kSnapshot).Fields(0).Long(), 0);
}

}  // namespace
}  // namespace tarvex
