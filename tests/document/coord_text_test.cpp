#include "document/coord_text.h"

#include <gtest/gtest.h>

#include "common/error.h"

namespace tarvex {
namespace {

TEST(CoordTextTest, TextToDegrees) {
    const struct {
        const char* text;
        double degrees;
    } cases[] = {
        {"", 0.0},
        {"W01 30.00", -1.5},
        {"w01 30.00", 1.5},  // only a capital W or S is west or south
        {"S00 30.00", -0.5},
        {"N51 23.45", 51 + 23.45 / 60},
        {"E1 05.0000", 1 + 5.0 / 60},
        {"X12 00.00", 12.0},
        {"N51 ab", 51.0},
    };
    for (const auto& c : cases)
        EXPECT_DOUBLE_EQ(CoordTextToDegrees(c.text), c.degrees) << c.text;
}

TEST(CoordTextTest, TextWithoutRoomForDegreesIsAnInvalidCall) {
    for (const char* text : {"N51", " N51 23.45", "N"}) {
        try {
            CoordTextToDegrees(text);
            ADD_FAILURE() << "no error for " << text;
        } catch (const AppError& e) {
            EXPECT_EQ(e.Number(), kErrInvalidCall) << text;
        }
    }
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
        {0.0, true, "00.0000", "N0 00.0000", 0.0},
        {-0.0, false, "00.00", "E0 00.00", 0.0},
        {51.5, true, "00.00", "N51 30.00", 30.0},
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
        {"W0 30.0000", "00.00", "W00 30.00"},
        {"E1 05.0000", "00.0000", "E01 05.0000"},
        {"N51 23.45", "00.0000", "N51 23.4500"},
        {"N51 23.4512", "00.00", "N51 23.45"},
        {"N51 59.999", "00.00", "N51 60.00"},
        {"N123 45.67", "00.00", "N12 45.67"},  // three-digit degrees keep two
        {"   S5 7.5", "00.00", "S05 07.50"},   // leading blanks go
        {"23.45", "00.00", "203 23.45"},       // no blank: read whole as minutes
    };
    for (const auto& c : cases) {
        std::string text = c.text;
        std::string& result = NormalizeCoordText(text, c.mask);
        EXPECT_EQ(text, c.normalized) << c.text;
        EXPECT_EQ(&result, &text);
    }
}

TEST(CoordTextTest, HeadingGetsOneCorrection) {
    const struct {
        float in;
        float out;
    } cases[] = {{361, 1}, {0, 360}, {360, 360}, {721, 361}, {-10, 350}, {-400, -40}, {0.5f, 0.5f}};
    for (const auto& c : cases) {
        float heading = c.in;
        EXPECT_EQ(NormalizeHeading(heading), c.out) << c.in;
        EXPECT_EQ(heading, c.out) << c.in;
    }
    const double layoutHeading = 190.0;
    EXPECT_EQ(NormalizeHeading(layoutHeading - 180 - 10), 360.0f);  // expression, by temporary
}

TEST(CoordTextTest, ClampByteKeepsWithinBounds) {
    int value = 5;
    EXPECT_EQ(ClampByte(value, 0, 4), 4);
    EXPECT_EQ(value, 4);
    value = -1;
    ClampByte(value, 0, 3);
    EXPECT_EQ(value, 0);
    unsigned char byte = 2;
    EXPECT_EQ(ClampByte(byte, 0, 1), 1);

    const struct {
        const char* text;
        int low, high;
        int value;
    } reads[] = {{"1.5", 0, 4, 2}, {"2.5", 0, 4, 2}, {"300", 0, 255, 255}, {"99999999", 0, 3, 3},
                 {"-7", 0, 3, 0},  {"abc", 0, 1, 0}, {"1e9", 0, 4, 1},     {" 3 ", 0, 4, 3}};
    for (const auto& r : reads) {
        EXPECT_EQ(ReadClampedByte(r.text, r.low, r.high), r.value) << r.text;
    }
}

}  // namespace
}  // namespace tarvex
