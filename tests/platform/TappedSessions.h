#pragma once

#include "platform/linux/input/VirtualKeyCodes.h"
#include "platform/linux/x11/X11Buttons.h"
#include "platform/simulated/RecordedInput.h"
#include "platform/simulated/SimulatedInput.h"
#include "platform/simulated/SimulatedKeyboard.h"
#include "platform/simulated/SimulatedMouse.h"
#include "support/hardware/Keycodes.h"
#include "support/hardware/TappedDesktop.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace brindlex {

/// The devices of a simulated session, played in the words of the program.
class SimulatedTappedSession {
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
    testing::AssertionResult receives(const std::vector<std::string>& expected)
    {
        std::vector<std::string> lines;
        for (const auto& event : input_.delivered())
            note(event, lines);
        if (lines == expected)
            return testing::AssertionSuccess();
        return testing::AssertionFailure() << "arrived: " << testing::PrintToString(lines);
    }

private:
    static void note(const Event& event, std::vector<std::string>& lines)
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

/// The same with a record of the input in between.
class RecordedTappedSession : public SimulatedTappedSession {
public:
    EventTapping& tapping() { return recorded_; }
    EventPosting& posting() { return recorded_; }

private:
    RecordedInput recorded_{SimulatedTappedSession::tapping(), SimulatedTappedSession::posting()};
};

/// Played hardware on a real X server, with the form of `SimulatedTappedSession`.
class X11TappedSession {
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
    void holdControl()
    {
        play([&] { desktop_.keyboard.press(keycode::control); });
    }
    void dropControl()
    {
        play([&] { desktop_.keyboard.release(keycode::control); });
    }
    void switchTapsOff()
    {
        const XConnection server;
        const auto before = desktop_.stream.sessionCount();
        xcb_kill_client(server.get(), desktop_.stream.session()->handle());
        server.sync();
        EXPECT_TRUE(loopUntil([&] { return desktop_.stream.sessionCount() > before; }));
    }

    void settle() { desktop_.settle(); }
    testing::AssertionResult receives(const std::vector<std::string>& expected)
    {
        return desktop_.receives(expected);
    }

private:
    template <typename Play>
    void play(Play what)
    {
        what();
        settle();
    }

    TappedDesktop desktop_;
};

using TappedSessions
    = testing::Types<SimulatedTappedSession, RecordedTappedSession, X11TappedSession>;

} // namespace brindlex
