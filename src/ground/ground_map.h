#pragma once
// The pointer on the Ground units map. The map's tag tells placing layouts ("False") from the
// layout editor ("True"), and every handler asks it first.
namespace tarvex {

class Editor;

// Placing: a left press picks a marker or places a layout. In the editor: a selected unit is
// moved (left) or let go (right), otherwise a chosen stationary type is added (left) or
// dropped (right).
void mapGroundUnits_MouseDown(Editor& ed, int button, int shift, float x, float y);
// The read-out under the pointer, and the drag of a marker.
void mapGroundUnits_MouseMove(Editor& ed, int button, int shift, float x, float y);
// Ends the drag of a marker, or drops the stationary list's frame on the map.
void mapGroundUnits_MouseUp(Editor& ed, int button, int shift, float x, float y);

}  // namespace tarvex
