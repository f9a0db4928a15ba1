#include "common/numbers.h"

#include <gtest/gtest.h>

#include <cmath>

#include "common/error.h"

namespace tarvex {
namespace {

TEST(ValTest, ReadsOnlyTheLeadingNumber) {
    const struct {
        const char* text;
        double value;
    } cases[] = {
        {"", 0},          {"abc", 0},    {"  \t12.5xyz", 12.5},
        {"-3.25", -3.25}, {"+7", 7},     {"1e3", 1},
        {"&H10", 0},      {"1 2", 1},    {"1.2.3", 1.2},
        {".5", 0.5},      {"-.5", -0.5}, {".", 0},
        {"-", 0},         {"- 5", 0},    {"007", 7},
        {"12,5", 12},     {"5.", 5},     {"N51", 0},
    };
    for (const auto& c : cases)
        EXPECT_DOUBLE_EQ(Val(c.text), c.value) << c.text;
}

TEST(RoundingTest, TiesGoToTheEvenNeighbour) {
    const struct {
        double value;
        double whole;
    } cases[] = {{2.5, 2}, {3.5, 4},    {-2.5, -2},  {-3.5, -4}, {0.5, 0},
                 {1.5, 2}, {2.4999, 2}, {2.5001, 3}, {-0.4, 0},  {1e300, 1e300}};
    for (const auto& c : cases)
        EXPECT_EQ(RoundHalfEven(c.value), c.whole) << c.value;
    EXPECT_EQ(ValInt("2.5"), 2);
    EXPECT_EQ(ValLng(" -70000.5"), -70000);
}

TEST(ConversionTest, BoundsAndOverflow) {
    EXPECT_EQ(CByte(255), 255);
    EXPECT_EQ(CByte(-0.5), 0);  // rounds to 0 before the check
    EXPECT_EQ(CInt(32767), 32767);
    EXPECT_EQ(CInt(-32768), -32768);
    EXPECT_EQ(CInt(-32768.5), -32768);
    EXPECT_EQ(CLng(2147483647.0), 2147483647);
    EXPECT_EQ(CLng(-2147483648.0), INT32_MIN);
    const double byteOverflow[] = {256, -1, 255.5};
    const double intOverflow[] = {32768, -32769, 32767.5};
    const double lngOverflow[] = {2147483648.0, -2147483649.0, std::nan("")};
    for (double v : byteOverflow)
        EXPECT_THROW(CByte(v), AppError) << v;
    for (double v : intOverflow)
        EXPECT_THROW(CInt(v), AppError) << v;
    for (double v : lngOverflow)
        EXPECT_THROW(CLng(v), AppError) << v;
    try {
        CInt(40000);
    } catch (const AppError& e) {
        EXPECT_EQ(e.Number(), 6);
    }
    EXPECT_THROW(ValInt("99999"), AppError);
}

TEST(ConversionTest, SingleRoundsToNearestFloat) {
    EXPECT_EQ(CSng(0.1), 0.1f);
    EXPECT_EQ(CSng(16777217.0), 16777216.0f);
    EXPECT_THROW(CSng(1e39), AppError);
}

}  // namespace
}  // namespace tarvex
