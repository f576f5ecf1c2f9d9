#include "platform/DockSwipe.h"

#include <algorithm>
#include <cmath>

namespace brindlex {
namespace {

constexpr auto gestureType = EventField{110};
constexpr auto momentumPhase = EventField{123};
constexpr auto gesturePhase = EventField{132};
constexpr auto phaseMirror = EventField{134};
constexpr auto progressField = EventField{135};
constexpr auto magic136 = EventField{136};
constexpr auto magic138 = EventField{138};
constexpr auto direction = EventField{165};

constexpr std::int64_t dockSwipe = 23;
constexpr std::int64_t signBit = 0x80000000;

} // namespace

std::int64_t encodedDockProgress(double progress)
{
    if (progress == 0)
        return signBit;
    const double distance = std::abs(progress);
    const double eased = distance > 1.0 ? 1.0 + (std::min(distance, 1.5) - 1.0) * 0.05
                                        : std::sqrt(1 - (distance - 1) * (distance - 1));
    const auto number = static_cast<std::int64_t>(eased * 80000000.0 + 980000000.0);
    return progress > 0 ? number + signBit : number;
}

SyntheticEvent dockSwipeEvent(DockSwipePhase phase, double progress)
{
    const auto phaseNumber = static_cast<std::int64_t>(phase);
    return {EventType::dockGesture, {}, {},
        {
            {gestureType, dockSwipe},
            {gesturePhase, phaseNumber},
            {phaseMirror, phaseNumber},
            {magic136, 1},
            {magic138, 3},
            {momentumPhase, 0},
            {progressField, encodedDockProgress(progress)},
            {direction, 1},
        }};
}

std::optional<DockSwipeReader::Direction> DockSwipeReader::read(const SyntheticEvent& event)
{
    if (event.type != EventType::dockGesture || event.fields.value(gestureType) != dockSwipe)
        return {};
    const auto phase = DockSwipePhase{event.fields.value(gesturePhase)};
    if (phase == DockSwipePhase::began)
        hasReturned_ = false;
    const auto progress = event.fields.value(progressField);
    if (hasReturned_ || progress == signBit)
        return {};
    hasReturned_ = true;
    return progress > signBit ? Direction::right : Direction::left;
}

} // namespace brindlex
