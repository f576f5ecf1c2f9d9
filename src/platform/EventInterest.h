#pragma once

#include "platform/Event.h"

#include <cstdint>
#include <optional>
#include <vector>

namespace brindlex {

/// The events on which a subscriber acts, where these are fewer than those of its mask.
///
/// It guarantees to draw nothing from any other event of its mask and to leave it what it is, so
/// that a system which has to take whole devices away from the applications can leave alone what
/// nobody acts on. A subscriber must be ready for the others all the same: only its mask is sure to
/// keep them away.
struct EventTriggers {
    /// A press, and what the same device sends until the release.
    struct Button {
        std::int64_t number = 0;
        /// These of the four modifiers and no other; absent: any.
        std::optional<std::uint64_t> modifierFlags{};

        bool operator==(const Button&) const = default;
    };
    struct Key {
        std::int64_t keyCode = 0;
        /// These of the four modifiers and no other.
        std::uint64_t modifierFlags = 0;

        bool operator==(const Key&) const = default;
    };

    std::vector<Button> buttons{};
    std::vector<Key> keys{};
    bool wheel = false;

    bool operator==(const EventTriggers&) const = default;
};

/// What one subscriber wants of the input.
struct EventInterest {
    EventMask mask = 0;
    /// Absent: every event of the mask.
    std::optional<EventTriggers> triggers{};

    bool operator==(const EventInterest&) const = default;
};

/// Whether an interest begins with the event: a press of a button or key, or a notch of the wheel,
/// that somebody acts on. What follows a press until its release belongs to the press.
bool isTrigger(const Event& event, const EventInterest& interest);

} // namespace brindlex
