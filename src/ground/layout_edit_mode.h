#pragma once
// The Ground units tab between placing layouts (false) and the layout editor (true).
namespace tarvex {

class Editor;

// The editor takes the map over (its tag "True"), shows its controls and lines, and keeps the
// designer from commands that would change the mission or the layout lists under it; false
// gives the map back its place and the commands.
void SetLayoutEditMode(Editor& ed, bool flag);

// Any change of tab ends the editing: the offsets window closes, the stationary list hides and
// the map goes back to placing. The turns made since the editor was entered are lost; the
// shift and spread were stored as they changed.
void LeaveLayoutEditor(Editor& ed);

}  // namespace tarvex
