#pragma once
// A transaction held for the length of a scope: a load writes its layouts in one commit
// instead of one per unit, and a save reads one state of the database with a single file
// lock. A database that can't start one is used statement by statement, which is only
// slower, so neither the start nor the end ever fails.
#include "refdata/database.h"

namespace tarvex {

enum class TransactionKind {
    Read,   // reads only: sees one state of the file
    Write,  // will write: takes the write lock at the start, waiting for another copy that
            // holds it, so that it never has to upgrade a stale read and fail as busy
};

class Transaction {
  public:
    explicit Transaction(Database& db, TransactionKind kind = TransactionKind::Read);
    ~Transaction() { Commit(); }
    Transaction(const Transaction&) = delete;
    Transaction& operator=(const Transaction&) = delete;

    // Ends the transaction early, keeping what was written.
    void Commit() noexcept;
    // Ends it undoing what was written since it began: for writes that belong together and
    // failed half-way, or a load that kept nothing. False when there was no transaction to undo
    // (the statements were kept one by one) or the undo failed.
    bool Rollback() noexcept;

  private:
    Database& db_;
    bool open_ = false;
};

}  // namespace tarvex
