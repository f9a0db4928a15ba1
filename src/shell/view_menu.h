#pragma once
// The View menu's four tab entries: each shows its tab as a press on the tab strip would.
namespace tarvex {

class Editor;

void ShowTabFromMenu(Editor& ed, int tab);
void mnuSummary_Click(Editor& ed);
void mnuFormations_Click(Editor& ed);
void mnuGroundUnits_Click(Editor& ed);
void mnuWaypoints_Click(Editor& ed);

}  // namespace tarvex
