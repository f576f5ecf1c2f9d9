#pragma once

#include "foundation/JsonForm.h"
#include "mouse/MouseClickConfig.h"
#include "mouse/MouseGestureConfig.h"
#include "mouse/MouseScrollConfig.h"

namespace brindlex {

/// All that the user has set about the mouse.
struct MouseConfig {
    MouseClickConfig click{};
    MouseGestureConfig gesture{};
    MouseScrollConfig scroll{};

    bool operator==(const MouseConfig&) const = default;

    static constexpr auto jsonForm()
    {
        return std::tuple{
            required("click", &MouseConfig::click),
            required("gesture", &MouseConfig::gesture),
            required("scroll", &MouseConfig::scroll),
        };
    }
};

} // namespace brindlex
