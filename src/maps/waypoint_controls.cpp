#include "maps/waypoint_controls.h"

#include "shell/editor.h"

namespace tarvex {

// TODO: the point controls of the waypoint editor.
void SetWaypointControlsEnabled(Editor&, bool) {}

}  // namespace tarvex
