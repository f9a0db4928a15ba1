#pragma once
// The File menu's mission commands. None of them asks about the mission in memory: there is
// no notion of unsaved changes.
namespace tarvex {

class Editor;

void mnuNew_Click(Editor& ed);
void mnuOpen_Click(Editor& ed);
void mnuSave_Click(Editor& ed);
void mnuSaveAs_Click(Editor& ed);

}  // namespace tarvex
