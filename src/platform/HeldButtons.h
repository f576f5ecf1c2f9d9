#pragma once

#include "platform/EventFields.h"
#include "platform/EventType.h"

#include <cstdint>
#include <set>

namespace brindlex {

/// The buttons that are down on one mouse, by their numbers, and what its motion is meanwhile.
///
///     none held: moves ──press──▶ some held: drags with the lowest ──last release──▶ moves
///
/// A second press and a release of what is not held change nothing.
class HeldButtons {
public:
    /// Whether no button was held before.
    bool press(std::int64_t button);
    void release(std::int64_t button) { numbers_.erase(button); }

    EventType motionType() const;
    EventFields motionFields() const;

    const std::set<std::int64_t>& numbers() const { return numbers_; }

private:
    std::set<std::int64_t> numbers_;
};

} // namespace brindlex
