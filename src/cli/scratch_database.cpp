#include "cli/scratch_database.h"

#include <sqlite3.h>
#include <unistd.h>

#include <filesystem>
#include <system_error>
#include <vector>

#include "refdata/reference_database.h"

namespace tarvex::cli {

namespace fs = std::filesystem;

namespace {

std::string MakeTempFolder() {
    std::error_code error;
    fs::path base = fs::temp_directory_path(error);
    if (error) base = "/tmp";
    std::string pattern = (base / "tarvex-mis-XXXXXX").string();
    std::vector<char> buffer(pattern.begin(), pattern.end());
    buffer.push_back('\0');
    if (::mkdtemp(buffer.data()) == nullptr) return {};
    return buffer.data();
}

std::string EngineMessage(sqlite3* db, int code) {
    return db ? sqlite3_errmsg(db) : sqlite3_errstr(code);
}

}  // namespace

ScratchDatabase::~ScratchDatabase() {
    if (folder_.empty()) return;
    std::error_code ignored;
    fs::remove_all(folder_, ignored);
}

bool ScratchDatabase::CopyFrom(const std::string& source, std::string& error) {
    std::error_code fsError;
    if (!fs::is_regular_file(source, fsError)) {
        error = "database not found: " + source;
        return false;
    }
    folder_ = MakeTempFolder();
    if (folder_.empty()) {
        error = "cannot make a temporary folder for a copy of the database";
        return false;
    }
    path_ = (fs::path(folder_) / kDatabaseFileName).string();

    sqlite3* from = nullptr;
    sqlite3* to = nullptr;
    int rc = sqlite3_open_v2(source.c_str(), &from, SQLITE_OPEN_READONLY, nullptr);
    if (rc == SQLITE_OK)
        rc = sqlite3_open_v2(path_.c_str(), &to, SQLITE_OPEN_READWRITE | SQLITE_OPEN_CREATE,
                             nullptr);
    if (rc == SQLITE_OK) {
        sqlite3_busy_timeout(from, 5000);
        sqlite3_backup* backup = sqlite3_backup_init(to, "main", from, "main");
        if (backup == nullptr) {
            rc = sqlite3_errcode(to);
            error = EngineMessage(to, rc);
        } else {
            // A copy of the editor holding the file gets ten seconds to let go of it.
            for (int attempt = 0; attempt < 100; ++attempt) {
                rc = sqlite3_backup_step(backup, -1);
                if (rc != SQLITE_BUSY && rc != SQLITE_LOCKED) break;
                sqlite3_sleep(100);
            }
            sqlite3_backup_finish(backup);
            if (rc == SQLITE_DONE) rc = SQLITE_OK;
            if (rc != SQLITE_OK) error = sqlite3_errstr(rc);
        }
    } else {
        error = EngineMessage(from ? from : to, rc);
    }
    sqlite3_close(from);
    sqlite3_close(to);
    if (rc != SQLITE_OK) {
        error = "cannot copy the database " + source + ": " + error;
        return false;
    }
    return true;
}

}  // namespace tarvex::cli
