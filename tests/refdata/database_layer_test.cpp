// The database layer below the program's SQL texts: values taken out of a text and bound,
// snapshots read as they are asked for, files that aren't databases left alone.
#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>

#include "common/error.h"
#include "refdata/database.h"
#include "refdata/reference_database.h"
#include "refdata/sql_parameters.h"
#include "support/reference_folder.h"

namespace tarvex {
namespace {

namespace fs = std::filesystem;

// Only operands of comparisons and items of a VALUES list become parameters: a number that
// names a column of ORDER BY, a literal of a definition or a PRAGMA stays in the text.
TEST(SqlParametersTest, TakesOutTheValuesThatCanBeBound) {
    const struct {
        const char* sql;
        const char* shape;
        std::vector<FieldValue> values;
    } cases[] = {
        {"SELECT AcID FROM Aircraft Where ACID=12", "SELECT AcID FROM Aircraft Where ACID=?", {12}},
        {"SELECT Recnum,Name FROM Maps Where Name=\"O'Brien \"\"Map\"\"\"",
         "SELECT Recnum,Name FROM Maps Where Name=?",
         {"O'Brien \"Map\""}},
        {" INSERT INTO GrndTypes (ID,UnitType,Points,XOffset,YOffset) VALUES (7,4001,1,-0.0424,"
         "1.5e-3);",
         " INSERT INTO GrndTypes (ID,UnitType,Points,XOffset,YOffset) VALUES (?,?,?,?,?);",
         {7, 4001, 1, -0.0424, 0.0015}},
        {"UPDATE GrndNames Set UnitTotal = 140 where ID = 3",
         "UPDATE GrndNames Set UnitTotal = ? where ID = ?",
         {140, 3}},
        {"SELECT a FROM t WHERE b >= -2 AND c <> 'x''y' ORDER BY 1",
         "SELECT a FROM t WHERE b >= ? AND c <> ? ORDER BY 1",
         {-2, "x'y"}},
        {"SELECT a - 5 FROM t WHERE b = c - 1", "SELECT a - 5 FROM t WHERE b = c - 1", {}},
        {"PRAGMA busy_timeout = 5000", "PRAGMA busy_timeout = 5000", {}},
        {"CREATE TABLE t (a INTEGER CHECK (a >= 0))",
         "CREATE TABLE t (a INTEGER CHECK (a >= 0))",
         {}},
        {"DELETE FROM t WHERE a = 1; DELETE FROM t WHERE a = 2",
         "DELETE FROM t WHERE a = 1; DELETE FROM t WHERE a = 2",
         {}},
        {"SELECT a FROM t WHERE n = 99999999999999999999", "SELECT a FROM t WHERE n = ?", {1e20}},
    };
    for (const auto& c : cases) {
        const ParameterizedSql p = ParameterizeSql(c.sql);
        EXPECT_EQ(p.shape, c.shape) << c.sql;
        EXPECT_EQ(p.values, c.values) << c.sql;
    }
}

class DatabaseLayerTest : public testing::ReferenceFolderTest {
  protected:
    Database db;
    void SetUp() override {
        ReferenceFolderTest::SetUp();
        db.Open(dbPath);
    }
};

// A snapshot reads its rows as they are asked for, but shows the database as it was when it
// opened, also when the same connection writes before the rows are read.
TEST_F(DatabaseLayerTest, ASnapshotShowsTheDatabaseAsItWasAtItsOpening) {
    Recordset names = db.OpenRecordset("SELECT ID FROM GrndNames ORDER BY ID", kSnapshot);
    Recordset same = db.OpenRecordset("SELECT ID FROM GrndNames ORDER BY ID", kSnapshot);
    const int before = same.RecordCount();
    ASSERT_FALSE(names.Eof());
    db.Execute("DELETE * FROM GrndNames WHERE ID > 1");
    int seen = 0;
    for (; !names.Eof(); names.MoveNext())
        ++seen;
    EXPECT_EQ(seen, before);
    EXPECT_EQ(db.OpenRecordset("SELECT Count(*) FROM GrndNames", kSnapshot).Fields(0).Long(), 1);
    // Closing the database ends what was not read yet.
    Recordset open = db.OpenRecordset("SELECT AcID FROM Aircraft", kSnapshot);
    db.Close();
    try {
        open.MoveLast();
        ADD_FAILURE() << "read on after the close";
    } catch (const AppError& e) {
        EXPECT_EQ(e.Number(), 3420);
    }
}

// What isn't a reference database is never opened for writing: its bytes stay as they were.
TEST_F(DatabaseLayerTest, AFileThatIsntADatabaseIsNeverWritten) {
    const fs::path empty = folder / "empty.mdb";
    std::ofstream(empty, std::ios::binary).flush();
    const fs::path text = folder / "notes.mdb";
    std::ofstream(text, std::ios::binary) << "this is no database";
    for (const fs::path& file : {empty, text}) {
        Database other;
        try {
            other.Open(file.string());
            ADD_FAILURE() << file;
        } catch (const AppError& e) {
            EXPECT_EQ(e.Number(), 3343) << file;
        }
        std::string why;
        EXPECT_FALSE(IsReferenceDatabaseFile(file.string(), why));
        EXPECT_EQ(why,
                  "not a Tarvex reference database: " + file.string() + " (not a database file)");
    }
    EXPECT_EQ(fs::file_size(empty), 0u);
    EXPECT_FALSE(fs::exists(folder / "empty.mdb-wal"));

    // A database of the engine without the program's tables isn't one either.
    const fs::path foreign = folder / "foreign.mdb";
    testing::BuildDatabaseFile(foreign, "CREATE TABLE t (a);");
    std::string why;
    EXPECT_FALSE(IsReferenceDatabaseFile(foreign.string(), why));
    EXPECT_NE(why.find("(the program's tables are missing)"), std::string::npos) << why;
    EXPECT_TRUE(IsReferenceDatabaseFile(dbPath, why)) << why;
}

}  // namespace
}  // namespace tarvex
