#include "refdata/transaction.h"

#include "common/error.h"

namespace tarvex {

Transaction::Transaction(Database& db) : db_(db) {
    try {
        db_.Execute("BEGIN");
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
    }
}

void Transaction::Rollback() noexcept {
    if (!open_) return;
    open_ = false;
    try {
        db_.Execute("ROLLBACK");
    } catch (...) {
    }
}

}  // namespace tarvex
