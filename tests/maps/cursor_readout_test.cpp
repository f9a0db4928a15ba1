#include <gtest/gtest.h>

#include "maps/map_projection.h"

namespace tarvex {
namespace {

TEST(CursorReadoutTest, LeftEdgeOfMap0ReadsItsConstant) {
    MapProjection projection;
    projection.SetMap(0, 8000, 6000);
    for (float y : {0.0f, 1234.0f, 6000.0f}) {
        projection.SetCursorPosition(0, y, "##00.00");
        EXPECT_EQ(projection.CursorLonText, "W01 38.00") << y;
    }
}

TEST(CursorReadoutTest, LessThanADegreeFromGreenwichKeepsTheSide) {
    struct Case {
        float lon;
        const char* text;
    };
    const Case cases[] = {
        {0.5f, "E00 30.00"}, {-0.5f, "W00 30.00"}, {-0.01f, "W00 00.60"}, {1.25f, "E01 15.00"}};
    MapProjection projection;
    projection.SetMap(0, 8000, 6000);
    projection.UpdateLatitudeBand();  // map 0 is rectangular: one scale at every latitude
    for (const Case& c : cases) {
        const float x = (projection.MapLeftLon + c.lon) / projection.LonPerUnit;
        projection.SetCursorPosition(x, 3000, "##00.00");
        EXPECT_EQ(projection.CursorLonText, c.text) << c.lon;
    }
}

TEST(CursorReadoutTest, LatitudeTextUsesTheGivenMinutesFormat) {
    MapProjection projection;
    projection.SetMap(5, 8000, 6000);
    projection.SetCursorPosition(2539, 0, "##00.0000");
    EXPECT_EQ(projection.CursorLatText.substr(0, 4), "N53 ");
    EXPECT_EQ(projection.CursorLatText.size(), 11u);
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
