#include "maps/map_projection.h"

#include <gtest/gtest.h>

#include <utility>

#include "maps/map_catalogue.h"

namespace tarvex {
namespace {

MapProjection LoadedMap(int mapIndex, double width = 8000, double height = 6000) {
    MapProjection projection;
    projection.SetMap(mapIndex, width, height);
    return projection;
}

TEST(MapProjectionTest, WorkedExampleOnMap5) {
    MapProjection projection = LoadedMap(5);
    float x = 0;
    float y = 0;
    projection.ProjectPoint("N50 00.00", "W01 30.00", x, y);
    EXPECT_NEAR(projection.LatPerUnit, 0.00095278, 5e-9);
    EXPECT_NEAR(projection.EdgeSlope, -0.10496, 5e-6);
    EXPECT_NEAR(projection.RightLonAtLat, -4.48338, 5e-6);
    EXPECT_NEAR(projection.LeftLonAtLat, 4.28338, 5e-6);
    EXPECT_NEAR(projection.LonPerUnit, 0.00109585, 5e-9);
    EXPECT_EQ(x, 2539.0f);
    EXPECT_EQ(y, 3166.0f);
    EXPECT_EQ(projection.CurLat, 50.0f);
    EXPECT_EQ(projection.CurLon, -1.5f);
}

TEST(MapProjectionTest, SetMapKeepsConstantsForAnIndexOutsideTheCatalogue) {
    MapProjection projection = LoadedMap(2);
    for (int index : {-1, 8}) {
        projection.SetMap(index, 4000.5, 3001.5);  // halves round to the even neighbour
        EXPECT_EQ(projection.MapTopLat, kMapCatalogue[2].MapTopLat);
        EXPECT_EQ(projection.MapRightBottomLon, kMapCatalogue[2].MapRightBottomLon);
        EXPECT_EQ(projection.MapWidth, 4000);
        EXPECT_EQ(projection.MapHeight, 3002);
        EXPECT_EQ(projection.LatPerUnit,
                  (kMapCatalogue[2].MapTopLat - kMapCatalogue[2].MapBottomLat) / int16_t{3002});
    }
}

TEST(MapProjectionTest, LongitudeLetterDecidesTheSide) {
    struct Case {
        const char* lonText;
        float curLon;
    };
    const Case cases[] = {
        {"E01 30.00", 1.5f},  {"e01 30.00", 1.5f},  {"W01 30.00", -1.5f},
        {"w01 30.00", -1.5f}, {"X01 30.00e", 1.5f}, {"W01 30.00 E", 1.5f},
        {"", 0.0f},           {"garbage", 0.0f},    {"W1 30.0000", -1.0f},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.lonText);
        MapProjection projection = LoadedMap(5);
        float x = 0;
        float y = 0;
        projection.ProjectPoint("N50 00.00", c.lonText, x, y);
        EXPECT_EQ(projection.CurLon, c.curLon);
        float expectedX = 0;
        float expectedY = 0;
        projection.DegreesToMap(50, c.curLon, expectedX, expectedY);
        EXPECT_EQ(x, expectedX);
        EXPECT_EQ(y, expectedY);
    }
}

TEST(MapProjectionTest, GreenwichAndRoundTripsOnEveryMap) {
    for (int index = 0; index < kMapCount; ++index) {
        SCOPED_TRACE(index);
        MapProjection projection = LoadedMap(index);
        float eastX = 0;
        float westX = 0;
        float unusedY = 0;
        projection.ProjectPoint("N49 30.00", "E00 00.00", eastX, unusedY);
        projection.ProjectPoint("N49 30.00", "W00 00.00", westX, unusedY);
        EXPECT_EQ(eastX, westX);
        for (auto [px, py] : {std::pair{0.0f, 0.0f}, {4000.0f, 3000.0f}, {7999.0f, 5999.0f}}) {
            float lat = 0;
            float lon = 0;
            projection.MapToDegrees(px, py, lat, lon);
            float x = 0;
            float y = 0;
            projection.DegreesToMap(lat, lon, x, y);
            EXPECT_NEAR(x, px, 1.0f);
            EXPECT_NEAR(y, py, 1.0f);
        }
    }
}

// Map 7 lies wholly east of Greenwich: its band is the difference of the two edges, not a sum.
TEST(MapProjectionTest, MapEastOfGreenwichSpansItsOwnBand) {
    MapProjection projection = LoadedMap(7);
    float lat = 0;
    float lon = 0;
    projection.MapToDegrees(0, 6000, lat, lon);
    EXPECT_NEAR(lon, 3.6f, 1e-4);
    projection.MapToDegrees(8000, 6000, lat, lon);
    EXPECT_NEAR(lon, 14.2833f, 1e-4);
}

// ---- Distances ----------------------------------------------------------------------

TEST(GreatCircleTest, DistancesInBothUnits) {
    MapProjection projection;
    projection.SetDistanceUnits(false);
    EXPECT_NEAR(projection.GreatCircleDistance(51, 0, 52, 0), 68.0f, 1e-3);
    EXPECT_NEAR(projection.GreatCircleDistance(0, 0, 0, 180), 180 * 68.0f, 0.1f);  // no NaN
    projection.SetDistanceUnits(true);
    EXPECT_EQ(projection.DistanceFactor, static_cast<float>(1609.3636 / 1000));
    EXPECT_NEAR(projection.GreatCircleDistance(51, 0, 52, 0), 109.44f, 5e-3);
}

TEST(GreatCircleTest, IdenticalPositionsAreZeroApart) {
    MapProjection projection;
    projection.SetDistanceUnits(true);
    for (auto [lat, lon] :
         {std::pair{0.0f, 0.0f}, {40.041096f, -1.7f}, {49.93333f, 1.6333f}, {89.9f, 123.4f}}) {
        EXPECT_EQ(projection.GreatCircleDistance(lat, lon, lat, lon), 0.0f) << lat << " " << lon;
    }
}

TEST(GreatCircleTest, DistanceFromPointTextReachesTheWorkingPosition) {
    MapProjection projection;
    projection.SetDistanceUnits(false);
    projection.CurLat = 52;
    projection.CurLon = -1.5f;
    EXPECT_NEAR(projection.DistanceFromPoint("N51 00.00", "W01 30.00"), 68.0f, 1e-3);
    EXPECT_EQ(projection.DistanceFromPoint("N5200.00", "W01 30.00"), 0.0f);  // unreadable
}

// ---- The pointer's read-out -----------------------------------------------------------

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
