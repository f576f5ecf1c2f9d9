#include "platform/DisplayScale.h"

#include "platform/linux/windows/X11DisplayScale.h"
#include "platform/simulated/SimulatedDisplayScale.h"
#include "support/loops/LoopUntil.h"
#include "support/screen/VirtualDesktop.h"
#include "support/screen/XConnection.h"
#include "support/screen/XResources.h"

#include <gtest/gtest.h>

namespace brindlex {
namespace {

class SimulatedScreen {
public:
    const DisplayScale& scale() const { return scale_; }
    void draw(double times) { scale_.scale = times; }

private:
    SimulatedDisplayScale scale_;
};

class X11Screen {
public:
    const DisplayScale& scale() const { return scale_; }
    void draw(double times) { setDotsPerInch(server_, 96 * times); }

private:
    VirtualDesktop desktop_{{.windowManager = WindowManager::none, .sessionBus = false}};
    XConnection server_;
    X11Connection connection_;
    X11DisplayScale scale_{connection_};
};

template <typename Screen>
class DisplayScaleContract : public testing::Test {
protected:
    testing::AssertionResult becomes(double expected)
    {
        if (loopUntil([&] { return screen.scale().unitsPerPoint() == expected; }))
            return testing::AssertionSuccess();
        return testing::AssertionFailure() << screen.scale().unitsPerPoint();
    }

    Screen screen;
};

using Screens = testing::Types<SimulatedScreen, X11Screen>;
TYPED_TEST_SUITE(DisplayScaleContract, Screens);

TYPED_TEST(DisplayScaleContract, isOneUnlessTheDesktopSaysMore)
{
    EXPECT_EQ(this->screen.scale().unitsPerPoint(), 1);
}

TYPED_TEST(DisplayScaleContract, followsTheDesktop)
{
    this->screen.draw(2);
    EXPECT_TRUE(this->becomes(2));
    this->screen.draw(1.5);
    EXPECT_TRUE(this->becomes(1.5));
    this->screen.draw(1);
    EXPECT_TRUE(this->becomes(1));
}

} // namespace
} // namespace brindlex
