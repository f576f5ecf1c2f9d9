#pragma once

#include <array>
#include <bitset>
#include <cstdint>
#include <vector>

namespace brindlex {

/// What holds the modifiers of an X keyboard at a moment.
struct ModifierState {
    /// For each of the eight modifiers, the lowest bit first, the keys that hold it; 0 is no key.
    std::array<std::vector<std::uint8_t>, 8> keysOf{};
    /// The keys that are down.
    std::bitset<256> keysDown{};
    /// The modifiers that are in force, as flags of an event.
    std::uint64_t flags = 0;

    bool operator==(const ModifierState&) const = default;
};

/// What has to be played so that exactly some modifiers are held.
///
///     down, not wanted ──▶ release each key that holds it
///     up, wanted       ──▶ press the first key that holds it
///     Caps Lock on, not wanted ──▶ switch it off; it is never switched on
///
/// The modifiers that are held are Shift, Control, Alt and Super. Num Lock and what a layout has
/// besides are left as they are.
struct ModifierChange {
    /// In the order in which to play them.
    std::vector<std::uint8_t> releases{};
    std::vector<std::uint8_t> presses{};
    bool switchesCapsLockOff = false;

    bool operator==(const ModifierChange&) const = default;
};

/// `flags` are the wanted modifiers, as flags of an event.
ModifierChange changeToHold(std::uint64_t flags, const ModifierState& state);

} // namespace brindlex
