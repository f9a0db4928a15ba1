#pragma once
// Whether the waypoint editor has a point to work on: the point controls, the Edit menu's
// entries and btnClrPoint, whose visibility doubles as the sign.
namespace tarvex {

class Editor;

void SetWaypointControlsEnabled(Editor& ed, bool state);

// The Edit menu's entries for waypoints (mnuDel, mnuClrPoints and mnuClrMap) follow `state`.
void SetEditMenusEnabled(Editor& ed, bool state);

}  // namespace tarvex
