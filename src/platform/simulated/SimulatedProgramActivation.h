#pragma once

#include "foundation/Subscribers.h"
#include "platform/ProgramActivation.h"
#include "platform/simulated/SimulatedJournal.h"

#include <utility>

namespace brindlex {

/// The program comes to the front and goes when a test says so.
class SimulatedProgramActivation : public ProgramActivation {
public:
    explicit SimulatedProgramActivation(SimulatedJournal::Writer journal = {}) : journal_(journal)
    {
    }

    bool isActive() const override { return isActive_; }
    Subscription observeDidBecomeActive(std::function<void()> handler) override
    {
        return journal_.addObservation("becoming active", subscribers_.add(std::move(handler)));
    }
    Subscription observeDidResignActive(std::function<void()> handler) override
    {
        return journal_.addObservation("resigning active", resigned_.add(std::move(handler)));
    }

    void becomeActive()
    {
        isActive_ = true;
        subscribers_.notify();
    }
    void resignActive()
    {
        if (std::exchange(isActive_, false))
            resigned_.notify();
    }

    bool isObserved() const { return !subscribers_.isEmpty(); }

private:
    SimulatedJournal::Writer journal_;
    bool isActive_ = false;
    Subscribers<std::function<void()>> subscribers_;
    Subscribers<std::function<void()>> resigned_;
};

} // namespace brindlex
