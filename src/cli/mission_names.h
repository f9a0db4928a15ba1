#pragma once
// The missions a command is given: files, and folders that stand for their .mis files.
#include <string>
#include <vector>

namespace tarvex::cli {

struct NamedMission {
    std::string shown;  // as the user named it
    std::string path;   // absolute
};

// Each name in turn; a folder gives the .mis files directly in it, in name order.
std::vector<NamedMission> ExpandMissionNames(const std::vector<std::string>& names);

}  // namespace tarvex::cli
