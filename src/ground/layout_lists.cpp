#include "ground/layout_lists.h"

#include "shell/editor.h"
#include "shell/forms/frm_mission.h"

namespace tarvex {

void FillLayoutLists(Editor& ed) {
    auto& frm = ed.FrmMission;
    ed.db.FillListFromQuery(
        frm.cmbAirfieldLayout,
        "SELECT LayoutName,ID FROM GrndNames WHERE GUType > 1 ORDER BY LayoutName;");
    ed.db.FillListFromQuery(
        frm.lstGrnUnits, "SELECT LayoutName,ID FROM GrndNames WHERE GUType=1 ORDER BY LayoutName;");
}

}  // namespace tarvex
