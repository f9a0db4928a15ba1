#pragma once
// The about box and the little show of its OK button.
namespace tarvex {

class Editor;

// Shows frmAbout (modal on the desktop) with its picture and its sound.
void mnuAbout_Click(Editor& ed);

// Closes the box with a bang, folds the main window to its centre and grows it back.
void picOK_Click(Editor& ed);

}  // namespace tarvex
