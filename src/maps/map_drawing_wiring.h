#pragma once
namespace tarvex {

class Editor;

// Hooks the map drawing to its controls: the repaint of mapWayPoints, the pointer read-out of
// both maps, the overlay boxes and the map combo of the Waypoints tab.
void WireMapDrawing(Editor& ed);

}  // namespace tarvex
