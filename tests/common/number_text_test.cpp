#include "common/number_text.h"

#include <gtest/gtest.h>

namespace tarvex {
namespace {

TEST(FormatTest, MasksOfTheProgram) {
    const struct {
        double value;
        const char* mask;
        const char* text;
    } cases[] = {
        {23.45, "00.00", "23.45"},
        {5, "00.00", "05.00"},
        {0.125, "0.00", "0.12"},  // exact tie goes to even
        {0.375, "0.00", "0.38"},
        {59.996, "00.00", "60.00"},
        {59.999, "00.00", "60.00"},
        {123.456, "00.00", "123.46"},
        {-0.001, "00.00", "00.00"},
        {-0.004, "0.00", "0.00"},
        {-1.5, "0.0", "-1.5"},
        {23.45123, "00.0000", "23.4512"},
        {30, "00.0000", "30.0000"},
        {5, "##00", "05"},
        {12345, "##00", "12345"},
        {7.5, "##00.00", "07.50"},
        {3.14159, "##00.0000", "03.1416"},
        {0.5, "###0.000", "0.500"},
        {1234.56, "###0.0", "1234.6"},
        {0.05, "0.0", "0.1"},  // 0.05 is a little above the tie in binary
        {2.5, "0", "2"},
        {3.5, "0", "4"},
        {7, "000", "007"},
        {-7, "000", "-007"},
        {0, "##0", "0"},
        {45.6, "##0", "46"},
        {1.23456, "0.0000", "1.2346"},
        {0.5, "#.00", ".50"},
        {1.5, "0.0#", "1.5"},
        {1.0, "0.##", "1"},
    };
    for (const auto& c : cases) {
        EXPECT_EQ(Format(c.value, c.mask), c.text) << c.value << " " << c.mask;
    }
}

TEST(FloatTextTest, ShortestPositionalText) {
    const struct {
        float value;
        const char* text;
    } cases[] = {
        {0.1f, "0.1"},
        {1e-5f, "0.00001"},
        {123456789.0f, "123456800"},
        {-0.0f, "0"},
        {0.0f, "0"},
        {100.0f, "100"},
        {-2.5f, "-2.5"},
        {1.0f / 3, "0.3333333"},
        {1666.67f, "1666.67"},
        {3.1415927f, "3.141593"},
    };
    for (const auto& c : cases)
        EXPECT_EQ(FloatText(c.value), c.text) << c.value;
}

TEST(DoubleTextTest, ShortestPositionalText) {
    const struct {
        double value;
        const char* text;
    } cases[] = {
        {0.1, "0.1"},
        {1e-5, "0.00001"},
        {-0.0, "0"},
        {100.0, "100"},
        {1.0 / 3, "0.333333333333333"},
        {0.1 + 0.2, "0.3"},
        {3.2808 * 3, "9.8424"},
        {1e20, "100000000000000000000"},
        {static_cast<double>(0.1f), "0.100000001490116"},
    };
    for (const auto& c : cases)
        EXPECT_EQ(DoubleText(c.value), c.text) << c.value;
    EXPECT_EQ(IntText(-32768), "-32768");
}

}  // namespace
}  // namespace tarvex
