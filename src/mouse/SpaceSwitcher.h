#pragma once

#include "mouse/FrameDriver.h"
#include "platform/DockSwipe.h"
#include "platform/EventPosting.h"

namespace brindlex {

/// Moves to the neighbouring desktop space with the system's own sliding animation, by posting what
/// a swipe with three fingers on a trackpad sends.
///
///     idle ──start──▶ in flight ──0.22 s──▶ idle
///
/// A start in flight is dropped. Main thread only.
class SpaceSwitcher {
public:
    /// From the first to the last frame.
    static constexpr Seconds animationDuration = 0.22;
    /// How far the last event says that the swipe has gone.
    static constexpr double finalAccumulation = 1.25;

    SpaceSwitcher(EventPosting& posting, DisplayLink& displayLink, MainThread& mainThread,
        const Clock& clock);

    void start(bool right);

    bool isInFlight() const { return inFlight_; }

private:
    void frame(Seconds now);
    void finish();
    void postDockEvent(DockSwipePhase phase, double progress);

    EventPosting& posting_;
    FrameDriver driver_;
    Seconds startTimestamp_ = 0;
    double directionSign_ = 0;
    bool inFlight_ = false;
};

/// How far a swipe has gone after a share of its time, 0 to 1: slow at first, steep at the end.
double spaceSwitchProgress(double share);

} // namespace brindlex
