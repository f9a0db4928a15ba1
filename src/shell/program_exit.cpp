#include "shell/program_exit.h"

#include "shell/editor.h"
#include "shell/forms/frm_gu_offsets.h"
#include "shell/forms/frm_mission.h"
#include "shell/forms/frm_new_record.h"
#include "shell/forms/mdi_mission_ed.h"
#include "shell/settings.h"

namespace tarvex {

bool ConfirmExit(Editor& ed, UnloadMode mode) {
    if (mode != UnloadMode::FormControlMenu) return false;
    return ed.svc.dialogs.MsgBox({"Are you sure you want to exit?", "Exit Tarvex Mission Editor",
                                  MsgButtons::YesNo, MsgIcon::Question}) != MsgAnswer::Yes;
}

bool CloseMainWindow(Editor& ed, UnloadMode mode) {
    if (ed.shell.Ended) return true;
    if (ConfirmExit(ed, mode)) return false;
    ed.aircraftRecords.AircraftChanged = false;
    ed.frmNewRecord.SetVisible(false);
    ed.frmGUOffsets.SetVisible(false);
    // The window's place as the user left it is where the next run opens it.
    ed.options.MDILeft = ed.MDIMissionED.Left();
    ed.options.MDITop = ed.MDIMissionED.Top();
    SaveSettings(ed);
    ed.db.CloseReferenceDatabase();
    ed.MDIMissionED.SetVisible(false);
    ed.FrmMission.SetVisible(false);
    EndProgram(ed);
    return true;
}

void EndProgram(Editor& ed) {
    if (ed.shell.Ended) return;
    ed.shell.Ended = true;
    if (ed.shell.OnProgramEnd) ed.shell.OnProgramEnd();
}

void mnuExit_Click(Editor& ed) {
    CloseMainWindow(ed, UnloadMode::FormCode);
}

}  // namespace tarvex
