#pragma once

#include "applications/AppIdentifier.h"
#include "foundation/Date.h"
#include "foundation/JsonForm.h"

#include <vector>

namespace brindlex {

/// What becomes of the notches of a mouse wheel. Alone among the parts of the configuration it is
/// read from a document without some of its keys.
struct MouseScrollConfig {
    bool smoothEnabled = false;
    /// The time constant of the smooth motion.
    Seconds smoothDuration = 0.18;
    double speedMultiplier = 1.0;
    /// From 0, none, to 1, the most.
    double acceleration = 0.0;
    bool invertVertical = false;
    bool invertHorizontal = false;
    /// While one of these is in front, the wheel is left alone.
    std::vector<AppIdentifier> disabledApps{};

    bool operator==(const MouseScrollConfig&) const = default;

    static constexpr auto jsonForm()
    {
        return std::tuple{
            orDefault("smoothEnabled", &MouseScrollConfig::smoothEnabled),
            orDefault("smoothDuration", &MouseScrollConfig::smoothDuration),
            orDefault("speedMultiplier", &MouseScrollConfig::speedMultiplier),
            orDefault("acceleration", &MouseScrollConfig::acceleration),
            orDefault("invertVertical", &MouseScrollConfig::invertVertical),
            orDefault("invertHorizontal", &MouseScrollConfig::invertHorizontal),
            orDefault("disabledApps", &MouseScrollConfig::disabledApps),
        };
    }
};

} // namespace brindlex
