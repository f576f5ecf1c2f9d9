#include "platform/linux/input/X11TapSessionFixture.h"

#include "support/hardware/PointerMap.h"

namespace brindlex {
namespace {

/// The button below the third finger, as X counts those of the hand.
constexpr int leftOfHand = 1;
constexpr int rightOfHand = 3;

EventInterest rightButton() { return {mouseButtonMask, EventTriggers{.buttons = {{1, {}}}}}; }

class X11TapSessionLeftHandTest : public X11TapSessionTest {
protected:
    X11TapSessionLeftHandTest() { setPointerMap(server_, {3, 2, 1}); }

    SyntheticEvent button(EventType type, std::int64_t number)
    {
        return {type, {}, {}, {{EventField::mouseEventButtonNumber, number}}};
    }
};

TEST_F(X11TapSessionLeftHandTest, takesTheButtonThatTheApplicationsWouldGet)
{
    tap(rightButton(), EventVerdict::swallow);

    desktop_.mouse.click(leftOfHand);
    desktop_.settle();
    desktop_.mouse.click(rightOfHand);
    desktop_.settle();

    EXPECT_EQ(typesSeen(), (std::vector{EventType::rightMouseDown, EventType::rightMouseUp}));
    EXPECT_TRUE(desktop_.receives({"press 1", "release 1"}));
}

TEST_F(X11TapSessionLeftHandTest, handsOnWhatItIsToTheApplications)
{
    tap({mouseButtonMask, {}});

    desktop_.mouse.click(leftOfHand);
    desktop_.settle();
    desktop_.mouse.click(rightOfHand);
    desktop_.settle();

    EXPECT_EQ(typesSeen(),
        (std::vector{EventType::rightMouseDown, EventType::rightMouseUp, EventType::leftMouseDown,
            EventType::leftMouseUp}));
    EXPECT_TRUE(desktop_.receives({"press 3", "release 3", "press 1", "release 1"}));
}

TEST_F(X11TapSessionLeftHandTest, postsTheButtonThatIsMeant)
{
    desktop_.posting.post(button(EventType::rightMouseDown, 1));
    desktop_.posting.post(button(EventType::rightMouseUp, 1));

    EXPECT_TRUE(desktop_.receives({"press 3", "release 3"}));
}

TEST_F(X11TapSessionLeftHandTest, followsTheUserWhoChangesHands)
{
    tap(rightButton(), EventVerdict::swallow);

    setPointerMap(server_, {1, 2, 3});
    desktop_.settle();
    desktop_.mouse.click(rightOfHand);
    desktop_.settle();
    desktop_.mouse.click(leftOfHand);
    desktop_.settle();

    EXPECT_EQ(typesSeen(), (std::vector{EventType::rightMouseDown, EventType::rightMouseUp}));
    EXPECT_TRUE(desktop_.receives({"press 1", "release 1"}));
}

TEST_F(X11TapSessionLeftHandTest, endsAPressAsWhatItBegan)
{
    tap({mouseButtonMask, {}}, EventVerdict::swallow);
    desktop_.mouse.press(leftOfHand);
    desktop_.settle();

    setPointerMap(server_, {1, 2, 3});
    desktop_.settle();
    desktop_.mouse.release(leftOfHand);
    desktop_.settle();

    EXPECT_EQ(typesSeen(), (std::vector{EventType::rightMouseDown, EventType::rightMouseUp}));
}

TEST_F(X11TapSessionLeftHandTest, turnsTheWheelAsTheApplicationsWouldGetIt)
{
    // What is called natural scrolling.
    setPointerMap(server_, {1, 2, 3, 5, 4});
    tap({wheel, EventTriggers{.wheel = true}});

    desktop_.mouse.turnWheel(1);
    desktop_.settle();

    ASSERT_EQ(seen_.size(), 1U);
    EXPECT_EQ(seen_[0].value(EventField::scrollWheelEventDeltaAxis1), 1);
    EXPECT_TRUE(desktop_.receives({"press 4", "release 4"}));
}

TEST_F(X11TapSessionLeftHandTest, goesByAButtonThatIsSwitchedOff)
{
    setPointerMap(server_, {0, 2, 3});
    tap({mouseButtonMask, {}}, EventVerdict::swallow);

    desktop_.mouse.click(leftOfHand);
    desktop_.settle();
    desktop_.mouse.click(rightOfHand);
    desktop_.settle();

    EXPECT_EQ(typesSeen(), (std::vector{EventType::rightMouseDown, EventType::rightMouseUp}));
    EXPECT_TRUE(desktop_.receives({}));
}

} // namespace
} // namespace brindlex
