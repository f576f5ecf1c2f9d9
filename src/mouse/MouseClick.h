#pragma once

#include "mouse/MouseClickConfig.h"
#include "platform/Event.h"
#include "platform/EventInterest.h"
#include "platform/EventTap.h"

#include <bitset>
#include <optional>

namespace brindlex {

/// The buttons whose down was swallowed and whose up is still to come, by number.
struct MouseClickState {
    std::bitset<5> swallowedDownButtons{};

    bool operator==(const MouseClickState&) const = default;
};

/// What becomes of an event, and the action that it performs, if it performs one.
struct MouseClickOutcome {
    EventVerdict verdict = EventVerdict::pass;
    std::optional<MouseAction::Any> action{};

    bool operator==(const MouseClickOutcome&) const = default;
};

/// The presses and releases of the middle and the side buttons: the only events in which click
/// bindings take an interest.
inline constexpr EventMask mouseClickEventMask
    = eventMask(EventType::otherMouseDown, EventType::otherMouseUp);

/// Decides on one event.
///
/// A press with a binding performs its action and is hidden from the application, as is its
/// release. A replayed press, which a gesture has given back, performs the action once more and
/// goes on. Whether clicks are enabled plays no part.
MouseClickOutcome reduceMouseClick(
    const Event& event, MouseClickState& state, const MouseClickConfig& config);

/// The presses that the bindings are about.
EventTriggers eventTriggers(const MouseClickConfig& config);

} // namespace brindlex
