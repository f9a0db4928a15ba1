#include "cli/scratch_database.h"

#include <signal.h>
#include <sqlite3.h>
#include <unistd.h>

#include <cerrno>
#include <csignal>
#include <cstdlib>
#include <cstring>
#include <filesystem>
#include <iterator>
#include <system_error>
#include <vector>

#include "refdata/reference_database.h"

namespace tarvex::cli {

namespace fs = std::filesystem;

namespace {

constexpr const char* kFolderPrefix = "tarvex-mis-";
// The files the engine may keep beside a database.
constexpr const char* kEngineSuffixes[] = {"", "-wal", "-shm", "-journal"};

fs::path TempBase() {
    std::error_code error;
    fs::path base = fs::temp_directory_path(error);
    return error ? fs::path("/tmp") : base;
}

std::string MakeTempFolder() {
    std::string pattern =
        (TempBase() / (kFolderPrefix + std::to_string(::getpid()) + "-XXXXXX")).string();
    std::vector<char> buffer(pattern.begin(), pattern.end());
    buffer.push_back('\0');
    if (::mkdtemp(buffer.data()) == nullptr) return {};
    return buffer.data();
}

std::string EngineMessage(sqlite3* db, int code) {
    return db ? sqlite3_errmsg(db) : sqlite3_errstr(code);
}

// What a signal handler may touch: fixed buffers, filled before the handlers are installed.
// One scratch database per process.
constexpr std::size_t kMaxPath = 4096;
char gFolder[kMaxPath];
char gFiles[std::size(kEngineSuffixes)][kMaxPath];
volatile std::sig_atomic_t gArmed = 0;

constexpr int kCleanedSignals[] = {SIGINT, SIGTERM, SIGHUP, SIGQUIT};

void RemoveOnSignal(int signal) {
    if (gArmed) {
        for (const char* file : gFiles)
            ::unlink(file);
        ::rmdir(gFolder);
    }
    // Then end as the signal would have ended the process.
    std::signal(signal, SIG_DFL);
    std::raise(signal);
}

bool Fits(const std::string& text) {
    return text.size() < kMaxPath;
}

void Arm(const std::string& folder, const std::string& path) {
    if (!Fits(folder) || !Fits(path + "-journal")) return;
    gArmed = 0;
    std::strcpy(gFolder, folder.c_str());
    for (std::size_t i = 0; i < std::size(kEngineSuffixes); ++i)
        std::strcpy(gFiles[i], (path + kEngineSuffixes[i]).c_str());
    gArmed = 1;
    for (const int signal : kCleanedSignals) {
        struct sigaction action {};
        action.sa_handler = RemoveOnSignal;
        sigemptyset(&action.sa_mask);
        ::sigaction(signal, &action, nullptr);
    }
}

void Disarm() {
    gArmed = 0;
}

}  // namespace

void RemoveAbandonedScratchFolders() {
    std::error_code error;
    const std::string prefix = kFolderPrefix;
    for (fs::directory_iterator it(TempBase(), error), end; !error && it != end;
         it.increment(error)) {
        const std::string name = it->path().filename().string();
        if (name.compare(0, prefix.size(), prefix) != 0) continue;
        // "tarvex-mis-<process>-XXXXXX": a folder without a process number isn't ours to judge.
        char* rest = nullptr;
        const long pid = std::strtol(name.c_str() + prefix.size(), &rest, 10);
        if (pid <= 0 || rest == nullptr || *rest != '-' || pid == ::getpid()) continue;
        if (::kill(static_cast<pid_t>(pid), 0) == 0 || errno != ESRCH) continue;
        std::error_code ignored;
        if (it->is_directory(ignored)) fs::remove_all(it->path(), ignored);
    }
}

ScratchDatabase::~ScratchDatabase() {
    if (folder_.empty()) return;
    Disarm();
    std::error_code ignored;
    fs::remove_all(folder_, ignored);
}

bool ScratchDatabase::CopyFrom(const std::string& source, std::string& error) {
    std::error_code fsError;
    if (!fs::is_regular_file(source, fsError)) {
        error = "database not found: " + source;
        return false;
    }
    RemoveAbandonedScratchFolders();
    folder_ = MakeTempFolder();
    if (folder_.empty()) {
        error = "cannot make a temporary folder for a copy of the database in " +
                TempBase().string() + ": " + std::strerror(errno);
        return false;
    }
    path_ = (fs::path(folder_) / kDatabaseFileName).string();
    Arm(folder_, path_);

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
