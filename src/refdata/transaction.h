#pragma once
// A transaction held for the length of a scope: a load writes its layouts in one commit
// instead of one per unit, and a save reads one state of the database with a single file
// lock. A database that can't start one is used statement by statement, which is only
// slower, so neither the start nor the end ever fails.
#include "refdata/database.h"

namespace tarvex {

class Transaction {
  public:
    explicit Transaction(Database& db);
    ~Transaction() { Commit(); }
    Transaction(const Transaction&) = delete;
    Transaction& operator=(const Transaction&) = delete;

    // Ends the transaction early, keeping what was written.
    void Commit() noexcept;
    // Ends it dropping everything written since it began: for writes that belong together
    // and failed half-way.
    void Rollback() noexcept;

  private:
    Database& db_;
    bool open_ = false;
};

}  // namespace tarvex
