#include "common/file_bytes.h"

#include <algorithm>
#include <cerrno>

#include "common/error.h"

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

}  // namespace

std::string_view ReadFileBytes(const std::string& path, std::string& storage) {
    size_t size = 0;
#ifdef _WIN32
    const std::filesystem::path native(std::u8string(path.begin(), path.end()));
    std::FILE* file = _wfopen(native.c_str(), L"rb");
    if (file == nullptr) RaiseReadError(errno);
    for (;;) {
        MakeRoom(storage, size);
        const size_t n = std::fread(storage.data() + size, 1, storage.size() - size, file);
        if (n == 0) break;
        size += n;
    }
    const bool failed = std::ferror(file) != 0;
    std::fclose(file);
    if (failed) Raise(kErrPathAccess);
#else
    // Plain reads straight into the storage: a scan of a large folder reads as fast as the
    // system can give the bytes.
    const int fd = ::open(path.c_str(), O_RDONLY | O_CLOEXEC);
    if (fd < 0) RaiseReadError(errno);
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
#endif
    return std::string_view(storage.data(), size);
}

}  // namespace tarvex
