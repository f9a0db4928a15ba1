#pragma once
// The floating list of stationary unit types that the layout editor adds to a layout, the
// offsets window's check box, and the drag of the list's frame over the map.
namespace tarvex {

class Editor;

// flag 1 fills the list and shows its frame; anything else hides it. The frame's visibility is
// remembered for the next entry of the editor.
void ShowStationaryList(Editor& ed, int flag);

void chkStationary_Click(Editor& ed);
void chkDataWindow_MouseUp(Editor& ed, int button, int shift, float x, float y);
// A type chosen: the next click on the layout adds a unit of it.
void lstStationary_Click(Editor& ed);

// The frame is dragged by its body: a press takes hold of it, and it is dropped so that the
// point held lies under the pointer, wherever the release happens.
void fraStationary_MouseDown(Editor& ed, int button, int shift, float x, float y);
void fraStationary_MouseMove(Editor& ed, int button, int shift, float x, float y);
void fraStationary_MouseUp(Editor& ed, int button, int shift, float x, float y);
void lstStationary_MouseMove(Editor& ed, int button, int shift, float x, float y);
void lstStationary_MouseUp(Editor& ed, int button, int shift, float x, float y);

// Where a drag of the frame ends, and the release's position in that control's map units.
enum class StationaryDrop { OnMap, OnFrame, OnList };
void DropStationaryFrame(Editor& ed, StationaryDrop target, float x, float y);

}  // namespace tarvex
