#include "common/error.h"

#include <gtest/gtest.h>

namespace tarvex {
namespace {

TEST(AppErrorTest, RaiseCarriesNumberAndStandardDescription) {
    const struct {
        int number;
        const char* description;
    } cases[] = {{6, "Overflow"}, {9, "Subscript out of range"}, {3021, "No current record."}};
    for (const auto& c : cases) {
        try {
            Raise(c.number);
            FAIL() << "no error raised";
        } catch (const AppError& e) {
            EXPECT_EQ(e.Number(), c.number);
            EXPECT_EQ(e.Description(), c.description);
        }
    }
}

}  // namespace
}  // namespace tarvex
