#pragma once
// Building a path on the Waypoints map: a click adds a waypoint (at the end, or behind the
// selected row), a press on a waypoint grabs it and a drag moves it.
namespace tarvex {

class Editor;

void mapWayPoints_MouseDown(Editor& ed, int button, int shift, float x, float y);
// The read-out of the pointer's position first, then the drag of a grabbed waypoint.
void mapWayPoints_MouseMove(Editor& ed, int button, int shift, float x, float y);
void mapWayPoints_MouseUp(Editor& ed, int button, int shift, float x, float y);

// The new waypoint at the pointer in slot CurrentPoint + 1, the last one; the End point moves
// up one slot.
void AppendPoint(Editor& ed, float x, float y);
// The new waypoint in slot CurrentPoint + 1 with the positions behind it moved up one slot,
// and its row behind the row selected before.
void InsertPoint(Editor& ed, float x, float y);
// The grabbed waypoint to the pointer.
void DragPointTo(Editor& ed, float x, float y);

}  // namespace tarvex
