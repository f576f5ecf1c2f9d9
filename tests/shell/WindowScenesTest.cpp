#include "shell/WindowScenes.h"

#include <gtest/gtest.h>

namespace brindlex {
namespace {

TEST(WindowScenes, areInTheirOrderAndSizes)
{
    EXPECT_EQ(windowScenes,
        (std::array{WindowScene{"main", 650, 540}, WindowScene{"logs", 820, 520},
            WindowScene{"permissions", 760, 560}, WindowScene{"update", 480, 420}}));
}

TEST(WindowScenes, nameTheirWindows)
{
    EXPECT_EQ(windowIdentifier("main"), "main");
    EXPECT_EQ(windowIdentifier("logs"), "com.brindlex.Brindlex.window.logs");
    EXPECT_EQ(windowIdentifier("permissions"), "com.brindlex.Brindlex.window.permissions");
}

TEST(WindowScenes, areAuxiliaryAllButTheMainOne)
{
    EXPECT_FALSE(isAuxiliaryScene("main"));
    EXPECT_TRUE(isAuxiliaryScene("logs"));
    EXPECT_TRUE(isAuxiliaryScene("permissions"));
}

} // namespace
} // namespace brindlex
