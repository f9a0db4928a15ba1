#pragma once
// The origin of the selected layout typed as "latitude longitude" in txtGULatLon.
namespace tarvex {

class Editor;

// A key in the box arms the next change: code that shows a row's origin never re-reads it.
void txtGULatLon_KeyDown(Editor& ed, int& keyCode, int shift);

// Once a key armed it: the text in capitals, and as soon as the longitude has begun (a blank
// from character 5 on followed by E or W) both parts become the origin of the selected row
// and the markers are drawn again. Nothing else about the text is checked.
void txtGULatLon_Change(Editor& ed);

}  // namespace tarvex
