#pragma once

#include "platform/EventInterest.h"

#include <set>
#include <span>
#include <utility>

namespace brindlex {

/// What has to be taken away from the applications for all interests to be met: as little as will
/// do, since what is taken has to be put back.
struct TapDemand {
    /// A button or key by the system's own numbers, and the modifiers, as flags of an event, with
    /// which it is wanted; absent: any.
    using Trigger = std::pair<std::uint8_t, std::optional<std::uint64_t>>;

    /// Every mouse, all the time.
    bool takesMice = false;
    /// Every keyboard, all the time.
    bool takesKeyboards = false;
    /// A mouse from the press of one of these until all of its buttons are up. Empty when all mice
    /// are taken; in the same way for the keys.
    std::set<Trigger> buttons{};
    std::set<Trigger> keys{};

    bool isNothing() const
    {
        return !takesMice && !takesKeyboards && buttons.empty() && keys.empty();
    }

    bool operator==(const TapDemand&) const = default;
};

TapDemand demandOf(std::span<const EventInterest> interests);

} // namespace brindlex
