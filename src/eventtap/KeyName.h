#pragma once

#include "eventtap/HotkeyCombo.h"

#include <cstdint>
#include <functional>
#include <string>

namespace brindlex {

/// What a key writes without modifiers in the layout that is selected now, by its virtual key code;
/// empty for one that writes nothing.
using KeyCharacters = std::function<std::string(std::int64_t keyCode)>;

/// The name of a key for people: "Return", "F5", what it writes in upper case, else "Key 200".
std::string keyName(std::int64_t keyCode, const KeyCharacters& characters);

/// The modifiers and the key, "Option Shift A"; the key alone where there are no modifiers.
std::string comboText(const HotkeyCombo& combo, const KeyCharacters& characters);

} // namespace brindlex
