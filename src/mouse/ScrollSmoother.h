#pragma once

#include "mouse/FrameDriver.h"
#include "mouse/ScrollMotion.h"

#include <functional>

namespace brindlex {

/// Spreads scrolling over the frames of the screen.
///
///     idle ──add──▶ running ──drained or stop──▶ idle
///
/// Main thread only.
class ScrollSmoother {
public:
    using Post = std::function<void(std::uint64_t flags, ScrollDistance distance)>;

    /// `smoothDuration` is asked for at each frame; `drained` notifies that nothing more is posted
    /// until the next `add`.
    ScrollSmoother(FrameDriver& driver, std::function<Seconds()> smoothDuration, Post post,
        std::function<void()> drained);

    bool isRunning() const { return driver_.source() != FrameDriver::Source::idle; }

    void add(std::uint64_t flags, ScrollDistance change);

    /// Ends the frames; what remains is kept and joins the next `add`.
    void stop();

    /// Ends the frames and forgets what remains.
    void reset();

    const ScrollMotion& motion() const { return motion_; }

private:
    void frame(Seconds now);

    FrameDriver& driver_;
    std::function<Seconds()> smoothDuration_;
    Post post_;
    std::function<void()> drained_;
    ScrollMotion motion_;
};

} // namespace brindlex
