#include <gtest/gtest.h>
#include <sqlite3.h>

#include <filesystem>
#include <string>
#include <vector>

#include "common/error.h"
#include "shell/controls/data_grid.h"
#include "shell/controls/data_source.h"

namespace tarvex {
namespace {

class DataGridTest : public ::testing::Test {
  protected:
    void SetUp() override {
        path_ =
            (std::filesystem::temp_directory_path() /
             ("tarvex_grid_" + std::to_string(::testing::UnitTest::GetInstance()->random_seed()) +
              "_" + ::testing::UnitTest::GetInstance()->current_test_info()->name() + ".db"))
                .string();
        std::filesystem::remove(path_);
        sqlite3* db = nullptr;
        ASSERT_EQ(sqlite3_open(path_.c_str(), &db), SQLITE_OK);
        ASSERT_EQ(sqlite3_exec(db,
                               "CREATE TABLE Units (ID INTEGER NOT NULL, FullName TEXT NOT NULL,"
                               " Points INTEGER DEFAULT 0);"
                               "INSERT INTO Units VALUES (1, 'Tank', 5), (2, 'Flak', 7),"
                               " (3, 'Truck', 1);",
                               nullptr, nullptr, nullptr),
                  SQLITE_OK);
        sqlite3_close(db);

        source.SetDatabaseName(path_);
        source.SetRecordSource("SELECT ID, FullName, Points FROM Units");
        grid.SetDataSource(source);
        grid.AddColumn("Id", "ID");
        grid.AddColumn("Name", "FullName");
        grid.AddColumn("Points", "Points");
    }
    void TearDown() override {
        // The handlers captured the test body's locals, which are gone by now.
        source.Validate.Disconnect();
        source.Close();
        std::filesystem::remove(path_);
    }

    std::string path_;
    DataSource source{"datSecondaryRS"};
    DataGrid grid{"grdDataGrid"};
};

TEST_F(DataGridTest, RefreshShowsTheRowsAndStandsOnTheFirst) {
    int repositions = 0;
    source.Reposition.Connect([&] { ++repositions; });
    source.Refresh();
    EXPECT_EQ(repositions, 1);
    EXPECT_EQ(grid.RowCount(), 3);
    EXPECT_EQ(grid.Row(), 0);
    EXPECT_EQ(grid.CellText(2, 1), "Truck");
    EXPECT_EQ(grid.Columns(1).Text(), "Tank");
    EXPECT_THROW(grid.Columns(3), AppError);
}

TEST_F(DataGridTest, NewRowStartsARecordOnTheFirstValueAndUpdateRecordFilesIt) {
    source.Refresh();
    int addNews = 0;
    grid.OnAddNew.Connect([&] {
        ++addNews;
        grid.Columns(2).SetValue(9);  // a default, as the forms set them
    });
    grid.SetRow(3);
    EXPECT_TRUE(grid.OnNewRow());
    EXPECT_EQ(source.Recordset().AbsolutePosition(), -1);
    EXPECT_FALSE(grid.DataChanged());

    grid.Columns(0).SetValue(4);
    grid.Columns(1).SetValue("Jeep");
    EXPECT_EQ(addNews, 1);
    EXPECT_TRUE(grid.DataChanged());

    source.UpdateRecord();
    source.Recordset().SetBookmark(source.Recordset().LastModified());
    EXPECT_EQ(source.Recordset().RecordCount(), 4);
    EXPECT_EQ(source.Recordset().Fields("Points").Long(), 9);
    EXPECT_FALSE(grid.DataChanged());
}

TEST_F(DataGridTest, DownFromTheLastRecordReachesTheNewRowUnlessSwallowed) {
    source.Refresh();
    source.Recordset().MoveLast();
    grid.UserKeyDown(kKeyDown, 0);
    EXPECT_TRUE(grid.OnNewRow());
    EXPECT_EQ(source.Recordset().AbsolutePosition(), -1);
    grid.UserKeyDown(kKeyDown, 0);
    EXPECT_EQ(grid.Row(), 3);

    grid.KeyDown.Connect([](int& keyCode, int) { keyCode = 0; });
    grid.UserKeyDown(kKeyUp, 0);
    EXPECT_EQ(grid.Row(), 3);
}

TEST_F(DataGridTest, LeavingAChangedRowStoresItBeforeTheMove) {
    source.Refresh();
    std::vector<std::string> events;
    source.Validate.Connect([&](int& action, int& save) {
        events.push_back("validate " + std::to_string(action) + " " + std::to_string(save));
    });
    grid.AfterUpdate.Connect([&] { events.push_back("after update"); });
    grid.RowColChange.Connect([&](int lastRow, int lastCol) {
        events.push_back("rowcol " + std::to_string(lastRow) + " " + std::to_string(lastCol) +
                         " now " + std::to_string(grid.Row()));
    });
    grid.UserMoveTo(0, 2);
    grid.UserEditCell("50");
    grid.UserMoveTo(1, 2);
    EXPECT_EQ(events, (std::vector<std::string>{"rowcol 0 0 now 0", "validate 6 1", "after update",
                                                "validate 9 0", "rowcol 0 2 now 1"}));
    source.Refresh();
    EXPECT_EQ(grid.CellText(0, 2), "50");
}

TEST_F(DataGridTest, AfterColUpdateCanRefuseTheTypedValue) {
    source.Refresh();
    grid.AfterColUpdate.Connect([&](int col) {
        if (col == 0) grid.SetCurrentCellModified(false);
    });
    grid.UserMoveTo(1, 0);
    grid.UserEditCell("99");
    EXPECT_EQ(grid.Columns(0).Text(), "2");
    grid.Columns(2).SetLocked(true);
    grid.UserMoveTo(1, 2);
    grid.UserEditCell("3");
    EXPECT_EQ(grid.Columns(2).Text(), "7");
}

TEST_F(DataGridTest, AFailedStoreOfTheUserGoesToTheErrorEvent) {
    source.Refresh();
    int reported = 0;
    source.Error.Connect([&](int number, int& response) {
        reported = number;
        response = kDataErrContinue;
    });
    grid.UserMoveTo(3, 0);
    grid.UserEditCell("8");  // no FullName: the store must fail
    grid.UserMoveTo(0, 0);
    EXPECT_EQ(reported, kErrSqlFailed);
    EXPECT_EQ(source.Recordset().RecordCount(), 3);

    source.Error.Disconnect();
    EXPECT_THROW(grid.UserMoveTo(0, 0), AppError);
}

TEST_F(DataGridTest, RowSelectionByBookmarksRaisesSelChangeOnEveryPress) {
    source.Refresh();
    int changes = 0;
    grid.SelChange.Connect([&] { ++changes; });
    grid.UserSelectRow(1, false);
    grid.UserSelectRow(1, false);
    grid.UserSelectRow(2, true);
    EXPECT_EQ(changes, 3);
    ASSERT_EQ(grid.SelBookmarks().size(), 2u);
    source.Recordset().SetBookmark(grid.SelBookmarks()[0]);
    EXPECT_EQ(source.Recordset().Fields("FullName").Text(), "Flak");
    grid.RemoveSelBookmark(1);
    EXPECT_EQ(grid.SelBookmarks().size(), 1u);
    EXPECT_THROW(grid.RemoveSelBookmark(1), AppError);
}

}  // namespace
}  // namespace tarvex

namespace tarvex {
namespace {

// Forms may declare the grid before its source, so the source is destroyed first.
TEST(DataGridBindingTest, AGridOutlivingItsSourceLetsGo) {
    DataGrid grid("dbgGUOffsets");
    {
        DataSource source("dataGUOffsets");
        grid.SetDataSource(source);
        EXPECT_EQ(grid.Source(), &source);
    }
    EXPECT_EQ(grid.Source(), nullptr);
    EXPECT_EQ(grid.Row(), -1);
    EXPECT_EQ(grid.RowCount(), 0);
}

}  // namespace
}  // namespace tarvex
