#pragma once

#include <cstdint>
#include <span>

namespace brindlex {

/// The number under which the program knows the key that X counts as `keycode`: the virtual key
/// code of the key in the same place of a Mac's keyboard, whatever the layout types with it.
///
/// A key that such a keyboard does not have, as those of media, has 0x100 and its X number, so that
/// every key of the board has a number.
std::int64_t virtualKeyCode(std::uint8_t keycode);

/// The keys that have the virtual key code, the one to be pressed for it first; none for a number
/// of no key. Two are the rule for the keys that stand above the arrows of a PC.
std::span<const std::uint8_t> keycodesOf(std::int64_t virtualKeyCode);

/// The modifier that the key holds, as a flag of an event; 0 for all other keys.
std::uint64_t modifierFlagOf(std::int64_t virtualKeyCode);

} // namespace brindlex
