#pragma once
// The SQLite connection behind a Database and its recordsets, with the cache of prepared
// statements. Internal to the database layer.
#include <cstdint>
#include <deque>
#include <memory>
#include <string>
#include <unordered_map>
#include <vector>

#include "refdata/field_value.h"

struct sqlite3;
struct sqlite3_stmt;

namespace tarvex::detail {

enum class ObjectKind { None, Table, View };

class Connection;

// The rows of a read-only statement, taken from the engine as they are asked for: a lookup
// that reads one row of a large result pays for one row. Before its connection writes
// anything, every open cursor reads the rest of its rows, so that a cursor gives the state
// of the database at its opening, as a copy of the result would.
class Cursor {
  public:
    Cursor(const Cursor&) = delete;
    Cursor& operator=(const Cursor&) = delete;
    ~Cursor();

    // The next row; false at the end. A connection closed meanwhile raises error 3420.
    bool Next(std::vector<FieldValue>& row);

  private:
    friend class Connection;
    Cursor(Connection& connection, sqlite3_stmt* statement, void* cached);

    bool Step(std::vector<FieldValue>& row);
    // Reads every row left into the buffer and lets the statement go.
    void Settle();
    void Release() noexcept;

    Connection* connection_;
    sqlite3_stmt* statement_;
    void* cached_;  // the cache entry the statement was taken from; null when it is its own
    std::deque<std::vector<FieldValue>> buffered_;
    bool done_ = false;
    bool closed_ = false;  // the connection went
};

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
    // The rows of one read-only statement, to be taken one by one.
    std::shared_ptr<Cursor> OpenCursor(const std::string& sql,
                                       const std::vector<FieldValue>& parameters);
    // The names of a statement's result columns, without running it. The reference holds
    // until the next statement is prepared.
    const std::vector<std::string>& ColumnNames(const std::string& sql);

    std::int64_t LastInsertRowid() const;
    // Whether a name is a table or a view, without regard to case; `canonical` gets the name
    // as the schema spells it.
    ObjectKind KindOf(const std::string& name, std::string* canonical = nullptr);

    [[noreturn]] void RaiseEngineError() const;

  private:
    friend class Cursor;

    struct Prepared {
        sqlite3_stmt* statement = nullptr;
        std::vector<std::string> columns;
        bool inUse = false;  // an open cursor steps it
    };

    // A statement of the cache for one statement text, prepared once and kept with the names
    // of its columns.
    Prepared& Prepare(const std::string& sql);
    // A reset statement for the text: the cache's, or one of its own (`owned`) while an open
    // cursor holds the cache's.
    sqlite3_stmt* Statement(const std::string& sql, bool& owned, Prepared*& cached);
    // Lets every open cursor read its rows before the connection writes.
    void SettleCursors();
    void ForgetCursor(Cursor* cursor) noexcept;

    sqlite3* db_ = nullptr;
    std::string path_;
    std::unordered_map<std::string, Prepared> cache_;
    std::vector<Cursor*> cursors_;  // open cursors that still hold a statement
};

}  // namespace tarvex::detail
