#pragma once
// The position under the pointer on a map, on the status strip.
#include <string_view>

namespace tarvex {

class Editor;

// Converts the pointer position to CursorLatText and CursorLonText (minutes printed with
// minutesFormat: "##00.00" on the Waypoints map) and shows the read-out: on the Ground units
// tab the position alone, elsewhere with the distance from the current point of CurrentPath
// and the length of that path as the last DrawPaths summed it.
void ShowCursorPosition(Editor& ed, float x, float y, std::string_view minutesFormat);

}  // namespace tarvex
