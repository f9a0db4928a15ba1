#include "formations/wiring.h"

#include "formations/aircraft_filter.h"
#include "formations/aircraft_shown.h"
#include "formations/formation_patterns.h"
#include "formations/group_delete.h"
#include "formations/group_selection.h"
#include "formations/group_values.h"
#include "formations/new_record_dialog.h"
#include "formations/pilot_attributes.h"
#include "formations/pilot_delete.h"
#include "formations/pilot_selection.h"
#include "formations/player.h"
#include "formations/set_color_timer.h"
#include "shell/editor.h"
#include "shell/forms/frm_mission.h"
#include "shell/forms/frm_new_record.h"
#include "shell/wire.h"

namespace tarvex {

void WireFormations(Editor& ed) {
    auto& frm = ed.FrmMission;
    Wire(ed, frm.tmrSetColor.Timer, tmrSetColor_Timer);

    // Groups.
    Wire(ed, frm.lstGroupName.Click, lstGroupName_Click);
    Wire(ed, frm.lstGroupName.DblClick, lstGroupName_DblClick);
    Wire(ed, frm.lstGroupName.MouseDown, lstGroupName_MouseDown);
    Wire(ed, frm.lstGroupName.MouseUp, lstGroupName_MouseUp);
    Wire(ed, frm.btnGroupName.Click, btnGroupName_Click);
    Wire(ed, frm.btnDeleteGroup.Click, btnDeleteGroup_Click);
    Wire(ed, frm.btnDeleteGroup.MouseDown, btnDeleteGroup_MouseDown);
    Wire(ed, frm.cmbFormPattern.Click, cmbFormPattern_Click);
    Wire(ed, frm.chkSuspend.Click, chkSuspend_Click);
    Wire(ed, frm.chkSuspend.MouseDown, chkSuspend_MouseDown);
    Wire(ed, frm.cmbDirective.Click, cmbDirective_Click);
    Wire(ed, frm.cmbTakeoffFlag.Click, cmbTakeoffFlag_Click);

    // Pilots.
    Wire(ed, frm.lstPilotName.Click, lstPilotName_Click);
    Wire(ed, frm.lstPilotName.DblClick, lstPilotName_DblClick);
    Wire(ed, frm.lstPilotName.MouseDown, lstPilotName_MouseDown);
    Wire(ed, frm.lstPilotName.MouseUp, lstPilotName_MouseUp);
    Wire(ed, frm.btnPilotName.Click, btnPilotName_Click);
    Wire(ed, frm.btnDeletePilot.Click, btnDeletePilot_Click);
    Wire(ed, frm.btnDeletePilot.MouseDown, btnDeletePilot_MouseDown);
    Wire(ed, frm.cmbSkill.Click, cmbSkill_Click);
    Wire(ed, frm.cmbLevel.Click, cmbLevel_Click);
    Wire(ed, frm.cmbDamage.Click, cmbDamage_Click);
    Wire(ed, frm.chkPoints.MouseDown, chkPoints_MouseDown);
    Wire(ed, frm.chkPoints.MouseUp, chkPoints_MouseUp);
    Wire(ed, frm.chkPilotIsAC.MouseUp, chkPilotIsAC_MouseUp);
    Wire(ed, frm.chkPlayer.Click, chkPlayer_Click);
    Wire(ed, frm.chkPlayer.MouseDown, chkPlayer_MouseDown);

    // Aircraft.
    Wire(ed, frm.cmbMovingType.Click, cmbMovingType_Click);
    Wire(ed, frm.cmbMovingType.UserPick, cmbMovingType_UserPick);
    Wire(ed, frm.cmbMovingType.DropDown, cmbMovingType_DropDown);
    WireEach(ed, frm.optAllegiance, &OptionButton::Click, optAllegiance_Click);
    WireEach(ed, frm.optAllegiance, &OptionButton::MouseDown, optAllegiance_MouseDown);
    WireEach(ed, frm.OptFamily, &OptionButton::Click, OptFamily_Click);
    WireEach(ed, frm.OptFamily, &OptionButton::MouseDown, OptFamily_MouseDown);

    // The new-record window.
    auto& dlg = ed.frmNewRecord;
    Wire(ed, dlg.Load, frm_new_record::Form_Load);
    Wire(ed, dlg.Unload, frm_new_record::Form_Unload);
    Wire(ed, dlg.txtNewRecord.Click, frm_new_record::txtNewRecord_Click);
    Wire(ed, dlg.txtNewRecord.Change, frm_new_record::txtNewRecord_Change);
    Wire(ed, dlg.cmbPilotName.Click, frm_new_record::cmbPilotName_Click);
    Wire(ed, dlg.btnAddRecord.Click, frm_new_record::btnAddRecord_Click);
    Wire(ed, dlg.btnReplace.Click, frm_new_record::btnReplace_Click);
    Wire(ed, dlg.btnCancel.Click, frm_new_record::btnCancel_Click);
}

}  // namespace tarvex
