#pragma once
// The records of the ground layouts (frmGrndNames): a layout picked in a combo with its id and
// unit count, the entry of a new layout, a grid of its units, and the buttons that store,
// rename and delete. Default layouts keep their units: only Save Layout copies them.
#include <cstdint>

namespace tarvex {

class Editor;

// View > Ground Layouts.
void mnuGULayout_Click(Editor& ed);

// Fills the layout combo and the stationary type list, then selects the first layout.
void FillRecordLists(Editor& ed);

// The layout picked is a default one: its units can't be changed here.
bool RecordLayoutLocked(Editor& ed);

namespace frm_grnd_names {

void Form_Load(Editor& ed);
void Form_Unload(Editor& ed);
void Form_Resize(Editor& ed);

void cmbGULayoutName_Click(Editor& ed);
// Typing in the combo renames the layout at the next Update.
void cmbGULayoutName_Change(Editor& ed);

void datPrimaryRS_Reposition(Editor& ed);
void datPrimaryRS_Validate(Editor& ed, int& action, int& save);
void datPrimaryRS_Error(Editor& ed, int number, int& response);
void datSecondaryRS_Error(Editor& ed, int number, int& response);

// Toggles between the view of a layout and the entry of a new one.
void cmdAdd_Click(Editor& ed);
void cmdUpdate_Click(Editor& ed);
void cmdDeleteLayout_Click(Editor& ed);
void cmdDeleteUnits_Click(Editor& ed);
void cmdClose_Click(Editor& ed);

void txtLayoutID_Change(Editor& ed);
void txtLayoutID_GotFocus(Editor& ed);
void txtLayoutID_LostFocus(Editor& ed);
void txtLayoutTotal_Change(Editor& ed);
void txtLayoutTotal_GotFocus(Editor& ed);
// Leaving the last field of a new layout stores it.
void txtLayoutTotal_LostFocus(Editor& ed);

}  // namespace frm_grnd_names
}  // namespace tarvex
