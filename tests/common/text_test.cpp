#include "common/text.h"

#include <gtest/gtest.h>

#include "common/error.h"

namespace tarvex {
namespace {

TEST(TextTest, CaseInsensitiveSearch) {
    const struct {
        const char* text;
        const char* what;
        size_t start;
        size_t found;
    } cases[] = {{"[Mission]", "[mission]", 1, 1},
                 {"a=b=c", "=", 3, 4},
                 {"abc", "x", 1, 0},
                 {"abc", "", 2, 2},
                 {"abc", "c", 9, 0},
                 {"ab", "abc", 1, 0}};
    for (const auto& c : cases) {
        EXPECT_EQ(InStr(c.text, c.what, c.start), c.found) << c.text << " " << c.what;
    }
    EXPECT_EQ(InStrRev("a\\b\\C", "\\"), 4u);
    EXPECT_TRUE(SameText("Position_LAT", "position_lat"));
    EXPECT_FALSE(SameText("abc", "abcd"));
    EXPECT_TRUE(EndsWithText("x.MIS", ".mis"));
}

TEST(TextTest, SubstringsClampToShortText) {
    EXPECT_EQ(Mid("N51 23.45", 2, 2), "51");
    EXPECT_EQ(Mid("abc", 3, 10), "c");
    EXPECT_EQ(Mid("abc", 7), "");
    EXPECT_EQ(Left("abc", 10), "abc");
    EXPECT_EQ(Right("abc", 2), "bc");
    EXPECT_EQ(Right("abc", 10), "abc");
    EXPECT_EQ(Trim("  a b  "), "a b");
    EXPECT_EQ(UCase("aB1\xe9"), "AB1\xe9");
    // A negative length or a start before the text is an invalid call, not a short text.
    EXPECT_THROW(Mid("abc", 2, -1), AppError);
    EXPECT_THROW(Mid("abc", 0, 1), AppError);
    EXPECT_THROW(InStr("abc", "a", 0), AppError);
}

}  // namespace
}  // namespace tarvex
