#include "platform/linux/panels/QtScreenReading.h"

#include "support/hardware/PlayedInput.h"

#include <gtest/gtest.h>

namespace brindlex {
namespace {

TEST(QtScreenReading, knowsTheScreenAndWhereThePointerIs)
{
    const XConnection server;
    const PlayedInput input(server);
    input.movePointer(123, 45);
    const auto layout = QtScreenReading().layout();

    const auto& screen = server.screen();
    const Rect whole{{0, 0},
        {static_cast<double>(screen.width_in_pixels),
            static_cast<double>(screen.height_in_pixels)}};
    ASSERT_EQ(layout.screens.size(), 1U);
    EXPECT_EQ(layout.screens.front().frame, whole);
    EXPECT_TRUE(whole.containsWithin(0, layout.screens.front().visibleFrame.origin));
    EXPECT_FALSE(layout.screens.front().visibleFrame.isEmpty());
    EXPECT_EQ(layout.pointer, (Point{123, 45}));
}

} // namespace
} // namespace brindlex
