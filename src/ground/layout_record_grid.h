#pragma once
// The grid of a layout's units in frmGrndNames, with the two drop-down lists laid over it: the
// stationary types over column 2, with a search field that finds a first letter and scrolling
// at the list's edges, and the damage list over column 7. Numbers typed into a cell are
// checked against what the field holds before they reach the database.
#include <cstdint>

namespace tarvex {

class Editor;

// Writes the type into the current grid row and files the row under the layout shown.
void updateStationary(Editor& ed, std::int32_t& Index);

// A default layout's units are read-only: every column locked. The layout id column is
// always filled by the program.
void LockUnitGrid(Editor& ed, bool locked);

namespace frm_grnd_names {

void grdDataGrid_HeadClick(Editor& ed, int col);
void grdDataGrid_RowColChange(Editor& ed, int lastRow, int lastCol);
void grdDataGrid_SelChange(Editor& ed);
void grdDataGrid_AfterColUpdate(Editor& ed, int col);
void grdDataGrid_AfterUpdate(Editor& ed);
void grdDataGrid_OnAddNew(Editor& ed);
void grdDataGrid_KeyDown(Editor& ed, int& keyCode, int shift);
void grdDataGrid_MouseDown(Editor& ed, int button, int shift, float x, float y);
void grdDataGrid_MouseMove(Editor& ed, int button, int shift, float x, float y);
void grdDataGrid_ButtonClick(Editor& ed, int col);

void theDamageList_MouseMove(Editor& ed, int button, int shift, float x, float y);
void theDamageList_MouseUp(Editor& ed, int button, int shift, float x, float y);

void lstStationaryName_Click(Editor& ed);
void lstStationaryName_MouseMove(Editor& ed, int button, int shift, float x, float y);
void lstStationaryName_MouseUp(Editor& ed, int button, int shift, float x, float y);
// One typed letter selects the first type that begins with it.
void txtStationaryName_KeyUp(Editor& ed, int& keyCode, int shift);

}  // namespace frm_grnd_names
}  // namespace tarvex
