#include "eventtap/KeyCaps.h"

namespace brindlex {

std::vector<std::string> keyCaps(const HotkeyCombo& combo, const KeyNaming& naming)
{
    if (combo.keyCode < 0)
        return {};
    std::vector<std::string> caps;
    const auto addIfHeld = [&](ModifierSet modifier, const std::string& name) {
        if (combo.modifiers.contains(modifier))
            caps.push_back(name);
    };
    addIfHeld(ModifierSet::control, naming.modifiers.control);
    addIfHeld(ModifierSet::option, naming.modifiers.option);
    addIfHeld(ModifierSet::shift, naming.modifiers.shift);
    addIfHeld(ModifierSet::command, naming.modifiers.command);
    caps.push_back(keyName(combo.keyCode, naming.characters, naming.words));
    return caps;
}

} // namespace brindlex
