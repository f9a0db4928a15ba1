#pragma once
// The units of the layout in the editor, changed in the reference database: a unit added or
// moved by a click on the map, a selection dropped, and the headings of the offsets window's
// direction columns.
#include <cstdint>

namespace tarvex {

class Editor;

// The farthest a unit may stand from its layout's origin, in layout units: a turn of the
// layout takes offsets up to this far.
inline constexpr double kLargestOffset = 32.767;

// Adds a unit of `unitType` to layout `layoutId` where the map was clicked (x, y in map
// units), taken back to an offset of the layout.
void AddStationaryUnit(Editor& ed, float x, float y, std::int32_t layoutId, std::int32_t unitType);
// Moves the unit selected in the offsets grid to where the map was clicked.
void MoveSelectedUnit(Editor& ed, float x, float y);
// Drops the selection of the offsets grid: no unit selected, the map's pointer back.
void CancelUnitSelection(Editor& ed);
// The headings of the offsets grid's columns columnA and columnB, and of the two move labels,
// for a layout whose up is `heading`: each names the direction in which a positive change
// moves a unit, and behind the stroke the opposite one. Loads the offsets window, hidden, when
// it isn't loaded.
void SetOffsetCaptions(Editor& ed, double heading, int columnA, int columnB);

}  // namespace tarvex
