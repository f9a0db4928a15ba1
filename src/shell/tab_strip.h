#pragma once
// The tab control as the user meets it: a press on a header shows that tab, and missions
// dropped on it open.
namespace tarvex {

class Editor;
struct DragData;

// A press of the left button on the strip of headers: the wheel's knock, and the tab now shown
// is prepared. A press on a page's body changes nothing.
void SSTab1_MouseDown(Editor& ed, int button, int shift, float x, float y);

// Files may be dropped, as a copy; anything else is refused.
void SSTab1_OLEDragOver(Editor& ed, const DragData& data, int& effect);
// The first file dropped opens if it is a mission; the rest are left alone.
void SSTab1_OLEDragDrop(Editor& ed, const DragData& data, int& effect);

}  // namespace tarvex
