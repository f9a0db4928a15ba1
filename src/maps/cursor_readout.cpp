#include <cmath>

#include "common/error.h"
#include "common/number_text.h"
#include "common/numbers.h"
#include "document/coord_text.h"
#include "maps/map_projection.h"

namespace tarvex {

void MapProjection::SetCursorPosition(float x, float y, std::string_view minutesFormat) {
    float lat = 0;
    float lon = 0;
    MapToDegrees(x, y, lat, lon);
    const float latDegrees = std::trunc(lat);
    const float latMinutes = (lat - latDegrees) * 60;
    const float lonDegrees = std::trunc(lon);
    const float lonMinutes = (lon - lonDegrees) * 60;
    CursorLatText = "N" + Format(latDegrees, "##00") + " " + Format(latMinutes, minutesFormat);
    // Between 0 and 1 degree west the degrees are 0 and only the minutes carry the sign.
    if (lonMinutes >= 0 && lonDegrees >= 0) {
        CursorLonText = "E" + Format(lonDegrees, "##00") + " " + Format(lonMinutes, minutesFormat);
    } else {
        CursorLonText = "W" + Format(std::fabs(lonDegrees), "##00") + " " +
                        Format(std::fabs(lonMinutes), minutesFormat);
    }
}

float MapProjection::DistanceFromPoint(const std::string& latText,
                                       const std::string& lonText) const {
    try {
        return GreatCircleDistance(CSng(CoordTextToDegrees(latText)),
                                   CSng(CoordTextToDegrees(lonText)), CurLat, CurLon);
    } catch (const AppError&) {
        return 0;
    }
}

std::string MapProjection::CursorReadout(int tabIndex, float distance, int16_t pathCurrentPoint,
                                         float totalPathDist) const {
    std::string text = "Lat: [" + CursorLatText + "] Lon: [" + CursorLonText + "] ";
    if (tabIndex == kGroundUnitsTab) return text;
    text += " Dist from Waypoint " + IntText(pathCurrentPoint) + ": [" +
            Format(distance, "###0.0") + " " + DistanceUnit + "]  Total Path Dist: [" +
            Format(totalPathDist, "###0.0") + " " + DistanceUnit + "]";
    return text;
}

}  // namespace tarvex
