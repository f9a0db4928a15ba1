#pragma once
// The SQLite connection behind a Database and its recordsets, with the cache of prepared
// statements. Internal to the database layer.
#include <cstdint>
#include <string>
#include <unordered_map>
#include <vector>

#include "refdata/field_value.h"

struct sqlite3;
struct sqlite3_stmt;

namespace tarvex::detail {

enum class ObjectKind { None, Table, View };

class Connection {
  public:
    // Opens an existing file; see Database::Open and Database::OpenReadOnly.
    explicit Connection(const std::string& path, bool readOnly = false);
    ~Connection();
    Connection(const Connection&) = delete;
    Connection& operator=(const Connection&) = delete;

    void Close() noexcept;
    bool IsOpen() const { return db_ != nullptr; }
    const std::string& Path() const { return path_; }

    // Runs every statement of the text (already in SQLite's dialect).
    void Run(const std::string& sql);
    // Runs one statement with its parameters bound in order; the rows it may give are ignored.
    void Run(const std::string& sql, const std::vector<FieldValue>& parameters);
    // Every row of one statement, with its parameters bound in order; `columns` gets the
    // names of the result's columns when not null.
    std::vector<std::vector<FieldValue>> Query(const std::string& sql,
                                               const std::vector<FieldValue>& parameters = {},
                                               std::vector<std::string>* columns = nullptr);
    // The names of a statement's result columns, without running it. The reference holds
    // until the next statement is prepared.
    const std::vector<std::string>& ColumnNames(const std::string& sql);

    std::int64_t LastInsertRowid() const;
    // Whether a name is a table or a view, without regard to case; `canonical` gets the name
    // as the schema spells it.
    ObjectKind KindOf(const std::string& name, std::string* canonical = nullptr);

    [[noreturn]] void RaiseEngineError() const;

  private:
    struct Prepared {
        sqlite3_stmt* statement = nullptr;
        std::vector<std::string> columns;
    };

    // A reset statement for one statement text, prepared once and kept with the names of
    // its columns.
    Prepared& Prepare(const std::string& sql);

    sqlite3* db_ = nullptr;
    std::string path_;
    std::unordered_map<std::string, Prepared> cache_;
};

}  // namespace tarvex::detail
