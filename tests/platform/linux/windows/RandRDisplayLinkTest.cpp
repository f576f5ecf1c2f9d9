#include "platform/linux/windows/RandRDisplayLink.h"

#include "platform/simulated/SimulatedClock.h"
#include "platform/simulated/SimulatedMainThread.h"
#include "support/screen/VirtualDesktop.h"

#include <gtest/gtest.h>

namespace brindlex {
namespace {

class RandRDisplayLinkTest : public testing::Test {
protected:
    /// How many frames come in a second.
    int framesAt(std::optional<double> framesPerSecond)
    {
        int frames = 0;
        const auto subscription = link_.onEachFrame(framesPerSecond, [&](Seconds) { ++frames; });
        mainThread_.advance(1);
        return frames;
    }

    /// Its screen shows 85 frames in a second.
    VirtualDesktop desktop_{{.server = VirtualDesktop::Server::withPlayedHardware}};
    X11Connection connection_;
    SimulatedClock clock_;
    SimulatedMainThread mainThread_{clock_};
    RandRDisplayLink link_{connection_, mainThread_, clock_};
};

TEST_F(RandRDisplayLinkTest, tellsTheRateOfTheScreen)
{
    EXPECT_NEAR(link_.maximumFramesPerSecond().value_or(0), 85, 1);
}

TEST_F(RandRDisplayLinkTest, makesNoMoreFramesThanNotchesCanUse)
{
    EXPECT_EQ(framesAt({}), 60);
    EXPECT_EQ(framesAt(120), 60);
}

TEST_F(RandRDisplayLinkTest, makesFewerFramesWhereFewerAreAskedFor) { EXPECT_EQ(framesAt(30), 30); }

TEST_F(RandRDisplayLinkTest, makesNoneForAServerThatHasGone)
{
    desktop_.endDisplayServer();

    EXPECT_EQ(framesAt({}), 0);
}

} // namespace
} // namespace brindlex
