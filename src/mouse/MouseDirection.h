#pragma once

#include "foundation/JsonEnumeration.h"

#include <string_view>

namespace brindlex {

/// Where a drag goes on the screen.
enum class MouseDirection { up, down, left, right };

constexpr auto storedValues(std::type_identity<MouseDirection>)
{
    return std::array{
        std::pair{MouseDirection::up, "up"},
        std::pair{MouseDirection::down, "down"},
        std::pair{MouseDirection::left, "left"},
        std::pair{MouseDirection::right, "right"},
    };
}

constexpr std::string_view logLabel(MouseDirection direction)
{
    switch (direction) {
    case MouseDirection::up:
        return "Up";
    case MouseDirection::down:
        return "Down";
    case MouseDirection::left:
        return "Left";
    case MouseDirection::right:
        break;
    }
    return "Right";
}

/// The key of the direction's name in the string catalogue.
constexpr std::string_view labelKey(MouseDirection direction)
{
    switch (direction) {
    case MouseDirection::up:
        return "mouse.direction.up";
    case MouseDirection::down:
        return "mouse.direction.down";
    case MouseDirection::left:
        return "mouse.direction.left";
    case MouseDirection::right:
        break;
    }
    return "mouse.direction.right";
}

} // namespace brindlex
