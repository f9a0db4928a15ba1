#pragma once
// Editing the aircraft records in the grid: a new aircraft with its offered id and its
// defaults, the checks as cells are entered, Update, Delete and Escape.
#include <string>

namespace tarvex {

class Editor;

namespace frm_aircraft {

// The grid goes to its new row, with the id that no aircraft uses in column 0.
void cmdAdd_Click(Editor& ed);
void cmdUpdate_Click(Editor& ed);
void cmdDelete_Click(Editor& ed);

// A new row takes the family and allegiance of the filters, else Fighter and RAF.
void grdDataGrid_OnAddNew(Editor& ed);
// On the new row: nothing is entered before the id, and the browse button lies over the file
// name cell while it is current.
void grdDataGrid_RowColChange(Editor& ed, int lastRow, int lastCol);
// An id must be a free one; a file name stores the row.
void grdDataGrid_AfterColUpdate(Editor& ed, int col);
void grdDataGrid_AfterUpdate(Editor& ed);
void grdDataGrid_SelChange(Editor& ed);
void grdDataGrid_KeyDown(Editor& ed, int& keyCode, int shift);
void grdDataGrid_Click(Editor& ed);

// The id and file name columns are open on the new row only.
void SetIDColumnsLocked(Editor& ed, bool flag);
// The chosen aircraft into the new row: its folder as the file name, the title of its
// aircraft.cfg as the descriptive name; the grid goes on to the family.
void SaveNewAC(Editor& ed, const std::string& theFolder, const std::string& theACFile);
// The window closes: a row being changed is stored, unless it is a new row without a file
// name, which is dropped.
void StorePendingRow(Editor& ed);

}  // namespace frm_aircraft
}  // namespace tarvex
