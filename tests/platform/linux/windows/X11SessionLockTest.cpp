#include "platform/linux/windows/X11SessionLock.h"

#include "support/locks/InputGrab.h"
#include "support/screen/VirtualDesktop.h"

#include <gtest/gtest.h>

namespace brindlex {
namespace {

using UnmanagedWindows = std::vector<X11UnmanagedWindow>;

constexpr X11UnmanagedWindow tooltip{};
constexpr X11UnmanagedWindow menu{.isMenu = true};
constexpr X11UnmanagedWindow largeMenu{.isMenu = true, .coversScreen = true};
constexpr X11UnmanagedWindow cover{.coversScreen = true};

TEST(X11SessionLock, knowsAMenuThatNothingHides)
{
    EXPECT_TRUE(isMenuOpen(UnmanagedWindows{menu}));
    EXPECT_TRUE(isMenuOpen(UnmanagedWindows{tooltip, menu, cover}));
    EXPECT_TRUE(isMenuOpen(UnmanagedWindows{largeMenu}));
    EXPECT_FALSE(isMenuOpen(UnmanagedWindows{}));
    EXPECT_FALSE(isMenuOpen(UnmanagedWindows{tooltip}));
    EXPECT_FALSE(isMenuOpen(UnmanagedWindows{cover, menu})) << "a locker over what was open";
}

class X11SessionLockTest : public testing::Test {
protected:
    VirtualDesktop desktop{{.windowManager = WindowManager::none, .sessionBus = false}};
    X11Connection connection;
    X11SessionLock lock{connection};
};

TEST_F(X11SessionLockTest, isNotLockedByWhatHasOnlyOneOfTheTwo)
{
    {
        const InputGrab drag({.keyboard = false});
        EXPECT_FALSE(lock.isLocked());
    }
    const InputGrab launcher({.pointer = false});
    EXPECT_FALSE(lock.isLocked());
}

TEST_F(X11SessionLockTest, isNotLockedByAMenu)
{
    for (const auto* type : {"_NET_WM_WINDOW_TYPE_POPUP_MENU", "_NET_WM_WINDOW_TYPE_DROPDOWN_MENU",
             "_NET_WM_WINDOW_TYPE_COMBO", "_NET_WM_WINDOW_TYPE_MENU"}) {
        const InputGrab open({.area = {10, 10, 200, 300}, .type = type});
        EXPECT_FALSE(lock.isLocked()) << type;
    }
}

TEST_F(X11SessionLockTest, isLockedByWhatHasBothWhateverItShows)
{
    const InputGrab unseen({.area = {0, 0, 1, 1}});
    EXPECT_TRUE(lock.isLocked());
}

TEST_F(X11SessionLockTest, isLockedByALockerOverAForgottenMenu)
{
    const InputGrab forgotten({.pointer = false,
        .keyboard = false,
        .area = {10, 10, 200, 300},
        .type = "_NET_WM_WINDOW_TYPE_POPUP_MENU"});
    const InputGrab locker({});
    EXPECT_TRUE(lock.isLocked());
}

TEST_F(X11SessionLockTest, takesNothingItself)
{
    EXPECT_FALSE(lock.isLocked());

    // Fails when somebody else has either.
    const InputGrab other({});
}

} // namespace
} // namespace brindlex
