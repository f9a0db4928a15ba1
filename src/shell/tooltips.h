#pragma once
// The tooltips of the mission window, and the switch that gives them to the three windows that
// have them (the mission window, the offsets window and the mission browser) or takes them away.
namespace tarvex {

class Editor;

// Gives the controls of FrmMission their tips.
void SetTooltips(Editor& ed);
// Gives the same controls the empty tip.
void ClearTooltips(Editor& ed);

}  // namespace tarvex
