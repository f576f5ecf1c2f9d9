#pragma once

#include "eventtap/ModifierSet.h"
#include "foundation/JsonForm.h"
#include "foundation/Uuid.h"
#include "mouse/MouseAction.h"
#include "mouse/MouseButton.h"

namespace brindlex {

/// A press of a button with exactly these modifiers performs the action.
struct MouseClickBinding {
    Uuid id{};
    MouseButton button = MouseButton::left;
    ModifierSet modifiers{};
    MouseAction::Any action{};

    bool operator==(const MouseClickBinding&) const = default;

    static constexpr auto jsonForm()
    {
        return std::tuple{
            required("id", &MouseClickBinding::id),
            required("button", &MouseClickBinding::button),
            required("modifiers", &MouseClickBinding::modifiers),
            required("action", &MouseClickBinding::action),
        };
    }
};

} // namespace brindlex
