#include "ground/wiring.h"

#include "ground/ground_map.h"
#include "ground/layout_deletion.h"
#include "ground/layout_editor.h"
#include "ground/layout_lists.h"
#include "ground/layout_origin_text.h"
#include "ground/layout_placing.h"
#include "ground/layout_position_controls.h"
#include "ground/mission_layouts.h"
#include "ground/stationary_list.h"
#include "shell/editor.h"
#include "shell/forms/frm_mission.h"
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
    Wire(ed, frm.chkStationary.Click, chkStationary_Click);
    Wire(ed, frm.chkDataWindow.MouseUp, chkDataWindow_MouseUp);
    Wire(ed, frm.lstStationary.Click, lstStationary_Click);
    Wire(ed, frm.lstStationary.MouseMove, lstStationary_MouseMove);
    Wire(ed, frm.lstStationary.MouseUp, lstStationary_MouseUp);
    Wire(ed, frm.fraStationary.MouseDown, fraStationary_MouseDown);
    Wire(ed, frm.fraStationary.MouseMove, fraStationary_MouseMove);
    Wire(ed, frm.fraStationary.MouseUp, fraStationary_MouseUp);
}

}  // namespace tarvex
