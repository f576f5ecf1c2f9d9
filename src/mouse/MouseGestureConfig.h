#pragma once

#include "foundation/JsonForm.h"
#include "mouse/MouseGestureBinding.h"

#include <vector>

namespace brindlex {

/// What drags with a button held do. The first binding that fits is the one used.
struct MouseGestureConfig {
    bool enabled = true;
    std::vector<MouseGestureBinding> bindings{};
    /// How far, in points, a drag goes before its direction counts.
    double distanceThreshold = 30.0;

    bool operator==(const MouseGestureConfig&) const = default;

    static constexpr auto jsonForm()
    {
        return std::tuple{
            required("enabled", &MouseGestureConfig::enabled),
            required("bindings", &MouseGestureConfig::bindings),
            required("distanceThreshold", &MouseGestureConfig::distanceThreshold),
        };
    }
};

} // namespace brindlex
