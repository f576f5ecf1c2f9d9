#include "mouse/MouseScroll.h"

#include "foundation/FatalError.h"
#include "mouse/MouseEventTag.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <nlohmann/json.hpp>
#include <utility>

namespace brindlex {
namespace {

constexpr double pointsPerLine = 10.0;

std::int64_t wholePixels(double distance)
{
    using Pixels = std::numeric_limits<std::int32_t>;
    const double rounded = std::round(distance);
    if (!(rounded >= Pixels::min() && rounded <= Pixels::max()))
        fatalError("A scroll event of " + std::to_string(distance) + " pixels");
    return static_cast<std::int64_t>(rounded);
}

} // namespace

bool isWheelNotch(const Event& event)
{
    return event.type == EventType::scrollWheel
        && event.value(EventField::eventSourceUserData) != mouseEventTag::scroll
        && event.value(EventField::scrollWheelEventIsContinuous) == 0;
}

std::optional<ScrollDistance> reduceMouseScroll(const Event& event,
    MouseScrollAccelerationCalculator& calculator, const MouseScrollConfig& config,
    const std::optional<std::string>& frontmostBundleID, Seconds now)
{
    if (!isWheelNotch(event))
        return {};
    const auto isFrontmost = [&](const AppIdentifier& app) {
        return frontmostBundleID && app.bundleID == *frontmostBundleID;
    };
    if (std::ranges::any_of(config.disabledApps, isFrontmost))
        return {};
    const auto rawVertical
        = static_cast<double>(event.value(EventField::scrollWheelEventDeltaAxis1));
    auto vertical = rawVertical;
    auto horizontal = static_cast<double>(event.value(EventField::scrollWheelEventDeltaAxis2));
    if ((event.flags & eventFlag::shift) != 0 && vertical != 0 && horizontal == 0)
        std::swap(vertical, horizontal);
    if (config.invertVertical)
        vertical = -vertical;
    if (config.invertHorizontal)
        horizontal = -horizontal;
    const double scale = config.speedMultiplier
        * calculator.factor(vertical, horizontal, rawVertical, config.acceleration, now);
    return ScrollDistance{scale * (vertical * pointsPerLine), scale * (horizontal * pointsPerLine)};
}

SyntheticEvent scrollEvent(std::uint64_t flags, ScrollDistance distance)
{
    return {EventType::scrollWheel, {}, flags,
        {
            {EventField::scrollWheelEventIsContinuous, 1},
            {EventField::scrollWheelEventPointDeltaAxis1, wholePixels(distance.vertical)},
            {EventField::scrollWheelEventPointDeltaAxis2, wholePixels(distance.horizontal)},
            {EventField::eventSourceUserData, mouseEventTag::scroll},
        }};
}

EventTriggers eventTriggers(const MouseScrollConfig& config)
{
    EventTriggers triggers;
    triggers.wheel = config.smoothEnabled || config.invertVertical || config.invertHorizontal
        || config.speedMultiplier != 1.0 || config.acceleration > 0;
    return triggers;
}

std::vector<std::string> unusualNumbers(const MouseScrollConfig& config)
{
    struct Range {
        const char* name;
        double value;
        double least;
        double most;
    };
    const auto text = [](double number) { return nlohmann::json(number).dump(); };
    std::vector<std::string> lines;
    for (const auto& range : {Range{"smoothDuration", config.smoothDuration, 0.05, 0.4},
             Range{"speedMultiplier", config.speedMultiplier, 0.5, 3},
             Range{"acceleration", config.acceleration, 0, 1}})
        if (!(range.value >= range.least && range.value <= range.most))
            lines.push_back(std::string("MouseScroll: ") + range.name + " is " + text(range.value)
                + ", usual are " + text(range.least) + " to " + text(range.most));
    return lines;
}

} // namespace brindlex
