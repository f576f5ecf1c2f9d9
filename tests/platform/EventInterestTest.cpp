#include "platform/EventInterest.h"

#include <gtest/gtest.h>

namespace brindlex {
namespace {

constexpr auto downs = eventMask(EventType::otherMouseDown) | eventMask(EventType::leftMouseDown);

Event down(std::int64_t button, std::uint64_t flags = 0)
{
    return {EventType::otherMouseDown, {}, flags, {{EventField::mouseEventButtonNumber, button}}};
}

Event key(std::int64_t keyCode, std::uint64_t flags)
{
    return {EventType::keyDown, {}, flags, {{EventField::keyboardEventKeycode, keyCode}}};
}

TEST(EventInterest, withoutTriggersTakesAllOfItsMask)
{
    const EventInterest interest{downs, {}};

    EXPECT_TRUE(isTrigger(down(7), interest));
    EXPECT_FALSE(isTrigger(key(1, 0), interest));
}

TEST(EventInterest, takesAButtonWithExactlyItsModifiers)
{
    const EventInterest interest{downs, EventTriggers{{{3, eventFlag::command}}, {}, false}};

    EXPECT_TRUE(isTrigger(down(3, eventFlag::command), interest));
    EXPECT_TRUE(isTrigger(down(3, eventFlag::command | eventFlag::capsLock), interest));
    EXPECT_FALSE(isTrigger(down(3), interest));
    EXPECT_FALSE(isTrigger(down(3, eventFlag::command | eventFlag::shift), interest));
    EXPECT_FALSE(isTrigger(down(4, eventFlag::command), interest));
}

TEST(EventInterest, takesAButtonWithAnyModifiersWhenNoneAreGiven)
{
    const EventInterest interest{downs, EventTriggers{{{3, {}}}, {}, false}};

    EXPECT_TRUE(isTrigger(down(3, eventFlag::shift), interest));
}

TEST(EventInterest, takesAKeyWithExactlyItsModifiers)
{
    const EventInterest interest{
        eventMask(EventType::keyDown), EventTriggers{{}, {{9, eventFlag::command}}, false}};

    EXPECT_TRUE(isTrigger(key(9, eventFlag::command | eventFlag::numericPad), interest));
    EXPECT_FALSE(isTrigger(key(9, 0), interest));
    EXPECT_FALSE(isTrigger(key(8, eventFlag::command), interest));
}

TEST(EventInterest, takesTheWheelOnlyWhenItSaysSo)
{
    const Event notch{EventType::scrollWheel, {}, 0, {}};
    const auto mask = eventMask(EventType::scrollWheel);

    EXPECT_TRUE(isTrigger(notch, {mask, EventTriggers{{}, {}, true}}));
    EXPECT_FALSE(isTrigger(notch, {mask, EventTriggers{}}));
}

TEST(EventInterest, takesNothingOutsideItsMask)
{
    EXPECT_FALSE(
        isTrigger(down(3), {eventMask(EventType::keyDown), EventTriggers{{{3, {}}}, {}, false}}));
    EXPECT_FALSE(isTrigger(Event{EventType::tapDisabledByTimeout, {}, 0, {}}, {~EventMask{0}, {}}));
}

TEST(EventInterest, doesNotBeginWithAReleaseOrADrag)
{
    const EventInterest interest{~EventMask{0}, EventTriggers{{{3, {}}}, {}, false}};
    auto event = down(3);
    for (const auto type : {EventType::otherMouseUp, EventType::otherMouseDragged}) {
        event.type = type;
        EXPECT_FALSE(isTrigger(event, interest));
    }
}

} // namespace
} // namespace brindlex
