#pragma once

#include "platform/SyntheticEvent.h"

#include <cstdint>
#include <optional>

namespace brindlex {

/// Where a swipe between desktop spaces stands.
enum class DockSwipePhase : std::int64_t { began = 1, changed = 2, ended = 4 };

/// The event of a swipe with three fingers that the dock process of macOS acts on. `progress` is
/// how far the swipe has come, in screens: positive to the right, negative to the left.
///
/// The numbers of the fields are declared nowhere; they are what a trackpad sends.
SyntheticEvent dockSwipeEvent(DockSwipePhase phase, double progress);

/// The form in which the event carries its progress.
std::int64_t encodedDockProgress(double progress);

/// Reads from the events of a swipe where it goes, for systems that switch spaces by a call of
/// their own.
class DockSwipeReader {
public:
    enum class Direction { left, right };

    /// The direction, once for each swipe: with the first event that has gone anywhere.
    std::optional<Direction> read(const SyntheticEvent& event);

private:
    bool hasReturned_ = false;
};

} // namespace brindlex
