#pragma once

#include "foundation/Cases.h"
#include "mouse/MouseAction.h"

#include <cstdint>
#include <filesystem>
#include <string>
#include <string_view>
#include <vector>

namespace brindlex {

/// What an action does to the world outside.
struct MouseActionEffect {
    struct OpenApplication {
        std::filesystem::path path{};
        bool operator==(const OpenApplication&) const = default;
    };
    struct PostKeystroke {
        std::uint16_t keyCode = 0;
        /// Exactly these flags, whatever is held.
        std::uint64_t flags = 0;
        bool operator==(const PostKeystroke&) const = default;
    };
    struct SwitchSpace {
        bool right = false;
        bool operator==(const SwitchSpace&) const = default;
    };
    struct LaunchProcess {
        std::filesystem::path executable{};
        std::vector<std::string> arguments{};
        bool operator==(const LaunchProcess&) const = default;
    };

    using Any = Cases<OpenApplication, PostKeystroke, SwitchSpace, LaunchProcess>;
};

/// The action's name in the log.
std::string_view logLabel(const MouseAction::Any& action);

/// A keystroke whose key code does not fit into 16 bits without a sign is a fatal error.
MouseActionEffect::Any effectOf(const MouseAction::Any& action);

} // namespace brindlex
