#include "platform/linux/input/X11KeyEvent.h"

#include "platform/linux/input/VirtualKeyCodes.h"

#include <gtest/gtest.h>

#include <map>

namespace brindlex {
namespace {

using Key = X11InputEvent::Key;

constexpr Point place{200, 100};
constexpr std::uint16_t keyboardDevice = 12;

const std::map<std::uint8_t, std::uint64_t> flagsOfModifierKeys{{37, eventFlag::control},
    {105, eventFlag::control}, {50, eventFlag::shift}, {62, eventFlag::shift},
    {64, eventFlag::option}, {108, eventFlag::option}, {133, eventFlag::command},
    {134, eventFlag::command}, {66, eventFlag::capsLock}};

TEST(X11KeyEvent, isAPressOrAReleaseForEveryKeyButTheModifiers)
{
    for (int code = 0; code < 256; ++code) {
        const auto keycode = static_cast<std::uint8_t>(code);
        const bool isModifier = flagsOfModifierKeys.contains(keycode);
        EXPECT_EQ(eventTypeOf({keyboardDevice, keycode, true, false}),
            isModifier ? EventType::flagsChanged : EventType::keyDown)
            << code;
        EXPECT_EQ(eventTypeOf({keyboardDevice, keycode, false, false}),
            isModifier ? EventType::flagsChanged : EventType::keyUp)
            << code;
    }
}

TEST(X11KeyEvent, hasTheFlagsThatWereHeldBeforeIt)
{
    const std::uint64_t held = eventFlag::shift | eventFlag::capsLock;
    for (int code = 0; code < 256; ++code) {
        const auto keycode = static_cast<std::uint8_t>(code);
        if (flagsOfModifierKeys.contains(keycode))
            continue;
        const EventFields fields{{EventField::keyboardEventKeycode, virtualKeyCode(keycode)}};
        EXPECT_EQ(eventOf({keyboardDevice, keycode, true, false}, {place, held}),
            (Event{EventType::keyDown, place, held, fields}))
            << code;
        EXPECT_EQ(eventOf({keyboardDevice, keycode, false, false}, {place, held}),
            (Event{EventType::keyUp, place, held, fields}))
            << code;
    }
}

TEST(X11KeyEvent, countsAModifierFromItsOwnEventOn)
{
    const std::uint64_t all = eventFlag::modifiers | eventFlag::capsLock;
    for (const auto& [keycode, flag] : flagsOfModifierKeys) {
        if (flag == eventFlag::capsLock)
            continue;
        const EventFields fields{{EventField::keyboardEventKeycode, virtualKeyCode(keycode)}};
        const auto press = eventOf({keyboardDevice, keycode, true, false}, {place, 0});
        EXPECT_EQ(press, (Event{EventType::flagsChanged, place, flag, fields})) << int{keycode};
        const auto release = eventOf({keyboardDevice, keycode, false, false}, {place, all});
        EXPECT_EQ(release, (Event{EventType::flagsChanged, place, all & ~flag, fields}))
            << int{keycode};
        // The second of two presses, and a release of what is not held.
        EXPECT_EQ(eventOf({keyboardDevice, keycode, true, false}, {place, all}).flags, all);
        EXPECT_EQ(eventOf({keyboardDevice, keycode, false, false}, {place, 0}).flags, 0U);
    }
}

TEST(X11KeyEvent, leavesCapsLockToTheServerWhichSwitchesIt)
{
    constexpr std::uint8_t capsLock = 66;
    for (const bool isPress : {true, false})
        for (const std::uint64_t flags : {std::uint64_t{0}, eventFlag::capsLock})
            EXPECT_EQ(eventOf({keyboardDevice, capsLock, isPress, false}, {place, flags}),
                (Event{EventType::flagsChanged, place, flags,
                    {{EventField::keyboardEventKeycode, 57}}}));
}

TEST(X11KeyEvent, saysThatItIsARepeat)
{
    const EventFields fields{
        {EventField::keyboardEventKeycode, 0}, {EventField::keyboardEventAutorepeat, 1}};
    EXPECT_EQ(eventOf({keyboardDevice, 38, true, true}, {place, eventFlag::option}),
        (Event{EventType::keyDown, place, eventFlag::option, fields}));
}

} // namespace
} // namespace brindlex
