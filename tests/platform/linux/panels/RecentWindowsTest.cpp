#include "platform/linux/panels/RecentWindows.h"

#include <gtest/gtest.h>

namespace brindlex {
namespace {

using WindowNumbers = std::vector<std::uint32_t>;

TEST(RecentWindows, keepsTheGivenOrderOfWindowsThatWereNeverUsed)
{
    EXPECT_EQ(RecentWindows().ordered({3, 1, 2}), (WindowNumbers{3, 1, 2}));
    EXPECT_EQ(RecentWindows().ordered({}), WindowNumbers{});
}

TEST(RecentWindows, putsTheLastUsedFirst)
{
    RecentWindows recent;
    for (const auto window : {1U, 2U, 3U, 1U})
        recent.note(window);

    EXPECT_EQ(recent.ordered({2, 9, 3, 8, 1}), (WindowNumbers{1, 3, 2, 9, 8}));
}

TEST(RecentWindows, namesNoneThatHasGone)
{
    RecentWindows recent;
    recent.note(1);
    recent.note(2);

    EXPECT_EQ(recent.ordered({1}), WindowNumbers{1});
}

TEST(RecentWindows, takesNoneForNoWindow)
{
    RecentWindows recent;
    recent.note(1);
    recent.note(0);

    EXPECT_EQ(recent.ordered({0, 1}), (WindowNumbers{1, 0}));
}

TEST(RecentWindows, forgetsAllButTheLast256)
{
    RecentWindows recent;
    for (std::uint32_t window = 1; window <= 257; ++window)
        recent.note(window);

    EXPECT_EQ(recent.ordered({500, 1, 2}), (WindowNumbers{2, 500, 1}));
}

} // namespace
} // namespace brindlex
