#pragma once

#include "foundation/Subscription.h"
#include "platform/Clock.h"
#include "platform/DisplayLink.h"
#include "platform/MainThread.h"

#include <functional>
#include <optional>

namespace brindlex {

/// Runs an animation: frame by frame of the screen, or 60 times per second where there is none.
/// Main thread only.
class FrameDriver {
public:
    /// What gives the frames.
    enum class Source { idle, display, timer };
    using FrameHandler = std::function<void(Seconds now)>;

    FrameDriver(DisplayLink& displayLink, MainThread& mainThread, const Clock& clock);

    /// Calls the handler for each frame, with the time of the continuous clock. With `lowestRate`
    /// the screen is asked for all that it can show per second, and for no less than this. Nothing
    /// happens when frames come already.
    void start(FrameHandler handler, std::optional<float> lowestRate = std::nullopt);

    /// May be called from inside the handler.
    void stop();

    Source source() const { return source_; }

private:
    DisplayLink& displayLink_;
    MainThread& mainThread_;
    const Clock& clock_;
    Source source_ = Source::idle;
    Subscription frames_;
};

} // namespace brindlex
