#pragma once

#include "platform/EventTap.h"

#include <functional>
#include <memory>
#include <vector>

namespace brindlex {

/// The taps of the process in the order in which they see events: the newest first. A tap that
/// swallows an event keeps it from those behind it. The chain outlives its taps. Main thread only.
class TapChain {
public:
    TapChain() = default;
    ~TapChain();
    TapChain(const TapChain&) = delete;
    TapChain& operator=(const TapChain&) = delete;

    /// Adds a tap in front of the others; `changed` is called whenever `interests` may have.
    std::unique_ptr<EventTap> add(EventMask mask, std::vector<EventInterest> interests,
        EventTapping::Handler handler, std::function<void()> changed);

    /// Whether a tap that is switched on sees events of any of these types.
    bool sees(EventMask types) const;

    /// What the taps that are switched on want.
    std::vector<EventInterest> interests() const;

    /// Shows the event to the taps. The verdict counts however late it comes: who swallows acts on
    /// it, and an event that passed nevertheless would be acted on twice.
    EventVerdict offer(const Event& event) const;

    /// Whether an event is being shown at this moment.
    bool isOffering() const { return isOffering_; }

    /// Switches those off that are on, and notifies them of the reason.
    void switchOff(EventType reason);

private:
    class Tap;

    std::vector<Tap*> taps_;
    mutable bool isOffering_ = false;
};

} // namespace brindlex
