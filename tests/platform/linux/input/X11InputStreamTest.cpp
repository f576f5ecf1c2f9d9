#include "platform/linux/input/X11InputStream.h"

#include "platform/simulated/SimulatedMainThread.h"
#include "support/basics/RecordedLog.h"
#include "support/screen/VirtualDesktop.h"

#include <gtest/gtest.h>

namespace brindlex {
namespace {

using Lines = std::vector<std::string>;

class X11InputStreamTest : public testing::Test {
protected:
    RecordedLog log;
    SimulatedClock time;
    SimulatedMainThread mainThread{time};
};

TEST_F(X11InputStreamTest, saysOnceThatTheServerCannotPlayInput)
{
    const VirtualDesktop desktop(
        {.windowManager = WindowManager::none, .sessionBus = false, .disabledExtension = "XTEST"});
    X11InputStream stream(mainThread);

    for (int count = 0; count < 3; ++count)
        EXPECT_FALSE(stream.isTappable());

    EXPECT_EQ(log.lines(), Lines{"WARN [mouse] Input cannot be tapped: the X server has no XTEST"});
}

TEST_F(X11InputStreamTest, saysOnceThatThereIsNoServer)
{
    VirtualDesktop desktop({.windowManager = WindowManager::none, .sessionBus = false});
    desktop.endDisplayServer();
    X11InputStream stream(mainThread);

    for (int count = 0; count < 3; ++count)
        EXPECT_FALSE(stream.isTappable());

    EXPECT_EQ(log.lines(), Lines{"WARN [mouse] Input cannot be tapped: there is no X server"});
}

TEST_F(X11InputStreamTest, saysNothingWhereTheInputCanBeTapped)
{
    const VirtualDesktop desktop({.windowManager = WindowManager::none, .sessionBus = false});
    X11InputStream stream(mainThread);

    EXPECT_TRUE(stream.isTappable());

    EXPECT_EQ(log.lines(), Lines{});
}

} // namespace
} // namespace brindlex
