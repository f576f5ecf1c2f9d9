#pragma once

#include "eventtap/HotkeyCombo.h"
#include "eventtap/KeyName.h"

#include <string>
#include <vector>

namespace brindlex {

/// What stands on the keys that hold the modifiers.
struct ModifierNames {
    std::string control{};
    std::string option{};
    std::string shift{};
    std::string command{};

    bool operator==(const ModifierNames&) const = default;
};

/// How people know the keys of their keyboard.
struct KeyNaming {
    ModifierNames modifiers{};
    KeyCharacters characters{};
    KeyWords words{};
};

/// The names of the keys to be held and pressed, one for each: control, option, shift, command,
/// the key. None for a negative code, which is no key.
std::vector<std::string> keyCaps(const HotkeyCombo& combo, const KeyNaming& naming);

} // namespace brindlex
