#pragma once

#include "platform/Clock.h"
#include "platform/DisplayLink.h"
#include "platform/MainThread.h"
#include "platform/linux/x11/X11Connection.h"

namespace brindlex {

/// Frames by a timer at the rate that RandR reports of the main screen, and at most 60 in a second;
/// where no screen is the main one, of the first that is lit.
///
/// X notifies no client when a frame is shown without drawing one, so the frames keep the rate and
/// have a phase of their own. What was missed is not made up for.
class RandRDisplayLink : public DisplayLink {
public:
    RandRDisplayLink(X11Connection& connection, MainThread& mainThread, const Clock& clock)
        : connection_(connection), mainThread_(mainThread), clock_(clock)
    {
    }

    std::optional<double> maximumFramesPerSecond() const override;
    Subscription onEachFrame(std::optional<double> framesPerSecond, FrameHandler handler) override;

private:
    X11Connection& connection_;
    MainThread& mainThread_;
    const Clock& clock_;
};

} // namespace brindlex
