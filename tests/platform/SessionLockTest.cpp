#include "platform/SessionLock.h"

#include "platform/linux/system/DBusSessionLock.h"
#include "platform/linux/system/SessionBus.h"
#include "platform/linux/windows/X11SessionLock.h"
#include "platform/simulated/SimulatedSessionLock.h"
#include "support/bus/PrivateBus.h"
#include "support/locks/BusLockers.h"
#include "support/locks/InputGrab.h"
#include "support/loops/LoopUntil.h"
#include "support/screen/VirtualDesktop.h"

#include <gtest/gtest.h>

namespace brindlex {
namespace {

class SimulatedLockedSession {
public:
    SessionLock& lock() { return lock_; }
    void setLocked(bool isLocked) { lock_.locked = isLocked; }

private:
    SimulatedSessionLock lock_;
};

/// A locker that is on no bus.
class X11LockedSession {
public:
    SessionLock& lock() { return lock_; }
    void setLocked(bool isLocked)
    {
        locker_.reset();
        if (isLocked)
            locker_.emplace(InputGrab::What{});
    }

private:
    VirtualDesktop desktop_{{.windowManager = WindowManager::none, .sessionBus = false}};
    X11Connection connection_;
    X11SessionLock lock_{connection_};
    std::optional<InputGrab> locker_;
};

/// A session of which the keeper of the sessions says that it is locked.
class LogindLockedSession {
public:
    SessionLock& lock() { return lock_; }
    void setLocked(bool isLocked) { logind_.setLocked(isLocked); }

private:
    PrivateBus bus_;
    FakeLogind logind_{bus_.address()};
    SessionBus session_{"unix:path=/nonexistent/bus"};
    SessionBus system_{bus_.address()};
    DBusSessionLock lock_{session_.connection(), system_.connection()};
};

/// A session with the screen saver of a desktop.
class ScreenSaverLockedSession {
public:
    SessionLock& lock() { return lock_; }
    void setLocked(bool isLocked) { saver_.setActive(isLocked); }

private:
    PrivateBus bus_;
    FakeScreenSaver saver_{bus_.address(), "org.freedesktop.ScreenSaver"};
    SessionBus session_{bus_.address()};
    SessionBus system_{"unix:path=/nonexistent/bus"};
    DBusSessionLock lock_{session_.connection(), system_.connection()};
};

template <typename Session>
class SessionLockContract : public testing::Test {
protected:
    bool becomes(bool isLocked)
    {
        return loopUntil([&] { return session.lock().isLocked() == isLocked; });
    }

    Session session;
};

using LockedSessions = testing::Types<SimulatedLockedSession, X11LockedSession, LogindLockedSession,
    ScreenSaverLockedSession>;
TYPED_TEST_SUITE(SessionLockContract, LockedSessions);

TYPED_TEST(SessionLockContract, isOpenAtFirst)
{
    EXPECT_TRUE(loopThroughout(
        std::chrono::milliseconds(50), [&] { return !this->session.lock().isLocked(); }));
}

TYPED_TEST(SessionLockContract, isLockedUntilItIsOpenedEachTime)
{
    for (int time = 0; time < 2; ++time) {
        this->session.setLocked(true);
        EXPECT_TRUE(this->becomes(true));
        this->session.setLocked(false);
        EXPECT_TRUE(this->becomes(false));
    }
}

} // namespace
} // namespace brindlex
