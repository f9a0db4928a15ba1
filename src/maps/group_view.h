#pragma once
// The group view on the Formations tab: the paths of one group, one after the other.
namespace tarvex {

class Editor;

void btnGrpView_Click(Editor& ed);
void cmbGroups_Click(Editor& ed);
void updwnGroupView_DownClick(Editor& ed);
void updwnGroupView_UpClick(Editor& ed);
// Shows the path at GroupViewIndex of the group in view.
void MoveWaypointStr(Editor& ed);

}  // namespace tarvex
