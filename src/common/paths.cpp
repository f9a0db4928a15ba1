#include "common/paths.h"

#include "common/error.h"

namespace tarvex {

namespace {

char Fold(char c) {
    if (c >= 'A' && c <= 'Z') return static_cast<char>(c - 'A' + 'a');
    return IsPathSeparator(c) ? '/' : c;
}

}  // namespace

bool IsPathSeparator(char c) {
    return c == '\\' || c == '/';
}

std::string JoinPath(std::string_view folder, std::string_view name) {
    std::string out(folder);
    if (!out.empty() && !IsPathSeparator(out.back())) out += kPathSeparator;
    out += name;
    return out;
}

std::string NativePath(std::string_view path) {
    std::string out(path);
    for (char& c : out) {
        if (IsPathSeparator(c)) c = kPathSeparator;
    }
    return out;
}

size_t InStrPath(std::string_view path, std::string_view what, size_t start) {
    if (start < 1) Raise(kErrInvalidCall);
    if (start > path.size() + 1) return 0;
    if (what.empty()) return start;
    for (size_t at = start - 1; at + what.size() <= path.size(); ++at) {
        size_t i = 0;
        while (i < what.size() && Fold(path[at + i]) == Fold(what[i]))
            ++i;
        if (i == what.size()) return at + 1;
    }
    return 0;
}

}  // namespace tarvex
