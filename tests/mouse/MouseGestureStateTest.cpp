#include "mouse/MouseGesture.h"

#include <gtest/gtest.h>

namespace brindlex {
namespace {

class MouseGestureStateTest : public testing::Test {
protected:
    MouseGestureOutcome step(EventType type, Point point, Date now)
    {
        return reduceMouseGesture({type, point, 0, {}}, state, config, now, 1,
            [](Point) { return MouseResizeDragDecision{}; });
    }

    const MouseGestureConfig config{true,
        {{{}, MouseButton::left, {}, MouseDirection::right, MouseAction::Plain::forward}}, 30};
    MouseGestureState state;
};

TEST_F(MouseGestureStateTest, beginsAPressWhereItIsWithNoWayBehindIt)
{
    step(EventType::leftMouseDown, {3, 4}, Date{1000});

    MouseGestureState expected;
    expected[MouseButton::left] = MouseGestureDragState{{3, 4}, 0, {}, false, Date{1000}};
    EXPECT_EQ(state, expected);
}

TEST_F(MouseGestureStateTest, staysAsItIsAtEventsOfOtherTypes)
{
    step(EventType::leftMouseDown, {100, 100}, Date{1000});
    const auto before = state;

    for (const auto type : {EventType::mouseMoved, EventType::keyDown, EventType::keyUp,
             EventType::flagsChanged, EventType::scrollWheel, EventType::gesture,
             EventType::dockGesture, EventType::tapDisabledByTimeout}) {
        EXPECT_EQ(step(type, {300, 100}, Date{1003}), MouseGestureOutcome{});
        EXPECT_EQ(state, before);
    }
}

} // namespace
} // namespace brindlex
