#pragma once

#include "platform/ScreenReading.h"

namespace brindlex {

/// Screens that a test arranges. There is one at first, with a bar on top, and the pointer in it.
class SimulatedScreenReading final : public ScreenReading {
public:
    ScreenLayout layout() const override { return present; }

    ScreenLayout present{
        {{.frame = {{0, 0}, {1600, 1000}}, .visibleFrame = {{0, 30}, {1600, 970}}}}, {800, 500}};
};

} // namespace brindlex
