#include "shell/forms/frm_gu_offsets.h"

namespace tarvex {

frmGUOffsets::frmGUOffsets(Editor& ed) : Form("frmGUOffsets"), ed(ed) {
    // The load replaces it with the layout's name.
    SetCaption("Ground Units Offsets");

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
