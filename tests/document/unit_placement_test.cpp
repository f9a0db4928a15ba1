#include "document/unit_placement.h"

#include <gtest/gtest.h>

#include "common/error.h"
#include "document/coord_text.h"

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

TEST(UnitPlacementTest, OriginWithoutBlankFailsTheFrame) {
    UnitPlacement placement;
    EXPECT_THROW(placement.SetLayoutFrame("N5123", "E01 00.00"), AppError);
    // An empty position is the point 0, 0.
    placement.LayoutHeading = 0;
    placement.SetLayoutFrame("", "");
    placement.PlaceUnit(0, 0, 0);
    EXPECT_EQ(placement.UnitLat, "N0 00.0000");
}

TEST(UnitPlacementTest, HalfTurnLeadsBackToTheOrigin) {
    // The loader finds a layout's origin this way from its first unit's position.
    UnitPlacement placement;
    placement.LayoutHeading = 30;
    placement.SetLayoutFrame("N51 23.4500", "E01 05.0000");
    placement.PlaceUnit(0, 2.5f, -1.25f);
    const std::string unitLat = placement.UnitLat, unitLon = placement.UnitLon;
    float back = static_cast<float>(placement.LayoutHeading - 180);
    placement.LayoutHeading = NormalizeHeading(back);
    placement.SetLayoutFrame(unitLat, unitLon);
    placement.PlaceUnit(0, 2.5f, -1.25f);
    std::string lat = placement.UnitLat, lon = placement.UnitLon;
    EXPECT_EQ(NormalizeCoordText(lat, "00.00"), "N51 23.45");
    EXPECT_EQ(NormalizeCoordText(lon, "00.00"), "E01 05.00");
}

}  // namespace
}  // namespace tarvex
