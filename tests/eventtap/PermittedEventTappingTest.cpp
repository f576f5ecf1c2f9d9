#include "eventtap/PermittedEventTapping.h"

#include "platform/simulated/SimulatedEventPermissions.h"
#include "platform/simulated/SimulatedInput.h"
#include "platform/simulated/SimulatedMouse.h"

#include <gtest/gtest.h>

namespace brindlex {
namespace {

struct PermittedEventTappingTest : testing::Test {
    std::unique_ptr<EventTap> makeTap()
    {
        return tapping.createTap(mouseButtonMask, {{mouseButtonMask, std::nullopt}},
            [](const Event&) { return EventVerdict::swallow; });
    }

    SimulatedInput input;
    SimulatedMouse mouse{input};
    SimulatedEventPermissions permissions;
    PermittedEventTapping tapping{input, permissions};
};

TEST_F(PermittedEventTappingTest, makesATapWithBothPermissions)
{
    const auto tap = makeTap();
    ASSERT_NE(tap, nullptr);
    tap->setEnabled(true);
    EXPECT_EQ(mouse.press(2), EventVerdict::swallow);
}

TEST_F(PermittedEventTappingTest, makesNoneWithoutOneOfThem)
{
    permissions.isTrusted = false;
    EXPECT_EQ(makeTap(), nullptr);
    permissions.isTrusted = true;
    permissions.canListen = false;
    EXPECT_EQ(makeTap(), nullptr);
    EXPECT_EQ(input.tapMasks(), std::vector<EventMask>{});
}

} // namespace
} // namespace brindlex
