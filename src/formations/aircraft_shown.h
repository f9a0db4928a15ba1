#pragma once
// The aircraft in cmbMovingType: its load on the labels, its allegiance and family marked on
// the filter, the directive that Auto Update derives from it, and its assignment to the
// selected pilots when the designer picks it.
namespace tarvex {

class Editor;

// The row changed, by the designer or by code.
void cmbMovingType_Click(Editor& ed);
// The designer picked a row: it goes to the selected pilots.
void cmbMovingType_UserPick(Editor& ed);
// The list opens: taller and upwards by the AC List Size option.
void cmbMovingType_DropDown(Editor& ed);

// The aircraft of cmbMovingType into PilotAC of every selected pilot.
void UpdateSelectedPilotsAC(Editor& ed);

}  // namespace tarvex
