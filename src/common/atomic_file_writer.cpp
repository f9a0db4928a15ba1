#include "common/atomic_file_writer.h"

#include <atomic>
#include <cerrno>
#include <filesystem>
#include <random>
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

[[noreturn]] void RaiseFileError(int systemError) {
    if (systemError == EACCES || systemError == EPERM || systemError == EROFS)
        Raise(kErrPermissionDenied);
    Raise(kErrPathAccess);
}

// "wx": create, and fail rather than open a file that is already there.
std::FILE* CreateExclusive(const fs::path& path) {
#ifdef _WIN32
    return _wfopen(path.c_str(), L"wxb");
#else
    return std::fopen(path.c_str(), "wxb");
#endif
}

// A suffix that no other writer, in this process or another one, picks at the same time.
std::string UniqueSuffix() {
    static const unsigned seed = std::random_device{}();
    static std::atomic<unsigned> counter{0};
    return "." + IntText(seed % 1000000) + "-" + IntText(counter++) + ".tmp";
}

}  // namespace

AtomicFileWriter::AtomicFileWriter(std::string target) : target_(std::move(target)) {
    if (target_.empty()) Raise(kErrPathAccess);
    std::error_code ec;
    const fs::file_status status = fs::status(PathOf(target_), ec);
    if (fs::exists(status)) {
        // Writing over a folder, or over a file marked read-only, is refused as the desktop
        // refuses to open such a file for output.
        if (!fs::is_regular_file(status)) Raise(kErrPathAccess);
        if ((status.permissions() & fs::perms::owner_write) == fs::perms::none)
            Raise(kErrPathAccess);
    }
    for (int attempt = 0; attempt < 100; ++attempt) {
        temp_ = target_ + UniqueSuffix();
        file_ = CreateExclusive(PathOf(temp_));
        if (file_ != nullptr) return;
        if (errno != EEXIST) RaiseFileError(errno);
    }
    Raise(kErrPathAccess);
}

AtomicFileWriter::~AtomicFileWriter() {
    Discard();
}

void AtomicFileWriter::Write(std::string_view bytes) {
    if (file_ == nullptr) Raise(kErrPathAccess);
    if (bytes.empty()) return;
    if (std::fwrite(bytes.data(), 1, bytes.size(), file_) != bytes.size()) RaiseFileError(errno);
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
        RaiseFileError(failure);
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
