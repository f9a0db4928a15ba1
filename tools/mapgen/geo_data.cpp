#include "geo_data.h"

#include <cmath>
#include <cstdlib>
#include <fstream>
#include <sstream>

namespace tarvex::mapgen {

std::vector<GeoLine> ReadGeoLines(const std::string& path) {
    std::vector<GeoLine> lines;
    std::ifstream file(path);
    std::string text;
    GeoLine current;
    auto flush = [&] {
        if (current.points.size() >= 2) lines.push_back(current);
        current.points.clear();
    };
    while (std::getline(file, text)) {
        if (text.empty() || text[0] == '#') continue;
        if (text[0] == '>') {
            flush();
            const auto at = text.find("Level ");
            current.level = at == std::string::npos ? 0 : std::atoi(text.c_str() + at + 6);
            continue;
        }
        std::istringstream fields(text);
        GeoPoint point;
        if (!(fields >> point.lon >> point.lat)) continue;
        if (point.lon > 180) point.lon -= 360;
        current.points.push_back(point);
    }
    flush();
    return lines;
}

std::optional<LandMask> ReadLandMask(const std::string& infoPath, const std::string& valuesPath) {
    std::ifstream info(infoPath);
    std::string name;
    double east = 0, south = 0, zMin = 0, zMax = 0;
    LandMask mask;
    if (!(info >> name >> mask.west >> east >> south >> mask.north >> zMin >> zMax >> mask.dx >>
          mask.dy >> mask.nx >> mask.ny))
        return std::nullopt;
    if (mask.nx < 2 || mask.ny < 2 || mask.dx <= 0 || mask.dy <= 0) return std::nullopt;
    mask.land.reserve(static_cast<size_t>(mask.nx) * static_cast<size_t>(mask.ny));
    std::ifstream values(valuesPath);
    double v = 0;
    while (values >> v)
        mask.land.push_back(v > 0.5 ? 1 : 0);
    if (mask.land.size() != static_cast<size_t>(mask.nx) * static_cast<size_t>(mask.ny))
        return std::nullopt;
    return mask;
}

double LandMask::LandShare(double lat, double lon) const {
    const double fx = (lon - west) / dx;
    const double fy = (north - lat) / dy;
    if (fx < 0 || fy < 0 || fx > nx - 1 || fy > ny - 1) return 0;
    const int x0 = std::min(static_cast<int>(fx), nx - 2);
    const int y0 = std::min(static_cast<int>(fy), ny - 2);
    const double tx = fx - x0;
    const double ty = fy - y0;
    auto at = [&](int x, int y) {
        return static_cast<double>(land[static_cast<size_t>(y) * nx + x]);
    };
    return (at(x0, y0) * (1 - tx) + at(x0 + 1, y0) * tx) * (1 - ty) +
           (at(x0, y0 + 1) * (1 - tx) + at(x0 + 1, y0 + 1) * tx) * ty;
}

}  // namespace tarvex::mapgen
