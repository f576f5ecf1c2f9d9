#include "platform/EventTap.h"

#include "platform/linux/VirtualKeyCodes.h"
#include "platform/linux/X11Buttons.h"
#include "platform/simulated/SimulatedInput.h"
#include "platform/simulated/SimulatedKeyboard.h"
#include "platform/simulated/SimulatedMouse.h"
#include "support/TappedDesktop.h"

#include <gtest/gtest.h>

namespace brindlex {
namespace {

using Lines = std::vector<std::string>;

constexpr std::int64_t keyA = 0;
constexpr std::int64_t keyS = 1;
constexpr std::int64_t controlKey = 59;

/// The devices of a simulated session.
class SimulatedSession {
public:
    EventTapping& tapping() { return input_; }
    EventPosting& posting() { return input_; }

    void press(std::int64_t button) { mouse_.press(button); }
    void release(std::int64_t button) { mouse_.release(button); }
    void pressOnSecondMouse(std::int64_t button) { secondMouse_.press(button); }
    void releaseOnSecondMouse(std::int64_t button) { secondMouse_.release(button); }
    void turnWheelUp() { mouse_.scroll(1); }
    void pressKey(std::int64_t code) { keyboard_.press(code); }
    void releaseKey(std::int64_t code) { keyboard_.release(code); }
    void holdControl() { keyboard_.holdModifiers(eventFlag::control); }
    void dropControl() { keyboard_.holdModifiers(0); }
    void switchTapsOff() { input_.switchTapsOff(EventType::tapDisabledByTimeout); }

    void settle() { }

    /// What arrived at the applications, in the words of X.
    testing::AssertionResult receives(const Lines& expected)
    {
        Lines lines;
        for (const auto& event : input_.delivered())
            note(event, lines);
        if (lines == expected)
            return testing::AssertionSuccess();
        return testing::AssertionFailure() << "arrived: " << testing::PrintToString(lines);
    }

private:
    static void note(const Event& event, Lines& lines)
    {
        const auto held = std::string(event.flags & eventFlag::control ? " (control)" : "");
        const auto keycode = [&] {
            return std::to_string(
                keycodesOf(event.value(EventField::keyboardEventKeycode)).front());
        };
        const auto button = [&] {
            return std::to_string(buttonOfNumber(event.value(EventField::mouseEventButtonNumber)));
        };
        if (isMouseDown(event.type))
            lines.push_back("press " + button() + held);
        else if (isMouseUp(event.type))
            lines.push_back("release " + button() + held);
        else if (event.type == EventType::keyDown)
            lines.push_back("key " + keycode() + " down" + held);
        else if (event.type == EventType::keyUp)
            lines.push_back("key " + keycode() + " up" + held);
        else if (event.type == EventType::flagsChanged)
            lines.push_back(event.flags != 0 ? "key 37 down" : "key 37 up (control)");
        else if (event.type == EventType::scrollWheel) {
            lines.push_back("press 4" + held);
            lines.push_back("release 4" + held);
        }
    }

    SimulatedInput input_{SimulatedInput::TapPlace::devices};
    SimulatedMouse mouse_{input_};
    SimulatedMouse secondMouse_{input_};
    SimulatedKeyboard keyboard_{input_};
};

/// Played hardware on a real X server.
class X11Session {
public:
    EventTapping& tapping() { return desktop_.tapping; }
    EventPosting& posting() { return desktop_.posting; }

    void press(std::int64_t button)
    {
        play([&] { desktop_.mouse.press(buttonOfNumber(button)); });
    }
    void release(std::int64_t button)
    {
        play([&] { desktop_.mouse.release(buttonOfNumber(button)); });
    }
    void pressOnSecondMouse(std::int64_t button)
    {
        play([&] { desktop_.secondMouse.press(buttonOfNumber(button)); });
    }
    void releaseOnSecondMouse(std::int64_t button)
    {
        play([&] { desktop_.secondMouse.release(buttonOfNumber(button)); });
    }
    void turnWheelUp()
    {
        play([&] { desktop_.mouse.turnWheel(-1); });
    }
    void pressKey(std::int64_t code)
    {
        play([&] { desktop_.keyboard.press(keycodesOf(code).front()); });
    }
    void releaseKey(std::int64_t code)
    {
        play([&] { desktop_.keyboard.release(keycodesOf(code).front()); });
    }
    void holdControl() { pressKey(controlKey); }
    void dropControl() { releaseKey(controlKey); }
    void switchTapsOff()
    {
        const XConnection server;
        const auto before = desktop_.stream.sessionCount();
        xcb_kill_client(server.get(), desktop_.stream.session()->handle());
        server.sync();
        EXPECT_TRUE(loopUntil([&] { return desktop_.stream.sessionCount() > before; }));
    }

    void settle() { desktop_.settle(); }
    testing::AssertionResult receives(const Lines& expected) { return desktop_.receives(expected); }

private:
    template <typename Play>
    void play(Play what)
    {
        what();
        settle();
    }

    TappedDesktop desktop_;
};

template <typename Session>
class EventTappingPromise : public testing::Test {
protected:
    /// A tap that is switched on, and that notes what it sees as `type number`.
    void tap(std::vector<EventInterest> interests, EventVerdict verdict = EventVerdict::pass)
    {
        tap_.reset();
        EventMask mask = 0;
        for (const auto& interest : interests)
            mask |= interest.mask;
        tap_ = session_.tapping().createTap(mask, interests, [this, verdict](const Event& event) {
            const bool isKey = event.type == EventType::keyDown || event.type == EventType::keyUp;
            seen_.push_back(std::to_string(static_cast<std::uint32_t>(event.type)) + " "
                + std::to_string(event.value(isKey ? EventField::keyboardEventKeycode
                                                   : EventField::mouseEventButtonNumber)));
            return verdictOf_ ? verdictOf_(event) : verdict;
        });
        ASSERT_NE(tap_, nullptr);
        tap_->setEnabled(true);
        session_.settle();
    }

    static constexpr EventMask otherButtons = 0xE000000;
    static constexpr EventMask keys = 0xC00;
    static EventInterest button(std::int64_t number, std::optional<std::uint64_t> flags = {})
    {
        return {0xE0000DE, EventTriggers{.buttons = {{number, flags}}}};
    }
    static EventInterest key(std::int64_t code, std::uint64_t flags)
    {
        return {keys, EventTriggers{.keys = {{code, flags}}}};
    }

    Session session_;
    Lines seen_;
    std::function<EventVerdict(const Event&)> verdictOf_;
    std::unique_ptr<EventTap> tap_;
};

using Sessions = testing::Types<SimulatedSession, X11Session>;
TYPED_TEST_SUITE(EventTappingPromise, Sessions);

TYPED_TEST(EventTappingPromise, handsOnOnceAndInOrderWhatPasses)
{
    this->tap({{this->otherButtons | eventMask(EventType::scrollWheel), {}}});

    this->session_.press(2);
    this->session_.turnWheelUp();
    this->session_.release(2);
    this->session_.press(3);
    this->session_.release(3);

    EXPECT_TRUE(this->session_.receives(
        {"press 2", "press 4", "release 4", "release 2", "press 8", "release 8"}));
    EXPECT_EQ(this->seen_, (Lines{"25 2", "22 0", "26 2", "25 3", "26 3"}));
}

TYPED_TEST(EventTappingPromise, keepsWhatIsSwallowedFromTheApplications)
{
    this->tap({this->button(3)}, EventVerdict::swallow);

    this->session_.press(3);
    this->session_.release(3);
    this->session_.press(4);
    this->session_.release(4);

    EXPECT_TRUE(this->session_.receives({"press 9", "release 9"}));
    EXPECT_EQ(this->seen_, (Lines{"25 3", "26 3"}));
}

TYPED_TEST(EventTappingPromise, leavesAloneWhatIsNoTrigger)
{
    this->tap({this->button(2), this->key(keyA, eventFlag::control)}, EventVerdict::swallow);

    this->session_.press(0);
    this->session_.release(0);
    this->session_.turnWheelUp();
    this->session_.pressKey(keyA);
    this->session_.releaseKey(keyA);

    EXPECT_TRUE(this->session_.receives(
        {"press 1", "release 1", "press 4", "release 4", "key 38 down", "key 38 up"}));
    EXPECT_EQ(this->seen_, Lines{});
}

TYPED_TEST(EventTappingPromise, swallowsAKeyWithExactlyItsModifiers)
{
    this->tap({this->key(keyA, eventFlag::control)}, EventVerdict::swallow);

    this->session_.pressKey(keyA);
    this->session_.releaseKey(keyA);
    this->session_.holdControl();
    this->session_.pressKey(keyA);
    this->session_.releaseKey(keyA);
    this->session_.pressKey(keyS);
    this->session_.releaseKey(keyS);
    this->session_.dropControl();

    EXPECT_TRUE(this->session_.receives({"key 38 down", "key 38 up", "key 37 down",
        "key 39 down (control)", "key 39 up (control)", "key 37 up (control)"}));
    EXPECT_EQ(this->seen_, (Lines{"10 0", "11 0"}));
}

TYPED_TEST(EventTappingPromise, swallowsAButtonOnlyWithItsModifiers)
{
    this->tap({this->button(0, eventFlag::control)}, EventVerdict::swallow);

    this->session_.press(0);
    this->session_.release(0);
    this->session_.holdControl();
    this->session_.press(0);
    this->session_.release(0);
    this->session_.dropControl();

    EXPECT_TRUE(
        this->session_.receives({"press 1", "release 1", "key 37 down", "key 37 up (control)"}));
    EXPECT_EQ(this->seen_, (Lines{"1 0", "2 0"}));
}

TYPED_TEST(EventTappingPromise, sendsAReleaseWhereItsPressWent)
{
    this->verdictOf_ = [](const Event& event) {
        const bool isBack = event.value(EventField::mouseEventButtonNumber) == 3;
        return isMouseDown(event.type) == isBack ? EventVerdict::swallow : EventVerdict::pass;
    };
    this->tap({this->button(3), this->button(4)});

    this->session_.press(3);
    this->session_.release(3);
    this->session_.press(4);
    this->session_.release(4);

    EXPECT_TRUE(this->session_.receives({"press 9", "release 9"}));
}

TYPED_TEST(EventTappingPromise, seesTheWholeOfADeviceFromATriggerToItsLastRelease)
{
    this->verdictOf_ = [](const Event& event) {
        return event.value(EventField::mouseEventButtonNumber) == 3 ? EventVerdict::swallow
                                                                    : EventVerdict::pass;
    };
    this->tap({this->button(3)});

    this->session_.press(3);
    this->session_.press(0);
    this->session_.release(3);
    this->session_.release(0);
    this->session_.press(0);
    this->session_.release(0);

    EXPECT_TRUE(this->session_.receives({"press 1", "release 1", "press 1", "release 1"}));
    EXPECT_EQ(this->seen_, (Lines{"25 3", "1 0", "26 3", "2 0"}));
}

TYPED_TEST(EventTappingPromise, tellsTwoMiceApart)
{
    this->tap({this->button(3)}, EventVerdict::swallow);

    this->session_.press(3);
    this->session_.pressOnSecondMouse(0);
    this->session_.releaseOnSecondMouse(0);
    this->session_.release(3);

    EXPECT_TRUE(this->session_.receives({"press 1", "release 1"}));
    EXPECT_EQ(this->seen_, (Lines{"25 3", "26 3"}));
}

TYPED_TEST(EventTappingPromise, losesNothingWhenATapTakesThePlaceOfAnother)
{
    this->tap({this->button(2)}, EventVerdict::swallow);
    this->session_.press(2);

    this->tap({this->button(2), this->button(3)}, EventVerdict::swallow);
    this->session_.release(2);
    this->session_.press(3);
    this->session_.release(3);
    this->session_.press(0);
    this->session_.release(0);

    EXPECT_TRUE(this->session_.receives({"press 1", "release 1"}));
    EXPECT_EQ(this->seen_, (Lines{"25 2", "26 2", "25 3", "26 3"}));
}

TYPED_TEST(EventTappingPromise, takesOtherInterestsInItsStride)
{
    this->tap({this->button(2)}, EventVerdict::swallow);

    this->tap_->setInterests({this->button(3)});
    this->session_.settle();
    this->session_.press(2);
    this->session_.release(2);
    this->session_.press(3);
    this->session_.release(3);

    EXPECT_TRUE(this->session_.receives({"press 2", "release 2"}));
    EXPECT_EQ(this->seen_, (Lines{"25 3", "26 3"}));
}

TYPED_TEST(EventTappingPromise, letsAllPassWhileSwitchedOffAndWhenGone)
{
    this->tap({this->button(2)}, EventVerdict::swallow);

    this->tap_->setEnabled(false);
    this->session_.settle();
    this->session_.press(2);
    this->session_.release(2);
    this->tap_->setEnabled(true);
    this->session_.settle();
    this->session_.press(2);
    this->session_.release(2);
    this->tap_.reset();
    this->session_.settle();
    this->session_.press(3);
    this->session_.release(3);

    EXPECT_TRUE(this->session_.receives({"press 2", "release 2", "press 8", "release 8"}));
    EXPECT_EQ(this->seen_, (Lines{"25 2", "26 2"}));
}

TYPED_TEST(EventTappingPromise, mayBeDestroyedInItsHandlerWhoseVerdictCounts)
{
    this->verdictOf_ = [this](const Event&) {
        this->tap_.reset();
        return EventVerdict::swallow;
    };
    this->tap({this->button(2)});

    this->session_.press(2);
    this->session_.release(2);
    this->session_.press(2);
    this->session_.release(2);

    EXPECT_TRUE(this->session_.receives({"press 2", "release 2"}));
    EXPECT_EQ(this->seen_, Lines{"25 2"});
}

TYPED_TEST(EventTappingPromise, saysThatTheSystemHasSwitchedItOffAndGoesOnWhenSwitchedOn)
{
    this->verdictOf_ = [this](const Event& event) {
        if (event.type == EventType::tapDisabledByTimeout)
            this->tap_->setEnabled(true);
        return EventVerdict::swallow;
    };
    this->tap({this->button(2)});

    this->session_.switchTapsOff();
    this->session_.settle();
    this->session_.press(2);
    this->session_.release(2);
    this->session_.press(0);
    this->session_.release(0);

    EXPECT_TRUE(this->session_.receives({"press 1", "release 1"}));
    EXPECT_EQ(this->seen_, (Lines{"4294967294 0", "25 2", "26 2"}));
}

} // namespace
} // namespace brindlex
