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
        /// To be done by the window manager, with the press.
        showDesktop,
    };

    Meaning meaning{};
    std::int64_t keyCode = 0;
    std::uint64_t flags = 0;

    bool operator==(const SystemKeystroke&) const = default;
};

/// Back and forward, command with a bracket on a Mac, are Alt with an arrow here; F11 alone shows
/// the desktop. `flags` are those of the keystroke.
SystemKeystroke systemKeystroke(std::int64_t keyCode, std::uint64_t flags);

} // namespace brindlex
