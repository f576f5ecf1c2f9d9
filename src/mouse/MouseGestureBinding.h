#pragma once

#include "eventtap/ModifierSet.h"
#include "foundation/JsonForm.h"
#include "foundation/Uuid.h"
#include "mouse/MouseAction.h"
#include "mouse/MouseButton.h"
#include "mouse/MouseDirection.h"

namespace brindlex {

/// A drag in a direction, with a button held and exactly these modifiers, performs the action.
struct MouseGestureBinding {
    Uuid id{};
    MouseButton button = MouseButton::left;
    ModifierSet modifiers{};
    MouseDirection direction = MouseDirection::up;
    MouseAction::Any action{};

    bool operator==(const MouseGestureBinding&) const = default;

    static constexpr auto jsonForm()
    {
        return std::tuple{
            required("id", &MouseGestureBinding::id),
            required("button", &MouseGestureBinding::button),
            required("modifiers", &MouseGestureBinding::modifiers),
            required("direction", &MouseGestureBinding::direction),
            required("action", &MouseGestureBinding::action),
        };
    }
};

} // namespace brindlex
