#include <gtest/gtest.h>

#include "maps/map_projection.h"

namespace tarvex {
namespace {

TEST(GreatCircleTest, OneDegreeOfLatitudeInBothUnits) {
    MapProjection projection;
    projection.SetDistanceUnits(false);
    EXPECT_EQ(projection.DistanceUnit, "Mi.");
    EXPECT_NEAR(projection.GreatCircleDistance(51, 0, 52, 0), 68.0f, 1e-3);
    projection.SetDistanceUnits(true);
    EXPECT_EQ(projection.DistanceUnit, "Km.");
    EXPECT_EQ(projection.DistanceFactor, static_cast<float>(1609.3636 / 1000));
    EXPECT_NEAR(projection.GreatCircleDistance(51, 0, 52, 0), 109.44f, 5e-3);
}

TEST(GreatCircleTest, IdenticalPositionsAreZeroApart) {
    MapProjection projection;
    projection.SetDistanceUnits(true);
    for (auto [lat, lon] : {std::pair{0.0f, 0.0f},
                            {51.3f, -1.7f},
                            {49.93333f, 1.6333f},
                            {55.55f, 16.0833f},
                            {89.9f, 123.4f}}) {
        EXPECT_EQ(projection.GreatCircleDistance(lat, lon, lat, lon), 0.0f) << lat << " " << lon;
    }
}

TEST(GreatCircleTest, OppositePointsGiveHalfTheWorld) {
    MapProjection projection;
    projection.SetDistanceUnits(false);
    EXPECT_NEAR(projection.GreatCircleDistance(0, 0, 0, 180), 180 * 68.0f, 0.1f);
}

}  // namespace
}  // namespace tarvex
