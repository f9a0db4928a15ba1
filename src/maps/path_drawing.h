#pragma once
// Drawing the flight paths on a map surface. Nothing is drawn incrementally but the highlight:
// every change to a path ends in a whole redraw, which recomputes the map positions from the
// coordinate text (the text is the truth, WPMapX and WPMapY a cache of the last draw).
#include "shell/controls/control.h"

namespace tarvex {

class Editor;
class PictureSurface;

// The colours of the drawing.
inline constexpr Colour kCurrentPathColour = 0;  // black
inline constexpr Colour kOverlayPathColour = Rgb(255, 255, 0);
inline constexpr Colour kStartMarkerFill = Rgb(255, 0, 0);
inline constexpr Colour kEndMarkerFill = Rgb(0, 0, 255);
inline constexpr Colour kFlybyFill = Rgb(255, 255, 255);
inline constexpr Colour kHighlightColour = Rgb(255, 0, 0);

// Clears the surface's drawing (the bitmap stays) and draws CurrentPath in black and every
// path whose overlay box is checked in yellow, lower paths first; sums TotalPathDist over
// CurrentPath and ends with the highlight of its current point. Point circles go to
// mapWayPoints alone, so on mapGroundUnits only legs, numbers and markers appear.
void DrawPaths(Editor& ed, PictureSurface& surface);

// The surface was exposed. The skin raises Paint then, not when the recording changes: the
// redraw itself changes the recording.
void mapWayPoints_Paint(Editor& ed);

// Marks `point` of CurrentPath in red on mapWayPoints (its circle and incoming leg) and makes
// it the path's current point. Nothing for point 0 or below.
void HighlightPoint(Editor& ed, int point);

// Draws the current point of CurrentPath and its incoming leg in black again.
void UnhighlightPoint(Editor& ed);

}  // namespace tarvex
