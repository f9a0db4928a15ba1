#include "common/encoding.h"

#include <gtest/gtest.h>

namespace tarvex {
namespace {

TEST(EncodingTest, RoundTripAndReplacement) {
    const std::string utf8 = "Caf\xC3\xA9 \xE2\x82\xAC \xE2\x80\x93 \xC5\xBD";  // é € – Ž
    EXPECT_EQ(Utf8ToCp1252(utf8), "Caf\xE9 \x80 \x96 \x8E");
    // Outside the code page, and broken UTF-8, become "?".
    EXPECT_EQ(Utf8ToCp1252("\xD0\x96 \xF0\x9F\x98\x80"), "? ?");
    EXPECT_EQ(Utf8ToCp1252("a\xC3(b\xE2\x82"), "a?(b??");
    // Every byte survives a trip through UTF-8.
    std::string all;
    for (int b = 1; b < 256; ++b)
        all += static_cast<char>(b);
    EXPECT_EQ(Utf8ToCp1252(Cp1252ToUtf8(all)), all);
}

TEST(EncodingTest, SplitLinesAcceptsEveryLineEnd) {
    using Lines = std::vector<std::string>;
    EXPECT_EQ(SplitLines("a\r\nb\nc\rd"), (Lines{"a", "b", "c", "d"}));
    EXPECT_EQ(SplitLines("a\r\n"), (Lines{"a"}));
    EXPECT_EQ(SplitLines(""), Lines{});
    EXPECT_EQ(SplitLines("a\n\rb\r\n\r\n"), (Lines{"a", "", "b", ""}));
}

}  // namespace
}  // namespace tarvex
