#include "eventtap/UnlockedEventTapping.h"

#include "platform/simulated/SimulatedInput.h"
#include "platform/simulated/SimulatedKeyboard.h"
#include "platform/simulated/SimulatedMouse.h"
#include "platform/simulated/SimulatedSessionLock.h"

#include <gtest/gtest.h>

namespace brindlex {
namespace {

class UnlockedEventTappingTest : public testing::Test {
protected:
    UnlockedEventTappingTest() { tap->setEnabled(true); }

    static constexpr EventMask mask = mouseButtonMask | keyMask
        | eventMask(EventType::scrollWheel, EventType::mouseMoved, EventType::flagsChanged);

    SimulatedInput input;
    SimulatedSessionLock lock;
    SimulatedMouse mouse{input};
    SimulatedKeyboard keyboard{input};
    std::vector<EventType> seen;
    UnlockedEventTapping tapping{input, lock};
    std::unique_ptr<EventTap> tap
        = tapping.createTap(mask, {{mask, std::nullopt}}, [this](const Event& event) {
              seen.push_back(event.type);
              return EventVerdict::swallow;
          });
};

TEST_F(UnlockedEventTappingTest, showsNothingThatIsDoneAtALockedSession)
{
    lock.locked = true;

    EXPECT_EQ(mouse.press(2), EventVerdict::pass);
    EXPECT_EQ(mouse.moveTo({5, 5}), EventVerdict::pass);
    EXPECT_EQ(mouse.release(2), EventVerdict::pass);
    EXPECT_EQ(mouse.scroll(1), EventVerdict::pass);
    EXPECT_EQ(keyboard.press(9), EventVerdict::pass);
    EXPECT_EQ(keyboard.release(9), EventVerdict::pass);

    EXPECT_EQ(seen, std::vector<EventType>{});
}

TEST_F(UnlockedEventTappingTest, showsEverythingAgainFromTheNextPressOn)
{
    lock.locked = true;
    mouse.press(2);
    lock.locked = false;

    EXPECT_EQ(mouse.release(2), EventVerdict::pass) << "whose press the locker has got";
    EXPECT_EQ(mouse.press(2), EventVerdict::swallow);
    EXPECT_EQ(mouse.release(2), EventVerdict::swallow);

    EXPECT_EQ(seen, (std::vector{EventType::otherMouseDown, EventType::otherMouseUp}));
}

TEST_F(UnlockedEventTappingTest, asksForPressesAndNotchesAlone)
{
    mouse.press(2);
    for (int step = 1; step < 100; ++step)
        mouse.moveTo({step * 1.0, 0});
    mouse.release(2);
    mouse.scroll(1);

    EXPECT_EQ(lock.timesAsked, 2);
}

TEST_F(UnlockedEventTappingTest, saysThatTheTapWasSwitchedOffAlsoWhileLocked)
{
    lock.locked = true;
    mouse.press(2);

    input.switchTapsOff(EventType::tapDisabledByTimeout);

    EXPECT_EQ(seen, std::vector{EventType::tapDisabledByTimeout});
}

} // namespace
} // namespace brindlex
