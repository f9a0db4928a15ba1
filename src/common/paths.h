#pragma once
// Paths. Folder texts may carry either "\" or "/" (settings written on Windows, typed by a
// user); the program writes the platform's separator and accepts both when it searches.
#include <string>
#include <string_view>

namespace tarvex {

#ifdef _WIN32
inline constexpr char kPathSeparator = '\\';
#else
inline constexpr char kPathSeparator = '/';
#endif

bool IsPathSeparator(char c);

// folder + separator + name; no second separator when the folder already ends in one, and
// just the name when the folder is empty.
std::string JoinPath(std::string_view folder, std::string_view name);

// The path with every "\" and "/" turned into the platform's separator.
std::string NativePath(std::string_view path);

// Like InStr (1-based, case-insensitive, 0 when absent), but a "\" or "/" in what matches
// either separator in path: InStrPath(p, "Missions\") finds ".../missions/...".
size_t InStrPath(std::string_view path, std::string_view what, size_t start = 1);

}  // namespace tarvex
