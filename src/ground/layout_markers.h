#pragma once
// The markers of the mission's layouts on mapGroundUnits: a circle of radius 48 and the row's
// number, red for a landscape layout, blue for an airfield layout, green for the highlighted.
#include "shell/controls/control.h"

namespace tarvex {

class Editor;

inline constexpr float kLayoutMarkerRadius = 48;
inline constexpr Colour kLandscapeMarkerFill = Rgb(255, 0, 0);
inline constexpr Colour kAirfieldMarkerFill = Rgb(0, 0, 255);
inline constexpr Colour kHighlightedMarkerFill = Rgb(0, 255, 0);

// Item data from this value on names an airfield layout: (airfield row + 1) * 10000 + id.
inline constexpr int kFirstAirfieldItemData = 10001;

// highlightRow -1 highlights none.
void DrawLayoutMarkers(Editor& ed, int highlightRow = -1);

// One marker filled with `fill` at (x, y), with the row's number `number` beside it when it
// is above 0.
void PaintLayoutMarker(Editor& ed, float x, float y, Colour fill, int number = 0);

}  // namespace tarvex
