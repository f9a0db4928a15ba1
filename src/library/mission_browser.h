#pragma once
// The mission browser over tblMissions: its life, the allegiance filter, the details of the
// current row and the events of its data source.
namespace tarvex {

class Editor;

// The View menu's entry: shows the browser.
void mnuMissions_Click(Editor& ed);

// The browser's tooltips, or none while tooltips are off.
void SetMissionBrowserTooltips(Editor& ed);

namespace frm_tbl_missions {

void Form_Load(Editor& ed);
void Form_Unload(Editor& ed);
void Form_Resize(Editor& ed);

void optAllegiance_Click(Editor& ed, int index);
void optAllegiance_MouseDown(Editor& ed, int index, int button, int shift, float x, float y);

void grdDataGrid_Click(Editor& ed);
void grdDataGrid_RowColChange(Editor& ed, int lastRow, int lastCol);
// The labels beside the grid, and the status strip, from the current row.
void ShowMissionDetails(Editor& ed);

void cmdClose_Click(Editor& ed);

void datPrimaryRS_Validate(Editor& ed, int& action, int& save);
void datPrimaryRS_Reposition(Editor& ed);
void datPrimaryRS_Error(Editor& ed, int number, int& response);

}  // namespace frm_tbl_missions
}  // namespace tarvex
