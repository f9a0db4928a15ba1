#include "formations/player.h"

#include "shell/editor.h"
#include "shell/forms/frm_mission.h"
#include "shell/sounds.h"

namespace tarvex {

void chkPlayer_Click(Editor& ed) {
    auto& frm = ed.FrmMission;
    Mission& doc = ed.doc;
    // Without a selected pilot the box can't stay checked; unchecking runs this again.
    if (frm.lstPilotName.ListIndex() < 0 && frm.chkPlayer.Value() != kUnchecked) {
        frm.chkPlayer.SetValue(kUnchecked);
        return;
    }
    const bool checked = frm.chkPlayer.Value() == kChecked;
    if (checked) {
        doc.PlayerAssigned = true;
        doc.PlayerGroup = doc.CurrentGroup;
        doc.PlayerPilot = doc.CurrentPilot;
    } else if (doc.PlayerGroup == doc.CurrentGroup && doc.PlayerPilot == doc.CurrentPilot) {
        doc.PlayerAssigned = false;
        doc.PlayerGroup = -1;
        doc.PlayerPilot = -1;
    }
    if (doc.CurrentPilot >= 0 && doc.CurrentPilot <= Mission::kPilotUpper)
        doc.PilotIsPlayer(doc.CurrentGroup, doc.CurrentPilot) = checked ? 1 : 0;
}

void chkPlayer_MouseDown(Editor& ed, int, int, float, float) {
    PlaySound(ed, ed.shell.sndCheckbox);
}

void ClearPlayer(Editor& ed) {
    Mission& doc = ed.doc;
    doc.PlayerAssigned = false;
    ed.FrmMission.chkPlayer.SetValue(kUnchecked);
    doc.PlayerGroup = -1;
    doc.PlayerPilot = -1;
}

}  // namespace tarvex
