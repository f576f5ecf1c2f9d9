#pragma once

#include "support/screen/XConnection.h"

#include <chrono>
#include <optional>

namespace brindlex {

/// The application of a measurement: a window over the whole screen that has the keys and the
/// cursor and takes the time at which an event comes.
class TargetWindow {
public:
    using Clock = std::chrono::steady_clock;

    TargetWindow();

    /// Drops what has come so far.
    void forget() const;

    /// When the next event of the core type came; nothing when none did before the deadline.
    std::optional<Clock::time_point> next(std::uint8_t type, Clock::time_point deadline) const;
    std::optional<Clock::time_point> next(std::uint8_t type) const;

private:
    XConnection server_;
    xcb_window_t window_;
};

} // namespace brindlex
