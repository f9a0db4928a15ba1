#pragma once
// The reference database connection: open, run statements, open recordsets, close. Every
// SQL text the program sends passes the dialect translation first, and each distinct text is
// prepared once and kept, since a mission load runs hundreds of small lookups.
#include <memory>
#include <string>
#include <vector>

#include "refdata/database_errors.h"
#include "refdata/recordset.h"

namespace tarvex {

class Database {
  public:
    Database() = default;
    ~Database();
    Database(const Database&) = delete;
    Database& operator=(const Database&) = delete;
    Database(Database&&) noexcept = default;
    Database& operator=(Database&&) noexcept;

    // Opens an existing database file for shared reading and writing. A missing file raises
    // error 53 (the file is never created), a file that isn't a database error 3343. Foreign
    // keys are enforced, and a busy file is waited for a few seconds, so that two copies of
    // the program can share it.
    void Open(const std::string& path);
    // Opens a database file for reading only: nothing is ever written to it.
    void OpenReadOnly(const std::string& path);
    bool IsOpen() const;
    const std::string& Name() const;

    // A table or view by name, or a SELECT. A snapshot is a read-only copy of the result;
    // otherwise the recordset can add, edit and delete rows of its one table or view.
    Recordset OpenRecordset(const std::string& nameOrSql, int type = kUpdatable);

    // Runs one or more statements; a failure raises error 3075 with the engine's message.
    void Execute(const std::string& sql);
    // Runs one statement with its parameters bound in order to its "?" marks: for the rows
    // that the program writes in bulk, which would otherwise be quoted into the text.
    void Execute(const std::string& sql, const std::vector<FieldValue>& parameters);

    // Releases the connection; recordsets still open on it raise error 3420 from then on.
    void Close();

    // Writes a compacted copy of a database file that no one is writing; the destination
    // must not exist yet. A failure raises error 3075 with the engine's message.
    static void CompactDatabase(const std::string& source, const std::string& destination);

  private:
    std::shared_ptr<detail::Connection> connection_;
};

}  // namespace tarvex
