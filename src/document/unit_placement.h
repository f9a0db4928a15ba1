#pragma once
// Placing the units of a ground layout: the frame of a layout (its origin and heading) and
// the position and heading of a unit at an offset from that origin. The loader and the saver
// share one set of these working values; the Editor owns it.
#include <string>

namespace tarvex {

struct UnitPlacement {
    // Heading of the layout in degrees, -1 for none.
    double LayoutHeading = -1.0;
    // Results of PlaceUnit: four-decimal raw coordinate texts and the unit's heading.
    std::string UnitLat;
    std::string UnitLon;
    double UnitHeading = 0.0;

    // The frame taken by SetLayoutFrame: origin in signed degrees and the heading's sine and
    // cosine. Before any frame is set it is the identity at 0, 0.
    double FrameLat = 0.0;
    double FrameLon = 0.0;
    double FrameSin = 0.0;
    double FrameCos = 1.0;

    // Takes the origin from two coordinate texts and the current LayoutHeading as the frame.
    // Raises error 5 for a non-empty text without a blank.
    void SetLayoutFrame(const std::string& latText, const std::string& lonText);

    // Sets UnitLat, UnitLon and UnitHeading for a unit of the given heading whose offsets are
    // minutes of arc: xOffset along the meridian, yOffset along the parallel, turned by the
    // frame's heading. The heading sum wraps at 360 and keeps its fraction.
    void PlaceUnit(double unitHeading, float xOffset, float yOffset);
};

}  // namespace tarvex
