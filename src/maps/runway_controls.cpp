#include "maps/runway_controls.h"

#include "shell/editor.h"

namespace tarvex {

// TODO: the airfield controls of a path and of a group.
void SetRunwayControls(Editor&, int) {}

void ShowRunwayControlsForPath(Editor&, int) {}

void ShowRunwayControlsForGroup(Editor&) {}

}  // namespace tarvex
