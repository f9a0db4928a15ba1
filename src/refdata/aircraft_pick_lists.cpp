#include "refdata/aircraft_pick_lists.h"

#include "common/error.h"
#include "common/numbers.h"
#include "refdata/aircraft_grid.h"
#include "shell/editor.h"
#include "shell/forms/frm_aircraft.h"

namespace tarvex::frm_aircraft {

namespace {

constexpr int kColFamily = 3;
constexpr int kColAllegiance = 5;
// The height of one row of a pick list.
constexpr int kListRowHeight = 192;

// The cell under the pointer at the press is left: the lists close.
void HideListsOffTheirCell(Editor& ed, float x, float y) {
    auto& f = ed.frmAircraft;
    auto& st = ed.aircraftRecords;
    st.GridMouseCol = static_cast<std::int16_t>(f.grdDataGrid.ColContaining(x));
    if (f.grdDataGrid.RowContaining(y) != st.GridMouseRow) st.GridMouseCol = -1;
    if (st.GridMouseCol != kColFamily) f.theFamList.SetVisible(false);
    if (st.GridMouseCol != kColAllegiance) f.theAllyList.SetVisible(false);
}

void PointAtRow(ListBox& list, float y) {
    const long row = CLng(y) / kListRowHeight;
    if (y >= 0 && row < list.ListCount()) list.SetListIndex(static_cast<int>(row));
}

// The list closes and its row goes to the current row of the grid.
template <typename Update>
void PickRow(Editor& ed, ListBox& list, Update update) {
    list.SetVisible(false);
    if (list.ListIndex() >= 0) update(ed, list.ItemData(list.ListIndex()));
}

void StoreId(Editor& ed, int col, std::int32_t id) {
    auto& f = ed.frmAircraft;
    try {
        f.grdDataGrid.Columns(col).SetValue(id);
    } catch (const AppError& error) {
        f.datPrimaryRS.ReportUserError(error);
        return;
    }
    cmdUpdate_Click(ed);
}

}  // namespace

void grdDataGrid_ButtonClick(Editor& ed, int col) {
    if (col != kColFamily && col != kColAllegiance) return;
    auto& f = ed.frmAircraft;
    auto& grid = f.grdDataGrid;
    ListBox& list = col == kColFamily ? f.theFamList : f.theAllyList;
    int row = 0;
    if (!grid.Columns(col).Text().empty()) {
        try {
            row = grid.Columns(col + 1).Value().Long() - 1;
        } catch (const AppError&) {
            row = 0;
        }
        if (row < 0 || row >= list.ListCount()) row = 0;
    }
    list.Move(grid.Left() + grid.Columns(col).Left() + 12,
              grid.Top() + grid.RowTop(ed.aircraftRecords.GridMouseRow) + 12);
    list.SetListIndex(row);
    list.SetVisible(!list.Visible());
}

void grdDataGrid_MouseDown(Editor& ed, int, int, float x, float y) {
    auto& grid = ed.frmAircraft.grdDataGrid;
    ed.aircraftRecords.GridMouseRow = static_cast<std::int16_t>(grid.RowContaining(y));
    ed.aircraftRecords.GridMouseCol = static_cast<std::int16_t>(grid.ColContaining(x));
}

void grdDataGrid_MouseMove(Editor& ed, int, int, float x, float y) {
    HideListsOffTheirCell(ed, x, y);
}

void grdDataGrid_MouseUp(Editor& ed, int, int, float x, float y) {
    HideListsOffTheirCell(ed, x, y);
}

void theFamList_MouseMove(Editor& ed, int, int, float, float y) {
    PointAtRow(ed.frmAircraft.theFamList, y);
}

void theFamList_MouseUp(Editor& ed, int, int, float, float) {
    PickRow(ed, ed.frmAircraft.theFamList, updateFamily);
}

void theAllyList_MouseMove(Editor& ed, int, int, float, float y) {
    PointAtRow(ed.frmAircraft.theAllyList, y);
}

void theAllyList_MouseUp(Editor& ed, int, int, float, float) {
    PickRow(ed, ed.frmAircraft.theAllyList, updateAllegiance);
}

void updateFamily(Editor& ed, std::int32_t Index) {
    StoreId(ed, kColFamily + 1, Index);
}

void updateAllegiance(Editor& ed, std::int32_t Index) {
    StoreId(ed, kColAllegiance + 1, Index);
}

}  // namespace tarvex::frm_aircraft
