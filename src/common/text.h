#pragma once
// Text helpers with 1-based positions, as the program's handlers count characters.
// Comparisons ignore the case of ASCII letters; other bytes compare as they stand.
#include <string>
#include <string_view>

namespace tarvex {

// Position (from 1) of the first occurrence of what in text at or after start, ignoring
// case; 0 when absent. An empty what is found at start (when start is within the text + 1).
// A start below 1 raises error 5.
size_t InStr(std::string_view text, std::string_view what, size_t start = 1);
// Position of the last occurrence, ignoring case; 0 when absent.
size_t InStrRev(std::string_view text, std::string_view what);

bool SameText(std::string_view a, std::string_view b);
bool StartsWithText(std::string_view text, std::string_view prefix);
bool EndsWithText(std::string_view text, std::string_view suffix);

// Substrings by 1-based start and length, cut to what the text has: a start beyond the end
// or a short text gives what is there. A start below 1 or a negative length raises error 5.
std::string Mid(std::string_view text, long long start);
std::string Mid(std::string_view text, long long start, long long length);
std::string Left(std::string_view text, long long length);
std::string Right(std::string_view text, long long length);

// Remove blanks (spaces only) at the ends.
std::string Trim(std::string_view text);
std::string LTrim(std::string_view text);
std::string RTrim(std::string_view text);

std::string UCase(std::string_view text);
std::string LCase(std::string_view text);

}  // namespace tarvex
