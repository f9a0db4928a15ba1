#pragma once
// How the mission reader sees the text of a file: a run of lines, each split into a key part
// and a value, sections ending at a short line, keys found anywhere in a line.
#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace tarvex {

// The lines of a whole file, read one after the other.
class MisLines {
  public:
    MisLines() = default;
    explicit MisLines(std::vector<std::string> lines) : lines_(std::move(lines)) {}

    bool AtEnd() const { return next_ >= lines_.size(); }
    // The next line; the empty text at the end.
    const std::string& Read();

  private:
    std::vector<std::string> lines_;
    std::size_t next_ = 0;
    std::string empty_;
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

// The "id" key of unit and formation sections: found anywhere, and the "=" stands in one of
// the first four characters, so that "type_id=" and "waypoint_path_id=" don't pass for it.
bool MisHasGuardedId(std::string_view line);

}  // namespace tarvex
