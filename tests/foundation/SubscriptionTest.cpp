#include "foundation/Subscription.h"

#include <gtest/gtest.h>

#include <utility>
#include <vector>

namespace brindlex {
namespace {

TEST(Subscription, isEmptyUnlessGivenAnEnd)
{
    Subscription subscription;
    EXPECT_FALSE(subscription.isActive());
    subscription.reset();
    EXPECT_FALSE(Subscription(nullptr).isActive());
}

TEST(Subscription, endsWithItsHolder)
{
    int ends = 0;
    {
        const Subscription subscription([&] { ++ends; });
        EXPECT_TRUE(subscription.isActive());
        EXPECT_EQ(ends, 0);
    }
    EXPECT_EQ(ends, 1);
}

TEST(Subscription, endsOnce)
{
    int ends = 0;
    {
        Subscription subscription([&] { ++ends; });
        subscription.reset();
        EXPECT_FALSE(subscription.isActive());
        subscription.reset();
    }
    EXPECT_EQ(ends, 1);
}

TEST(Subscription, movesItsEnd)
{
    int ends = 0;
    {
        Subscription first([&] { ++ends; });
        const Subscription second(std::move(first));
        EXPECT_TRUE(second.isActive());
        first.reset();
        EXPECT_EQ(ends, 0);
    }
    EXPECT_EQ(ends, 1);
}

TEST(Subscription, endsWhatItHeldWhenGivenAnother)
{
    std::vector<int> ended;
    {
        Subscription subscription([&] { ended.push_back(1); });
        subscription = Subscription([&] { ended.push_back(2); });
        EXPECT_EQ(ended, std::vector{1});
        auto& same = subscription;
        subscription = std::move(same);
        EXPECT_TRUE(subscription.isActive());
    }
    EXPECT_EQ(ended, (std::vector{1, 2}));
}

TEST(Subscription, mayBeResetFromInsideItsEnd)
{
    int ends = 0;
    Subscription subscription;
    subscription = Subscription([&] {
        ++ends;
        subscription.reset();
    });
    subscription.reset();

    EXPECT_EQ(ends, 1);
}

} // namespace
} // namespace brindlex
