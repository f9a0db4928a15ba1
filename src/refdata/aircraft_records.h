#pragma once
// The aircraft records window: its life, the two filters and the sort of its grid, and the
// events of its data source.
namespace tarvex {

class ComboBox;
class Editor;

// The View menu's entry: shows the window beside the main window.
void mnuAddAC_Click(Editor& ed);

namespace frm_aircraft {

// The family or allegiance id that a filter combo shows; 0 when it shows them all.
int FilterId(const ComboBox& filter);

void Form_Load(Editor& ed);
// When a row was deleted or an id or file name entered, the Formations tab's aircraft combo
// is filled again, with every aircraft.
void Form_Unload(Editor& ed);
void Form_Resize(Editor& ed);
void cmdClose_Click(Editor& ed);

// A new filter builds the record source anew, dropping any sort.
void cmbAirforce_Click(Editor& ed);
void cmbUnitRole_Click(Editor& ed);
// Sorts by the column's field within the filter in force.
void grdDataGrid_HeadClick(Editor& ed, int col);

void datPrimaryRS_Validate(Editor& ed, int& action, int& save);
void datPrimaryRS_Reposition(Editor& ed);
void datPrimaryRS_Error(Editor& ed, int number, int& response);

}  // namespace frm_aircraft
}  // namespace tarvex
