#pragma once
// What a loaded mission holds, in a form for people and for scripts.
#include <string>
#include <vector>

namespace tarvex {
class Editor;
}

namespace tarvex::cli {

struct PilotInfo {
    std::string name;
    int aircraftId = 0;
    std::string aircraft;  // the aircraft's short name; empty when the database lacks it
    bool player = false;
};

struct GroupInfo {
    int id = 0;
    std::string name;
    std::string pattern;
    std::string paths;  // as in the file: a lone path id or id:percent pairs
    std::vector<PilotInfo> pilots;
};

struct PathInfo {
    int id = 0;
    int waypoints = 0;
    double length = 0;  // along the waypoints, in the distance unit of the run
};

struct LayoutInfo {
    std::string name;  // the row of the mission's layout list
    int layoutId = 0;
    std::string lat, lon;
    bool airfield = false;
};

struct MissionInfo {
    std::string file;
    std::string title;
    std::string map;
    std::string date;
    std::string time;
    std::string distanceUnit;  // "km" or "mi"
    std::vector<GroupInfo> groups;
    std::vector<PathInfo> paths;
    std::vector<LayoutInfo> layouts;
};

// Reads the mission that the editor has loaded. Paths are those a save would write.
MissionInfo CollectMissionInfo(Editor& ed);

std::string FormatInfoText(const MissionInfo& info);
// A text as a JSON string, quotes and escapes included.
std::string JsonText(const std::string& text);
std::string FormatInfoJson(const MissionInfo& info);

}  // namespace tarvex::cli
