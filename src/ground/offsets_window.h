#pragma once
// The offsets window (frmGUOffsets) beside the layout editor: one row per unit of the layout,
// its two offsets in metres or feet under headings that name the direction a positive change
// moves the unit, the spin control that nudges the selected offset, and Delete. A default
// layout is shown locked. SetOffsetCaptions is declared with the layout's units
// (ground/layout_units.h).
namespace tarvex {

class Editor;

// Points the window's data source at the layout in the editor, with the query of the unit
// system in force; also when the unit system changes.
void SetOffsetsSource(Editor& ed);
// The tooltips of the grid and the spin control; also when the tooltip option changes.
void SetOffsetsTips(Editor& ed);
// The window's height from its rows, within 1400 and 5736; the grid fills it.
void FitOffsetsWindow(Editor& ed);

namespace frm_gu_offsets {

void Form_Load(Editor& ed);
void Form_Unload(Editor& ed);

void dbgGUOffsets_RowColChange(Editor& ed, int lastRow, int lastCol);
// A row picked selects its unit for a move on the map; a second press on it drops it.
void dbgGUOffsets_SelChange(Editor& ed);
// A value typed in metres or feet goes into the offset two columns to the left.
void dbgGUOffsets_AfterColUpdate(Editor& ed, int col);
void dataGUOffsets_Error(Editor& ed, int number, int& response);

// Shift held at the press makes the steps ten times finer.
void btnOffsetEdit_MouseDown(Editor& ed, int button, int shift, float x, float y);
void btnOffsetEdit_Change(Editor& ed);
void btnDelGU_Click(Editor& ed);

}  // namespace frm_gu_offsets
}  // namespace tarvex
