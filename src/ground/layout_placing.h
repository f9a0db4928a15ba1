#pragma once
// Placing layouts on the map of the Ground units tab: a click places a landscape layout or
// picks a marker to drag, an airfield layout is placed from the two combos, and a change of
// map draws the markers again from the text of each origin.
namespace tarvex {

class Editor;

// A left press on the map outside the editor: a marker hit (strictly within 48 map units, the
// lowest row first) is selected and, for a landscape layout, dragged; free map places the
// layout selected in lstGrnUnits there, up to 20 layouts.
void PickOrPlaceLayout(Editor& ed, float x, float y);

// The pointer's move over the map: the offset read-out in the editor, otherwise the position
// read-out to four decimals, and the drag of a marker.
void TrackLayoutPointer(Editor& ed, float x, float y);

void cmbGrndAirfield_Click(Editor& ed);
// Places the chosen airfield layout on the chosen airfield, turned a quarter for a default one.
void cmbAirfieldLayout_Click(Editor& ed);
void cmbGUMap_Click(Editor& ed);

}  // namespace tarvex
