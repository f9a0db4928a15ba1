#include "document/coord_text.h"

#include <gtest/gtest.h>

#include "common/error.h"

namespace tarvex {
namespace {

TEST(CoordTextTest, TextToDegrees) {
    const struct {
        const char* text;
        double degrees;
    } cases[] = {{"", 0.0},
                 {"W01 30.00", -1.5},
                 {"w01 30.00", 1.5},  // only a capital W or S is west or south
                 {"S00 30.00", -0.5},
                 {"E1 05.0000", 1 + 5.0 / 60}};
    for (const auto& c : cases)
        EXPECT_DOUBLE_EQ(CoordTextToDegrees(c.text), c.degrees) << c.text;
    // No blank, or a blank in front, leaves no room for the degrees.
    EXPECT_THROW(CoordTextToDegrees("N51"), AppError);
    EXPECT_THROW(CoordTextToDegrees(" N51 23.45"), AppError);
}

TEST(CoordTextTest, DegreesToTextLeavesMinutesInTheVariable) {
    const struct {
        double degrees;
        bool isLatitude;
        const char* mask;
        const char* text;
        double minutes;
    } cases[] = {
        {-0.5, false, "00.0000", "W0 30.0000", 30.0},
        {-0.0, true, "00.00", "N0 00.00", 0.0},
        {-33.25, true, "00.0000", "S33 15.0000", 15.0},
        {1 + 59.9999 / 60, false, "00.00", "E1 60.00", 59.9999},  // never carried
        {123.5, false, "00.0000", "E123 30.0000", 30.0},
    };
    for (const auto& c : cases) {
        double value = c.degrees;
        EXPECT_EQ(DegreesToCoordText(value, c.isLatitude, c.mask), c.text) << c.degrees;
        EXPECT_NEAR(value, c.minutes, 1e-9) << c.degrees;
    }
}

TEST(CoordTextTest, NormalizeInPlace) {
    const struct {
        const char* text;
        const char* mask;
        const char* normalized;
    } cases[] = {
        {"W0 30.0000", "00.00", "W00 30.00"}, {"N51 23.45", "00.0000", "N51 23.4500"},
        {"N51 59.999", "00.00", "N51 60.00"}, {"N123 45.67", "00.00", "N12 45.67"},
        {"   S5 7.5", "00.00", "S05 07.50"},  {"23.45", "00.00", "203 23.45"},  // all minutes
    };
    for (const auto& c : cases) {
        std::string text = c.text;
        EXPECT_EQ(&NormalizeCoordText(text, c.mask), &text);
        EXPECT_EQ(text, c.normalized) << c.text;
    }
}

TEST(CoordTextTest, HeadingAndByteBounds) {
    for (const auto& [in, out] : {std::pair{361.0f, 1.0f},
                                  {0.0f, 360.0f},
                                  {360.0f, 360.0f},
                                  {721.0f, 361.0f},
                                  {-10.0f, 350.0f}}) {
        float heading = in;
        EXPECT_EQ(NormalizeHeading(heading), out) << in;
        EXPECT_EQ(heading, out) << in;
    }
    int value = 5;
    EXPECT_EQ(ClampByte(value, 0, 4), 4);
    EXPECT_EQ(value, 4);
    const struct {
        const char* text;
        int high;
        int value;
    } reads[] = {{"1.5", 4, 2}, {"2.5", 4, 2}, {"99999999", 3, 3}, {"-7", 3, 0}, {"1e9", 4, 1}};
    for (const auto& r : reads)
        EXPECT_EQ(ReadClampedByte(r.text, 0, r.high), r.value) << r.text;
}

}  // namespace
}  // namespace tarvex
