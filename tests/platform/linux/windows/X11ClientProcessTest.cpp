#include "platform/linux/windows/X11ClientProcess.h"

#include "support/screen/VirtualDesktop.h"
#include "support/windows/ApplicationWindow.h"

#include <gtest/gtest.h>
#include <unistd.h>

namespace brindlex {
namespace {

TEST(X11ClientProcess, isKnownOfAWindowThatSaysNothing)
{
    const VirtualDesktop desktop(
        VirtualDesktop::Options{.windowManager = WindowManager::none, .sessionBus = false});
    const XConnection server;
    X11Connection connection;
    ApplicationWindow window(server, {});

    EXPECT_EQ(clientProcess(connection, window.id()), ::getpid());
}

TEST(X11ClientProcess, isNoneOfAWindowThatNobodyHasOrWithoutTheExtension)
{
    const VirtualDesktop desktop(VirtualDesktop::Options{.windowManager = WindowManager::none,
        .sessionBus = false,
        .disabledExtension = "X-Resource"});
    const XConnection server;
    X11Connection connection;
    ApplicationWindow window(server, {});

    EXPECT_EQ(clientProcess(connection, window.id()), 0);
    EXPECT_EQ(clientProcess(connection, 0x7f00001), 0);
}

} // namespace
} // namespace brindlex
