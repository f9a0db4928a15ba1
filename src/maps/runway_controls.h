#pragma once
// Which airfield controls apply to a path or to a group: Start, End and the flyby combo, by the
// group's takeoff flag (0 in the air, 1 takeoff only, 2 land only, 3 takeoff and land).
namespace tarvex {

class Editor;

void SetRunwayControls(Editor& ed, int flag);
// On the Waypoints tab: by the flag of the group that holds the path, else both ends open.
void ShowRunwayControlsForPath(Editor& ed, int path);
// On the Formations tab: by the selected group's flag and runways.
void ShowRunwayControlsForGroup(Editor& ed);

}  // namespace tarvex
