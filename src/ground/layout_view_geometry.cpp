#include "ground/layout_view_geometry.h"

#include <cmath>

namespace tarvex {

namespace {

double Sign(double v) {
    return v > 0 ? 1.0 : v < 0 ? -1.0 : 0.0;
}

}  // namespace

void DestinationPoint(double& lat, double& lon, double fromLat, double fromLon, float miles,
                      float course) {
    const double k = kEditorRadiansPerDegree;
    const double d = (static_cast<double>(miles) / 60) * k;
    const double c = static_cast<double>(course) * k;
    const double p = fromLat * k;
    const double q = fromLon * k;
    const double s = std::sin(p) * std::cos(d) - std::cos(p) * std::sin(d) * std::cos(c);
    lat = std::atan(s / std::sqrt(1 - s * s));
    const double w = (std::cos(d) - std::sin(p) * std::sin(lat)) / (std::cos(p) * std::cos(lat));
    // The arc cosine of w. For no distance (or one so short that w rounds to 1) the division
    // has nothing to divide by, and the angle stays 0.
    const double rest = 1 - w * w;
    const double g = rest > 0 ? std::atan(-w / std::sqrt(rest)) + 2 * std::atan(1.0) : 0.0;
    lon = Sign(std::sin(d)) * Sign(std::sin(c)) * g + q;
    lat *= kEditorDegreesPerRadian;
    lon *= kEditorDegreesPerRadian;
}

double ScaleAbout(double p, double c, float zoom) {
    return p + (static_cast<double>(zoom) - 1) * (p - c);
}

int NextLegendColour(int colour) {
    const int next = colour - 2;
    if (colour == 1) return 14;
    return next < 0 ? 15 : next;
}

}  // namespace tarvex
