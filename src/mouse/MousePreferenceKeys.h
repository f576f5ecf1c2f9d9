#pragma once

#include "mouse/MouseConfig.h"
#include "preferences/PreferenceKey.h"

namespace brindlex {

extern template struct PreferenceForm<MouseConfig>;

/// The preferences of the mouse.
struct MousePreferenceKeys {
    PreferenceKey<MouseConfig> mouseConfig{{}, "mouseConfig"};
};

} // namespace brindlex
