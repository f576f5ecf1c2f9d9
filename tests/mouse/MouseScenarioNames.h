#pragma once

#include "mouse/MouseButton.h"
#include "platform/Event.h"

#include <array>
#include <utility>

namespace brindlex {

/// The names of modifiers in scenarios, in the order in which they are written.
inline constexpr std::array scenarioModifiers{
    std::pair{"control", eventFlag::control},
    std::pair{"option", eventFlag::option},
    std::pair{"shift", eventFlag::shift},
    std::pair{"command", eventFlag::command},
    std::pair{"capslock", eventFlag::capsLock},
};

inline constexpr std::array scenarioButtons{
    std::pair{"left", MouseButton::left},
    std::pair{"right", MouseButton::right},
    std::pair{"button3", MouseButton::button3},
    std::pair{"button4", MouseButton::button4},
    std::pair{"button5", MouseButton::button5},
};

} // namespace brindlex
