#include "common/text.h"

#include "common/error.h"

namespace tarvex {

namespace {

char Lower(char c) {
    return (c >= 'A' && c <= 'Z') ? static_cast<char>(c - 'A' + 'a') : c;
}

char Upper(char c) {
    return (c >= 'a' && c <= 'z') ? static_cast<char>(c - 'a' + 'A') : c;
}

bool MatchesAt(std::string_view text, size_t at, std::string_view what) {
    for (size_t i = 0; i < what.size(); ++i) {
        if (Lower(text[at + i]) != Lower(what[i])) return false;
    }
    return true;
}

}  // namespace

size_t InStr(std::string_view text, std::string_view what, size_t start) {
    if (start < 1) Raise(kErrInvalidCall);
    if (start > text.size() + 1) return 0;
    if (what.empty()) return start;
    if (what.size() > text.size()) return 0;
    // Only where the first character matches, in either case, is the rest compared.
    const char lower = Lower(what[0]);
    const char upper = Upper(what[0]);
    for (size_t at = start - 1; at + what.size() <= text.size(); ++at) {
        if (text[at] != lower && text[at] != upper) continue;
        if (MatchesAt(text, at, what)) return at + 1;
    }
    return 0;
}

size_t InStrRev(std::string_view text, std::string_view what) {
    if (what.size() > text.size()) return 0;
    for (size_t at = text.size() - what.size() + 1; at-- > 0;) {
        if (MatchesAt(text, at, what)) return at + 1;
    }
    return 0;
}

bool SameText(std::string_view a, std::string_view b) {
    return a.size() == b.size() && MatchesAt(a, 0, b);
}

bool StartsWithText(std::string_view text, std::string_view prefix) {
    return prefix.size() <= text.size() && MatchesAt(text, 0, prefix);
}

bool EndsWithText(std::string_view text, std::string_view suffix) {
    return suffix.size() <= text.size() && MatchesAt(text, text.size() - suffix.size(), suffix);
}

std::string Mid(std::string_view text, long long start) {
    if (start < 1) Raise(kErrInvalidCall);
    if (static_cast<unsigned long long>(start) > text.size()) return {};
    return std::string(text.substr(static_cast<size_t>(start - 1)));
}

std::string Mid(std::string_view text, long long start, long long length) {
    if (length < 0) Raise(kErrInvalidCall);
    return Left(Mid(text, start), length);
}

std::string Left(std::string_view text, long long length) {
    if (length < 0) Raise(kErrInvalidCall);
    return std::string(text.substr(0, static_cast<size_t>(length)));
}

std::string Right(std::string_view text, long long length) {
    if (length < 0) Raise(kErrInvalidCall);
    if (static_cast<unsigned long long>(length) >= text.size()) return std::string(text);
    return std::string(text.substr(text.size() - static_cast<size_t>(length)));
}

std::string LTrim(std::string_view text) {
    const size_t first = text.find_first_not_of(' ');
    return first == std::string_view::npos ? std::string{} : std::string(text.substr(first));
}

std::string RTrim(std::string_view text) {
    const size_t last = text.find_last_not_of(' ');
    return last == std::string_view::npos ? std::string{} : std::string(text.substr(0, last + 1));
}

std::string Trim(std::string_view text) {
    return LTrim(RTrim(text));
}

std::string UCase(std::string_view text) {
    std::string out(text);
    for (char& c : out)
        c = Upper(c);
    return out;
}

std::string LCase(std::string_view text) {
    std::string out(text);
    for (char& c : out)
        c = Lower(c);
    return out;
}

}  // namespace tarvex
