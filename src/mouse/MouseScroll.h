#pragma once

#include "mouse/MouseScrollAccelerationCalculator.h"
#include "mouse/MouseScrollConfig.h"
#include "platform/Event.h"
#include "platform/EventInterest.h"
#include "platform/ScrollDistance.h"
#include "platform/SyntheticEvent.h"

#include <optional>
#include <string>
#include <vector>

namespace brindlex {

/// The only events in which the scrolling takes an interest.
inline constexpr EventMask mouseScrollEventMask = eventMask(EventType::scrollWheel);

/// What a notch of a wheel becomes; nothing for an event that is to be left alone: one of our own,
/// one of a trackpad, and any while one of the configuration's applications is in front.
std::optional<ScrollDistance> reduceMouseScroll(const Event& event,
    MouseScrollAccelerationCalculator& calculator, const MouseScrollConfig& config,
    const std::optional<std::string>& frontmostBundleID, Seconds now);

/// Whether the event is a notch of a wheel and not one of our own.
bool isWheelNotch(const Event& event);

/// The event that scrolls by the distance, rounded to whole pixels. A distance of more than 32 bits
/// is a fatal error.
SyntheticEvent scrollEvent(std::uint64_t flags, ScrollDistance distance);

/// The wheel, unless the configuration leaves a notch what it is: ten pixels for a line. Shift is
/// then left to the applications, which turn the wheel sideways by themselves.
EventTriggers eventTriggers(const MouseScrollConfig& config);

/// What the log says of numbers beyond those that a user can choose, a line each. They hold
/// nevertheless: a wheel that does not scroll, or scrolls for ever, has its reason there.
std::vector<std::string> unusualNumbers(const MouseScrollConfig& config);

} // namespace brindlex
