#pragma once
// The about box and the little show of its OK button.
namespace tarvex {

class Editor;

// Shows frmAbout modally.
void mnuAbout_Click(Editor& ed);

namespace frm_about {

// The picture and the sound of the box, each time it opens.
void Form_Load(Editor& ed);

}  // namespace frm_about

// Closes the box with a bang, folds the main window to its centre and grows it back.
void picOK_Click(Editor& ed);

}  // namespace tarvex
