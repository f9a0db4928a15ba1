#pragma once
// The paths of a group: the panel fraWPSelect with a check box and a percentage per path, and
// the text GrpPaths ("5000", or "5000:60,5002:40") that it reads and writes.
#include <string>

namespace tarvex {

class Editor;

// The id of path `path` in the mission file and on the controls: 5000 + path.
inline constexpr int kFirstPathId = 5000;
constexpr int PathId(int path) {
    return kFirstPathId + path;
}

// A group index the arrays and the group list can hold (CurrentGroup may be anything).
constexpr bool IsGroupIndex(int group) {
    return group >= 0 && group < 16;
}

// Whether a group's path list names the id of `path`.
bool PathListHolds(const std::string& list, int path);

// Sets the text (and PercentLeft) from the panel's boxes.
void BuildGroupPathList(Editor& ed, std::string& list);
// Sets the panel's boxes from the text.
void ShowGroupPathList(Editor& ed, const std::string& list);
// Offers the paths of two waypoints or more that no other group holds, and opens the panel;
// with none on offer it says so and stays closed.
void ShowAvailablePaths(Editor& ed);

// The panel's handlers.
void btnSetWaypoints_Click(Editor& ed);
void chkWP_Click(Editor& ed, int path);
void btnPathClear_Click(Editor& ed);
void btnWPClose_Click(Editor& ed);

}  // namespace tarvex
