#include "ground/layout_transform.h"

#include <gtest/gtest.h>

#include <cmath>

#include "common/error.h"

namespace tarvex {
namespace {

constexpr double kDegree = 3.141593 / 180;

TEST(LayoutTransformTest, OffsetBearingClockwiseFromUp) {
    const struct {
        int16_t dx, dy;
        float bearing;
    } cases[] = {
        {0, 0, 0},   {1, 0, 90},   {-5, 0, 270},  {0, -1, 360},        {0, 1, 180},
        {1, 1, 135}, {-1, 1, 225}, {-1, -1, 315}, {3, -4, 36.869896f},
    };
    for (const auto& c : cases) {
        EXPECT_FLOAT_EQ(OffsetBearing(c.dx, c.dy), c.bearing) << c.dx << "," << c.dy;
    }
}

TEST(LayoutTransformTest, RotationSplitsWithItsSign) {
    const struct {
        float rotation;
        int16_t quarterTurns;
        float fine;
    } cases[] = {{-10, 0, -10},   {80, 0, 80},    {-90, -1, 0}, {135, 1, 45},
                 {-135, -1, -45}, {359.6f, 4, 0}, {1.5f, 0, 2}};
    for (const auto& c : cases) {
        LayoutTransform t;
        t.SetFromRotation(c.rotation);
        EXPECT_EQ(t.QuarterTurns, c.quarterTurns) << c.rotation;
        EXPECT_EQ(t.FineRotation, c.fine) << c.rotation;
    }
}

// The result of a rotation is a = r sin B, b = -r cos B for a whole-degree bearing B.
TEST(LayoutTransformTest, RotateOffsetSettlesOnWholeDegrees) {
    const struct {
        float a, b, fine;
        int bearing;
    } cases[] = {
        {0, 0, 45, 45},   // the origin stays the origin
        {3, 4, 45, 188},  // 143.13 + 45, length 5
        {1, 0, 10, 100},
        {0, 1, -30, 150},
        {0, -1, 45, 45},
        {-1, 0, 89, 359},
        {1, 0, -89, 1},
        {8.183f, -0.1f, -89, 0},    // the bearing-0 branch
        {0.002f, 0.001f, -27, 90},  // the stored leg rounds above the length
        {32.767f, 0, 30, 120},      // the largest offset the 16-bit metres hold
    };
    for (const auto& c : cases) {
        LayoutTransform t;
        t.FineRotation = c.fine;
        float a = c.a, b = c.b;
        const double r = std::hypot(std::round(c.a * 1000.0), std::round(c.b * 1000.0)) / 1000;
        t.RotateOffset(a, b);
        EXPECT_NEAR(a, r * std::sin(c.bearing * kDegree), 2e-6 * (1 + r)) << c.a << "," << c.b;
        EXPECT_NEAR(b, -r * std::cos(c.bearing * kDegree), 2e-6 * (1 + r)) << c.a << "," << c.b;
    }
    LayoutTransform t;
    t.FineRotation = 10;
    float a = -32.769f, b = 0;
    EXPECT_THROW(t.RotateOffset(a, b), AppError);  // Overflow, ending a save with its report
}

TEST(LayoutTransformTest, ApplyTurnsRotatesSpreadsAndShifts) {
    const struct {
        float rotation, a, b, spread, shiftX, shiftY;
        float outA, outB;
    } cases[] = {
        {90, 1, 0, 0, 0, 0, 0, 1},  // ahead of the origin goes to the right
        {180, 1, 2, 0, 0, 0, -1, -2},
        {270, 1, 2, 0, 0, 0, 2, -1},
        {-90, 1, 2, 0, 0, 0, 1, 2},                // -1 quarter turns and no fine rotation
        {0, 8, 16, -0.875f, 0, 0, 1, 2},           // the lowest spread: an eighth of the distance
        {0, 2, -1, 1, 0.5f, 0.25f, 4.25f, -1.5f},  // a takes the Y shift, b the X shift
        {135, 1, 0, 0, 0, 0, -0.70710677f, 0.70710677f},
    };
    for (const auto& c : cases) {
        LayoutTransform t;
        t.SetFromRotation(c.rotation);
        float a = c.a, b = c.b;
        t.ApplyLayoutTransform(a, b, c.spread, c.shiftX, c.shiftY);
        EXPECT_NEAR(a, c.outA, 1e-6) << c.rotation << " " << c.a << "," << c.b;
        EXPECT_NEAR(b, c.outB, 1e-6) << c.rotation << " " << c.a << "," << c.b;
    }
}

}  // namespace
}  // namespace tarvex
