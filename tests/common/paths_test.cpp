#include "common/paths.h"

#include <gtest/gtest.h>

namespace tarvex {
namespace {

TEST(PathsTest, JoinAndSearchAcceptEitherSeparator) {
    const std::string sep(1, kPathSeparator);
    EXPECT_EQ(JoinPath("/sim", "missions"), "/sim" + sep + "missions");
    EXPECT_EQ(JoinPath("C:\\sim\\", "x.mis"), "C:\\sim\\x.mis");
    EXPECT_EQ(JoinPath("", "x.mis"), "x.mis");
    EXPECT_EQ(InStrPath("/home/sim/missions/a.mis", "Missions\\"), 11u);
    EXPECT_EQ(InStrPath("C:\\Sim\\Aircraft\\x", "/aircraft/"), 7u);
    EXPECT_EQ(InStrPath("/sim/missions.bak", "Missions\\"), 0u);
    EXPECT_EQ(NativePath("a\\b/c"), "a" + sep + "b" + sep + "c");
}

}  // namespace
}  // namespace tarvex
