#pragma once
// The family and allegiance of a row picked from a small list laid over the grid, opened by
// the cell buttons of the two name columns.
#include <cstdint>

namespace tarvex {

class Editor;

namespace frm_aircraft {

// Opens or closes the list of the column (3: families, 5: allegiances) on its cell, standing
// on the row's value.
void grdDataGrid_ButtonClick(Editor& ed, int col);
// A press notes the cell under the pointer; once the pointer is on another cell a list that
// is open closes.
void grdDataGrid_MouseDown(Editor& ed, int button, int shift, float x, float y);
void grdDataGrid_MouseMove(Editor& ed, int button, int shift, float x, float y);
void grdDataGrid_MouseUp(Editor& ed, int button, int shift, float x, float y);

void theFamList_MouseMove(Editor& ed, int button, int shift, float x, float y);
void theFamList_MouseUp(Editor& ed, int button, int shift, float x, float y);
void theAllyList_MouseMove(Editor& ed, int button, int shift, float x, float y);
void theAllyList_MouseUp(Editor& ed, int button, int shift, float x, float y);

// The id behind the name column into the current row, which is stored at once.
void updateFamily(Editor& ed, std::int32_t Index);
void updateAllegiance(Editor& ed, std::int32_t Index);

}  // namespace frm_aircraft
}  // namespace tarvex
