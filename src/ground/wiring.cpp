#include "ground/wiring.h"

#include "ground/ground_map.h"
#include "ground/layout_deletion.h"
#include "ground/layout_editor.h"
#include "ground/layout_lists.h"
#include "ground/layout_origin_text.h"
#include "ground/layout_placing.h"
#include "ground/layout_position_controls.h"
#include "ground/layout_record_grid.h"
#include "ground/layout_records.h"
#include "ground/layout_saving.h"
#include "ground/mission_layouts.h"
#include "ground/offsets_window.h"
#include "ground/stationary_list.h"
#include "shell/editor.h"
#include "shell/forms/frm_grnd_names.h"
#include "shell/forms/frm_gu_offsets.h"
#include "shell/forms/frm_mission.h"
#include "shell/forms/mdi_mission_ed.h"
#include "shell/wire.h"

namespace tarvex {

void WireGround(Editor& ed) {
    auto& frm = ed.FrmMission;
    Wire(ed, frm.mapGroundUnits.MouseDown, mapGroundUnits_MouseDown);
    Wire(ed, frm.mapGroundUnits.MouseMove, mapGroundUnits_MouseMove);
    Wire(ed, frm.mapGroundUnits.MouseUp, mapGroundUnits_MouseUp);

    Wire(ed, frm.lstGrnUnits.MouseDown, lstGrnUnits_MouseDown);
    Wire(ed, frm.btnDelGUlst.Click, btnDelGUlst_Click);
    Wire(ed, frm.cmbGrndAirfield.Click, cmbGrndAirfield_Click);
    Wire(ed, frm.cmbAirfieldLayout.Click, cmbAirfieldLayout_Click);
    Wire(ed, frm.btnDelGUcmb.Click, btnDelGUcmb_Click);
    Wire(ed, frm.lstGUAdded.Click, lstGUAdded_Click);
    Wire(ed, frm.lstGUAdded.DblClick, lstGUAdded_DblClick);
    Wire(ed, frm.lstGUAdded.MouseDown, lstGUAdded_MouseDown);
    Wire(ed, frm.btnDeleteGrndUnit.Click, btnDeleteGrndUnit_Click);
    Wire(ed, frm.btnDeleteGrndUnit.MouseDown, btnDeleteGrndUnit_MouseDown);
    Wire(ed, frm.txtAddedGU.Change, txtAddedGU_Change);
    Wire(ed, frm.txtGULatLon.KeyDown, txtGULatLon_KeyDown);
    Wire(ed, frm.txtGULatLon.Change, txtGULatLon_Change);
    WireEach(ed, frm.optGndHasPoints, &OptionButton::MouseDown, optGndHasPoints_MouseDown);
    Wire(ed, frm.cmbGUMap.Click, cmbGUMap_Click);

    Wire(ed, frm.btnXPos.Change, btnXPos_Change);
    Wire(ed, frm.btnYPos.Change, btnYPos_Change);
    Wire(ed, frm.btnRotate2.Change, btnRotate2_Change);
    Wire(ed, frm.btnSpread.Change, btnSpread_Change);
    Wire(ed, frm.btnSpread.MouseDown, btnSpread_MouseDown);
    Wire(ed, frm.btnZoom.Change, btnZoom_Change);
    Wire(ed, frm.btnZoom.MouseDown, btnZoom_MouseDown);
    Wire(ed, frm.btnCursor.Change, btnCursor_Change);
    Wire(ed, frm.btnX.Change, btnX_Change);
    Wire(ed, frm.btnY.Change, btnY_Change);
    Wire(ed, frm.btnRotate90.Click, btnRotate90_Click);
    Wire(ed, frm.btnGUReset.Click, btnGUReset_Click);
    Wire(ed, frm.btnGUClose.Click, btnGUClose_Click);
    Wire(ed, frm.btnSave.Click, btnSave_Click);
    Wire(ed, frm.chkStationary.Click, chkStationary_Click);
    Wire(ed, frm.chkDataWindow.MouseUp, chkDataWindow_MouseUp);
    Wire(ed, frm.lstStationary.Click, lstStationary_Click);
    Wire(ed, frm.lstStationary.MouseMove, lstStationary_MouseMove);
    Wire(ed, frm.lstStationary.MouseUp, lstStationary_MouseUp);
    Wire(ed, frm.fraStationary.MouseDown, fraStationary_MouseDown);
    Wire(ed, frm.fraStationary.MouseMove, fraStationary_MouseMove);
    Wire(ed, frm.fraStationary.MouseUp, fraStationary_MouseUp);

    Wire(ed, ed.MDIMissionED.mnuGULayout.Click, mnuGULayout_Click);
    {
        using namespace frm_grnd_names;
        auto& g = ed.frmGrndNames;
        Wire(ed, g.Load, Form_Load);
        Wire(ed, g.Unload, Form_Unload);
        Wire(ed, g.Resize, Form_Resize);
        Wire(ed, g.cmbGULayoutName.Click, cmbGULayoutName_Click);
        Wire(ed, g.cmbGULayoutName.Change, cmbGULayoutName_Change);
        Wire(ed, g.datPrimaryRS.Reposition, datPrimaryRS_Reposition);
        Wire(ed, g.datPrimaryRS.Validate, datPrimaryRS_Validate);
        Wire(ed, g.datPrimaryRS.Error, datPrimaryRS_Error);
        Wire(ed, g.datSecondaryRS.Error, datSecondaryRS_Error);
        Wire(ed, g.cmdAdd.Click, cmdAdd_Click);
        Wire(ed, g.cmdUpdate.Click, cmdUpdate_Click);
        Wire(ed, g.cmdDeleteLayout.Click, cmdDeleteLayout_Click);
        Wire(ed, g.cmdDeleteUnits.Click, cmdDeleteUnits_Click);
        Wire(ed, g.cmdClose.Click, cmdClose_Click);
        Wire(ed, g.txtLayoutID.Change, txtLayoutID_Change);
        Wire(ed, g.txtLayoutID.GotFocus, txtLayoutID_GotFocus);
        Wire(ed, g.txtLayoutID.LostFocus, txtLayoutID_LostFocus);
        Wire(ed, g.txtLayoutTotal.Change, txtLayoutTotal_Change);
        Wire(ed, g.txtLayoutTotal.GotFocus, txtLayoutTotal_GotFocus);
        Wire(ed, g.txtLayoutTotal.LostFocus, txtLayoutTotal_LostFocus);
        Wire(ed, g.grdDataGrid.HeadClick, grdDataGrid_HeadClick);
        Wire(ed, g.grdDataGrid.RowColChange, grdDataGrid_RowColChange);
        Wire(ed, g.grdDataGrid.SelChange, grdDataGrid_SelChange);
        Wire(ed, g.grdDataGrid.AfterColUpdate, grdDataGrid_AfterColUpdate);
        Wire(ed, g.grdDataGrid.AfterUpdate, grdDataGrid_AfterUpdate);
        Wire(ed, g.grdDataGrid.OnAddNew, grdDataGrid_OnAddNew);
        Wire(ed, g.grdDataGrid.KeyDown, grdDataGrid_KeyDown);
        Wire(ed, g.grdDataGrid.MouseDown, grdDataGrid_MouseDown);
        Wire(ed, g.grdDataGrid.MouseMove, grdDataGrid_MouseMove);
        Wire(ed, g.grdDataGrid.ButtonClick, grdDataGrid_ButtonClick);
        Wire(ed, g.theDamageList.MouseMove, theDamageList_MouseMove);
        Wire(ed, g.theDamageList.MouseUp, theDamageList_MouseUp);
        Wire(ed, g.lstStationaryName.Click, lstStationaryName_Click);
        Wire(ed, g.lstStationaryName.MouseMove, lstStationaryName_MouseMove);
        Wire(ed, g.lstStationaryName.MouseUp, lstStationaryName_MouseUp);
        Wire(ed, g.txtStationaryName.KeyUp, txtStationaryName_KeyUp);
    }
    {
        using namespace frm_gu_offsets;
        auto& w = ed.frmGUOffsets;
        Wire(ed, w.Load, Form_Load);
        Wire(ed, w.Unload, Form_Unload);
        Wire(ed, w.dbgGUOffsets.RowColChange, dbgGUOffsets_RowColChange);
        Wire(ed, w.dbgGUOffsets.SelChange, dbgGUOffsets_SelChange);
        Wire(ed, w.dbgGUOffsets.AfterColUpdate, dbgGUOffsets_AfterColUpdate);
        Wire(ed, w.dataGUOffsets.Error, dataGUOffsets_Error);
        Wire(ed, w.btnOffsetEdit.MouseDown, btnOffsetEdit_MouseDown);
        Wire(ed, w.btnOffsetEdit.Change, btnOffsetEdit_Change);
        Wire(ed, w.btnDelGU.Click, btnDelGU_Click);
    }
}

}  // namespace tarvex
