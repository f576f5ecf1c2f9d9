#pragma once

#include "foundation/Lifetime.h"
#include "platform/WindowPicking.h"

#include <utility>

namespace brindlex {

/// A user who points at windows of a simulated computer. Main thread only.
class SimulatedWindowPicking final : public WindowPicking {
public:
    Subscription pick(Picked picked) override
    {
        picked_ = std::move(picked);
        return Subscription([this, number = ++picks_, alive = lifetime_.watch()] {
            if (!alive.expired() && number == picks_)
                picked_ = nullptr;
        });
    }

    bool isPicking() const { return picked_ != nullptr; }

    /// The user clicks a window of the application; none stands for all that picks nothing.
    void click(const std::optional<RunningApplication>& application)
    {
        if (const auto picked = std::exchange(picked_, nullptr))
            picked(application);
    }

private:
    Picked picked_;
    int picks_ = 0;
    Lifetime lifetime_;
};

} // namespace brindlex
