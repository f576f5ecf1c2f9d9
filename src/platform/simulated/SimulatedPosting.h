#pragma once

#include "platform/EventPosting.h"

#include <functional>
#include <utility>
#include <vector>

namespace brindlex {

/// Notes what is posted, for those to whom it does not matter where it goes.
class SimulatedPosting : public EventPosting {
public:
    bool post(const SyntheticEvent& event) override
    {
        if (cannotMake && cannotMake(event))
            return false;
        posted.push_back(event);
        return true;
    }

    void announceScroll(std::uint64_t, ScrollDistance distance) override
    {
        announced.push_back(distance);
    }
    void finishScroll() override { ++scrollsFinished; }

    std::vector<SyntheticEvent> takePosted() { return std::exchange(posted, {}); }

    std::vector<SyntheticEvent> posted{};
    std::vector<ScrollDistance> announced{};
    int scrollsFinished = 0;
    /// Which events the system cannot make; none when empty.
    std::function<bool(const SyntheticEvent&)> cannotMake{};
};

} // namespace brindlex
