#pragma once
// The layout editor's picture on mapGroundUnits: the layout at large scale about the map's
// centre, the cursor at the layout's shift, the headings of the four edges, a legend of the
// unit types; and the way back from a point of the map to an offset of the layout.
#include <string>

namespace tarvex {

class Editor;
class PictureSurface;

// Map units per layout unit in the picture, at a zoom of 1.
inline constexpr double kMapUnitsPerLayoutUnit = 1666.67;

// A point of the map (x, y) as an offset from the map's centre in layout units: a down the
// screen, b to the right. Shows the offset in feet or metres on the status strip. The shift
// and the spread are not taken off: it is a position from the map's centre.
void MapToOffset(Editor& ed, float& a, float& b, float x, float y);

// Paints the whole view: cursor, origin, runways, headings, units by type with the legend.
// A layout without units shows an empty legend.
void DrawGU(Editor& ed);

// One row of the legend at (x, y) in the current fill: the circle and `name`. Then the row
// below, the next colour of the sequence in the fill, and `name` := nextName.
void DrawLegendEntry(Editor& ed, std::string& name, const std::string& nextName, float x, float& y,
                     int& colour);

// Where the cursor stands: the origin stepped along both axes, into CenterLat and CenterLon.
void UpdateLayoutCentre(Editor& ed);

// The cursor's coordinates at the top and the right edge, and the shift with its bearing on
// the status strip.
void ShowLayoutInfo(Editor& ed);

// The small aircraft that marks the runway: seen from above, nose up.
void PaintAircraftPicture(PictureSurface& picture);

}  // namespace tarvex
