#include <cmath>

#include "common/numbers.h"
#include "maps/map_projection.h"

namespace tarvex {

namespace {
// The program's pi has six decimals; distances are pinned to it, not to a precise pi.
constexpr double kRadiansPerDegree = 0.017453294444444444;  // 3.141593 / 180
constexpr double kDegreesPerRadian = 57.29577319531843;     // 180 / 3.141593
constexpr double kMilesPerDegree = 68.0;
}  // namespace

float MapProjection::GreatCircleDistance(float lat1, float lon1, float lat2, float lon2) const {
    // sin^2 + cos^2 can round just below 1, which would give coincident points a few
    // hundred-thousandths of a mile and let a path's total creep; a point is 0 from itself.
    if (lat1 == lat2 && lon1 == lon2) return 0;
    const double phi1 = lat1 * kRadiansPerDegree;
    const double phi2 = lat2 * kRadiansPerDegree;
    const double lambda1 = lon1 * kRadiansPerDegree;
    const double lambda2 = lon2 * kRadiansPerDegree;
    const double c = std::sin(phi1) * std::sin(phi2) +
                     std::cos(phi1) * std::cos(phi2) * std::cos(lambda1 - lambda2);
    // Rounding can also push c past 1 for nearly identical positions: a distance of 0.
    if (c >= 1) return 0;
    // At -1 (antipodes) or past it by rounding, the arc cosine is half the world.
    const double angle =
        c <= -1 ? 4 * std::atan(1.0) : std::atan(-c / std::sqrt(1 - c * c)) + 2 * std::atan(1.0);
    return CSng(angle * kDegreesPerRadian * kMilesPerDegree * DistanceFactor);
}

void MapProjection::SetDistanceUnits(bool metric) {
    DistanceFactor = metric ? CSng(1609.3636 / 1000) : 1.0f;
    DistanceUnit = metric ? "Km." : "Mi.";
}

}  // namespace tarvex
