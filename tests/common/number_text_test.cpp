#include "common/number_text.h"

#include <gtest/gtest.h>

namespace tarvex {
namespace {

TEST(FormatTest, MasksRoundTheBinaryValueAndNeverCarry) {
    const struct {
        double value;
        const char* mask;
        const char* text;
    } cases[] = {
        {5, "00.00", "05.00"},
        {0.125, "0.00", "0.12"},  // exact tie to even
        {0.375, "0.00", "0.38"},
        {59.996, "00.00", "60.00"},
        {123.456, "00.00", "123.46"},
        {-0.001, "00.00", "00.00"},  // no sign on zero
        {-1.5, "0.0", "-1.5"},
        {23.45123, "00.0000", "23.4512"},
        {12345, "##00", "12345"},
        {7.5, "##00.00", "07.50"},
        {0.5, "###0.000", "0.500"},
        {1234.56, "###0.0", "1234.6"},
        {2.5, "0", "2"},
        {3.5, "0", "4"},
        {-7, "000", "-007"},
        {0, "##0", "0"},
        {0.5, "#.00", ".50"},
        {1.0, "0.##", "1"},
    };
    for (const auto& c : cases) {
        EXPECT_EQ(Format(c.value, c.mask), c.text) << c.value << " " << c.mask;
    }
}

TEST(NumberTextTest, ShortestPositionalText) {
    const struct {
        float value;
        const char* text;
    } floats[] = {{0.1f, "0.1"},  {1e-5f, "0.00001"}, {123456789.0f, "123456800"},
                  {-0.0f, "0"},   {100.0f, "100"},    {1.0f / 3, "0.3333333"},
                  {-2.5f, "-2.5"}};
    for (const auto& c : floats)
        EXPECT_EQ(FloatText(c.value), c.text) << c.value;
    const struct {
        double value;
        const char* text;
    } doubles[] = {{0.1, "0.1"},
                   {1e-5, "0.00001"},
                   {-0.0, "0"},
                   {100.0, "100"},
                   {0.1 + 0.2, "0.3"},
                   {1.0 / 3, "0.333333333333333"},
                   {1e20, "100000000000000000000"},
                   {static_cast<double>(0.1f), "0.100000001490116"}};
    for (const auto& c : doubles)
        EXPECT_EQ(DoubleText(c.value), c.text) << c.value;
}

}  // namespace
}  // namespace tarvex
