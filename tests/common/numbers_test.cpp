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
    } cases[] = {{"", 0},      {"abc", 0}, {"  \t12.5xyz", 12.5}, {"-3.25", -3.25}, {"1e3", 1},
                 {"&H10", 0},  {"1 2", 1}, {"1.2.3", 1.2},        {"-.5", -0.5},    {"- 5", 0},
                 {"12,5", 12}, {"N51", 0}};
    for (const auto& c : cases)
        EXPECT_DOUBLE_EQ(Val(c.text), c.value) << c.text;
}

TEST(NumbersTest, WholeNumbersRoundHalfToEven) {
    const struct {
        double value;
        double whole;
    } cases[] = {{2.5, 2}, {3.5, 4}, {-2.5, -2}, {-3.5, -4}, {0.5, 0}, {2.5001, 3}, {-0.4, 0}};
    for (const auto& c : cases)
        EXPECT_EQ(RoundHalfEven(c.value), c.whole) << c.value;
    EXPECT_EQ(ValInt("2.5"), 2);
    EXPECT_EQ(CSng(16777217.0), 16777216.0f);
}

TEST(NumbersTest, ConversionsOverflowPastTheirBounds) {
    EXPECT_EQ(CByte(255), 255);
    EXPECT_EQ(CInt(32767), 32767);
    EXPECT_EQ(CInt(-32768.5), -32768);  // rounds to even before the check
    EXPECT_EQ(CLng(2147483647.0), 2147483647);
    EXPECT_EQ(CLng(-2147483648.0), INT32_MIN);
    const struct {
        double value;
        int which;  // 0 byte, 1 16-bit, 2 32-bit, 3 float
    } overflows[] = {{256, 0},           {-1, 0},           {32768, 1},
                     {-32769, 1},        {32767.5, 1},      {2147483648.0, 2},
                     {-2147483649.0, 2}, {std::nan(""), 2}, {1e39, 3}};
    for (const auto& o : overflows) {
        try {
            if (o.which == 0) CByte(o.value);
            if (o.which == 1) CInt(o.value);
            if (o.which == 2) CLng(o.value);
            if (o.which == 3) CSng(o.value);
            ADD_FAILURE() << "no overflow for " << o.value;
        } catch (const AppError& e) {
            EXPECT_EQ(e.Number(), kErrOverflow) << o.value;
        }
    }
}

}  // namespace
}  // namespace tarvex
