#pragma once

#include "eventtap/HotkeyCombo.h"

#include <cstdint>
#include <functional>
#include <map>
#include <string>
#include <string_view>

namespace brindlex {

/// What a key writes without modifiers in the layout that is selected now, by its virtual key code;
/// empty for one that writes nothing.
using KeyCharacters = std::function<std::string(std::int64_t keyCode)>;

/// What keys are called that write no letter, in the language of a reader.
struct KeyWords {
    /// By their names in English, such as "Left"; one that is missing has its name in English.
    std::map<std::string_view, std::string> names{};
    /// What a key is called that has neither a name nor writes anything.
    std::function<std::string(std::int64_t keyCode)> ofNumber{};
};

/// The name of a key for people: "Return", "F5", what it writes in upper case, else "Key 200"; in
/// English, as the log has it, without words.
std::string keyName(
    std::int64_t keyCode, const KeyCharacters& characters, const KeyWords& words = {});

/// The modifiers and the key, "Option Shift A"; the key alone where there are no modifiers.
std::string comboText(const HotkeyCombo& combo, const KeyCharacters& characters);

} // namespace brindlex
