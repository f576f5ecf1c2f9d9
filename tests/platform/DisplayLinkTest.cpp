#include "platform/DisplayLink.h"

#include "platform/linux/windows/RandRDisplayLink.h"
#include "platform/simulated/SimulatedDisplayLink.h"
#include "platform/simulated/SimulatedMainThread.h"
#include "support/screen/VirtualDesktop.h"

#include <gtest/gtest.h>

#include <vector>

namespace brindlex {
namespace {

class SimulatedDisplay {
public:
    DisplayLink& link() { return link_; }
    void showFrame() { link_.frame(++time_ / 60.0); }
    void unplug() { link_.framesPerSecond.reset(); }

private:
    SimulatedDisplayLink link_;
    double time_ = 0;
};

/// The screen of a real X server, by a clock that the test moves.
class X11Display {
public:
    DisplayLink& link() { return link_; }
    void showFrame() { mainThread_.advance(1.0 / *link_.maximumFramesPerSecond() + 1e-6); }
    void unplug() { desktop_.endDisplayServer(); }

private:
    VirtualDesktop desktop_{{.windowManager = WindowManager::none, .sessionBus = false}};
    X11Connection connection_;
    SimulatedClock clock_;
    SimulatedMainThread mainThread_{clock_};
    RandRDisplayLink link_{connection_, mainThread_, clock_};
};

template <typename Display>
class DisplayLinkContract : public testing::Test {
protected:
    Subscription note(std::vector<Seconds>& frames)
    {
        return display.link().onEachFrame({}, [&](Seconds time) { frames.push_back(time); });
    }

    Display display;
};

using Displays = testing::Types<SimulatedDisplay, X11Display>;
class DisplayNames {
public:
    template <typename Display>
    static std::string GetName(int)
    {
        return std::is_same_v<Display, X11Display> ? "X11" : "Simulated";
    }
};
TYPED_TEST_SUITE(DisplayLinkContract, Displays, DisplayNames);

TYPED_TEST(DisplayLinkContract, reportsHowManyFramesTheScreenCanShow)
{
    const auto rate = this->display.link().maximumFramesPerSecond();

    ASSERT_TRUE(rate);
    EXPECT_GE(*rate, 10);
    EXPECT_LE(*rate, 1000);
}

TYPED_TEST(DisplayLinkContract, callsForEachFrameWithATimeThatGrows)
{
    std::vector<Seconds> frames;
    const auto subscription = this->note(frames);
    EXPECT_TRUE(frames.empty());

    for (int count = 0; count < 3; ++count)
        this->display.showFrame();

    ASSERT_EQ(frames.size(), 3U);
    EXPECT_LT(frames[0], frames[1]);
    EXPECT_LT(frames[1], frames[2]);
}

TYPED_TEST(DisplayLinkContract, callsAllWhoWantFrames)
{
    std::vector<Seconds> first;
    std::vector<Seconds> second;
    const auto one = this->note(first);
    auto other = this->note(second);
    this->display.showFrame();
    other.reset();
    this->display.showFrame();

    EXPECT_EQ(first.size(), 2U);
    EXPECT_EQ(second.size(), 1U);
}

TYPED_TEST(DisplayLinkContract, mayBeEndedFromInsideTheHandler)
{
    int frames = 0;
    Subscription subscription;
    subscription = this->display.link().onEachFrame({}, [&](Seconds) {
        ++frames;
        subscription.reset();
    });

    for (int count = 0; count < 3; ++count)
        this->display.showFrame();

    EXPECT_EQ(frames, 1);
}

TYPED_TEST(DisplayLinkContract, mayBeBegunFromInsideTheHandler)
{
    std::vector<Seconds> frames;
    Subscription second;
    const auto first = this->display.link().onEachFrame({}, [&](Seconds) {
        if (!second.isActive())
            second = this->note(frames);
    });

    for (int count = 0; count < 3; ++count)
        this->display.showFrame();

    EXPECT_GE(frames.size(), 1U);
}

TYPED_TEST(DisplayLinkContract, reportsNoRateWithoutAScreen)
{
    this->display.unplug();

    EXPECT_EQ(this->display.link().maximumFramesPerSecond(), std::nullopt);
}

} // namespace
} // namespace brindlex
