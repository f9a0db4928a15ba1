#include "document/unit_placement.h"

#include <cmath>

#include "common/numbers.h"
#include "document/coord_text.h"

namespace tarvex {

namespace {

// The program's own pi and the metres of one degree, used along both axes. Positions in
// saved files depend on these exact values.
constexpr double kPi = 3.1415927;
constexpr double kMetresPerDegree = 111171.83;

}  // namespace

void UnitPlacement::SetLayoutFrame(const std::string& latText, const std::string& lonText) {
    const double lat = CoordTextToDegrees(latText);
    const double lon = CoordTextToDegrees(lonText);
    const double angle = LayoutHeading * kPi / 180.0;
    FrameLat = lat;
    FrameLon = lon;
    FrameSin = std::sin(angle);
    FrameCos = std::cos(angle);
}

void UnitPlacement::PlaceUnit(double unitHeading, float xOffset, float yOffset) {
    const double dLat = xOffset / 60.0;
    const double dLon = yOffset / 60.0;
    const double north = dLat * kMetresPerDegree;
    const double east = std::cos((dLat / 2.0) * kPi / 180.0) * dLon * kMetresPerDegree;
    const double turnedNorth = north * FrameCos - east * FrameSin;
    const double turnedEast = FrameSin * north + east * FrameCos;

    double lat = turnedNorth / kMetresPerDegree + FrameLat;
    double lon =
        turnedEast / (std::cos(((lat + FrameLat) / 2.0) * kPi / 180.0) * kMetresPerDegree) +
        FrameLon;
    UnitLat = DegreesToCoordText(lat, true, "00.0000");
    UnitLon = DegreesToCoordText(lon, false, "00.0000");

    // Wrap by whole turns of the rounded sum, so 359.6 + 0.6 gives 0.2 and not 360.2.
    UnitHeading = LayoutHeading + unitHeading;
    UnitHeading -= 360.0 * std::trunc(CLng(UnitHeading) / 360.0);
}

}  // namespace tarvex
