#pragma once
// The spin controls of the layout editor: the shift along the two axes, the fine turn, the
// spread, the zoom, the cursor's size and the runways of a three-runway airfield. The shift and
// the spread are stored in the layout's arrays as they change; the turn at Close.
namespace tarvex {

class Editor;

void btnXPos_Change(Editor& ed);
void btnYPos_Change(Editor& ed);
// At 90 the turn becomes a quarter turn and the control goes back to 0.
void btnRotate2_Change(Editor& ed);
void btnSpread_Change(Editor& ed);
void btnSpread_MouseDown(Editor& ed, int button, int shift, float x, float y);
void btnZoom_Change(Editor& ed);
void btnZoom_MouseDown(Editor& ed, int button, int shift, float x, float y);
void btnCursor_Change(Editor& ed);
// Runways 2 and 3 move in the drawing only.
void btnX_Change(Editor& ed);
void btnY_Change(Editor& ed);

}  // namespace tarvex
