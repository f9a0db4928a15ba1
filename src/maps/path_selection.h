#pragma once
// Choosing the path to edit: the path buttons optColor and their labels.
namespace tarvex {

class Editor;

// Brings the tab in line with path `path`: captions, the rows of its waypoints, its airfields.
// A path without waypoints gets the default airfields (Start row 16, End row 8), which makes
// its End slot.
void optColor_Click(Editor& ed, int path);
void optColor_MouseDown(Editor& ed, int path, int button, int shift, float x, float y);
// The holder of the path on the status strip.
void lblPath_MouseMove(Editor& ed, int path, int button, int shift, float x, float y);

// A path whose End slot was never made (the first path after start-up, selected while the
// handlers were still quiet) is selected again before a point goes in, so that the point takes
// slot 1; without airfields to give it, its End is a copy of its Start.
void EnsureEndSlot(Editor& ed);

}  // namespace tarvex
