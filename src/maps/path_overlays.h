#pragma once
// The overlay boxes: which other paths are drawn over the current one.
namespace tarvex {

class Editor;

// Each box is enabled while its path has points. A disabled box keeps its check, and a checked
// path is drawn all the same.
void RefreshOverlayChecks(Editor& ed);

// A click on overlay box `path` remembers whether it was checked and redraws the active map;
// unchecking on the Ground units tab outside the layout editor only clears that map, for the
// layout markers to be drawn again over the bitmap.
void chkOverlay_Click(Editor& ed, int path);
void chkOverlay_MouseDown(Editor& ed, int path, int button, int shift, float x, float y);

}  // namespace tarvex
