#include "common/atomic_file_writer.h"

#include <atomic>
#include <cerrno>
#include <chrono>
#include <csignal>
#include <cstdlib>
#include <filesystem>
#include <system_error>

#include "common/error.h"
#include "common/number_text.h"

#ifndef _WIN32
#include <unistd.h>
#endif

namespace tarvex {

namespace {

namespace fs = std::filesystem;

fs::path PathOf(const std::string& utf8) {
    return fs::path(std::u8string(utf8.begin(), utf8.end()));
}

// A failure of the system, with the file and the cause in words.
[[noreturn]] void RaiseFileError(const std::string& file, int systemError) {
    if (systemError == ENOSPC || systemError == EDQUOT)
        Raise(kErrDiskFull, file + ": the disk is full");
    if (systemError == EACCES || systemError == EPERM || systemError == EROFS)
        Raise(kErrPermissionDenied, file + ": permission denied");
    Raise(kErrPathAccess,
          file + ": " + std::error_code(systemError, std::generic_category()).message());
}

// "wx": create, and fail rather than open a file that is already there.
std::FILE* CreateExclusive(const fs::path& path) {
#ifdef _WIN32
    return _wfopen(path.c_str(), L"wxb");
#else
    return std::fopen(path.c_str(), "wxb");
#endif
}

long ProcessId() {
#ifdef _WIN32
    return static_cast<long>(_getpid());
#else
    return static_cast<long>(::getpid());
#endif
}

// Temporary files are named after their target and the process that writes them,
// "<target>.~<process>-<n>.tmp", so that a later save of the same file can tell which of them
// a killed writer left behind.
constexpr const char* kTempMark = ".~";

std::string UniqueSuffix() {
    static std::atomic<unsigned> counter{0};
    return kTempMark + IntText(ProcessId()) + "-" + IntText(counter++) + ".tmp";
}

bool ProcessIsGone(long pid) {
#ifdef _WIN32
    (void)pid;
    return false;
#else
    return ::kill(static_cast<pid_t>(pid), 0) != 0 && errno == ESRCH;
#endif
}

// Removes the temporary files of earlier writes of `target` whose writer is no longer
// running, or that are older than any write could take.
void RemoveStaleTemporaries(const fs::path& target) {
    const std::string prefix = target.filename().string() + kTempMark;
    std::error_code ec;
    const fs::path folder = target.has_parent_path() ? target.parent_path() : fs::path(".");
    const auto now = fs::file_time_type::clock::now();
    for (fs::directory_iterator it(folder, ec), end; !ec && it != end; it.increment(ec)) {
        const std::string name = it->path().filename().string();
        if (name.size() <= prefix.size() || name.compare(0, prefix.size(), prefix) != 0 ||
            !name.ends_with(".tmp"))
            continue;
        const long pid = std::strtol(name.c_str() + prefix.size(), nullptr, 10);
        std::error_code timeError;
        const auto written = fs::last_write_time(it->path(), timeError);
        const bool old = !timeError && now - written > std::chrono::hours(1);
        if (pid == ProcessId() && !old) continue;
        if (old || pid <= 0 || ProcessIsGone(pid)) {
            std::error_code ignored;
            fs::remove(it->path(), ignored);
        }
    }
}

}  // namespace

AtomicFileWriter::AtomicFileWriter(std::string target) : target_(std::move(target)) {
    if (target_.empty()) Raise(kErrPathAccess);
    std::error_code ec;
    const fs::file_status status = fs::status(PathOf(target_), ec);
    if (fs::exists(status)) {
        // Writing over a folder, or over a file marked read-only, is refused as the desktop
        // refuses to open such a file for output.
        if (fs::is_directory(status)) Raise(kErrPathAccess, target_ + " is a folder");
        if (!fs::is_regular_file(status)) Raise(kErrPathAccess, target_ + " is not a file");
        if ((status.permissions() & fs::perms::owner_write) == fs::perms::none)
            Raise(kErrPathAccess, target_ + " is read-only");
    }
    RemoveStaleTemporaries(PathOf(target_));
    for (int attempt = 0; attempt < 100; ++attempt) {
        temp_ = target_ + UniqueSuffix();
        file_ = CreateExclusive(PathOf(temp_));
        if (file_ != nullptr) return;
        if (errno != EEXIST) RaiseFileError(target_, errno);
    }
    Raise(kErrPathAccess, target_ + ": no temporary file could be made beside it");
}

AtomicFileWriter::~AtomicFileWriter() {
    Discard();
}

void AtomicFileWriter::Write(std::string_view bytes) {
    if (file_ == nullptr) Raise(kErrPathAccess);
    if (bytes.empty()) return;
    if (std::fwrite(bytes.data(), 1, bytes.size(), file_) != bytes.size())
        RaiseFileError(target_, errno);
}

void AtomicFileWriter::Commit() {
    if (file_ == nullptr) Raise(kErrPathAccess);
    bool ok = std::fflush(file_) == 0;
#ifndef _WIN32
    // The new text must be on disk before the name points at it.
    ok = ok && ::fdatasync(fileno(file_)) == 0;
#endif
    int failure = ok ? 0 : errno;
    if (std::fclose(file_) != 0 && ok) {
        ok = false;
        failure = errno;
    }
    file_ = nullptr;
    if (ok) {
        std::error_code ec;
        fs::rename(PathOf(temp_), PathOf(target_), ec);
        ok = !ec;
        failure = ec.value();
    }
    if (!ok) {
        Discard();
        RaiseFileError(target_, failure);
    }
    committed_ = true;
}

void AtomicFileWriter::Discard() noexcept {
    if (file_ != nullptr) {
        std::fclose(file_);
        file_ = nullptr;
    }
    if (!committed_ && !temp_.empty()) {
        std::error_code ignored;
        fs::remove(PathOf(temp_), ignored);
    }
}

void WriteFileAtomically(const std::string& target, std::string_view bytes) {
    AtomicFileWriter writer(target);
    writer.Write(bytes);
    writer.Commit();
}

}  // namespace tarvex
