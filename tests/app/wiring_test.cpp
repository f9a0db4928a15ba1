// Every handler the program defines runs on its event: the factory's editor has each of these
// slots connected. A handler named here and left out of a wiring file, or a wiring file that
// connects a slot twice, fails here before a user finds a dead button.
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "app/make_editor.h"
#include "platform/scripted_platform.h"
#include "shell/forms/form.h"
#include "shell/forms/frm_about.h"
#include "shell/forms/frm_aircraft.h"
#include "shell/forms/frm_grnd_names.h"
#include "shell/forms/frm_gu_offsets.h"
#include "shell/forms/frm_mission.h"
#include "shell/forms/frm_msg_screen.h"
#include "shell/forms/frm_new_record.h"
#include "shell/forms/frm_splash.h"
#include "shell/forms/frm_tbl_missions.h"
#include "shell/forms/mdi_mission_ed.h"

namespace tarvex {
namespace {

// "Form.control_Event"; "Form.Form_Load" for an event of the form itself. A control array is
// checked element by element.
const char* const kHandlers[] = {
    // The main window.
    "MDIMissionED.mnuNew_Click",
    "MDIMissionED.mnuOpen_Click",
    "MDIMissionED.mnuSave_Click",
    "MDIMissionED.mnuSaveAs_Click",
    "MDIMissionED.mnudummy_Click",
    "MDIMissionED.mnuExit_Click",
    "MDIMissionED.mnuSummary_Click",
    "MDIMissionED.mnuFormations_Click",
    "MDIMissionED.mnuGroundUnits_Click",
    "MDIMissionED.mnuWaypoints_Click",
    "MDIMissionED.mnuCompact_Click",
    "MDIMissionED.mnuACListNorm_Click",
    "MDIMissionED.mnuACListInc_Click",
    "MDIMissionED.mnuACListDec_Click",
    "MDIMissionED.mnuAutoUpdate_Click",
    "MDIMissionED.mnuDist_Click",
    "MDIMissionED.mnuSndOn_Click",
    "MDIMissionED.mnuIncVol_Click",
    "MDIMissionED.mnuDecVol_Click",
    "MDIMissionED.mnuTooltips_Click",
    "MDIMissionED.mnuAbout_Click",
    "frmSplash.Timer1_Timer",
    "frmSplash.picSplash_Click",
    "frmAbout.picOK_Click",
    // The maps.
    "FrmMission.mapWayPoints_Paint",
    "FrmMission.mapWayPoints_MouseMove",
    "FrmMission.chkOverlay_Click",
    "FrmMission.cmbSelectMap_Click",
    // Groups, pilots, aircraft and patterns.
    "FrmMission.tmrSetColor_Timer",
    "FrmMission.lstGroupName_Click",
    "FrmMission.lstGroupName_DblClick",
    "FrmMission.lstGroupName_MouseDown",
    "FrmMission.lstGroupName_MouseUp",
    "FrmMission.btnGroupName_Click",
    "FrmMission.btnDeleteGroup_Click",
    "FrmMission.btnDeleteGroup_MouseDown",
    "FrmMission.cmbFormPattern_Click",
    "FrmMission.chkSuspend_Click",
    "FrmMission.chkSuspend_MouseDown",
    "FrmMission.cmbDirective_Click",
    "FrmMission.cmbTakeoffFlag_Click",
    "FrmMission.lstPilotName_Click",
    "FrmMission.lstPilotName_DblClick",
    "FrmMission.lstPilotName_MouseDown",
    "FrmMission.lstPilotName_MouseUp",
    "FrmMission.btnPilotName_Click",
    "FrmMission.btnDeletePilot_Click",
    "FrmMission.btnDeletePilot_MouseDown",
    "FrmMission.cmbSkill_Click",
    "FrmMission.cmbLevel_Click",
    "FrmMission.cmbDamage_Click",
    "FrmMission.chkPoints_MouseDown",
    "FrmMission.chkPoints_MouseUp",
    "FrmMission.chkPilotIsAC_MouseUp",
    "FrmMission.chkPlayer_Click",
    "FrmMission.chkPlayer_MouseDown",
    "FrmMission.cmbMovingType_Click",
    "FrmMission.cmbMovingType_UserPick",
    "FrmMission.cmbMovingType_DropDown",
    "FrmMission.optAllegiance_Click",
    "FrmMission.optAllegiance_MouseDown",
    "FrmMission.OptFamily_Click",
    "FrmMission.OptFamily_MouseDown",
    "frmNewRecord.Form_Load",
    "frmNewRecord.Form_Unload",
    "frmNewRecord.txtNewRecord_Click",
    "frmNewRecord.txtNewRecord_Change",
    "frmNewRecord.cmbPilotName_Click",
    "frmNewRecord.btnAddRecord_Click",
    "frmNewRecord.btnReplace_Click",
    "frmNewRecord.btnCancel_Click",
    "FrmMission.mapWayPoints_MouseDown",
    "FrmMission.mapWayPoints_MouseUp",
    "FrmMission.chkOverlay_MouseDown",
    // The waypoint editor.
    "FrmMission.lstPoints_Click",
    "FrmMission.lstPoints_MouseDown",
    "FrmMission.lstPoints_MouseMove",
    "FrmMission.lstPoints_MouseUp",
    "FrmMission.lstPointsExtended_MouseDown",
    "FrmMission.txtPoint_Change",
    "FrmMission.txtAlt_Change",
    "FrmMission.txtSpeed_Change",
    "FrmMission.chkWPOptions_MouseDown",
    "FrmMission.chkWPOptions_MouseUp",
    "FrmMission.btnClrPoint_MouseDown",
    "FrmMission.btnClrPoint_Click",
    "FrmMission.btnWPNames_Click",
    "FrmMission.btnWPTips_Click",
    "MDIMissionED.mnuDel_Click",
    "MDIMissionED.mnuClrPoints_Click",
    "MDIMissionED.mnuClrMap_Click",
    // The paths and the groups that fly them.
    "FrmMission.optColor_Click",
    "FrmMission.optColor_MouseDown",
    "FrmMission.lblPath_MouseMove",
    "FrmMission.btnSetWaypoints_Click",
    "FrmMission.chkWP_Click",
    "FrmMission.chkWP_MouseDown",
    "FrmMission.chkWP_MouseMove",
    "FrmMission.chkWP_MouseUp",
    "FrmMission.btnPathClear_Click",
    "FrmMission.btnWPClose_Click",
    "FrmMission.fraWPSelect_MouseMove",
    "FrmMission.btnGrpView_Click",
    "FrmMission.cmbGroups_Click",
    "FrmMission.updwnGroupView_DownClick",
    "FrmMission.updwnGroupView_UpClick",
    // The airfields of a path.
    "FrmMission.cmbStartAtRwy_Click",
    "FrmMission.cmbStartAtRwy_Highlight",
    "FrmMission.cmbStartAtRwy_UserPick",
    "FrmMission.cmbStartAtRwy_DropCancel",
    "FrmMission.cmbEndAtRwy_Click",
    "FrmMission.cmbEndAtRwy_Highlight",
    "FrmMission.cmbEndAtRwy_UserPick",
    "FrmMission.cmbEndAtRwy_DropCancel",
    "FrmMission.cmbRunways_Click",
    "FrmMission.cmbRunways_KeyDown",
    "FrmMission.cmbRunways_KeyUp",
    "FrmMission.cmbRunways_Highlight",
    "FrmMission.cmbRunways_UserPick",
    "FrmMission.cmbRunways_DropCancel",
    // The Ground units tab and the layout editor.
    "FrmMission.mapGroundUnits_MouseDown",
    "FrmMission.mapGroundUnits_MouseMove",
    "FrmMission.mapGroundUnits_MouseUp",
    "FrmMission.lstGrnUnits_MouseDown",
    "FrmMission.btnDelGUlst_Click",
    "FrmMission.cmbGrndAirfield_Click",
    "FrmMission.cmbAirfieldLayout_Click",
    "FrmMission.btnDelGUcmb_Click",
    "FrmMission.lstGUAdded_Click",
    "FrmMission.lstGUAdded_DblClick",
    "FrmMission.lstGUAdded_MouseDown",
    "FrmMission.btnDeleteGrndUnit_Click",
    "FrmMission.btnDeleteGrndUnit_MouseDown",
    "FrmMission.txtAddedGU_Change",
    "FrmMission.txtGULatLon_KeyDown",
    "FrmMission.txtGULatLon_Change",
    "FrmMission.optGndHasPoints_MouseDown",
    "FrmMission.cmbGUMap_Click",
    "FrmMission.btnXPos_Change",
    "FrmMission.btnYPos_Change",
    "FrmMission.btnRotate2_Change",
    "FrmMission.btnSpread_Change",
    "FrmMission.btnSpread_MouseDown",
    "FrmMission.btnZoom_Change",
    "FrmMission.btnZoom_MouseDown",
    "FrmMission.btnCursor_Change",
    "FrmMission.btnX_Change",
    "FrmMission.btnY_Change",
    "FrmMission.btnRotate90_Click",
    "FrmMission.btnGUReset_Click",
    "FrmMission.btnGUClose_Click",
    "FrmMission.chkStationary_Click",
    "FrmMission.chkDataWindow_MouseUp",
    "FrmMission.lstStationary_Click",
    "FrmMission.lstStationary_MouseMove",
    "FrmMission.lstStationary_MouseUp",
    "FrmMission.fraStationary_MouseDown",
    "FrmMission.fraStationary_MouseMove",
    "FrmMission.fraStationary_MouseUp",
    "FrmMission.btnSave_Click",
    "MDIMissionED.mnuGULayout_Click",
    // The offsets window.
    "frmGUOffsets.Form_Load",
    "frmGUOffsets.Form_Unload",
    "frmGUOffsets.dbgGUOffsets_RowColChange",
    "frmGUOffsets.dbgGUOffsets_SelChange",
    "frmGUOffsets.dbgGUOffsets_AfterColUpdate",
    "frmGUOffsets.dataGUOffsets_Error",
    "frmGUOffsets.btnOffsetEdit_MouseDown",
    "frmGUOffsets.btnOffsetEdit_Change",
    "frmGUOffsets.btnDelGU_Click",
    // The ground layout records.
    "frmGrndNames.Form_Load",
    "frmGrndNames.Form_Unload",
    "frmGrndNames.Form_Resize",
    "frmGrndNames.cmbGULayoutName_Click",
    "frmGrndNames.cmbGULayoutName_Change",
    "frmGrndNames.datPrimaryRS_Reposition",
    "frmGrndNames.datPrimaryRS_Validate",
    "frmGrndNames.datPrimaryRS_Error",
    "frmGrndNames.datSecondaryRS_Error",
    "frmGrndNames.cmdAdd_Click",
    "frmGrndNames.cmdUpdate_Click",
    "frmGrndNames.cmdDeleteLayout_Click",
    "frmGrndNames.cmdDeleteUnits_Click",
    "frmGrndNames.cmdClose_Click",
    "frmGrndNames.txtLayoutID_Change",
    "frmGrndNames.txtLayoutID_GotFocus",
    "frmGrndNames.txtLayoutID_LostFocus",
    "frmGrndNames.txtLayoutTotal_Change",
    "frmGrndNames.txtLayoutTotal_GotFocus",
    "frmGrndNames.txtLayoutTotal_LostFocus",
    "frmGrndNames.grdDataGrid_HeadClick",
    "frmGrndNames.grdDataGrid_RowColChange",
    "frmGrndNames.grdDataGrid_SelChange",
    "frmGrndNames.grdDataGrid_AfterColUpdate",
    "frmGrndNames.grdDataGrid_AfterUpdate",
    "frmGrndNames.grdDataGrid_OnAddNew",
    "frmGrndNames.grdDataGrid_KeyDown",
    "frmGrndNames.grdDataGrid_MouseDown",
    "frmGrndNames.grdDataGrid_MouseMove",
    "frmGrndNames.grdDataGrid_ButtonClick",
    "frmGrndNames.theDamageList_MouseMove",
    "frmGrndNames.theDamageList_MouseUp",
    "frmGrndNames.lstStationaryName_Click",
    "frmGrndNames.lstStationaryName_MouseMove",
    "frmGrndNames.lstStationaryName_MouseUp",
    "frmGrndNames.txtStationaryName_KeyUp",
    // The mission library.
    "MDIMissionED.mnuMissDetail_Click",
    "MDIMissionED.mnuMissions_Click",
    "frmtblMissions.Form_Load",
    "frmtblMissions.Form_Unload",
    "frmtblMissions.Form_Resize",
    "frmtblMissions.optAllegiance_Click",
    "frmtblMissions.optAllegiance_MouseDown",
    "frmtblMissions.grdDataGrid_Click",
    "frmtblMissions.grdDataGrid_DblClick",
    "frmtblMissions.grdDataGrid_RowColChange",
    "frmtblMissions.cmdLoad_Click",
    "frmtblMissions.btnDelete_Click",
    "frmtblMissions.cmdClose_Click",
    "frmtblMissions.datPrimaryRS_Validate",
    "frmtblMissions.datPrimaryRS_Reposition",
    "frmtblMissions.datPrimaryRS_Error",
    // The aircraft records.
    "MDIMissionED.mnuAddAC_Click",
    "frmAircraft.Form_Load",
    "frmAircraft.Form_Unload",
    "frmAircraft.Form_Resize",
    "frmAircraft.cmdClose_Click",
    "frmAircraft.cmbAirforce_Click",
    "frmAircraft.cmbUnitRole_Click",
    "frmAircraft.cmdAdd_Click",
    "frmAircraft.cmdAdd_OLEDragOver",
    "frmAircraft.cmdAdd_OLEDragDrop",
    "frmAircraft.btnBrowse_Click",
    "frmAircraft.cmdUpdate_Click",
    "frmAircraft.cmdDelete_Click",
    "frmAircraft.grdDataGrid_Click",
    "frmAircraft.grdDataGrid_HeadClick",
    "frmAircraft.grdDataGrid_OnAddNew",
    "frmAircraft.grdDataGrid_RowColChange",
    "frmAircraft.grdDataGrid_AfterColUpdate",
    "frmAircraft.grdDataGrid_AfterUpdate",
    "frmAircraft.grdDataGrid_SelChange",
    "frmAircraft.grdDataGrid_KeyDown",
    "frmAircraft.grdDataGrid_ButtonClick",
    "frmAircraft.grdDataGrid_MouseDown",
    "frmAircraft.grdDataGrid_MouseMove",
    "frmAircraft.grdDataGrid_MouseUp",
    "frmAircraft.theFamList_MouseMove",
    "frmAircraft.theFamList_MouseUp",
    "frmAircraft.theAllyList_MouseMove",
    "frmAircraft.theAllyList_MouseUp",
    "frmAircraft.datPrimaryRS_Validate",
    "frmAircraft.datPrimaryRS_Reposition",
    "frmAircraft.datPrimaryRS_Error",
};

struct Forms {
    explicit Forms(Editor& ed)
        : all{&ed.MDIMissionED, &ed.FrmMission,   &ed.frmNewRecord,   &ed.frmAircraft,
              &ed.frmGrndNames, &ed.frmGUOffsets, &ed.frmtblMissions, &ed.frmMsgScreen,
              &ed.frmSplash,    &ed.frmAbout} {}
    Form* Find(const std::string& name) const {
        for (Form* form : all)
            if (form->Name() == name) return form;
        return nullptr;
    }
    std::vector<Form*> all;
};

TEST(WiringTest, EveryHandlerRunsOnItsEvent) {
    ScriptedServices services;
    auto editor = MakeEditor(services.Bind());
    const Forms forms(*editor);
    for (const std::string entry : kHandlers) {
        SCOPED_TRACE(entry);
        const size_t dot = entry.find('.');
        const size_t bar = entry.rfind('_');
        ASSERT_NE(dot, std::string::npos);
        ASSERT_NE(bar, std::string::npos);
        Form* form = forms.Find(entry.substr(0, dot));
        ASSERT_NE(form, nullptr) << "no such form";
        const std::string control = entry.substr(dot + 1, bar - dot - 1);
        const std::string event = entry.substr(bar + 1);

        std::vector<Component*> targets;
        if (control == "Form") {
            targets.push_back(form);
        } else if (Component* single = form->FindComponent(control)) {
            targets.push_back(single);
        } else {
            for (Component* element : form->Components())
                if (element->Index() >= 0 && element->Name() == control) targets.push_back(element);
        }
        ASSERT_FALSE(targets.empty()) << "no such control";
        for (Component* target : targets) {
            const EventSlot* slot = target->FindEvent(event);
            ASSERT_NE(slot, nullptr) << "no such event";
            EXPECT_TRUE(slot->Connected()) << "element " << target->Index();
        }
    }
}

}  // namespace
}  // namespace tarvex
