#pragma once
// Geographic data dumped as text by the GMT tools: polylines of coasts, rivers and borders
// (multi-segment files, one "lon lat" pair a line, ">" between segments) and a land mask grid
// (grdinfo -C line plus one node value a line, from the top-left corner, row by row).
#include <optional>
#include <string>
#include <vector>

namespace tarvex::mapgen {

struct GeoPoint {
    double lat = 0;
    double lon = 0;  // east positive
};

struct GeoLine {
    int level = 0;  // the "Level n" of the segment header, 0 when it has none
    std::vector<GeoPoint> points;
};

// Missing or unreadable files give no lines: a map without rivers is still a map.
std::vector<GeoLine> ReadGeoLines(const std::string& path);

struct LandMask {
    double west = 0;
    double north = 0;
    double dx = 1;
    double dy = 1;
    int nx = 0;
    int ny = 0;
    std::vector<unsigned char> land;  // 1 land, 0 water

    // Share of land around a position, bilinear between the nodes; 0 outside the grid.
    double LandShare(double lat, double lon) const;
};

std::optional<LandMask> ReadLandMask(const std::string& infoPath, const std::string& valuesPath);

}  // namespace tarvex::mapgen
