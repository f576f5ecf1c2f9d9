#pragma once

#include "platform/SyntheticEvent.h"

#include <cstdint>

namespace brindlex {

/// What a keystroke of the program is on this system.
///
/// A few keystrokes are not meant for the key but for what a Mac does with them; applications here
/// expect others for the same. Only exactly these, with exactly these flags, are exchanged.
struct SystemKeystroke {
    enum class Meaning {
        /// A key like any other.
        key,
        /// A button of the mouse.
        button,
        /// To be done by the window manager, with the press.
        showDesktop,
    };

    Meaning meaning{};
    /// The key code, or the button's number as events count them.
    std::int64_t number = 0;
    std::uint64_t flags = 0;

    bool operator==(const SystemKeystroke&) const = default;
};

/// Back and forward, command with a bracket on a Mac, are the side buttons of a mouse here; F11
/// alone shows the desktop. `flags` are those of the keystroke.
SystemKeystroke systemKeystroke(std::int64_t keyCode, std::uint64_t flags);

} // namespace brindlex
