#include "mouse/MouseSession.h"

#include <gtest/gtest.h>

#include <map>
#include <random>
#include <utility>

namespace brindlex {
namespace {

/// Two mice and a keyboard in the hands of somebody who does anything at all, in front of a
/// subsystem whose settings, subscribers and permissions change all the time.
class RandomInput {
public:
    RandomInput(SimulatedInput::TapPlace place, unsigned seed)
        : session(MouseConfig{}, place), secondMouse_(session.input), random_(seed)
    {
        session.clicks.start();
        session.gestures.start();
        session.scrolling.start();
    }

    void step()
    {
        session.mainThread.advance(number(100) == 0 ? 2.5 : number(40) / 1000.0);
        if (session.displayLink.isRunning())
            session.displayLink.frame(session.clock.continuousTime());
        auto& mouse = number(2) == 0 ? session.mouse : secondMouse_;
        switch (number(12)) {
        case 0:
        case 1:
        case 2:
            pressOrRelease(mouse, number(6));
            break;
        case 3:
        case 4:
        case 5:
        case 6:
            mouse.moveTo({static_cast<double>(number(200)), static_cast<double>(number(200))});
            break;
        case 7:
            mouse.scroll(number(7) - 3, number(3) - 1);
            break;
        case 8:
        case 9:
            pressOrReleaseKey(number(10));
            break;
        case 10:
            session.keyboard.holdModifiers(static_cast<std::uint64_t>(number(16)) << 17);
            break;
        default:
            disturb();
            break;
        }
    }

    /// Lets go of everything.
    void letGo()
    {
        for (auto* mouse : {&session.mouse, &secondMouse_})
            for (const auto button : std::set(mouse->heldButtons()))
                mouse->release(button);
        for (const auto key : std::set(session.keyboard.heldKeys()))
            session.keyboard.release(key);
        session.mainThread.advance(10);
    }

    MouseSession session;

private:
    int number(int below) { return std::uniform_int_distribution(0, below - 1)(random_); }

    void pressOrRelease(SimulatedMouse& mouse, std::int64_t button)
    {
        if (mouse.heldButtons().contains(button))
            mouse.release(button);
        else
            mouse.press(button);
    }

    void pressOrReleaseKey(std::int64_t key)
    {
        if (session.keyboard.heldKeys().contains(key))
            session.keyboard.release(key);
        else
            session.keyboard.press(key);
    }

    MouseAction::Any action()
    {
        if (number(2) == 0)
            return MouseAction::SendKeystroke{100 + number(10), {}};
        return MouseAction::RunShellCommand{"true"};
    }

    void disturb()
    {
        switch (number(8)) {
        case 0:
            session.edit([&](MouseConfig& value) {
                value.gesture.bindings.resize(static_cast<std::size_t>(
                    number(static_cast<int>(value.gesture.bindings.size()) + 1)));
            });
            break;
        case 1:
            session.bindGesture(*mouseButtonWithNumber(number(5)),
                ModifierSet{static_cast<std::uint64_t>(number(3))},
                allCases<MouseDirection>()[static_cast<std::size_t>(number(4))], action());
            break;
        case 2:
            session.bindClick(*mouseButtonWithNumber(number(5)),
                ModifierSet{static_cast<std::uint64_t>(number(3))}, action());
            break;
        case 3:
            session.edit([&](MouseConfig& value) {
                value.gesture.enabled = number(3) != 0;
                value.click.enabled = number(3) != 0;
                value.scroll.smoothEnabled = number(2) != 0;
                value.scroll.invertVertical = number(2) != 0;
            });
            break;
        case 4:
            session.permissions.set(number(4) != 0);
            session.permissions.notify();
            break;
        case 5:
            session.input.switchTapsOff(EventType::tapDisabledByTimeout);
            break;
        default:
            changeSubscribers();
            break;
        }
    }

    /// Subscribers that swallow as they like, as hotkeys do.
    void changeSubscribers()
    {
        if (!others_.empty() && number(2) == 0) {
            session.tap.unsubscribe(others_.back());
            others_.pop_back();
            return;
        }
        const EventMask mask
            = number(2) == 0 ? eventMask(EventType::keyDown) : mouseButtonMaskOf(2);
        others_.push_back(session.tap.subscribe(mask, [this](const Event& event) {
            const bool isOwn = event.value(EventField::eventSourceUserData) != 0;
            return !isOwn && number(3) == 0 ? EventVerdict::swallow : EventVerdict::pass;
        }));
    }

    SimulatedMouse secondMouse_;
    std::mt19937 random_;
    std::vector<Uuid> others_;
};

/// How often each key and button went down and up, as the applications saw it.
class Counts {
public:
    void add(const std::vector<Event>& events)
    {
        for (const auto& event : events) {
            if (isMouseDown(event.type) || isMouseUp(event.type))
                add({'b', event.value(EventField::mouseEventButtonNumber)},
                    isMouseDown(event.type));
            if (event.type == EventType::keyDown || event.type == EventType::keyUp)
                add({'k', event.value(EventField::keyboardEventKeycode)},
                    event.type == EventType::keyDown);
        }
    }

    struct Count {
        int downs = 0;
        int ups = 0;
    };
    std::map<std::pair<char, std::int64_t>, Count> counts;

private:
    void add(const std::pair<char, std::int64_t>& what, bool isDown)
    {
        ++(isDown ? counts[what].downs : counts[what].ups);
    }
};

class RandomInputAtTheDevices : public testing::TestWithParam<unsigned> { };

TEST_P(RandomInputAtTheDevices, leavesNothingHeldAndNothingUneven)
{
    RandomInput input(SimulatedInput::TapPlace::devices, GetParam());
    Counts counts;
    for (int event = 0; event < 10'000; ++event) {
        input.step();
        counts.add(input.session.input.takeDelivered());
        input.session.log.takeLines();
    }
    input.letGo();
    counts.add(input.session.input.takeDelivered());

    EXPECT_GE(counts.counts.size(), 16u);
    for (const auto& [what, count] : counts.counts) {
        EXPECT_EQ(count.downs, count.ups) << what.first << what.second;
        EXPECT_GT(count.downs, 0) << what.first << what.second;
    }
}

class RandomInputInTheSession : public testing::TestWithParam<unsigned> { };

TEST_P(RandomInputInTheSession, hasOneTapAtMostAndEndsWithoutAnyPress)
{
    RandomInput input(SimulatedInput::TapPlace::session, GetParam());
    for (int event = 0; event < 10'000; ++event) {
        input.step();
        EXPECT_LE(input.session.input.tapMasks().size(), 1u);
    }
    input.session.permissions.set(true);
    input.session.permissions.notify();
    input.letGo();
    input.session.clicks.tearDown();
    input.session.gestures.tearDown();
    input.session.scrolling.tearDown();
    input.session.input.takeDelivered();

    input.session.mouse.press(3);
    input.session.mouse.release(3);

    EXPECT_FALSE(input.session.displayLink.isRunning());
    EXPECT_EQ(input.session.mainThread.timers(), 0u);
}

INSTANTIATE_TEST_SUITE_P(Seeds, RandomInputAtTheDevices, testing::Range(1u, 6u));
INSTANTIATE_TEST_SUITE_P(Seeds, RandomInputInTheSession, testing::Range(1u, 4u));

} // namespace
} // namespace brindlex
