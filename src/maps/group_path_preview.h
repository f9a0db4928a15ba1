#pragma once
// The map of a path beside the path panel: shown while the right button is held on its box.
namespace tarvex {

class Editor;

void chkWP_MouseDown(Editor& ed, int path, int button, int shift, float x, float y);
void chkWP_MouseMove(Editor& ed, int path, int button, int shift, float x, float y);
void chkWP_MouseUp(Editor& ed, int path, int button, int shift, float x, float y);
void fraWPSelect_MouseMove(Editor& ed, int button, int shift, float x, float y);

}  // namespace tarvex
