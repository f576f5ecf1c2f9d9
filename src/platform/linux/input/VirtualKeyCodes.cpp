#include "platform/linux/input/VirtualKeyCodes.h"

#include "platform/Event.h"
#include "platform/VirtualKey.h"

#include <array>
#include <linux/input-event-codes.h>

namespace brindlex {
namespace {

/// X counts a key as the kernel does, with this added.
constexpr int firstOfX = 8;

struct Place {
    std::uint8_t virtualKeyCode;
    /// As the kernel counts it.
    std::uint8_t key;
};

/// The virtual key codes are those of Carbon's HIToolbox/Events.h. A repeated one is a second place
/// for it.
constexpr std::array places{
    // Letters and what stands among them, row by row.
    Place{53, KEY_ESC},
    Place{18, KEY_1},
    Place{19, KEY_2},
    Place{20, KEY_3},
    Place{21, KEY_4},
    Place{23, KEY_5},
    Place{22, KEY_6},
    Place{26, KEY_7},
    Place{28, KEY_8},
    Place{25, KEY_9},
    Place{29, KEY_0},
    Place{27, KEY_MINUS},
    Place{24, KEY_EQUAL},
    Place{51, KEY_BACKSPACE},
    Place{48, KEY_TAB},
    Place{12, KEY_Q},
    Place{13, KEY_W},
    Place{14, KEY_E},
    Place{15, KEY_R},
    Place{17, KEY_T},
    Place{16, KEY_Y},
    Place{32, KEY_U},
    Place{34, KEY_I},
    Place{31, KEY_O},
    Place{35, KEY_P},
    Place{virtualKey::leftBracket, KEY_LEFTBRACE},
    Place{virtualKey::rightBracket, KEY_RIGHTBRACE},
    Place{36, KEY_ENTER},
    Place{virtualKey::a, KEY_A},
    Place{virtualKey::s, KEY_S},
    Place{2, KEY_D},
    Place{3, KEY_F},
    Place{5, KEY_G},
    Place{4, KEY_H},
    Place{38, KEY_J},
    Place{40, KEY_K},
    Place{37, KEY_L},
    Place{41, KEY_SEMICOLON},
    Place{39, KEY_APOSTROPHE},
    Place{50, KEY_GRAVE},
    Place{42, KEY_BACKSLASH},
    Place{6, KEY_Z},
    Place{7, KEY_X},
    Place{8, KEY_C},
    Place{9, KEY_V},
    Place{11, KEY_B},
    Place{45, KEY_N},
    Place{46, KEY_M},
    Place{43, KEY_COMMA},
    Place{47, KEY_DOT},
    Place{44, KEY_SLASH},
    Place{49, KEY_SPACE},
    Place{10, KEY_102ND},
    // Modifiers.
    Place{virtualKey::control, KEY_LEFTCTRL},
    Place{virtualKey::shift, KEY_LEFTSHIFT},
    Place{virtualKey::rightShift, KEY_RIGHTSHIFT},
    Place{virtualKey::option, KEY_LEFTALT},
    Place{virtualKey::capsLock, KEY_CAPSLOCK},
    Place{virtualKey::rightControl, KEY_RIGHTCTRL},
    Place{virtualKey::rightOption, KEY_RIGHTALT},
    Place{virtualKey::command, KEY_LEFTMETA},
    Place{virtualKey::rightCommand, KEY_RIGHTMETA},
    // Function keys. Print, Scroll Lock and Pause stand where a Mac has F13 to F15.
    Place{122, KEY_F1},
    Place{120, KEY_F2},
    Place{99, KEY_F3},
    Place{118, KEY_F4},
    Place{96, KEY_F5},
    Place{97, KEY_F6},
    Place{98, KEY_F7},
    Place{100, KEY_F8},
    Place{101, KEY_F9},
    Place{109, KEY_F10},
    Place{virtualKey::f11, KEY_F11},
    Place{111, KEY_F12},
    Place{105, KEY_SYSRQ},
    Place{107, KEY_SCROLLLOCK},
    Place{113, KEY_PAUSE},
    Place{105, KEY_F13},
    Place{107, KEY_F14},
    Place{113, KEY_F15},
    Place{106, KEY_F16},
    Place{64, KEY_F17},
    Place{79, KEY_F18},
    Place{80, KEY_F19},
    Place{90, KEY_F20},
    // The block above the arrows and the arrows. Insert stands where a Mac has Help.
    Place{114, KEY_INSERT},
    Place{114, KEY_HELP},
    Place{115, KEY_HOME},
    Place{116, KEY_PAGEUP},
    Place{117, KEY_DELETE},
    Place{119, KEY_END},
    Place{121, KEY_PAGEDOWN},
    Place{126, KEY_UP},
    Place{125, KEY_DOWN},
    Place{virtualKey::leftArrow, KEY_LEFT},
    Place{virtualKey::rightArrow, KEY_RIGHT},
    Place{110, KEY_COMPOSE},
    // The number block. Num Lock stands where a Mac has Clear.
    Place{71, KEY_NUMLOCK},
    Place{75, KEY_KPSLASH},
    Place{67, KEY_KPASTERISK},
    Place{78, KEY_KPMINUS},
    Place{69, KEY_KPPLUS},
    Place{76, KEY_KPENTER},
    Place{81, KEY_KPEQUAL},
    Place{65, KEY_KPDOT},
    Place{95, KEY_KPCOMMA},
    Place{82, KEY_KP0},
    Place{83, KEY_KP1},
    Place{84, KEY_KP2},
    Place{85, KEY_KP3},
    Place{86, KEY_KP4},
    Place{87, KEY_KP5},
    Place{88, KEY_KP6},
    Place{89, KEY_KP7},
    Place{91, KEY_KP8},
    Place{92, KEY_KP9},
    // Japanese keys.
    Place{93, KEY_YEN},
    Place{94, KEY_RO},
    Place{102, KEY_MUHENKAN},
    Place{104, KEY_HENKAN},
    // Sound.
    Place{72, KEY_VOLUMEUP},
    Place{73, KEY_VOLUMEDOWN},
    Place{74, KEY_MUTE},
};

constexpr std::int64_t firstOther = 0x100;

/// Every X number in the order of what it stands for, so that a span of it can be returned.
struct Keyboard {
    std::array<std::int64_t, 256> virtualKeyCodes{};
    std::array<std::array<std::uint8_t, 2>, 128> keycodes{};
    std::array<std::uint8_t, 128> counts{};
    std::array<std::uint8_t, 256> self{};

    constexpr Keyboard()
    {
        for (std::size_t keycode = 0; keycode < virtualKeyCodes.size(); ++keycode) {
            virtualKeyCodes[keycode] = firstOther + static_cast<std::int64_t>(keycode);
            self[keycode] = static_cast<std::uint8_t>(keycode);
        }
        for (const auto& place : places) {
            const auto keycode = static_cast<std::uint8_t>(place.key + firstOfX);
            virtualKeyCodes[keycode] = place.virtualKeyCode;
            keycodes[place.virtualKeyCode][counts[place.virtualKeyCode]++] = keycode;
        }
    }
};
constexpr Keyboard keyboard;

} // namespace

std::int64_t virtualKeyCode(std::uint8_t keycode) { return keyboard.virtualKeyCodes[keycode]; }

std::span<const std::uint8_t> keycodesOf(std::int64_t virtualKeyCode)
{
    if (virtualKeyCode >= 0 && virtualKeyCode < 128) {
        const auto index = static_cast<std::size_t>(virtualKeyCode);
        return std::span(keyboard.keycodes[index]).first(keyboard.counts[index]);
    }
    if (virtualKeyCode < firstOther || virtualKeyCode >= firstOther + 256)
        return {};
    const auto keycode = virtualKeyCode - firstOther;
    const bool isOther = keycode >= firstOfX
        && keyboard.virtualKeyCodes[static_cast<std::size_t>(keycode)] == virtualKeyCode;
    if (!isOther)
        return {};
    return std::span(keyboard.self).subspan(static_cast<std::size_t>(keycode), 1);
}

std::uint64_t modifierFlagOf(std::int64_t virtualKeyCode)
{
    switch (virtualKeyCode) {
    case virtualKey::rightCommand:
    case virtualKey::command:
        return eventFlag::command;
    case virtualKey::shift:
    case virtualKey::rightShift:
        return eventFlag::shift;
    case virtualKey::capsLock:
        return eventFlag::capsLock;
    case virtualKey::option:
    case virtualKey::rightOption:
        return eventFlag::option;
    case virtualKey::control:
    case virtualKey::rightControl:
        return eventFlag::control;
    default:
        return 0;
    }
}

} // namespace brindlex
