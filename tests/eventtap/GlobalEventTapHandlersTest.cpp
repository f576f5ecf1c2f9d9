#include "eventtap/GlobalEventTapFixture.h"

namespace brindlex {
namespace {

TEST_F(GlobalEventTapTest, letsAHandlerEndItsOwnSubscription)
{
    Uuid id;
    id = tap.subscribe(keyPresses, [&](const Event&) {
        tap.unsubscribe(id);
        return EventVerdict::swallow;
    });

    EXPECT_EQ(keyboard.press(9), EventVerdict::swallow);
    EXPECT_EQ(keyboard.press(10), EventVerdict::pass);
    EXPECT_FALSE(tap.isLive());
}

TEST_F(GlobalEventTapTest, walksTheSubscribersThatThereWereWhenTheEventCame)
{
    Uuid second;
    bool isFirst = true;
    tap.subscribe(keyPresses, [&](const Event&) {
        if (std::exchange(isFirst, false)) {
            tap.unsubscribe(second);
            tap.subscribe(keyPresses, noting("third"));
        }
        return EventVerdict::pass;
    });
    second = tap.subscribe(keyPresses, noting("second"));

    keyboard.press(9);
    EXPECT_EQ(calls, Lines{"second"});
    keyboard.press(9);
    EXPECT_EQ(calls, (Lines{"second", "third"}));
}

TEST_F(GlobalEventTapTest, survivesTheLossOfPermissionInsideAHandler)
{
    tap.subscribe(keyPresses, [&](const Event&) {
        permissions.set(false);
        permissions.notify();
        return EventVerdict::swallow;
    });

    EXPECT_EQ(keyboard.press(9), EventVerdict::swallow);
    EXPECT_EQ(keyboard.press(9), EventVerdict::pass);
}

} // namespace
} // namespace brindlex
