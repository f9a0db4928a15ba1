#include "shell/forms/frm_gu_offsets.h"

namespace tarvex {

frmGUOffsets::frmGUOffsets() : Form("frmGUOffsets") {
    // The load replaces it with the layout's name, and fits the size to the layout's units.
    SetCaption("Ground Units Offsets");
    Move(0, 0, 2640, 3600);

    Add(NAMED(dataGUOffsets), Self()).SetVisible(false);
    // The grid above the panel of the nudging controls, 90 apart.
    constexpr float kPanelHeight = 1020;
    // Units are added on the map, not in the grid. Columns 4 and 5 carry the offsets in
    // metres or feet, shown with one decimal; their headings are set at load.
    Add(NAMED(dbgGUOffsets), Self(), {48, 0, Width() - 96, Height() - kPanelHeight - 90})
        .SetDataSource(dataGUOffsets);
    dbgGUOffsets.SetAllowAddNew(false);
    const FixedColumn columns[] = {
        {"ID", "ID"},           {"Unit Name", "FullName"}, {"XOffset", "XOffset"},
        {"YOffset", "YOffset"}, {"Lat Mtr.", "Expr1"},     {"Lon Mtr.", "Expr2"},
        {"Dmg", "DamageID"},
    };
    AddColumns(dbgGUOffsets, columns);
    dbgGUOffsets.Columns(4).SetNumberFormat("0.0");
    dbgGUOffsets.Columns(5).SetNumberFormat("0.0");

    // The spinner with the direction of each of its arrows beside it, and Delete below.
    Add(NAMED(Picture1), Self(), {0, Height() - kPanelHeight, Width(), kPanelHeight});
    const Container panel = In(Picture1);
    Add(NAMED(btnOffsetEdit), panel, {60, 60, 240, 480});
    btnOffsetEdit.SetMin(-65535);
    btnOffsetEdit.SetMax(65535);
    btnOffsetEdit.SetValue(0);
    Add(NAMED(btnDelGU), panel, {60, 600, 1095, kButtonHeight}).SetCaption("Delete");
    Add(NAMED(lblUpGU), panel, {360, 60, 2220, kLabelHeight}).SetCaption("Move Unit");
    Add(NAMED(lblDownGU), panel, {360, 315, 2220, kLabelHeight}).SetCaption("Move Unit");
}

}  // namespace tarvex
