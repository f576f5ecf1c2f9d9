#pragma once

#include "mouse/MouseScroll.h"

#include <cstdint>
#include <optional>

namespace brindlex {

/// Below this many pixels a remainder or a step is nothing.
inline constexpr double scrollStopThreshold = 0.5;

/// A smooth motion on its way: an exponential approach to where the wheel has asked to go.
struct ScrollMotion {
    double remainingY = 0;
    double remainingX = 0;
    /// The time of the frame before; 0 before the first.
    Seconds lastTimestamp = 0;
    /// Those of the newest notch, for every event of the motion.
    std::uint64_t pendingFlags = 0;

    /// Adds to what remains; a reversal drops what was left first.
    void add(std::uint64_t flags, ScrollDistance change);

    /// What one frame does.
    struct Frame {
        /// The step to post; absent when it is too small, and lost then.
        std::optional<ScrollDistance> step{};
        /// Whether so little remains that no further frame is worth it.
        bool isDrained = false;

        bool operator==(const Frame&) const = default;
    };

    /// Takes the share of one frame, at the time `now`, off what remains.
    Frame advance(Seconds now, Seconds smoothDuration);

    bool operator==(const ScrollMotion&) const = default;
};

} // namespace brindlex
