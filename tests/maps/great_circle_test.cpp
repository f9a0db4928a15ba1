#include <gtest/gtest.h>

#include "maps/map_projection.h"

namespace tarvex {
namespace {

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

}  // namespace
}  // namespace tarvex
