#pragma once
// The eight theatre maps: the rows of the map combos, their bitmaps and the geographic
// constants of the projection. The constants belong to the program; the Maps table of the
// reference database only carries its own copies into the mission file.
#include <array>
#include <string_view>

namespace tarvex {

// One map. Longitudes are west-positive degrees, so an edge east of Greenwich is negative.
// The right edge of the last four maps leans (RightTopLon differs from RightBottomLon).
struct MapInfo {
    std::string_view RowText;
    std::string_view BitmapFile;
    float MapTopLat;
    float MapBottomLat;
    float MapLeftLon;
    float MapRightTopLon;
    float MapRightBottomLon;
};

inline constexpr int kMapCount = 8;

namespace map_catalogue_detail {
// The constants are written as decimal doubles and stored as floats, the way an assignment
// of a literal to a 32-bit variable rounds them.
constexpr MapInfo Row(std::string_view rowText, std::string_view bitmap, double top, double bottom,
                      double left, double rightTop, double rightBottom) {
    return {rowText,
            bitmap,
            static_cast<float>(top),
            static_cast<float>(bottom),
            static_cast<float>(left),
            static_cast<float>(rightTop),
            static_cast<float>(rightBottom)};
}
}  // namespace map_catalogue_detail

// Row i is map index i: the row of cmbSelectMap and cmbGUMap, and Recnum - 1 of table Maps.
inline constexpr std::array<MapInfo, kMapCount> kMapCatalogue = {
    map_catalogue_detail::Row("Map1Bob", "Map1.bmp", 52.4667, 49.9333, 1.6333, -2.4833, -2.4833),
    map_catalogue_detail::Row("Map2Bob", "Map2.bmp", 51.3667, 48.5333, 2.5167, -2.0667, -2.0667),
    map_catalogue_detail::Row("Map3Bob", "Map3.bmp", 51.7667, 50.5, 0.6, -1.45, -1.45),
    map_catalogue_detail::Row("Map4Bob", "Map4.bmp", 51.85, 49.1667, 3.2, -1.1833, -1.1833),
    map_catalogue_detail::Row("Map1BfE", "Map1Bfe.bmp", 55.55, 44.2167, 3.9333, -16.0833, -13.5833),
    map_catalogue_detail::Row("Map2BfE", "Map2Bfe.bmp", 53.0167, 47.3, 4.0, -4.8, -4.2),
    map_catalogue_detail::Row("Map3BfE", "Map3Bfe.bmp", 50.4667, 45.3833, 4.1333, -3.05, -2.05),
    map_catalogue_detail::Row("Map4BfE", "Map4Bfe.bmp", 54.5667, 47.4, -3.6, -15.1167, -14.2833),
};

// The map of an index, or nullptr for an index outside 0..7 (-1 is "no row selected").
constexpr const MapInfo* FindMap(int mapIndex) {
    if (mapIndex < 0 || mapIndex >= kMapCount) return nullptr;
    return &kMapCatalogue[static_cast<size_t>(mapIndex)];
}

}  // namespace tarvex
