#pragma once

#include "foundation/Subscribers.h"
#include "platform/DisplayLink.h"
#include "platform/simulated/SimulatedJournal.h"

namespace brindlex {

/// A screen that shows a frame when a test says so, or no screen.
class SimulatedDisplayLink : public DisplayLink {
public:
    explicit SimulatedDisplayLink(SimulatedJournal::Writer journal = {}) : journal_(journal) { }

    std::optional<double> maximumFramesPerSecond() const override { return framesPerSecond; }
    Subscription onEachFrame(std::optional<double> rate, FrameHandler handler) override
    {
        lastRate = rate;
        return journal_.addObservation("frames", subscribers_.add(std::move(handler)));
    }

    void frame(Seconds timestamp) { subscribers_.notify(timestamp); }

    bool isRunning() const { return !subscribers_.isEmpty(); }

    /// Absent: there is no screen.
    std::optional<double> framesPerSecond = 60;
    /// The rate that was last requested.
    std::optional<double> lastRate{};

private:
    SimulatedJournal::Writer journal_;
    Subscribers<FrameHandler> subscribers_;
};

} // namespace brindlex
