#pragma once
// The Start and End airfields: of the current path on the Waypoints tab, of the selected group
// and all its paths on the Formations tab.
namespace tarvex {

class Editor;

void cmbStartAtRwy_Click(Editor& ed);
void cmbEndAtRwy_Click(Editor& ed);

// After a choice in the Start or End combo outside the Formations tab: every group that flies
// the current path and takes off (lands) there takes the new row, and the status strip names
// those groups. Their other paths keep their ends until the Formations tab is used.
void WarnTakeoffChange(Editor& ed);
void WarnLandingChange(Editor& ed);

// The open lists: the map follows the highlight before anything is chosen, the choice runs the
// warning, and a list closed without a choice brings the row from before back into effect.
void cmbStartAtRwy_Highlight(Editor& ed, int row);
void cmbStartAtRwy_UserPick(Editor& ed);
void cmbStartAtRwy_DropCancel(Editor& ed);
void cmbEndAtRwy_Highlight(Editor& ed, int row);
void cmbEndAtRwy_UserPick(Editor& ed);
void cmbEndAtRwy_DropCancel(Editor& ed);

}  // namespace tarvex
