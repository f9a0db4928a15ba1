#include "document/mis_text.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <cstdint>
#include <cstdio>
#include <cstring>

#include "common/error.h"
#include "common/numbers.h"
#include "common/text.h"

namespace tarvex {

namespace {

std::string Megabytes(std::uintmax_t bytes) {
    char text[32];
    std::snprintf(text, sizeof text, "%.1f MB", static_cast<double>(bytes) / (1024.0 * 1024.0));
    return text;
}

}  // namespace

MisLines::MisLines(const std::string& path) : path_(path) {
    // The kind of file is looked at before it is opened: opening a pipe would wait for a
    // writer that never comes.
    struct stat info {};
    if (::stat(path.c_str(), &info) != 0) {
        if (errno == EACCES) Raise(kErrPermissionDenied);
        Raise(kErrFileNotFound);
    }
    if (S_ISDIR(info.st_mode)) Raise(kErrPathAccess, path + " is a folder, not a mission file");
    if (!S_ISREG(info.st_mode))
        Raise(kErrPathAccess, path + " is a pipe or a device, not a mission file");
    const int fd = ::open(path.c_str(), O_RDONLY | O_NONBLOCK | O_CLOEXEC);
    if (fd < 0) {
        if (errno == EACCES || errno == EPERM) Raise(kErrPermissionDenied);
        Raise(kErrFileNotFound);
    }
    reader_ = LineReader(fd);
    // The file may have been swapped for another kind since the look.
    if (::fstat(fd, &info) != 0 || !S_ISREG(info.st_mode))
        Raise(kErrPathAccess, path + " is a pipe or a device, not a mission file");
    if (static_cast<std::uintmax_t>(info.st_size) > kMaxMissionFileBytes) {
        Raise(kErrPathAccess, path + " is " + Megabytes(info.st_size) +
                                  ", larger than any mission file (at most " +
                                  Megabytes(kMaxMissionFileBytes) + ")");
    }
}

void MisLines::RaiseNotAMission(const std::string& why) const {
    Raise(kErrPathAccess, path_ + " is not a mission file: " + why);
}

void MisLines::Fetch() {
    fetched_ = true;
    switch (reader_.Next(next_, kMaxMissionLineBytes)) {
        case LineReader::Status::Line:
            ++lineNumber_;
            hasNext_ = true;
            if (next_.find('\0') != std::string::npos)
                RaiseNotAMission("line " + std::to_string(lineNumber_) + " holds binary data");
            return;
        case LineReader::Status::End:
            hasNext_ = false;
            return;
        case LineReader::Status::TooLong:
            hasNext_ = false;
            RaiseNotAMission("line " + std::to_string(lineNumber_ + 1) + " is longer than " +
                             Megabytes(kMaxMissionLineBytes));
        case LineReader::Status::ReadError:
            hasNext_ = false;
            Raise(kErrPathAccess, path_ + " can't be read: " + std::strerror(errno));
    }
}

bool MisLines::AtEnd() {
    if (!fetched_) Fetch();
    return !hasNext_;
}

const std::string& MisLines::Read() {
    if (AtEnd()) {
        current_.clear();
        return current_;
    }
    current_.swap(next_);
    fetched_ = false;
    return current_;
}

std::string MisValue(std::string_view line) {
    const std::size_t eq = line.find('=');
    if (eq == std::string_view::npos) return std::string(line);
    return std::string(line.substr(eq + 1));
}

bool MisSectionEnds(std::string_view line) {
    return line.size() < 2;
}

int MisSectionNumber(std::string_view header) {
    const std::size_t dot = header.find('.');
    const std::size_t bracket = header.find(']');
    if (dot == std::string_view::npos || bracket == std::string_view::npos || bracket < dot)
        Raise(kErrInvalidCall);
    return ValInt(header.substr(dot + 1, bracket - dot - 1));
}

bool MisHasKey(std::string_view line, std::string_view key) {
    return InStr(line, key) > 0;
}

namespace {

char LowerAscii(char c) {
    return (c >= 'A' && c <= 'Z') ? static_cast<char>(c - 'A' + 'a') : c;
}

}  // namespace

MisKeys::MisKeys(std::initializer_list<std::string_view> keys) {
    if (keys.size() > 32) Raise(kErrInvalidCall);
    for (std::string_view key : keys) {
        const std::uint32_t bit = 1u << keys_.size();
        std::string lower(key);
        for (char& c : lower)
            c = LowerAscii(c);
        keys_.push_back(lower);
        if (lower.empty()) continue;
        const auto first = static_cast<unsigned char>(lower[0]);
        byFirst_[first] |= bit;
        if (first >= 'a' && first <= 'z') byFirst_[first - 'a' + 'A'] |= bit;
    }
}

std::uint32_t MisKeys::In(std::string_view line) const {
    std::uint32_t found = 0;
    for (std::size_t at = 0; at < line.size(); ++at) {
        std::uint32_t candidates = byFirst_[static_cast<unsigned char>(line[at])] & ~found;
        while (candidates != 0) {
            const int k = __builtin_ctz(candidates);
            candidates &= candidates - 1;
            const std::string& key = keys_[k];
            if (key.size() > line.size() - at) continue;
            std::size_t i = 1;
            while (i < key.size() && LowerAscii(line[at + i]) == key[i])
                ++i;
            if (i == key.size()) found |= 1u << k;
        }
    }
    return found;
}

bool MisIdGuard(std::string_view line) {
    const std::size_t eq = line.find('=');
    return eq != std::string_view::npos && eq < 4;
}

bool MisHasGuardedId(std::string_view line) {
    return MisHasKey(line, "id") && MisIdGuard(line);
}

}  // namespace tarvex
