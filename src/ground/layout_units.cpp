#include "ground/layout_units.h"

#include "shell/editor.h"

namespace tarvex {

// TODO: add the unit (MapToOffset, TurnOffset, RotateOffset into XOffset = -a, YOffset = b),
// requery the offsets window, raise the layout's UnitTotal by the type, fit the window.
void AddStationaryUnit(Editor&, float, float, std::int32_t, std::int32_t) {}

// TODO: the offset from the click as for AddStationaryUnit into the grid's selected row.
void MoveSelectedUnit(Editor&, float, float) {}

// TODO: drop the grid's last row selection and disable btnDelGU when the window is checked;
// SelectedUnit := -1; the map's pointer back to the default.
void CancelUnitSelection(Editor&) {}

// TODO: the column headings "000 / 000" and the labels "Move Unit ... Degrees.".
void SetOffsetCaptions(Editor&, double, int, int) {}

}  // namespace tarvex
