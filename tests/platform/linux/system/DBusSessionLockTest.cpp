#include "platform/linux/system/DBusSessionLock.h"

#include "platform/linux/system/SessionBus.h"
#include "support/bus/PrivateBus.h"
#include "support/locks/BusLockers.h"
#include "support/loops/LoopUntil.h"

#include <gtest/gtest.h>

#include <optional>

namespace brindlex {
namespace {

class DBusSessionLockTest : public testing::Test {
protected:
    bool becomes(bool isLocked)
    {
        return loopUntil([&] { return lock->isLocked() == isLocked; });
    }
    void listen() { lock.emplace(session.connection(), system.connection()); }

    PrivateBus bus;
    SessionBus session{bus.address()};
    SessionBus system{bus.address()};
    std::optional<DBusSessionLock> lock;
};

TEST_F(DBusSessionLockTest, knowsWhatWasLockedBeforeItListened)
{
    FakeScreenSaver saver(bus.address(), "org.gnome.ScreenSaver");
    saver.beActive();
    listen();
    EXPECT_TRUE(becomes(true));
}

TEST_F(DBusSessionLockTest, knowsTheHintFromBeforeItListened)
{
    FakeLogind logind(bus.address());
    logind.setLocked(true);
    listen();
    EXPECT_TRUE(becomes(true));
}

TEST_F(DBusSessionLockTest, knowsTheSaversOfTheDesktops)
{
    listen();
    for (const auto* name : {"org.freedesktop.ScreenSaver", "org.gnome.ScreenSaver",
             "org.cinnamon.ScreenSaver", "org.mate.ScreenSaver"}) {
        FakeScreenSaver saver(bus.address(), name);
        saver.setActive(true);
        EXPECT_TRUE(becomes(true)) << name;
        saver.setActive(false);
        EXPECT_TRUE(becomes(false)) << name;
    }
}

TEST_F(DBusSessionLockTest, isOpenAgainWhenTheLockerHasLeftTheBus)
{
    listen();
    FakeScreenSaver saver(bus.address(), "org.mate.ScreenSaver");
    saver.setActive(true);
    ASSERT_TRUE(becomes(true));

    saver.leave();

    EXPECT_TRUE(becomes(false));
}

TEST_F(DBusSessionLockTest, isLockedUntilTheLastOfTwoSaysThatItIsOpen)
{
    FakeLogind logind(bus.address());
    FakeScreenSaver saver(bus.address(), "org.freedesktop.ScreenSaver");
    listen();
    logind.setLocked(true);
    saver.setActive(true);
    ASSERT_TRUE(becomes(true));

    logind.setLocked(false);
    EXPECT_TRUE(loopThroughout(std::chrono::milliseconds(50), [&] { return lock->isLocked(); }));
    saver.setActive(false);
    EXPECT_TRUE(becomes(false));
}

TEST_F(DBusSessionLockTest, isOpenWithoutABus)
{
    SessionBus nothing("unix:path=/nonexistent/bus");
    DBusSessionLock alone(nothing.connection(), nothing.connection());
    EXPECT_FALSE(alone.isLocked());
}

} // namespace
} // namespace brindlex
