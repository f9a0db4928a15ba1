#include "maps/map_projection.h"

#include <cmath>

#include "common/numbers.h"
#include "common/text.h"
#include "maps/map_catalogue.h"

namespace tarvex {

void MapProjection::SetMap(int mapIndex, double surfaceWidth, double surfaceHeight) {
    if (const MapInfo* map = FindMap(mapIndex)) {
        MapTopLat = map->MapTopLat;
        MapBottomLat = map->MapBottomLat;
        MapLeftLon = map->MapLeftLon;
        MapRightTopLon = map->MapRightTopLon;
        MapRightBottomLon = map->MapRightBottomLon;
    }
    MapWidth = CInt(surfaceWidth);
    MapHeight = CInt(surfaceHeight);
    LatPerUnit = (MapTopLat - MapBottomLat) / MapHeight;
}

void MapProjection::UpdateLatitudeBand() {
    EdgeSlope = (MapRightTopLon - MapRightBottomLon) / (MapTopLat - MapBottomLat);
    RightLonAtLat = (CurLat - MapBottomLat) * EdgeSlope + MapRightBottomLon;
    LeftLonAtLat = MapLeftLon - (CurLat - MapBottomLat) * EdgeSlope;
    // Only the right edge is taken as a distance from Greenwich: a left edge east of it (map 7)
    // keeps its sign, so the sum is the width of the band.
    LonPerUnit = (std::fabs(RightLonAtLat) + LeftLonAtLat) / MapWidth;
}

void MapProjection::ProjectPoint(std::string_view latText, std::string_view lonText, float& x,
                                 float& y) {
    // Fixed character slots, not the blank: positions in the document are always normalised
    // to two-digit degrees, and a raw one-digit text reads its minutes short.
    const auto readDegrees = [](std::string_view text) {
        return CSng(Val(Mid(text, 2, 2)) + Val(Mid(text, 5, 5)) / 60);
    };
    const float lonMagnitude = readDegrees(lonText);
    const float lat = readDegrees(latText);
    // Every map lies north of the equator, so the latitude's letter is not looked at. West
    // turns the magnitude negative; subtracting it from the left edge or adding its negative
    // is the same float operation.
    const bool east = InStr(lonText, "E") > 0;
    DegreesToMap(lat, east ? lonMagnitude : -lonMagnitude, x, y);
}

void MapProjection::DegreesToMap(float lat, float lon, float& x, float& y) {
    CurLat = lat;
    CurLon = lon;
    UpdateLatitudeBand();
    x = std::trunc((LeftLonAtLat + CurLon) / LonPerUnit);
    y = std::trunc((MapTopLat - CurLat) / LatPerUnit);
}

void MapProjection::MapToDegrees(float x, float y, float& lat, float& lon) {
    CurLat = MapTopLat - LatPerUnit * y;
    UpdateLatitudeBand();
    CurLon = LonPerUnit * x - LeftLonAtLat;
    lat = CurLat;
    lon = CurLon;
}

}  // namespace tarvex
