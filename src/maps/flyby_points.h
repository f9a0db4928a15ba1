#pragma once
// An airfield as a waypoint: while the list of cmbRunways is open the highlighted airfield is
// shown as the path's last waypoint in a slot of its own; a choice makes it a waypoint, a list
// closed without one takes the slot away again.
namespace tarvex {

class Editor;

// The preview of the highlighted airfield; nothing while no row is highlighted, and nothing
// on a path of 15 waypoints, which has no slot left.
void scFlybyCombo(Editor& ed);
// The choice: a new last row, white on the map, and the combo back at no row.
void cmbRunways_Click(Editor& ed);
void cmbRunways_KeyDown(Editor& ed, int& keyCode, int shift);
void cmbRunways_KeyUp(Editor& ed, int& keyCode, int shift);
void cmbRunways_Highlight(Editor& ed, int row);
void cmbRunways_UserPick(Editor& ed);
void cmbRunways_DropCancel(Editor& ed);

}  // namespace tarvex
