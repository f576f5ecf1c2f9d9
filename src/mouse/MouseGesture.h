#pragma once

#include "foundation/Cases.h"
#include "foundation/Date.h"
#include "mouse/MouseGestureConfig.h"
#include "mouse/MouseGestureDragState.h"
#include "mouse/MouseResizeDragDecision.h"
#include "platform/Event.h"
#include "platform/EventInterest.h"
#include "platform/EventTap.h"
#include "platform/SyntheticEvent.h"

#include <array>
#include <functional>
#include <optional>
#include <string>
#include <vector>

namespace brindlex {

/// The presses that are in the hands of the gestures, by button.
struct MouseGestureState {
    std::array<std::optional<MouseGestureDragState>, 5> pending{};

    std::optional<MouseGestureDragState>& operator[](MouseButton button)
    {
        return pending[static_cast<std::size_t>(button)];
    }

    bool operator==(const MouseGestureState&) const = default;
};

/// What the gestures ask for, to be done in list order.
struct MouseGestureEffect {
    struct LogInfo {
        std::string message{};
        bool operator==(const LogInfo&) const = default;
    };
    struct Perform {
        MouseAction::Any action{};
        bool operator==(const Perform&) const = default;
    };
    struct ReplayClick {
        MouseButton button = MouseButton::left;
        Point point{};
        bool operator==(const ReplayClick&) const = default;
    };

    using Any = Cases<LogInfo, Perform, ReplayClick>;
};

/// What becomes of an event, and what it brings about.
struct MouseGestureOutcome {
    EventVerdict verdict = EventVerdict::pass;
    std::vector<MouseGestureEffect::Any> effects{};

    bool operator==(const MouseGestureOutcome&) const = default;
};

/// After this time, in seconds, a press counts as lost, its up having gone astray.
inline constexpr Seconds pendingTimeout = 2.0;

/// How far, in points, a press of the right button may wander and still be a click.
inline constexpr double rightClickReplayLimit = 6.0;

/// Advances the gestures by one event.
///
///     none ──down with a binding──▶ tracking ──threshold reached──▶ resolved
///      ▲                               │                               │
///      ├──────up, click replayed───────┘                               │
///      ├──────up, swallowed────────────────────────────────────────────┘
///      └──────time-out, the rest of the press passes (from either)
///
/// `unitsPerPoint` is the size of a point in the coordinates of the event. `decide` reports whether
/// a press of the left button is about to resize something; it is called only once a binding of
/// that button has matched.
MouseGestureOutcome reduceMouseGesture(const Event& event, MouseGestureState& state,
    const MouseGestureConfig& config, Date now, double unitsPerPoint,
    const std::function<MouseResizeDragDecision(Point)>& decide);

/// The types of event that the bindings need; 0 when they need none.
EventMask eventMask(bool enabled, const std::vector<MouseGestureBinding>& bindings);

/// The presses that the bindings are about, each once, in the order of the bindings.
EventTriggers eventTriggers(const MouseGestureConfig& config);

/// The down and the up of a click that is given back to the application under the cursor.
std::array<SyntheticEvent, 2> replayedClick(MouseButton button, Point point);

} // namespace brindlex
