#pragma once

#include "platform/linux/input/WheelTicks.h"
#include "platform/simulated/RecordedInput.h"

#include <cstdint>
#include <map>
#include <string>
#include <utility>
#include <vector>

namespace brindlex {

/// What a window of X has to receive, in the lines of `EventLogWindow`, but for the modifier keys.
class ExpectedArrivals {
public:
    /// A button of one of the mice, with modifiers held; a release goes where its press went.
    void press(int mouse, std::int64_t button, std::uint64_t flags, EventVerdict verdict);
    void release(int mouse, std::int64_t button, std::uint64_t flags);

    /// Lines of a wheel that the taps have let pass, positive up and to the left.
    void turnWheel(std::int64_t vertical, std::int64_t horizontal, std::uint64_t flags);

    /// An event that was posted at the time.
    void post(const RecordedInput::Posted& posted, std::uint64_t heldFlags, Seconds now);

    /// All so far; begins afresh.
    std::vector<std::string> take() { return std::exchange(lines_, {}); }

private:
    void postEvent(const SyntheticEvent& event, std::uint64_t heldFlags);
    void postKey(const SyntheticEvent& event, std::uint64_t flags);
    void postScroll(const SyntheticEvent& event, std::uint64_t flags);
    void turnPosted(int up, int left, std::uint64_t flags);

    std::vector<std::string> lines_;
    std::map<std::pair<int, std::int64_t>, bool> pressesThatArrived_;
    WheelTicks vertical_;
    WheelTicks horizontal_;
    std::uint64_t scrollFlags_ = 0;
};

} // namespace brindlex
