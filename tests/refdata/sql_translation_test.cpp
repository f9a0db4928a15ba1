#include "refdata/sql_translation.h"

#include <gtest/gtest.h>

#include "refdata/sql_tokens.h"

namespace tarvex {
namespace {

TEST(SqlTranslationTest, RewritesOnlyTheForeignForms) {
    const struct {
        const char* in;
        const char* out;
    } cases[] = {
        {"DELETE * FROM tblMissions", "DELETE FROM tblMissions"},
        {"DELETE * FROM GrndNames where ID = 12", "DELETE FROM GrndNames where ID = 12"},
        {"delete *from x", "delete from x"},
        {"SELECT Recnum FROM Maps Where Name=\"Map1Bob\"",
         "SELECT Recnum FROM Maps Where Name='Map1Bob'"},
        {"SELECT Recnum FROM Maps Where Name=\"O'Hare \"\"X\"\"\"",
         "SELECT Recnum FROM Maps Where Name='O''Hare \"X\"'"},
        // Quotes inside a single-quoted literal or brackets stay as they are.
        {"INSERT INTO GrndNames (ID,LayoutName) VALUES (5,'say \"hi\"');",
         "INSERT INTO GrndNames (ID,LayoutName) VALUES (5,'say \"hi\"');"},
        {"SELECT UnitType,StationaryName,Allegiance FROM qryGroundUnitDetails Where "
         "UnitType=4001 ORDER BY GrndTypes.ID",
         "SELECT UnitType,StationaryName,Allegiance FROM qryGroundUnitDetails Where "
         "UnitType=4001 ORDER BY ID"},
        // A qualifier that the FROM clause names is kept.
        {"SELECT ID FROM GrndTypes ORDER BY GrndTypes.ID",
         "SELECT ID FROM GrndTypes ORDER BY GrndTypes.ID"},
        {"SELECT a FROM t WHERE t.b=1 ORDER BY [x].[c], t.d DESC",
         "SELECT a FROM t WHERE t.b=1 ORDER BY [c], t.d DESC"},
        {"select [ID],[LayoutName] from [GrndNames] where [ID]=3",
         "select [ID],[LayoutName] from [GrndNames] where [ID]=3"},
        {"SELECT ShortName,ACId FROM Aircraft WHERE Add2Combo=True ORDER BY ShortName;",
         "SELECT ShortName,ACId FROM Aircraft WHERE Add2Combo=True ORDER BY ShortName;"},
    };
    for (const auto& c : cases)
        EXPECT_EQ(TranslateSql(c.in), c.out) << c.in;
}

TEST(SqlTokensTest, FindsTheOneSourceOfASelect) {
    const struct {
        const char* sql;
        const char* source;
        const char* list;
    } cases[] = {
        {"SELECT ID,UnitTotal FROM GrndNames WHERE ID =4", "GrndNames", "ID,UnitTotal"},
        {"select [ID],[FullName] from [qryGUOffsetsMetric] where [ID]=1 ORDER BY Fullname",
         "qryGUOffsetsMetric", "[ID],[FullName]"},
        {"SELECT count(*) FROM (SELECT ID FROM GrndNames)", "", "count(*)"},
        {"SELECT a.x FROM a JOIN b ON a.i=b.i", "", "a.x"},
        {"UPDATE GrndNames SET x=1", "", ""},
    };
    for (const auto& c : cases) {
        const SelectParts parts = ParseSelect(c.sql);
        EXPECT_EQ(parts.singleSource, c.source) << c.sql;
        EXPECT_EQ(parts.selectList, c.list) << c.sql;
    }
    EXPECT_EQ(NameOnly(" [GrndTypes] "), "GrndTypes");
    EXPECT_EQ(NameOnly("qryNextGuID"), "qryNextGuID");
    EXPECT_EQ(NameOnly("SELECT * FROM x"), "");
}

}  // namespace
}  // namespace tarvex
