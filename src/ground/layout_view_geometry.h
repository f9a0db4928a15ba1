#pragma once
// The arithmetic of the layout editor's picture that needs nothing but numbers: the position a
// step along a course leads to, the point of the runway drawing scaled by the zoom, and the
// colour sequence of the legend.
namespace tarvex {

// One degree in radians, from the program's pi of 3.141593; and its inverse.
inline constexpr double kEditorRadiansPerDegree = 0.017453294444444444;
inline constexpr double kEditorDegreesPerRadian = 57.29577319531843;

// From (fromLat, fromLon), in degrees, `miles` statute miles along `course`: the latitude
// moves south for a course of 0 and north for 180, the longitude east for 90. A distance of 0
// leaves the position where it was.
void DestinationPoint(double& lat, double& lon, double fromLat, double fromLon, float miles,
                      float course);

// The point p of the runway picture scaled by the zoom about the centre c.
double ScaleAbout(double p, double c, float zoom);

// The palette entry after `colour` in the legend: 15, 13, ..., 1, 14, 12, ..., 0, then 15.
int NextLegendColour(int colour);

}  // namespace tarvex
