#include "test_database.h"

#include <fstream>
#include <sstream>

#include "common/error.h"
#include "support/reference_folder.h"

namespace tarvex::testing {
namespace {

std::string ColumnText(sqlite3_stmt* stmt, int i) {
    if (sqlite3_column_type(stmt, i) == SQLITE_NULL) return "NULL";
    return reinterpret_cast<const char*>(sqlite3_column_text(stmt, i));
}

}  // namespace

TestDatabase::TestDatabase() : folder_(MakeTestFolder("refdb")) {
    const auto file = folder_ / "Tarvex Missions.mdb";
    if (sqlite3_open(file.string().c_str(), &db_) != SQLITE_OK) {
        Raise(kErrPathAccess, "cannot create " + file.string());
    }
    Exec("PRAGMA foreign_keys=ON;");
    Exec(SchemaSql());
    Exec(SeedSql());
}

TestDatabase::~TestDatabase() {
    sqlite3_close(db_);
    std::error_code ec;
    std::filesystem::remove_all(folder_, ec);
}

void TestDatabase::Exec(const std::string& sql) {
    char* message = nullptr;
    if (sqlite3_exec(db_, sql.c_str(), nullptr, nullptr, &message) != SQLITE_OK) {
        std::string text = message ? message : "unknown error";
        sqlite3_free(message);
        Raise(kErrSqlFailed, text);
    }
}

sqlite3_stmt* TestDatabase::Prepare(const std::string& sql) {
    sqlite3_stmt* stmt = nullptr;
    if (sqlite3_prepare_v2(db_, sql.c_str(), -1, &stmt, nullptr) != SQLITE_OK) {
        Raise(kErrSqlFailed, std::string(sqlite3_errmsg(db_)) + " in: " + sql);
    }
    return stmt;
}

std::vector<Row> TestDatabase::Rows(const std::string& sql) {
    sqlite3_stmt* stmt = Prepare(sql);
    std::vector<Row> rows;
    int rc;
    while ((rc = sqlite3_step(stmt)) == SQLITE_ROW) {
        Row row;
        for (int i = 0; i < sqlite3_column_count(stmt); ++i)
            row.push_back(ColumnText(stmt, i));
        rows.push_back(std::move(row));
    }
    sqlite3_finalize(stmt);
    if (rc != SQLITE_DONE) Raise(kErrSqlFailed, sqlite3_errmsg(db_));
    return rows;
}

std::string TestDatabase::Text(const std::string& sql) {
    const auto rows = Rows(sql);
    if (rows.empty() || rows[0].empty()) Raise(kErrNoCurrentRecord);
    return rows[0][0];
}

long long TestDatabase::Int(const std::string& sql) {
    return std::stoll(Text(sql));
}

double TestDatabase::Real(const std::string& sql) {
    return std::stod(Text(sql));
}

std::vector<std::string> TestDatabase::ColumnNames(const std::string& sql) {
    sqlite3_stmt* stmt = Prepare(sql);
    std::vector<std::string> names;
    for (int i = 0; i < sqlite3_column_count(stmt); ++i)
        names.push_back(sqlite3_column_name(stmt, i));
    sqlite3_finalize(stmt);
    return names;
}

void TestDatabase::UpdateThroughView(const std::string& view, const std::string& selector,
                                     const std::string& assignments) {
    EditRows(view, selector, "UPDATE " + view + " SET " + assignments);
}

void TestDatabase::DeleteThroughView(const std::string& view, const std::string& selector) {
    EditRows(view, selector, "DELETE FROM " + view);
}

void TestDatabase::EditRows(const std::string& view, const std::string& selector,
                            const std::string& head) {
    // Copy the original values first, then send one statement per row that names them all.
    sqlite3_stmt* select = Prepare("SELECT * FROM " + view + " WHERE " + selector);
    std::vector<std::string> names;
    for (int i = 0; i < sqlite3_column_count(select); ++i)
        names.push_back(sqlite3_column_name(select, i));
    std::vector<std::vector<sqlite3_value*>> originals;
    while (sqlite3_step(select) == SQLITE_ROW) {
        std::vector<sqlite3_value*> values;
        for (int i = 0; i < static_cast<int>(names.size()); ++i) {
            values.push_back(sqlite3_value_dup(sqlite3_column_value(select, i)));
        }
        originals.push_back(std::move(values));
    }
    sqlite3_finalize(select);

    std::string sql = head + " WHERE ";
    for (size_t i = 0; i < names.size(); ++i)
        sql += (i ? " AND " : "") + names[i] + " IS ?";
    std::string failure;
    for (auto& values : originals) {
        sqlite3_stmt* stmt = Prepare(sql);
        for (size_t i = 0; i < values.size(); ++i) {
            sqlite3_bind_value(stmt, static_cast<int>(i) + 1, values[i]);
            sqlite3_value_free(values[i]);
        }
        if (sqlite3_step(stmt) != SQLITE_DONE && failure.empty()) failure = sqlite3_errmsg(db_);
        sqlite3_finalize(stmt);
    }
    if (!failure.empty()) Raise(kErrSqlFailed, failure);
}

}  // namespace tarvex::testing
