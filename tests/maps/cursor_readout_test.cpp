#include <gtest/gtest.h>

#include "maps/map_projection.h"

namespace tarvex {
namespace {

// Map 0 is rectangular, so one scale holds at every latitude and x follows from the longitude.
TEST(CursorReadoutTest, LongitudeTextKeepsItsSideNearGreenwich) {
    MapProjection projection;
    projection.SetMap(0, 8000, 6000);
    projection.SetCursorPosition(0, 1234, "##00.00");
    EXPECT_EQ(projection.CursorLonText, "W01 38.00");  // the left edge, 1.6333 west
    const std::pair<float, const char*> cases[] = {
        {0.5f, "E00 30.00"}, {-0.5f, "W00 30.00"}, {-0.01f, "W00 00.60"}, {1.25f, "E01 15.00"}};
    for (auto [lon, text] : cases) {
        const float x = (projection.MapLeftLon + lon) / projection.LonPerUnit;
        projection.SetCursorPosition(x, 6000, "##00.00");
        EXPECT_EQ(projection.CursorLonText, text) << lon;
        EXPECT_EQ(projection.CursorLatText, "N49 56.00");
    }
}

TEST(CursorReadoutTest, ReadoutDependsOnTabAndUnits) {
    MapProjection projection;
    projection.CursorLatText = "N50 00.00";
    projection.CursorLonText = "W01 30.00";
    projection.SetDistanceUnits(false);
    EXPECT_EQ(projection.CursorReadout(2, 12.34f, 3, 109.44f),
              "Lat: [N50 00.00] Lon: [W01 30.00] ");
    EXPECT_EQ(projection.CursorReadout(3, 12.34f, 3, 109.44f),
              "Lat: [N50 00.00] Lon: [W01 30.00]  Dist from Waypoint 3: [12.3 Mi.]  "
              "Total Path Dist: [109.4 Mi.]");
    projection.SetDistanceUnits(true);
    const float distance = projection.GreatCircleDistance(51, 0, 52, 0);
    EXPECT_EQ(projection.CursorReadout(0, distance, 1, 2 * distance),
              "Lat: [N50 00.00] Lon: [W01 30.00]  Dist from Waypoint 1: [109.4 Km.]  "
              "Total Path Dist: [218.9 Km.]");
}

}  // namespace
}  // namespace tarvex
