#include "shell/forms/frm_gu_offsets.h"

namespace tarvex {

frmGUOffsets::frmGUOffsets() : Form("frmGUOffsets") {
    // The load replaces it with the layout's name.
    SetCaption("Ground Units Offsets");

    Add(dataGUOffsets, "dataGUOffsets").SetVisible(false);
    // Units are added on the map, not in the grid. Columns 4 and 5 carry the offsets in
    // metres or feet, shown with one decimal; their headings are set at load.
    Add(dbgGUOffsets, "dbgGUOffsets").SetDataSource(dataGUOffsets);
    dbgGUOffsets.SetAllowAddNew(false);
    const FixedColumn columns[] = {
        {"ID", "ID"},           {"Unit Name", "FullName"}, {"XOffset", "XOffset"},
        {"YOffset", "YOffset"}, {"Lat Mtr.", "Expr1"},     {"Lon Mtr.", "Expr2"},
        {"Dmg", "DamageID"},
    };
    AddColumns(dbgGUOffsets, columns);
    dbgGUOffsets.Columns(4).SetNumberFormat("0.0");
    dbgGUOffsets.Columns(5).SetNumberFormat("0.0");

    Add(Picture1, "Picture1");
    Add(btnOffsetEdit, "btnOffsetEdit");
    btnOffsetEdit.SetMin(-65535);
    btnOffsetEdit.SetMax(65535);
    btnOffsetEdit.SetValue(0);
    Add(btnDelGU, "btnDelGU").SetCaption("Delete");
    Add(lblUpGU, "lblUpGU").SetCaption("Move Unit");
    Add(lblDownGU, "lblDownGU").SetCaption("Move Unit");
}

}  // namespace tarvex
