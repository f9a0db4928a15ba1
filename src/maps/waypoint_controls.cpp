#include "maps/waypoint_controls.h"

#include "shell/editor.h"
#include "shell/forms/frm_mission.h"
#include "shell/forms/mdi_mission_ed.h"

namespace tarvex {

void SetWaypointControlsEnabled(Editor& ed, bool state) {
    auto& frm = ed.FrmMission;
    SetEditMenusEnabled(ed, state);
    frm.btnClrPoint.SetVisible(state);
    Control* controls[] = {&frm.lstPoints, &frm.txtAlt,     &frm.txtSpeed,
                           &frm.txtPoint,  &frm.btnWPNames, &frm.btnWPTips};
    for (Control* control : controls)
        control->SetEnabled(state);
    for (CheckBox& box : frm.chkWPOptions)
        box.SetEnabled(state);
    if (state) return;
    frm.txtAlt.SetText("0");
    frm.txtSpeed.SetText("0");
    frm.txtPoint.SetText("");
    for (CheckBox& box : frm.chkWPOptions)
        box.SetValue(kUnchecked);
}

void SetEditMenusEnabled(Editor& ed, bool state) {
    auto& mdi = ed.MDIMissionED;
    mdi.mnuDel.SetEnabled(state);
    mdi.mnuClrPoints.SetEnabled(state);
    mdi.mnuClrMap.SetEnabled(state);
}

}  // namespace tarvex
