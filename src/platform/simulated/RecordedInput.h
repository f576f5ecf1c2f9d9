#pragma once

#include "foundation/Cases.h"
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

    struct AnnouncedScroll {
        std::uint64_t flags = 0;
        ScrollDistance distance{};

        bool operator==(const AnnouncedScroll&) const = default;
    };
    struct FinishedScroll {
        bool operator==(const FinishedScroll&) const = default;
    };
    using Posted = Cases<SyntheticEvent, AnnouncedScroll, FinishedScroll>;

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

    void announceScroll(std::uint64_t flags, ScrollDistance distance) override
    {
        posting_.announceScroll(flags, distance);
        posted_.push_back(AnnouncedScroll{flags, distance});
    }
    void finishScroll() override
    {
        posting_.finishScroll();
        posted_.push_back(FinishedScroll{});
    }

    /// In order; begin afresh.
    std::vector<Decision> takeDecisions() { return std::exchange(decisions_, {}); }
    std::vector<Posted> takePosted() { return std::exchange(posted_, {}); }

private:
    EventTapping& tapping_;
    EventPosting& posting_;
    std::vector<Decision> decisions_;
    std::vector<Posted> posted_;
};

} // namespace brindlex
