#include "eventtap/GlobalEventTap.h"
#include "platform/simulated/SimulatedEventPermissions.h"
#include "platform/simulated/SimulatedProgramActivation.h"
#include "support/hardware/Keycodes.h"
#include "support/hardware/TappedDesktop.h"

#include <QCoreApplication>

#include <array>
#include <gtest/gtest.h>
#include <map>
#include <random>
#include <set>

namespace brindlex {
namespace {

using Lines = std::vector<std::string>;

constexpr std::array buttons{1, 2, 3, 8, 9};
constexpr std::array playedKeys{keycode::control, keycode::a, keycode::s, keycode::d,
    keycode::shift, keycode::alt, keycode::super};
constexpr EventMask wheel = eventMask(EventType::scrollWheel);
constexpr EventMask keyboardMask = keyMask | eventMask(EventType::flagsChanged);
constexpr std::array masks{mouseButtonMaskOf(0) | mouseButtonMaskOf(1) | wheel,
    mouseButtonMaskOf(2), wheel, eventMask(EventType::keyDown), keyboardMask,
    mouseButtonMask | wheel | keyboardMask};

/// Two mice and a keyboard in the hands of somebody who does anything at all, in front of
/// subscribers that come and go, swallow as they like and post.
class RandomTappedInput {
public:
    explicit RandomTappedInput(unsigned seed) : random_(seed), moods_(seed) { }

    void step()
    {
        switch (number(16)) {
        case 0:
        case 1:
        case 2:
        case 3:
        case 4:
            pressOrRelease(number(2) == 0 ? mouse : secondMouse);
            break;
        case 5:
        case 6:
        case 7:
            pressOrReleaseKey();
            break;
        case 8:
        case 9:
        case 10:
        case 11:
            device(number(2) == 0 ? mouse : secondMouse).move(number(21) - 10, number(21) - 10);
            break;
        case 12:
            device(number(2) == 0 ? mouse : secondMouse).turnWheel(number(5) - 2);
            break;
        case 13:
            changeSubscribers();
            break;
        case 14:
            post(random_);
            break;
        default:
            // The program gets to it now, or only after what comes next.
            QCoreApplication::processEvents();
        }
    }

    void letGo()
    {
        for (auto* hand : {&mouse, &secondMouse})
            for (const auto button : std::exchange(hand->held, {}))
                hand->device->release(button);
        for (const auto key : std::exchange(heldKeys_, {}))
            desktop.keyboard.release(key);
        desktop.settle();
        while (!subscribers_.empty())
            unsubscribe(0);
        desktop.settle();
    }

    /// How many events subscribers have seen and swallowed.
    int seen = 0;
    int swallowed = 0;

    struct Hand {
        const PlayedMouse* device;
        std::set<int> held{};
    };

    TappedDesktop desktop;
    SimulatedEventPermissions permissions;
    SimulatedProgramActivation activation;
    GlobalEventTap tap{desktop.tapping, permissions, activation};
    Hand mouse{&desktop.mouse};
    Hand secondMouse{&desktop.secondMouse};

private:
    using Random = std::mt19937;

    static int number(Random& random, int below)
    {
        return std::uniform_int_distribution<int>(0, below - 1)(random);
    }
    int number(int below) { return number(random_, below); }

    static const PlayedMouse& device(const Hand& hand) { return *hand.device; }

    void pressOrRelease(Hand& hand)
    {
        const auto button = buttons[static_cast<std::size_t>(number(buttons.size()))];
        if (hand.held.erase(button) != 0) {
            hand.device->release(button);
        } else {
            hand.held.insert(button);
            hand.device->press(button);
        }
    }

    void pressOrReleaseKey()
    {
        const auto key = playedKeys[static_cast<std::size_t>(number(playedKeys.size()))];
        if (heldKeys_.erase(key) != 0) {
            desktop.keyboard.release(key);
        } else {
            heldKeys_.insert(key);
            desktop.keyboard.press(key);
        }
    }

    void post(Random& random)
    {
        const auto press = [&](EventType type, EventField field, std::int64_t code) {
            const std::array flags{eventFlag::command, eventFlag::shift | eventFlag::option};
            desktop.posting.post({type, {}, flags[static_cast<std::size_t>(code % 2)],
                {{field, code}, {EventField::eventSourceUserData, 1}}});
        };
        const auto code = number(random, 4);
        if (number(random, 2) == 0) {
            press(EventType::keyDown, EventField::keyboardEventKeycode, code);
            press(EventType::keyUp, EventField::keyboardEventKeycode, code);
        } else {
            press(EventType::otherMouseDown, EventField::mouseEventButtonNumber, 2 + code);
            press(EventType::otherMouseUp, EventField::mouseEventButtonNumber, 2 + code);
        }
    }

    void changeSubscribers()
    {
        const bool isCrowded = subscribers_.size() == 5;
        if (!subscribers_.empty() && (isCrowded || number(2) == 0))
            return unsubscribe(
                static_cast<std::size_t>(number(static_cast<int>(subscribers_.size()))));
        std::optional<EventTriggers> triggers;
        if (number(4) != 0)
            triggers = EventTriggers{.buttons = {{number(5), {}}, {2, eventFlag::control}},
                .keys = {{number(3), eventFlag::control}, {number(3), 0}},
                .wheel = number(4) == 0};
        subscribers_.push_back(tap.subscribe(
            masks[static_cast<std::size_t>(number(masks.size()))],
            [this](const Event&) {
                ++seen;
                if (number(moods_, 50) == 0)
                    post(moods_);
                if (number(moods_, 3) != 0)
                    return EventVerdict::pass;
                ++swallowed;
                return EventVerdict::swallow;
            },
            triggers));
    }

    void unsubscribe(std::size_t index)
    {
        tap.unsubscribe(subscribers_[index]);
        subscribers_.erase(subscribers_.begin() + static_cast<std::ptrdiff_t>(index));
    }

    /// What the hands do. Nothing else draws from it, so that a seed is one and the same input
    /// however fast the program gets to it.
    Random random_;
    /// What subscribers do.
    Random moods_;
    std::set<std::uint8_t> heldKeys_;
    std::vector<Uuid> subscribers_;
};

/// Whether presses and releases of each button and key alternate, beginning with a press and ending
/// with a release; else the first that do not.
testing::AssertionResult isEven(const Lines& lines)
{
    std::map<std::string, bool> held;
    for (const auto& line : lines) {
        const auto words = line.substr(0, line.find(" ("));
        const bool isKey = words.starts_with("key ");
        const bool isPress = words.starts_with("press ") || words.ends_with(" down");
        const auto what = isKey ? words.substr(0, words.rfind(' ')) : words.substr(words.find(' '));
        if (std::exchange(held[what], isPress) == isPress)
            return testing::AssertionFailure() << "twice: " << line;
    }
    for (const auto& [what, isHeld] : held)
        if (isHeld)
            return testing::AssertionFailure() << "not released: " << what;
    return testing::AssertionSuccess();
}

class RandomTappedInputs : public testing::TestWithParam<unsigned> {
protected:
    void play(int steps)
    {
        RandomTappedInput input(GetParam());
        for (int step = 0; step < steps; ++step)
            input.step();
        input.letGo();

        auto& window = input.desktop.window;
        EXPECT_TRUE(loopUntil([&] { return window.held() == Lines{}; }))
            << testing::PrintToString(window.held());
        input.desktop.settle();
        const auto& lines = window.lines();
        // Two fifths of the steps arrive, a third is seen and a tenth swallowed, more or less, as
        // it depends on how soon the program gets to what is played; half of that is enough.
        EXPECT_GT(lines.size(), static_cast<std::size_t>(steps) / 5);
        EXPECT_GT(input.seen, steps / 6);
        EXPECT_GT(input.swallowed, steps / 20);
        EXPECT_TRUE(isEven(lines));
    }
};

class FewRandomTappedInputs : public RandomTappedInputs { };

TEST_P(FewRandomTappedInputs, leaveNothingHeldAndNothingUneven) { play(500); }

INSTANTIATE_TEST_SUITE_P(Seeds, FewRandomTappedInputs, testing::Range(1u, 11u));

class ManyRandomTappedInputs : public RandomTappedInputs { };

TEST_P(ManyRandomTappedInputs, leaveNothingHeldAndNothingUneven) { play(10'000); }

INSTANTIATE_TEST_SUITE_P(Seeds, ManyRandomTappedInputs, testing::Range(1u, 4u));

} // namespace
} // namespace brindlex
