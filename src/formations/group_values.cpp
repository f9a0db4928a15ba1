#include "formations/group_values.h"

#include <cstdint>

#include "maps/runway_controls.h"
#include "shell/editor.h"
#include "shell/forms/frm_mission.h"
#include "shell/sounds.h"

namespace tarvex {

namespace {

// Code filling the controls, or no group to write to.
bool Quiet(Editor& ed) {
    return !ed.doc.EventsOn || ed.FrmMission.lstGroupName.ListIndex() < 0;
}

}  // namespace

void chkSuspend_Click(Editor& ed) {
    if (Quiet(ed)) return;
    ed.doc.GrpSuspended(ed.doc.CurrentGroup) = ed.FrmMission.chkSuspend.Value() == kChecked ? 1 : 0;
}

void chkSuspend_MouseDown(Editor& ed, int, int, float, float) {
    PlaySound(ed, ed.shell.sndCheckbox);
}

void cmbDirective_Click(Editor& ed) {
    const int row = ed.FrmMission.cmbDirective.ListIndex();
    if (Quiet(ed) || row < 0) return;
    ed.doc.GrpDirective(ed.doc.CurrentGroup) = static_cast<std::uint8_t>(row);
}

void cmbTakeoffFlag_Click(Editor& ed) {
    const int row = ed.FrmMission.cmbTakeoffFlag.ListIndex();
    if (Quiet(ed) || row < 0) return;
    ed.doc.GrpTakeoffFlag(ed.doc.CurrentGroup) = static_cast<std::uint8_t>(row);
    ShowRunwayControlsForGroup(ed);
}

}  // namespace tarvex
