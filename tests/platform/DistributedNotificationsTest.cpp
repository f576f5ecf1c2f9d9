#include "platform/DistributedNotifications.h"

#include "platform/linux/system/DBusNotifications.h"
#include "platform/simulated/SimulatedNotifications.h"
#include "support/bus/PrivateBus.h"
#include "support/loops/QtLoop.h"
#include "support/loops/SimulatedLoop.h"

#include <gtest/gtest.h>

namespace brindlex {
namespace {

struct SimulatedProcesses {
    SimulatedLoop loop;
    SimulatedNotificationBus bus;
    SimulatedNotifications one{bus, loop.mainThread()};
    SimulatedNotifications other{bus, loop.mainThread()};
};

struct BusProcesses {
    QtLoop loop;
    PrivateBus bus;
    SessionBus oneConnection{bus.address()};
    SessionBus otherConnection{bus.address()};
    DBusNotifications one{oneConnection};
    DBusNotifications other{otherConnection};
};

template <typename Processes>
class DistributedNotificationsContract : public testing::Test {
protected:
    DistributedNotifications& one() { return processes.one; }
    DistributedNotifications& other() { return processes.other; }
    bool runUntil(const std::function<bool()>& condition)
    {
        return processes.loop.runUntil(condition);
    }

    /// Runs until everything that was posted before has been delivered.
    void settle()
    {
        bool isHeard = false;
        const auto end = one().observe("settle", "", [&] { isHeard = true; });
        other().post("settle", "");
        ASSERT_TRUE(runUntil([&] { return isHeard; }));
    }

    Processes processes;
};

using AllProcesses = testing::Types<SimulatedProcesses, BusProcesses>;
TYPED_TEST_SUITE(DistributedNotificationsContract, AllProcesses);

const std::string showMainWindow = "com.brindlex.Brindlex.showMainWindow";
const std::string program = "com.brindlex.Brindlex";

TYPED_TEST(DistributedNotificationsContract, reachOtherProcesses)
{
    int heard = 0;
    const auto subscription = this->one().observe(showMainWindow, program, [&] { ++heard; });
    this->other().post(showMainWindow, program);
    EXPECT_EQ(heard, 0) << "Notified inside the call.";
    EXPECT_TRUE(this->runUntil([&] { return heard == 1; }));
    this->settle();
    EXPECT_EQ(heard, 1);
}

TYPED_TEST(DistributedNotificationsContract, reachTheProcessThatPosts)
{
    int heard = 0;
    const auto subscription = this->one().observe(showMainWindow, program, [&] { ++heard; });
    this->one().post(showMainWindow, program);
    EXPECT_EQ(heard, 0);
    EXPECT_TRUE(this->runUntil([&] { return heard == 1; }));
}

TYPED_TEST(DistributedNotificationsContract, reachOnlyWhoAskedForTheNameAndTheObject)
{
    int heard = 0;
    const auto subscription = this->one().observe(showMainWindow, program, [&] { ++heard; });
    this->other().post(showMainWindow, "another");
    this->other().post(showMainWindow, "");
    this->other().post("another", program);
    this->other().post(program, showMainWindow);
    this->settle();
    EXPECT_EQ(heard, 0);
}

TYPED_TEST(DistributedNotificationsContract, reachEveryObserverInTheOrderOfPosting)
{
    std::vector<std::string> heard;
    const auto first = this->one().observe("a", program, [&] { heard.push_back("a"); });
    const auto second = this->one().observe("b", program, [&] { heard.push_back("b"); });
    int alsoHeard = 0;
    const auto third = this->one().observe("a", program, [&] { ++alsoHeard; });
    for (const auto name : {"a", "b", "b", "a"})
        this->other().post(name, program);
    ASSERT_TRUE(this->runUntil([&] { return heard.size() == 4 && alsoHeard == 2; }));
    EXPECT_EQ(heard, (std::vector<std::string>{"a", "b", "b", "a"}));
}

TYPED_TEST(DistributedNotificationsContract, doNotReachWhoHasLeft)
{
    int heard = 0;
    auto subscription = this->one().observe(showMainWindow, program, [&] { ++heard; });
    this->other().post(showMainWindow, program);
    subscription.reset();
    this->settle();
    this->other().post(showMainWindow, program);
    this->settle();
    EXPECT_EQ(heard, 0);
}

TYPED_TEST(DistributedNotificationsContract, letAnObserverLeaveFromInsideItsHandler)
{
    int heard = 0;
    Subscription subscription;
    subscription = this->one().observe(showMainWindow, program, [&] {
        ++heard;
        subscription.reset();
    });
    this->other().post(showMainWindow, program);
    this->other().post(showMainWindow, program);
    this->settle();
    EXPECT_EQ(heard, 1);
}

TYPED_TEST(DistributedNotificationsContract, takeAnyText)
{
    const std::vector<std::string> texts{
        "", " ", "a b=,;", "it's", "a\\", "tab\tnew\n", "é", "键盘 🎹", "%1"};
    std::vector<std::string> heard;
    std::vector<Subscription> subscriptions;
    for (const auto& text : texts) {
        subscriptions.push_back(
            this->one().observe(text, "o", [&heard, text] { heard.push_back("name " + text); }));
        subscriptions.push_back(
            this->one().observe("n", text, [&heard, text] { heard.push_back("object " + text); }));
    }
    for (const auto& text : texts) {
        this->other().post(text, "o");
        this->other().post("n", text);
        this->settle();
        EXPECT_EQ(heard, (std::vector{"name " + text, "object " + text}));
        heard.clear();
    }
}

TYPED_TEST(DistributedNotificationsContract, surviveBytesThatAreNotText)
{
    int heard = 0;
    const auto strange = this->one().observe("\xFF\xFE", std::string("a\0b", 3), [&] { ++heard; });
    const auto ordinary = this->one().observe(showMainWindow, program, [&] { ++heard; });
    this->other().post("\xC3", std::string("\0", 1));
    this->other().post(showMainWindow, program);
    this->settle();
    EXPECT_EQ(heard, 1);
}

} // namespace
} // namespace brindlex
