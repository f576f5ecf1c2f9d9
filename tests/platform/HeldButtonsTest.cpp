#include "platform/HeldButtons.h"

#include <gtest/gtest.h>

#include <vector>

namespace brindlex {
namespace {

/// What a motion is now, as the number of the type and that of the button.
std::pair<EventType, EventFields> motionOf(const HeldButtons& buttons)
{
    return {buttons.motionType(), buttons.motionFields()};
}

std::pair<EventType, EventFields> drag(EventType type, std::int64_t button)
{
    return {type, {{EventField::mouseEventButtonNumber, button}}};
}

const std::pair<EventType, EventFields> motion{EventType::mouseMoved, {}};

TEST(HeldButtons, areNoneAtFirst)
{
    EXPECT_EQ(motionOf({}), motion);
    EXPECT_EQ(HeldButtons().numbers(), std::set<std::int64_t>{});
}

TEST(HeldButtons, dragWithEachButtonByItsNumber)
{
    for (const std::int64_t button : {0, 1, 2, 3, 4, 26, 27, 31, 32, 63, 64, 250, 1'000'000}) {
        HeldButtons buttons;
        EXPECT_TRUE(buttons.press(button));
        const auto type = button == 0 ? EventType::leftMouseDragged
            : button == 1             ? EventType::rightMouseDragged
                                      : EventType::otherMouseDragged;
        EXPECT_EQ(motionOf(buttons), drag(type, button)) << button;
        buttons.release(button);
        EXPECT_EQ(motionOf(buttons), motion) << button;
    }
}

TEST(HeldButtons, dragWithTheLowestOfThoseHeld)
{
    HeldButtons buttons;
    EXPECT_TRUE(buttons.press(3));
    EXPECT_FALSE(buttons.press(1));
    EXPECT_EQ(motionOf(buttons), drag(EventType::rightMouseDragged, 1));
    EXPECT_FALSE(buttons.press(0));
    EXPECT_EQ(motionOf(buttons), drag(EventType::leftMouseDragged, 0));
    EXPECT_EQ(buttons.numbers(), (std::set<std::int64_t>{0, 1, 3}));

    buttons.release(1);
    EXPECT_EQ(motionOf(buttons), drag(EventType::leftMouseDragged, 0));
    buttons.release(0);
    EXPECT_EQ(motionOf(buttons), drag(EventType::otherMouseDragged, 3));
}

TEST(HeldButtons, areNotConfusedByAReleaseWithoutAPress)
{
    HeldButtons buttons;
    buttons.release(2);
    EXPECT_EQ(motionOf(buttons), motion);
    EXPECT_TRUE(buttons.press(3));
    buttons.release(2);
    EXPECT_EQ(motionOf(buttons), drag(EventType::otherMouseDragged, 3));
}

TEST(HeldButtons, countTwoPressesOfOneButtonAsOne)
{
    HeldButtons buttons;
    EXPECT_TRUE(buttons.press(2));
    EXPECT_FALSE(buttons.press(2));
    buttons.release(2);
    EXPECT_EQ(motionOf(buttons), motion);
    EXPECT_TRUE(buttons.press(2));
}

} // namespace
} // namespace brindlex
