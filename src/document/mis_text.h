#pragma once
// How the mission reader sees the text of a file: a run of lines, each split into a key part
// and a value, sections ending at a short line, keys found anywhere in a line.
#include <cstddef>
#include <cstdint>
#include <initializer_list>
#include <string>
#include <string_view>
#include <vector>

#include "common/encoding.h"

namespace tarvex {

// A mission file refused before it is read: larger than any mission could be.
inline constexpr std::size_t kMaxMissionFileBytes = 16 * 1024 * 1024;
// No line of a mission comes near this; a longer one means the file is something else.
inline constexpr std::size_t kMaxMissionLineBytes = 1024 * 1024;

// The lines of a mission file, read one after the other as the loader asks for them, so that
// the memory a load takes doesn't grow with the file.
class MisLines {
  public:
    MisLines() = default;  // no lines
    // Opens the file. What can't be a mission file is refused at once with error 75 and the
    // file and the cause in words: a folder, a pipe or a device, a file larger than
    // kMaxMissionFileBytes. A missing file is error 53, one that may not be read error 70.
    explicit MisLines(const std::string& path);

    // Reading on may find that the file isn't a mission's text after all: a line of binary
    // data or a line longer than kMaxMissionLineBytes raises error 75 naming the file.
    bool AtEnd();
    // The next line; the empty text at the end.
    const std::string& Read();

    // "<path> is not a mission file: <why>", as error 75.
    [[noreturn]] void RaiseNotAMission(const std::string& why) const;

  private:
    void Fetch();

    LineReader reader_;
    std::string path_;
    std::string current_;
    std::string next_;
    bool fetched_ = false;  // next_ holds the outcome of the look ahead
    bool hasNext_ = false;
    std::size_t lineNumber_ = 0;
};

// What stands behind the first "=", or the whole line when there is none.
std::string MisValue(std::string_view line);

// A section other than [strings] ends at a line of fewer than two characters.
bool MisSectionEnds(std::string_view line);

// The number between the first "." and the first "]" of a header line. A header without
// both raises error 5.
int MisSectionNumber(std::string_view header);

// The key stands anywhere in the line, value included, without regard to case.
bool MisHasKey(std::string_view line, std::string_view key);

// The keys a section reader tests a line for, in its order. One pass over the line tells
// which of them stand anywhere in it, without regard to case, so that a reader of ten keys
// doesn't search the line ten times. At most 32 keys.
class MisKeys {
  public:
    MisKeys(std::initializer_list<std::string_view> keys);
    // Bit i is set when the i-th key stands in the line.
    std::uint32_t In(std::string_view line) const;

  private:
    std::vector<std::string> keys_;    // in lower case
    std::uint32_t byFirst_[256] = {};  // the keys that begin with each byte
};

// The guard of the "id" key: the "=" stands in one of the first four characters, so that
// "type_id=" and "waypoint_path_id=" don't pass for it.
bool MisIdGuard(std::string_view line);

// The "id" key of unit and formation sections: found anywhere, and the "=" stands in one of
// the first four characters, so that "type_id=" and "waypoint_path_id=" don't pass for it.
bool MisHasGuardedId(std::string_view line);

}  // namespace tarvex
