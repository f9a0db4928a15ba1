#include "shell/file_menu.h"

#include "document/mission_loader.h"
#include "document/mission_reset.h"
#include "shell/editor.h"
#include "shell/program_version.h"

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

void mnuSave_Click(Editor&) {
    // TODO: ValidateMission(ed); when it passes and MissionPath is empty, ChooseMissionToSave
    // (a cancel ends it); then SaveMission(ed), once the saver is in.
}

void mnuSaveAs_Click(Editor&) {
    // TODO: ValidateMission(ed); when it passes, ChooseMissionToSave, and when a file was
    // chosen, SaveMission(ed), once the saver is in.
}

}  // namespace tarvex
