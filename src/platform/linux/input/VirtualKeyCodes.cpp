#include "platform/linux/input/VirtualKeyCodes.h"

#include "platform/Event.h"

#include <array>

namespace brindlex {
namespace {

struct Place {
    std::uint8_t virtualKeyCode;
    std::uint8_t keycode;
};

/// X counts a key as the kernel does, 8 added (linux/input-event-codes.h); the virtual key codes
/// are those of Carbon's HIToolbox/Events.h. A repeated virtual key code is a second place for it.
constexpr std::array places{
    // Letters and what stands among them, row by row.
    Place{53, 9},
    Place{18, 10},
    Place{19, 11},
    Place{20, 12},
    Place{21, 13},
    Place{23, 14},
    Place{22, 15},
    Place{26, 16},
    Place{28, 17},
    Place{25, 18},
    Place{29, 19},
    Place{27, 20},
    Place{24, 21},
    Place{51, 22},
    Place{48, 23},
    Place{12, 24},
    Place{13, 25},
    Place{14, 26},
    Place{15, 27},
    Place{17, 28},
    Place{16, 29},
    Place{32, 30},
    Place{34, 31},
    Place{31, 32},
    Place{35, 33},
    Place{33, 34},
    Place{30, 35},
    Place{36, 36},
    Place{0, 38},
    Place{1, 39},
    Place{2, 40},
    Place{3, 41},
    Place{5, 42},
    Place{4, 43},
    Place{38, 44},
    Place{40, 45},
    Place{37, 46},
    Place{41, 47},
    Place{39, 48},
    Place{50, 49},
    Place{42, 51},
    Place{6, 52},
    Place{7, 53},
    Place{8, 54},
    Place{9, 55},
    Place{11, 56},
    Place{45, 57},
    Place{46, 58},
    Place{43, 59},
    Place{47, 60},
    Place{44, 61},
    Place{49, 65},
    Place{10, 94},
    // Modifiers.
    Place{59, 37},
    Place{56, 50},
    Place{60, 62},
    Place{58, 64},
    Place{57, 66},
    Place{62, 105},
    Place{61, 108},
    Place{55, 133},
    Place{54, 134},
    // Function keys. Print, Scroll Lock and Pause stand where a Mac has F13 to F15.
    Place{122, 67},
    Place{120, 68},
    Place{99, 69},
    Place{118, 70},
    Place{96, 71},
    Place{97, 72},
    Place{98, 73},
    Place{100, 74},
    Place{101, 75},
    Place{109, 76},
    Place{103, 95},
    Place{111, 96},
    Place{105, 107},
    Place{107, 78},
    Place{113, 127},
    Place{105, 191},
    Place{107, 192},
    Place{113, 193},
    Place{106, 194},
    Place{64, 195},
    Place{79, 196},
    Place{80, 197},
    Place{90, 198},
    // The block above the arrows and the arrows. Insert stands where a Mac has Help.
    Place{114, 118},
    Place{114, 146},
    Place{115, 110},
    Place{116, 112},
    Place{117, 119},
    Place{119, 115},
    Place{121, 117},
    Place{126, 111},
    Place{125, 116},
    Place{123, 113},
    Place{124, 114},
    Place{110, 135},
    // The number block. Num Lock stands where a Mac has Clear.
    Place{71, 77},
    Place{75, 106},
    Place{67, 63},
    Place{78, 82},
    Place{69, 86},
    Place{76, 104},
    Place{81, 125},
    Place{65, 91},
    Place{95, 129},
    Place{82, 90},
    Place{83, 87},
    Place{84, 88},
    Place{85, 89},
    Place{86, 83},
    Place{87, 84},
    Place{88, 85},
    Place{89, 79},
    Place{91, 80},
    Place{92, 81},
    // Japanese keys.
    Place{93, 132},
    Place{94, 97},
    Place{102, 102},
    Place{104, 100},
    // Sound.
    Place{72, 123},
    Place{73, 122},
    Place{74, 121},
};

constexpr std::int64_t firstOther = 0x100;

/// Every X number in the order of what it stands for, so that a span of it answers.
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
            virtualKeyCodes[place.keycode] = place.virtualKeyCode;
            keycodes[place.virtualKeyCode][counts[place.virtualKeyCode]++] = place.keycode;
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
    const bool isOther = keycode >= 8
        && keyboard.virtualKeyCodes[static_cast<std::size_t>(keycode)] == virtualKeyCode;
    if (!isOther)
        return {};
    return std::span(keyboard.self).subspan(static_cast<std::size_t>(keycode), 1);
}

std::uint64_t modifierFlagOf(std::int64_t virtualKeyCode)
{
    switch (virtualKeyCode) {
    case 54:
    case 55:
        return eventFlag::command;
    case 56:
    case 60:
        return eventFlag::shift;
    case 57:
        return eventFlag::capsLock;
    case 58:
    case 61:
        return eventFlag::option;
    case 59:
    case 62:
        return eventFlag::control;
    default:
        return 0;
    }
}

} // namespace brindlex
