#pragma once
// Putting a theatre map on a surface, and coordinate text onto the map.
#include <string_view>

namespace tarvex {

class Editor;
class PictureSurface;

// Radius of every point marker on a map, in map units.
inline constexpr float kPointRadius = 48;

// The size a surface takes when its bitmap can't be loaded: the map area of the tabs.
inline constexpr float kDefaultMapWidth = 5016;
inline constexpr float kDefaultMapHeight = 4860;

// Loads the bitmap of map `mapIndex` from MapPath onto the surface, sets the projection for it
// and plots point 0 of CurrentPath. An index outside 0..7 keeps the picture and the constants
// and only takes the size again. A bitmap that is missing, unreadable or too large to measure
// leaves a plain surface of the default size, with a warning on the status strip.
void LoadMap(Editor& ed, PictureSurface& surface, int mapIndex);

// Coordinate text to a map position (whole units), leaving CurLat and CurLon set. Draws a
// marker circle at the position on mapWayPoints, whatever surface the caller works on, with
// that surface's pen and fill: the path drawing relies on it for its point circles.
void PlotPoint(Editor& ed, std::string_view latText, std::string_view lonText, float& x, float& y);

// A new row of cmbSelectMap: load it, and redraw unless a mission is being opened or reset.
void cmbSelectMap_Click(Editor& ed);

}  // namespace tarvex
