#pragma once

#include "foundation/JsonForm.h"
#include "mouse/MouseClickBinding.h"

#include <vector>

namespace brindlex {

/// What presses of the middle and side buttons do. The first binding that fits is the one used.
struct MouseClickConfig {
    bool enabled = true;
    std::vector<MouseClickBinding> bindings{};

    bool operator==(const MouseClickConfig&) const = default;

    static constexpr auto jsonForm()
    {
        return std::tuple{
            required("enabled", &MouseClickConfig::enabled),
            required("bindings", &MouseClickConfig::bindings),
        };
    }
};

} // namespace brindlex
