#pragma once

#include <cstdint>
#include <string>

namespace brindlex {

/// Gives the keyboard `to` the keymap and the selected layout of the keyboard `from`, both by their
/// numbers. About a millisecond, over a connection of its own; `name` is that of the X server,
/// empty for the one that `DISPLAY` names. False when that failed.
///
/// A keyboard that is taken from the applications is passed over when the user changes the layout,
/// and would bring the old one back.
bool copyKeyboardMap(const std::string& name, std::uint16_t from, std::uint16_t to);

} // namespace brindlex
