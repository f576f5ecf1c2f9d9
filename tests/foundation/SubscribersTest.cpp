#include "foundation/Subscribers.h"

#include <gtest/gtest.h>

#include <functional>
#include <optional>
#include <string>
#include <vector>

namespace brindlex {
namespace {

using Handler = std::function<void(int)>;
using Notified = std::vector<std::string>;

class SubscribersTest : public testing::Test {
protected:
    Handler recorder(const std::string& name)
    {
        return [this, name](int value) { notified.push_back(name + std::to_string(value)); };
    }

    Subscribers<Handler> subscribers;
    Notified notified;
};

TEST_F(SubscribersTest, areToldInTheOrderOfSubscribing)
{
    const auto a = subscribers.add(recorder("a"));
    const auto b = subscribers.add(recorder("b"));
    const auto c = subscribers.add(recorder("c"));

    subscribers.notify(1);

    EXPECT_EQ(notified, (Notified{"a1", "b1", "c1"}));
}

TEST_F(SubscribersTest, areNoneAtFirstAndAfterTheLastHasGone)
{
    EXPECT_TRUE(subscribers.isEmpty());
    auto a = subscribers.add(recorder("a"));
    EXPECT_FALSE(subscribers.isEmpty());
    a.reset();
    EXPECT_TRUE(subscribers.isEmpty());

    subscribers.notify(1);
    EXPECT_EQ(notified, Notified{});
}

TEST_F(SubscribersTest, keepTheirOrderWhenOneGoes)
{
    const auto a = subscribers.add(recorder("a"));
    auto b = subscribers.add(recorder("b"));
    const auto c = subscribers.add(recorder("c"));
    b.reset();
    b = subscribers.add(recorder("d"));

    subscribers.notify(1);

    EXPECT_EQ(notified, (Notified{"a1", "c1", "d1"}));
}

TEST_F(SubscribersTest, areToldNoMoreOnceTheyWentDuringTheTelling)
{
    Subscription b;
    const auto a = subscribers.add([&](int) { b.reset(); });
    b = subscribers.add(recorder("b"));
    const auto c = subscribers.add(recorder("c"));

    subscribers.notify(1);

    EXPECT_EQ(notified, Notified{"c1"});
}

TEST_F(SubscribersTest, mayGoWhileTheyAreToldThemselves)
{
    Subscription own;
    own = subscribers.add([&](int value) {
        own.reset();
        notified.push_back("own" + std::to_string(value));
    });
    const auto b = subscribers.add(recorder("b"));

    subscribers.notify(1);
    subscribers.notify(2);

    EXPECT_EQ(notified, (Notified{"own1", "b1", "b2"}));
}

TEST_F(SubscribersTest, areToldFromTheNextTimeOnWhenTheyCameDuringTheTelling)
{
    std::optional<Subscription> late;
    const auto a = subscribers.add([&](int) {
        if (!late)
            late = subscribers.add(recorder("late"));
    });

    subscribers.notify(1);
    EXPECT_EQ(notified, Notified{});
    subscribers.notify(2);
    EXPECT_EQ(notified, Notified{"late2"});
}

TEST_F(SubscribersTest, mayBeToldFromInsideTheTelling)
{
    const auto a = subscribers.add([&](int value) {
        if (value == 1)
            subscribers.notify(2);
    });
    const auto b = subscribers.add(recorder("b"));

    subscribers.notify(1);

    EXPECT_EQ(notified, (Notified{"b2", "b1"}));
}

TEST_F(SubscribersTest, mayOutliveTheirList)
{
    Subscription outliving;
    {
        Subscribers<Handler> shortLived;
        outliving = shortLived.add(recorder("a"));
    }
    outliving.reset();
    EXPECT_FALSE(outliving.isActive());
}

TEST_F(SubscribersTest, mayEndTheirListWhileTheyAreTold)
{
    auto owned = std::make_unique<Subscribers<Handler>>();
    const auto a = owned->add([&](int) { owned.reset(); });
    const auto b = owned->add(recorder("b"));

    owned->notify(1);

    EXPECT_EQ(owned, nullptr);
    EXPECT_EQ(notified, Notified{"b1"});
}

TEST_F(SubscribersTest, areToldUntilOneIsEnough)
{
    const auto a = subscribers.add(recorder("a"));
    const auto b = subscribers.add(recorder("b"));
    const auto c = subscribers.add(recorder("c"));

    subscribers.forEachWhile([&](const Handler& handler) {
        handler(1);
        return notified.size() < 2;
    });

    EXPECT_EQ(notified, (Notified{"a1", "b1"}));
}

} // namespace
} // namespace brindlex
