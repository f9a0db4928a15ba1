#pragma once
// The projection between coordinate text or decimal degrees and positions on a map surface,
// in map units (twips, Y downward, (0, 0) at the top left of the bitmap). Both map surfaces
// share one state, which always describes the surface last loaded. The arithmetic is done
// step by step in 32-bit floats, as the stored positions and read-outs depend on it.
#include <cstdint>
#include <string>
#include <string_view>

namespace tarvex {

struct MapProjection {
    // The tab whose read-out shows the position only.
    static constexpr int kGroundUnitsTab = 2;

    // Constants of the map last loaded; longitudes west-positive.
    float MapTopLat = 0;
    float MapBottomLat = 0;
    float MapLeftLon = 0;
    float MapRightTopLon = 0;
    float MapRightBottomLon = 0;
    // Size of the surface last loaded, in map units.
    int16_t MapWidth = 0;
    int16_t MapHeight = 0;
    float LatPerUnit = 0;
    // Recomputed from CurLat before every conversion: the east-west scale depends on latitude.
    float EdgeSlope = 0;
    float RightLonAtLat = 0;
    float LeftLonAtLat = 0;
    float LonPerUnit = 0;
    // The working position, north and east positive, left behind by every conversion.
    float CurLat = 0;
    float CurLon = 0;
    std::string CursorLatText;
    std::string CursorLonText;
    float DistanceFactor = 0;
    std::string DistanceUnit;

    // The arithmetic of loading a map onto a surface whose size is given in map units: an
    // index outside 0..7 keeps the constants but still takes the size and the latitude scale.
    // A size beyond 16 bits raises error 6 after the constants are set, before the size is.
    void SetMap(int mapIndex, double surfaceWidth, double surfaceHeight);

    // EdgeSlope, RightLonAtLat, LeftLonAtLat and LonPerUnit for CurLat.
    void UpdateLatitudeBand();

    // Coordinate text to a map position cut to whole units. The degrees are characters 2-3
    // and the minutes characters 5-9 of each text; an "E" anywhere in lonText, in either
    // case, means east. Malformed text reads as 0. Leaves CurLat and CurLon set.
    void ProjectPoint(std::string_view latText, std::string_view lonText, float& x, float& y);

    // The same from decimal degrees (lon east-positive), for callers that hold numbers.
    void DegreesToMap(float lat, float lon, float& x, float& y);

    // A map position to decimal degrees (lon east-positive), also left in CurLat and CurLon.
    void MapToDegrees(float x, float y, float& lat, float& lon);

    // Sets CurLat, CurLon, CursorLatText and CursorLonText for the pointer at (x, y). The
    // degrees are printed with "##00" and the minutes with minutesFormat ("##00.00" on the
    // Waypoints tab); a position less than a degree west reads W00 with positive minutes.
    void SetCursorPosition(float x, float y, std::string_view minutesFormat);

    // Distance in DistanceUnit from a point given as coordinate text to (CurLat, CurLon), for
    // the read-out. It is only a read-out: a text that can't be read gives 0, not an error.
    float DistanceFromPoint(const std::string& latText, const std::string& lonText) const;

    // The status-strip read-out of the last pointer position. The Ground units tab shows only
    // the position; the others add the distance from the current point and the path length.
    std::string CursorReadout(int tabIndex, float distance, int16_t pathCurrentPoint,
                              float totalPathDist) const;

    // Great-circle distance in DistanceUnit between two positions in decimal degrees.
    float GreatCircleDistance(float lat1, float lon1, float lat2, float lon2) const;

    // Kilometres (metric) or statute miles.
    void SetDistanceUnits(bool metric);
};

}  // namespace tarvex
