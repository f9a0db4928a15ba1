#pragma once
// A reference database built from data/refdb/ in a temporary folder, with small query helpers
// for the data and schema tests. Failures of SQL raise the program's error type.
#include <sqlite3.h>

#include <filesystem>
#include <string>
#include <vector>

namespace tarvex::testing {

using Row = std::vector<std::string>;

class TestDatabase {
  public:
    // Creates the file from schema.sql and seed.sql with foreign keys on, as the program
    // opens it.
    TestDatabase();
    ~TestDatabase();
    TestDatabase(const TestDatabase&) = delete;
    TestDatabase& operator=(const TestDatabase&) = delete;

    void Exec(const std::string& sql);
    // Every row as text; NULL reads as "NULL".
    std::vector<Row> Rows(const std::string& sql);
    // Field 0 of the first row.
    std::string Text(const std::string& sql);
    long long Int(const std::string& sql);
    double Real(const std::string& sql);
    std::vector<std::string> ColumnNames(const std::string& sql);

    // Edits the rows that `selector` picks from `view` the way the database layer does:
    // every original column of the row goes into the WHERE clause with IS and its own
    // stored value. `assignments` is the SET list, e.g. "XOffset = 0.5".
    void UpdateThroughView(const std::string& view, const std::string& selector,
                           const std::string& assignments);
    void DeleteThroughView(const std::string& view, const std::string& selector);

  private:
    sqlite3_stmt* Prepare(const std::string& sql);
    void EditRows(const std::string& view, const std::string& selector, const std::string& head);

    std::filesystem::path folder_;
    sqlite3* db_ = nullptr;
};

}  // namespace tarvex::testing
