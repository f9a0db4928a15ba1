#include "shell/file_menu.h"

#include "common/program_version.h"
#include "document/mission_loader.h"
#include "document/mission_reset.h"
#include "document/mission_saver.h"
#include "shell/editor.h"
#include "shell/forms/mdi_mission_ed.h"

namespace tarvex {

void mnuNew_Click(Editor& ed) {
    Mission& doc = ed.doc;
    LoweredFlag resetting(doc.NotResetting);
    ed.MDIMissionED.SetCaption(kProgramTitle);
    doc.MissionPath.clear();
    ResetMission(ed);
}

void mnuOpen_Click(Editor& ed) {
    LoweredFlag loading(ed.doc.NotLoading);
    if (ChooseMissionToOpen(ed) != 0) return;
    ResetMission(ed);
    LoadMission(ed);
}

void mnuSave_Click(Editor& ed) {
    FileSave(ed);
}

void mnuSaveAs_Click(Editor& ed) {
    FileSaveAs(ed);
}

}  // namespace tarvex
