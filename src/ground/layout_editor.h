#pragma once
// The layout editor: entered by a double click on a layout of the mission, it shows the layout
// at large scale on the tab's map, where it is shifted, turned and spread; Close stores the
// turn and gives the map back.
namespace tarvex {

class Editor;

// Enters the editor on the selected layout. A layout whose record the database no longer has
// ends in the "Unable to display the Ground Layout." box and leaves the mission.
void lstGUAdded_DblClick(Editor& ed);

// Turns the whole picture a quarter about the map's centre, the cursor with it.
void btnRotate90_Click(Editor& ed);
// Back to the layout's plain state: no shift, spread or fine turn, and the quarter turn of a
// default airfield layout.
void btnGUReset_Click(Editor& ed);
void btnGUClose_Click(Editor& ed);

// A default layout's units can't be changed: no stationary list, no adding or moving.
void ApplyLayoutLock(Editor& ed, bool flag);

}  // namespace tarvex
