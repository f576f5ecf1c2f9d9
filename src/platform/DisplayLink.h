#pragma once

#include "foundation/Date.h"
#include "foundation/Subscription.h"

#include <functional>
#include <optional>

namespace brindlex {

/// The rhythm in which the main screen shows its frames; where no screen is the main one, that of
/// the first. Main thread only.
class DisplayLink {
public:
    using FrameHandler = std::function<void(Seconds timestamp)>;

    virtual ~DisplayLink() = default;

    /// How many frames per second the screen can show; nothing when there is no screen.
    virtual std::optional<double> maximumFramesPerSecond() const = 0;

    /// Calls the handler before each frame, on the main thread, with the frame's time by the
    /// continuous clock. `framesPerSecond` is the requested rate; absent: the screen's own. May be
    /// ended from inside the handler. The frames stop when the screen goes.
    virtual Subscription onEachFrame(std::optional<double> framesPerSecond, FrameHandler handler)
        = 0;
};

} // namespace brindlex
