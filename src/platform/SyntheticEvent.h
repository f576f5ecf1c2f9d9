#pragma once

#include "platform/Event.h"

#include <optional>

namespace brindlex {

/// An event to be put into the stream of input.
struct SyntheticEvent {
    EventType type{};
    /// Absent: where the cursor is.
    std::optional<Point> location{};
    /// Exactly these, whatever is held; absent: what is held at that moment.
    std::optional<std::uint64_t> flags{};
    EventFields fields{};

    /// The event as it is seen once it is in the stream.
    Event asPosted(Point cursor, std::uint64_t heldFlags) const
    {
        return {type, location.value_or(cursor), flags.value_or(heldFlags), fields};
    }

    bool operator==(const SyntheticEvent&) const = default;
};

} // namespace brindlex
