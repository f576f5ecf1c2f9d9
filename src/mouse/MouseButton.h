#pragma once

#include "foundation/JsonEnumeration.h"

#include <cstdint>
#include <string_view>

namespace brindlex {

/// A button that can carry a binding. Its stored value is the button number of an event.
enum class MouseButton { left, right, button3, button4, button5 };

constexpr auto storedValues(std::type_identity<MouseButton>)
{
    return std::array{
        std::pair{MouseButton::left, std::int64_t{0}},
        std::pair{MouseButton::right, std::int64_t{1}},
        std::pair{MouseButton::button3, std::int64_t{2}},
        std::pair{MouseButton::button4, std::int64_t{3}},
        std::pair{MouseButton::button5, std::int64_t{4}},
    };
}

/// The button with the number; nothing for a number beyond the five.
constexpr std::optional<MouseButton> mouseButtonWithNumber(std::int64_t number)
{
    return caseWithStoredValue<MouseButton>(number);
}

constexpr std::string_view logLabel(MouseButton button)
{
    switch (button) {
    case MouseButton::left:
        return "Left Button";
    case MouseButton::right:
        return "Right Button";
    case MouseButton::button3:
        return "Middle Button (3)";
    case MouseButton::button4:
        return "Side Back (4)";
    case MouseButton::button5:
        break;
    }
    return "Side Forward (5)";
}

/// The key of the button's name in the string catalogue.
constexpr std::string_view labelKey(MouseButton button)
{
    switch (button) {
    case MouseButton::left:
        return "mouse.button.left";
    case MouseButton::right:
        return "mouse.button.right";
    case MouseButton::button3:
        return "mouse.button.middle";
    case MouseButton::button4:
        return "mouse.button.sideBack";
    case MouseButton::button5:
        break;
    }
    return "mouse.button.sideForward";
}

} // namespace brindlex
