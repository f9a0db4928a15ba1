#pragma once
// Selecting a group in lstGroupName: its values, pattern limit and pilots come up in the
// controls, and the panel of its paths and its takeoff controls follow it.
namespace tarvex {

class Editor;

void lstGroupName_Click(Editor& ed);
// A press on a row plays the click sound; the right button previews the group's first path.
void lstGroupName_MouseDown(Editor& ed, int button, int shift, float x, float y);
void lstGroupName_MouseUp(Editor& ed, int button, int shift, float x, float y);

// The status line names the paths of CurrentGroup, or says it has none.
void ShowGroupPath(Editor& ed);

}  // namespace tarvex
