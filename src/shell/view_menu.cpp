#include "shell/view_menu.h"

#include "maps/tab_selection.h"
#include "shell/editor.h"
#include "shell/forms/frm_mission.h"

namespace tarvex {

void ShowTabFromMenu(Editor& ed, int tab) {
    ed.FrmMission.SSTab1.SetTab(tab);
    SelectTab(ed, tab);
}

void mnuSummary_Click(Editor& ed) {
    ShowTabFromMenu(ed, kSummaryTab);
}

void mnuFormations_Click(Editor& ed) {
    ShowTabFromMenu(ed, kFormationsTab);
}

void mnuGroundUnits_Click(Editor& ed) {
    ShowTabFromMenu(ed, kGroundUnitsTab);
}

void mnuWaypoints_Click(Editor& ed) {
    ShowTabFromMenu(ed, kWaypointsTab);
}

}  // namespace tarvex
