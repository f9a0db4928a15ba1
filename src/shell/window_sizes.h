#pragma once
// The fixed sizes of the main window's child and the offsets window's following of the main
// window.
namespace tarvex {

class Editor;

// FrmMission at its start: 0, 0, 9396 by 6312.
void PlaceMissionWindow(Editor& ed);

// A resize of FrmMission in the normal window state: the child can't be resized, so it goes
// back to 9384 by 6648 at its place. Minimised or maximised leave it alone.
void FrmMission_Resize(Editor& ed, bool normalState);

// A resize of the main window: an open frmGUOffsets hides with a minimised main window and
// comes back on top when it is restored.
void MDIMissionED_Resize(Editor& ed, bool minimised);

}  // namespace tarvex
