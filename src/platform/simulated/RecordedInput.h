#pragma once

#include "platform/EventPosting.h"
#include "platform/EventTap.h"

#include <utility>
#include <vector>

namespace brindlex {

/// Records the verdicts of taps, and what is posted, on its way to another input, which may be
/// real. What the other input refuses is not recorded.
class RecordedInput : public EventTapping, public EventPosting {
public:
    struct Decision {
        Event event{};
        EventVerdict verdict{};
    };

    RecordedInput(EventTapping& tapping, EventPosting& posting)
        : tapping_(tapping), posting_(posting)
    {
    }

    std::unique_ptr<EventTap> createTap(
        EventMask mask, std::vector<EventInterest> interests, Handler handler) override
    {
        return tapping_.createTap(
            mask, std::move(interests), [this, handler = std::move(handler)](const Event& event) {
                const auto verdict = handler(event);
                decisions_.push_back({event, verdict});
                return verdict;
            });
    }

    bool post(const SyntheticEvent& event) override
    {
        if (!posting_.post(event))
            return false;
        posted_.push_back(event);
        return true;
    }

    /// In order; begin afresh.
    std::vector<Decision> takeDecisions() { return std::exchange(decisions_, {}); }
    std::vector<SyntheticEvent> takePosted() { return std::exchange(posted_, {}); }

private:
    EventTapping& tapping_;
    EventPosting& posting_;
    std::vector<Decision> decisions_;
    std::vector<SyntheticEvent> posted_;
};

} // namespace brindlex
