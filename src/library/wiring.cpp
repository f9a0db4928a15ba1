#include "library/wiring.h"

#include "library/mission_browser.h"
#include "library/mission_browser_actions.h"
#include "library/mission_summary_scan.h"
#include "shell/editor.h"
#include "shell/forms/frm_tbl_missions.h"
#include "shell/forms/mdi_mission_ed.h"
#include "shell/wire.h"

namespace tarvex {

void WireLibrary(Editor& ed) {
    auto& m = ed.MDIMissionED;
    Wire(ed, m.mnuMissDetail.Click, mnuMissDetail_Click);
    Wire(ed, m.mnuMissions.Click, mnuMissions_Click);

    using namespace frm_tbl_missions;
    auto& f = ed.frmtblMissions;
    Wire(ed, f.Load, Form_Load);
    Wire(ed, f.Unload, Form_Unload);
    Wire(ed, f.Resize, Form_Resize);
    WireEach(ed, f.optAllegiance, &OptionButton::Click, optAllegiance_Click);
    WireEach(ed, f.optAllegiance, &OptionButton::MouseDown, optAllegiance_MouseDown);
    Wire(ed, f.grdDataGrid.Click, grdDataGrid_Click);
    Wire(ed, f.grdDataGrid.DblClick, grdDataGrid_DblClick);
    Wire(ed, f.grdDataGrid.RowColChange, grdDataGrid_RowColChange);
    Wire(ed, f.cmdLoad.Click, cmdLoad_Click);
    Wire(ed, f.btnDelete.Click, btnDelete_Click);
    Wire(ed, f.cmdClose.Click, cmdClose_Click);
    Wire(ed, f.datPrimaryRS.Validate, datPrimaryRS_Validate);
    Wire(ed, f.datPrimaryRS.Reposition, datPrimaryRS_Reposition);
    Wire(ed, f.datPrimaryRS.Error, datPrimaryRS_Error);
}

}  // namespace tarvex
