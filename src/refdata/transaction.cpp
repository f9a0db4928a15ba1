#include "refdata/transaction.h"

#include "common/error.h"

namespace tarvex {

Transaction::Transaction(Database& db, TransactionKind kind) : db_(db) {
    try {
        db_.Execute(kind == TransactionKind::Write ? "BEGIN IMMEDIATE" : "BEGIN");
        open_ = true;
    } catch (const AppError&) {
    }
}

void Transaction::Commit() noexcept {
    if (!open_) return;
    open_ = false;
    try {
        db_.Execute("COMMIT");
    } catch (...) {
        // A commit that can't finish (the disk full) must not leave the transaction open
        // for every statement after it.
        try {
            db_.Execute("ROLLBACK");
        } catch (...) {
        }
    }
}

bool Transaction::Rollback() noexcept {
    if (!open_) return false;
    open_ = false;
    try {
        db_.Execute("ROLLBACK");
        return true;
    } catch (...) {
        return false;
    }
}

}  // namespace tarvex
