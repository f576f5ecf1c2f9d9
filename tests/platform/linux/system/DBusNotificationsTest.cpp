#include "platform/linux/system/DBusNotifications.h"

#include "support/basics/Eventually.h"
#include "support/basics/RecordedLog.h"
#include "support/basics/TemporaryFolder.h"
#include "support/bus/PrivateBus.h"
#include "support/loops/QtLoop.h"
#include "support/processes/ChildProcess.h"

#include <gtest/gtest.h>

#include <chrono>

namespace brindlex {
namespace {

const std::string name = "com.brindlex.Brindlex.showMainWindow";
const std::string object = "com.brindlex.Brindlex";

TEST(DBusNotifications, areLostWithoutABusWhichIsToldOnce)
{
    const RecordedLog log;
    SessionBus bus("unix:path=/nonexistent/bus");
    DBusNotifications notifications(bus);
    int heard = 0;
    const auto subscription = notifications.observe(name, object, [&] { ++heard; });
    notifications.post(name, object);
    notifications.post(name, object);
    QtLoop().runFor(0.02);
    EXPECT_EQ(heard, 0);
    EXPECT_EQ(log.lines(),
        std::vector<std::string>{"WARN [lifecycle] No session bus: notifications of other "
                                 "processes are not heard"});
}

TEST(DBusNotifications, areLostOnceTheBusHasGone)
{
    PrivateBus daemon;
    SessionBus bus(daemon.address());
    DBusNotifications notifications(bus);
    daemon.end();
    const auto subscription = notifications.observe(name, object, [] {});
    notifications.post(name, object);
    QtLoop().runFor(0.02);
}

TEST(DBusNotifications, arePostedWithoutLongWaitingToABusThatDoesNotReply)
{
    PrivateBus daemon;
    SessionBus bus(daemon.address());
    DBusNotifications notifications(bus);
    daemon.freeze();
    const auto start = std::chrono::steady_clock::now();
    notifications.post(name, object);
    EXPECT_LT(std::chrono::steady_clock::now() - start, std::chrono::seconds(5));
}

TEST(DBusNotifications, arriveFromAProcessThatEndsRightAfterPosting)
{
    const PrivateBus daemon;
    SessionBus bus(daemon.address());
    DBusNotifications notifications(bus);
    QtLoop loop;
    int heard = 0;
    const auto subscription = notifications.observe(name, object, [&] { ++heard; });
    for (int times = 1; times <= 10; ++times) {
        ASSERT_EQ(run({.command = {PLATFORM_PROCESS, "post", daemon.address(), name, object}},
                      usualDeadline),
            (ProcessEnd{0, {}}));
        EXPECT_TRUE(loop.runUntil([&] { return heard == times; }));
    }
}

TEST(DBusNotifications, arriveFromAnyProgramThatSendsTheSignal)
{
    const PrivateBus daemon;
    SessionBus bus(daemon.address());
    DBusNotifications notifications(bus);
    QtLoop loop;
    int heard = 0;
    const auto subscription = notifications.observe(name, object, [&] { ++heard; });
    const auto send = [&](const std::string& path, const std::string& member,
                          const std::vector<std::string>& arguments) {
        std::vector<std::string> command{"dbus-send", "--bus=" + daemon.address(), path, member};
        command.insert(command.end(), arguments.begin(), arguments.end());
        return run({.command = command}, usualDeadline);
    };
    const std::string path = "/com/brindlex/Brindlex/Notifications";
    const std::string member = "com.brindlex.Brindlex.Notifications.Posted";

    send("/somewhere", member, {"string:" + name, "string:" + object});
    send(path, "com.brindlex.Brindlex.Another.Posted", {"string:" + name, "string:" + object});
    send(path, member, {"string:" + name});
    send(path, member, {"int32:1", "array:string:a,b"});
    EXPECT_EQ(send(path, member, {"string:" + name, "string:" + object}), (ProcessEnd{0, {}}));
    EXPECT_TRUE(loop.runUntil([&] { return heard > 0; }));
    loop.runFor(0.02);
    EXPECT_EQ(heard, 1);
}

TEST(DBusNotifications, outliveNothingThatTheirSubscriptionsNeed)
{
    const PrivateBus daemon;
    SessionBus bus(daemon.address());
    auto notifications = std::make_unique<DBusNotifications>(bus);
    auto subscription = notifications->observe(name, object, [] {});
    notifications.reset();
    subscription.reset();
}

} // namespace
} // namespace brindlex
