#include "common/file_bytes.h"

#include <algorithm>
#include <cerrno>

#include "common/error.h"
#include "common/paths.h"

#ifdef _WIN32
#include <cstdio>
#include <filesystem>
#else
#include <fcntl.h>
#include <unistd.h>
#endif

namespace tarvex {

namespace {

[[noreturn]] void RaiseReadError(int systemError) {
    if (systemError == ENOENT) Raise(kErrFileNotFound);
    if (systemError == EACCES || systemError == EPERM) Raise(kErrPermissionDenied);
    Raise(kErrPathAccess);
}

// Room for one more large read behind `size`.
void MakeRoom(std::string& storage, size_t size) {
    constexpr size_t kChunk = 65536;
    if (storage.size() - size < kChunk) storage.resize(std::max(storage.size() * 2, 2 * kChunk));
}

#ifndef _WIN32
// Plain reads straight into the storage, until the end; the file is closed in any case.
std::string_view ReadAndClose(int fd, std::string& storage) {
    if (fd < 0) RaiseReadError(errno);
    size_t size = 0;
    for (;;) {
        MakeRoom(storage, size);
        const ssize_t n = ::read(fd, storage.data() + size, storage.size() - size);
        if (n < 0 && errno == EINTR) continue;
        if (n < 0) {
            const int error = errno;
            ::close(fd);
            RaiseReadError(error);
        }
        if (n == 0) break;
        size += static_cast<size_t>(n);
    }
    ::close(fd);
    return std::string_view(storage.data(), size);
}
#endif

}  // namespace

std::string_view ReadFileBytes(const std::string& path, std::string& storage) {
#ifdef _WIN32
    const std::filesystem::path native(std::u8string(path.begin(), path.end()));
    std::FILE* file = _wfopen(native.c_str(), L"rb");
    if (file == nullptr) RaiseReadError(errno);
    size_t size = 0;
    for (;;) {
        MakeRoom(storage, size);
        const size_t n = std::fread(storage.data() + size, 1, storage.size() - size, file);
        if (n == 0) break;
        size += n;
    }
    const bool failed = std::ferror(file) != 0;
    std::fclose(file);
    if (failed) Raise(kErrPathAccess);
    return std::string_view(storage.data(), size);
#else
    return ReadAndClose(::open(path.c_str(), O_RDONLY | O_CLOEXEC), storage);
#endif
}

FolderReader::FolderReader(std::string folder) : folder_(std::move(folder)) {
#ifndef _WIN32
    handle_ = ::open(folder_.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
#endif
}

FolderReader::~FolderReader() {
#ifndef _WIN32
    if (handle_ >= 0) ::close(handle_);
#endif
}

std::string_view FolderReader::Read(const std::string& name, std::string& storage) {
#ifndef _WIN32
    if (handle_ >= 0)
        return ReadAndClose(::openat(handle_, name.c_str(), O_RDONLY | O_CLOEXEC), storage);
#endif
    return ReadFileBytes(JoinPath(folder_, name), storage);
}

}  // namespace tarvex
