#include "refdata/wiring.h"

#include "refdata/aircraft_files.h"
#include "refdata/aircraft_grid.h"
#include "refdata/aircraft_pick_lists.h"
#include "refdata/aircraft_records.h"
#include "shell/editor.h"
#include "shell/forms/frm_aircraft.h"
#include "shell/forms/mdi_mission_ed.h"
#include "shell/wire.h"

namespace tarvex {

void WireRefdata(Editor& ed) {
    Wire(ed, ed.MDIMissionED.mnuAddAC.Click, mnuAddAC_Click);

    using namespace frm_aircraft;
    auto& f = ed.frmAircraft;
    Wire(ed, f.Load, Form_Load);
    Wire(ed, f.Unload, Form_Unload);
    Wire(ed, f.Resize, Form_Resize);
    Wire(ed, f.cmdClose.Click, cmdClose_Click);
    Wire(ed, f.cmbAirforce.Click, cmbAirforce_Click);
    Wire(ed, f.cmbUnitRole.Click, cmbUnitRole_Click);

    Wire(ed, f.cmdAdd.Click, cmdAdd_Click);
    Wire(ed, f.cmdAdd.OLEDragOver, cmdAdd_OLEDragOver);
    Wire(ed, f.cmdAdd.OLEDragDrop, cmdAdd_OLEDragDrop);
    Wire(ed, f.btnBrowse.Click, btnBrowse_Click);
    Wire(ed, f.cmdUpdate.Click, cmdUpdate_Click);
    Wire(ed, f.cmdDelete.Click, cmdDelete_Click);

    auto& grid = f.grdDataGrid;
    Wire(ed, grid.Click, grdDataGrid_Click);
    Wire(ed, grid.HeadClick, grdDataGrid_HeadClick);
    Wire(ed, grid.OnAddNew, grdDataGrid_OnAddNew);
    Wire(ed, grid.RowColChange, grdDataGrid_RowColChange);
    Wire(ed, grid.AfterColUpdate, grdDataGrid_AfterColUpdate);
    Wire(ed, grid.AfterUpdate, grdDataGrid_AfterUpdate);
    Wire(ed, grid.SelChange, grdDataGrid_SelChange);
    Wire(ed, grid.KeyDown, grdDataGrid_KeyDown);
    Wire(ed, grid.ButtonClick, grdDataGrid_ButtonClick);
    Wire(ed, grid.MouseDown, grdDataGrid_MouseDown);
    Wire(ed, grid.MouseMove, grdDataGrid_MouseMove);
    Wire(ed, grid.MouseUp, grdDataGrid_MouseUp);

    Wire(ed, f.theFamList.MouseMove, theFamList_MouseMove);
    Wire(ed, f.theFamList.MouseUp, theFamList_MouseUp);
    Wire(ed, f.theAllyList.MouseMove, theAllyList_MouseMove);
    Wire(ed, f.theAllyList.MouseUp, theAllyList_MouseUp);

    Wire(ed, f.datPrimaryRS.Validate, datPrimaryRS_Validate);
    Wire(ed, f.datPrimaryRS.Reposition, datPrimaryRS_Reposition);
    Wire(ed, f.datPrimaryRS.Error, datPrimaryRS_Error);
}

}  // namespace tarvex
