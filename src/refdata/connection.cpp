#include "refdata/connection.h"

#include <sqlite3.h>

#include <cstring>
#include <filesystem>
#include <fstream>

#include "common/error.h"
#include "refdata/database_errors.h"

namespace tarvex::detail {

namespace {

// Texts the program composes with values in them are each run once; past this many, the
// cache starts afresh rather than grow without end.
constexpr size_t kMaxCachedStatements = 512;

// Resets a statement of the cache when the use of it ends, however it ends; one of its own
// is finalized.
class ResetOnExit {
  public:
    ResetOnExit(sqlite3_stmt* statement, bool owned) : statement_(statement), owned_(owned) {}
    ~ResetOnExit() {
        if (owned_) {
            sqlite3_finalize(statement_);
            return;
        }
        sqlite3_reset(statement_);
        sqlite3_clear_bindings(statement_);
    }
    ResetOnExit(const ResetOnExit&) = delete;
    ResetOnExit& operator=(const ResetOnExit&) = delete;

  private:
    sqlite3_stmt* statement_;
    bool owned_;
};

bool HasDatabaseHeader(const std::string& path) {
    static constexpr char kHeader[16] = "SQLite format 3";  // with its closing zero
    std::ifstream in(path, std::ios::binary);
    char head[16] = {};
    return in.read(head, sizeof head) && std::memcmp(head, kHeader, sizeof head) == 0;
}

FieldValue ColumnValue(sqlite3_stmt* statement, int index) {
    switch (sqlite3_column_type(statement, index)) {
        case SQLITE_INTEGER:
            return FieldValue(static_cast<long long>(sqlite3_column_int64(statement, index)));
        case SQLITE_FLOAT:
            return FieldValue(sqlite3_column_double(statement, index));
        case SQLITE_NULL:
            return FieldValue();
        default: {
            const auto* text = sqlite3_column_text(statement, index);
            const int size = sqlite3_column_bytes(statement, index);
            return FieldValue(std::string(reinterpret_cast<const char*>(text), size));
        }
    }
}

int Bind(sqlite3_stmt* statement, int index, const FieldValue& value) {
    switch (value.GetKind()) {
        case FieldValue::Kind::Null:
            return sqlite3_bind_null(statement, index);
        case FieldValue::Kind::Integer:
            return sqlite3_bind_int64(statement, index, value.Int64());
        case FieldValue::Kind::Real:
            return sqlite3_bind_double(statement, index, value.Double());
        case FieldValue::Kind::Text: {
            const std::string text = value.Text();
            return sqlite3_bind_text(statement, index, text.data(), static_cast<int>(text.size()),
                                     SQLITE_TRANSIENT);
        }
    }
    return SQLITE_OK;
}

}  // namespace

Connection::Connection(const std::string& path, bool readOnly) : path_(path) {
    std::error_code error;
    if (!std::filesystem::is_regular_file(path, error)) Raise(kErrFileNotFound);
    // The engine would take an empty file, or one it can't read yet, for a new database and
    // write one into it: a file is opened only when it is a database already.
    if (!HasDatabaseHeader(path))
        Raise(kErrUnrecognizedDatabase, "Unrecognized database format '" + path + "'.");
    // Without SQLITE_OPEN_CREATE a missing file is never made into an empty database.
    // Each connection serves one thread, so the engine's own locking of it is left out.
    const int mode = readOnly ? SQLITE_OPEN_READONLY : SQLITE_OPEN_READWRITE;
    if (sqlite3_open_v2(path.c_str(), &db_, mode | SQLITE_OPEN_NOMUTEX, nullptr) != SQLITE_OK) {
        const std::string message = db_ ? sqlite3_errmsg(db_) : "out of memory";
        Close();
        Raise(kErrSqlFailed, message);
    }
    sqlite3_extended_result_codes(db_, 0);
    // Another copy of the program may be writing; wait for it rather than fail at once.
    sqlite3_busy_timeout(db_, 5000);
    // The header is read only by the first statement, so this is where a file of another
    // kind shows itself.
    const int rc =
        sqlite3_exec(db_, "PRAGMA foreign_keys = ON; SELECT count(*) FROM sqlite_master;", nullptr,
                     nullptr, nullptr);
    if (rc != SQLITE_OK) {
        const std::string message = sqlite3_errmsg(db_);
        Close();
        if (rc == SQLITE_NOTADB || rc == SQLITE_CORRUPT) {
            Raise(kErrUnrecognizedDatabase, "Unrecognized database format '" + path + "'.");
        }
        Raise(kErrSqlFailed, message);
    }
    if (readOnly) return;
    // A write-ahead log makes each commit (a mission load adds layouts) cheap, and lets a
    // second running copy read while this one writes. A folder where the log can't be made
    // keeps the plain journal.
    sqlite3_exec(db_, "PRAGMA journal_mode = WAL; PRAGMA synchronous = NORMAL;", nullptr, nullptr,
                 nullptr);
}

Connection::~Connection() {
    Close();
}

void Connection::Close() noexcept {
    for (Cursor* cursor : std::vector<Cursor*>(cursors_)) {
        cursor->Release();
        cursor->closed_ = true;
    }
    cursors_.clear();
    for (auto& [sql, prepared] : cache_)
        sqlite3_finalize(prepared.statement);
    cache_.clear();
    if (db_) sqlite3_close_v2(db_);
    db_ = nullptr;
}

void Connection::RaiseEngineError() const {
    if (!db_) Raise(kErrObjectClosed, "Object invalid or no longer set.");
    Raise(kErrSqlFailed, sqlite3_errmsg(db_));
}

Connection::Prepared& Connection::Prepare(const std::string& sql) {
    if (!db_) RaiseEngineError();
    if (const auto found = cache_.find(sql); found != cache_.end()) return found->second;
    if (cache_.size() >= kMaxCachedStatements) {
        // A statement an open cursor steps becomes that cursor's own.
        for (Cursor* cursor : cursors_)
            cursor->cached_ = nullptr;
        for (auto& [text, prepared] : cache_)
            if (!prepared.inUse) sqlite3_finalize(prepared.statement);
        cache_.clear();
    }
    sqlite3_stmt* statement = nullptr;
    const char* tail = nullptr;
    if (sqlite3_prepare_v3(db_, sql.c_str(), static_cast<int>(sql.size()),
                           SQLITE_PREPARE_PERSISTENT, &statement, &tail) != SQLITE_OK) {
        RaiseEngineError();
    }
    if (!statement) Raise(kErrSqlFailed, "Invalid SQL statement: the text is empty.");
    Prepared prepared;
    prepared.statement = statement;
    for (int i = 0; i < sqlite3_column_count(statement); ++i)
        prepared.columns.push_back(sqlite3_column_name(statement, i));
    return cache_.emplace(sql, std::move(prepared)).first->second;
}

sqlite3_stmt* Connection::Statement(const std::string& sql, bool& owned, Prepared*& cached) {
    Prepared& prepared = Prepare(sql);
    owned = prepared.inUse;
    cached = owned ? nullptr : &prepared;
    if (!owned) return prepared.statement;
    sqlite3_stmt* statement = nullptr;
    if (sqlite3_prepare_v2(db_, sql.c_str(), static_cast<int>(sql.size()), &statement, nullptr) !=
        SQLITE_OK)
        RaiseEngineError();
    return statement;
}

void Connection::SettleCursors() {
    while (!cursors_.empty())
        cursors_.back()->Settle();
}

void Connection::ForgetCursor(Cursor* cursor) noexcept {
    for (size_t i = 0; i < cursors_.size(); ++i) {
        if (cursors_[i] != cursor) continue;
        cursors_.erase(cursors_.begin() + static_cast<long>(i));
        return;
    }
}

std::shared_ptr<Cursor> Connection::OpenCursor(const std::string& sql,
                                               const std::vector<FieldValue>& parameters) {
    bool owned = false;
    Prepared* cached = nullptr;
    sqlite3_stmt* statement = Statement(sql, owned, cached);
    const bool writes = !sqlite3_stmt_readonly(statement) || sqlite3_column_count(statement) == 0;
    if (writes) SettleCursors();
    std::shared_ptr<Cursor> cursor(new Cursor(*this, statement, cached));
    if (cached) cached->inUse = true;
    cursors_.push_back(cursor.get());
    for (size_t i = 0; i < parameters.size(); ++i) {
        if (Bind(statement, static_cast<int>(i) + 1, parameters[i]) != SQLITE_OK) {
            const std::string message = sqlite3_errmsg(db_);
            cursor->Release();
            Raise(kErrSqlFailed, message);
        }
    }
    // A statement that may write isn't stepped lazily: it runs whole at once.
    if (writes) cursor->Settle();
    return cursor;
}

Cursor::Cursor(Connection& connection, sqlite3_stmt* statement, void* cached)
    : connection_(&connection), statement_(statement), cached_(cached) {}

Cursor::~Cursor() {
    Release();
}

void Cursor::Release() noexcept {
    if (!statement_) return;
    if (cached_) {
        sqlite3_reset(statement_);
        sqlite3_clear_bindings(statement_);
        static_cast<Connection::Prepared*>(cached_)->inUse = false;
    } else {
        sqlite3_finalize(statement_);
    }
    statement_ = nullptr;
    cached_ = nullptr;
    done_ = true;
    connection_->ForgetCursor(this);
}

bool Cursor::Step(std::vector<FieldValue>& row) {
    const int rc = sqlite3_step(statement_);
    if (rc == SQLITE_ROW) {
        const int count = sqlite3_column_count(statement_);
        row.clear();
        row.reserve(count);
        for (int i = 0; i < count; ++i)
            row.push_back(ColumnValue(statement_, i));
        return true;
    }
    if (rc == SQLITE_DONE) {
        Release();
        return false;
    }
    const std::string message = sqlite3_errmsg(connection_->db_);
    Release();
    Raise(kErrSqlFailed, message);
}

bool Cursor::Next(std::vector<FieldValue>& row) {
    if (!buffered_.empty()) {
        row = std::move(buffered_.front());
        buffered_.pop_front();
        return true;
    }
    if (closed_) Raise(kErrObjectClosed, "Object invalid or no longer set.");
    if (done_) return false;
    return Step(row);
}

void Cursor::Settle() {
    std::vector<FieldValue> row;
    try {
        while (statement_ && Step(row))
            buffered_.push_back(std::move(row));
    } catch (...) {
        // The rows read so far stay; the failure shows at the write that asked for this.
        Release();
        throw;
    }
}

void Connection::Run(const std::string& sql) {
    if (!db_) RaiseEngineError();
    SettleCursors();
    const char* next = sql.c_str();
    while (*next) {
        sqlite3_stmt* statement = nullptr;
        if (sqlite3_prepare_v2(db_, next, -1, &statement, &next) != SQLITE_OK) RaiseEngineError();
        if (!statement) break;  // only blanks or comments remain
        int rc;
        while ((rc = sqlite3_step(statement)) == SQLITE_ROW) {
        }
        if (rc != SQLITE_DONE) {
            const std::string message = sqlite3_errmsg(db_);
            sqlite3_finalize(statement);
            Raise(kErrSqlFailed, message);
        }
        sqlite3_finalize(statement);
    }
}

void Connection::Run(const std::string& sql, const std::vector<FieldValue>& parameters) {
    Query(sql, parameters);
}

std::vector<std::vector<FieldValue>> Connection::Query(const std::string& sql,
                                                       const std::vector<FieldValue>& parameters,
                                                       std::vector<std::string>* columns) {
    bool owned = false;
    Prepared* cached = nullptr;
    sqlite3_stmt* statement = Statement(sql, owned, cached);
    if (columns) *columns = Prepare(sql).columns;
    ResetOnExit reset(statement, owned);
    const int count = sqlite3_column_count(statement);
    // A write waits until the open cursors have read what they were opened on.
    if (!sqlite3_stmt_readonly(statement) || count == 0) SettleCursors();
    for (size_t i = 0; i < parameters.size(); ++i) {
        if (Bind(statement, static_cast<int>(i) + 1, parameters[i]) != SQLITE_OK) {
            RaiseEngineError();
        }
    }
    std::vector<std::vector<FieldValue>> rows;
    int rc;
    while ((rc = sqlite3_step(statement)) == SQLITE_ROW) {
        std::vector<FieldValue>& row = rows.emplace_back();
        row.reserve(count);
        for (int i = 0; i < count; ++i)
            row.push_back(ColumnValue(statement, i));
    }
    if (rc != SQLITE_DONE) RaiseEngineError();
    return rows;
}

const std::vector<std::string>& Connection::ColumnNames(const std::string& sql) {
    return Prepare(sql).columns;
}

std::int64_t Connection::LastInsertRowid() const {
    return db_ ? sqlite3_last_insert_rowid(db_) : 0;
}

ObjectKind Connection::KindOf(const std::string& name, std::string* canonical) {
    const auto rows = Query(
        "SELECT type, name FROM sqlite_master WHERE type IN ('table', 'view') "
        "AND name = ?1 COLLATE NOCASE",
        {FieldValue(name)});
    if (rows.empty()) return ObjectKind::None;
    if (canonical) *canonical = rows[0][1].Text();
    return rows[0][0].Text() == "view" ? ObjectKind::View : ObjectKind::Table;
}

}  // namespace tarvex::detail
