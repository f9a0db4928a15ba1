#include "document/unit_placement.h"

#include <gtest/gtest.h>

namespace tarvex {
namespace {

TEST(UnitPlacementTest, PositionsFromOffsets) {
    const struct {
        const char* lat;
        const char* lon;
        double layoutHeading;
        float x, y;
        const char* unitLat;
        const char* unitLon;
    } cases[] = {
        // No offset: the origin itself, with four decimals and raw degrees.
        {"N51 23.45", "E01 05.00", 0, 0, 0, "N51 23.4500", "E1 05.0000"},
        {"S33 15.5000", "W70 40.2500", 123, 0, 0, "S33 15.5000", "W70 40.2500"},
        // One minute ahead goes north; one to the right goes east, wider by latitude.
        {"N00 00.00", "E00 00.00", 0, 1, 0, "N0 01.0000", "E0 00.0000"},
        {"N60 00.00", "E10 00.00", 0, 0, 1, "N60 00.0000", "E10 02.0000"},
        // Turned a quarter: ahead is east. The program's pi leaves a hair south of 0, and
        // a hair short of one degree shows as 60 minutes, never carried.
        {"N00 00.00", "E00 00.00", 90, 60, 0, "S0 00.0000", "E0 60.0000"},
        {"N00 00.00", "E00 00.00", 180, 60, 0, "S0 60.0000", "W0 00.0000"},
    };
    for (const auto& c : cases) {
        UnitPlacement placement;
        placement.LayoutHeading = c.layoutHeading;
        placement.SetLayoutFrame(c.lat, c.lon);
        placement.PlaceUnit(0, c.x, c.y);
        EXPECT_EQ(placement.UnitLat, c.unitLat) << c.lat << " " << c.x;
        EXPECT_EQ(placement.UnitLon, c.unitLon) << c.lon << " " << c.y;
    }
}

TEST(UnitPlacementTest, HeadingWrapsAndKeepsItsFraction) {
    const struct {
        double layoutHeading;
        double unitHeading;
        double result;
    } cases[] = {{350, 20, 10}, {359.6, 0.6, 0.2}, {0, 90, 90},
                 {180, 180, 0}, {359.6, 0, -0.4},  {-1, 0, -1}};
    for (const auto& c : cases) {
        UnitPlacement placement;
        placement.LayoutHeading = c.layoutHeading;
        placement.SetLayoutFrame("N51 00.00", "E01 00.00");
        placement.PlaceUnit(c.unitHeading, 0, 0);
        EXPECT_NEAR(placement.UnitHeading, c.result, 1e-9)
            << c.layoutHeading << "+" << c.unitHeading;
    }
}

}  // namespace
}  // namespace tarvex
