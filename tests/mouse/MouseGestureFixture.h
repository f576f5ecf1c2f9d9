#pragma once

#include "mouse/MouseGesture.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <string>
#include <utility>
#include <vector>

namespace brindlex {

/// The gestures after their last event, with bindings, a time and the verdict about resizing as a
/// test sets them.
struct MouseGestureTest : testing::Test {
    using Effect = MouseGestureEffect::Any;
    using Outcome = MouseGestureOutcome;

    static constexpr auto pass = EventVerdict::pass;
    static constexpr auto swallow = EventVerdict::swallow;

    static Effect info(const std::string& text)
    {
        return MouseGestureEffect::LogInfo{"MouseGesture: " + text};
    }
    static Effect perform(MouseAction::Any action)
    {
        return MouseGestureEffect::Perform{std::move(action)};
    }
    static Effect replay(MouseButton button, Point point)
    {
        return MouseGestureEffect::ReplayClick{button, point};
    }

    /// What a press, a release and a drag of a button are, in this order.
    struct Types {
        EventType down, up, drag;
    };
    static Types typesOf(std::int64_t button)
    {
        return {mouseDownType(button), mouseUpType(button), mouseDraggedType(button)};
    }

    void bind(MouseButton button, ModifierSet modifiers, MouseDirection direction,
        MouseAction::Any action)
    {
        config.bindings.push_back({{}, button, modifiers, direction, std::move(action)});
    }

    Outcome step(EventType type, std::int64_t button, Point point, std::uint64_t flags = 0,
        std::int64_t tag = 0)
    {
        const Event event{type, point, flags,
            {{EventField::mouseEventButtonNumber, button}, {EventField::eventSourceUserData, tag}}};
        return reduceMouseGesture(event, state, config, now, unitsPerPoint, [this](Point asked) {
            asks.push_back(asked);
            return decision;
        });
    }
    Outcome down(std::int64_t button, Point point = {100, 100}, std::uint64_t flags = 0)
    {
        return step(typesOf(button).down, button, point, flags);
    }
    Outcome up(std::int64_t button, Point point = {100, 100}, std::uint64_t flags = 0)
    {
        return step(typesOf(button).up, button, point, flags);
    }
    Outcome drag(std::int64_t button, Point point, std::uint64_t flags = 0)
    {
        return step(typesOf(button).drag, button, point, flags);
    }

    MouseGestureConfig config;
    MouseGestureState state;
    Date now{1000};
    double unitsPerPoint = 1;
    MouseResizeDragDecision decision{false, "none", {100, 100}, "C", "A", false};
    std::vector<Point> asks;
};

} // namespace brindlex
