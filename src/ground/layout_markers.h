#pragma once
// The markers of the mission's layouts on mapGroundUnits: a circle of radius 48 and the row's
// number, red for a landscape layout, blue for an airfield layout, green for the highlighted.
namespace tarvex {

class Editor;

// highlightRow -1 highlights none.
void DrawLayoutMarkers(Editor& ed, int highlightRow = -1);

}  // namespace tarvex
