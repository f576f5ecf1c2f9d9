#pragma once

#include "platform/DisplayScale.h"

namespace brindlex {

/// A screen that a test draws larger.
class SimulatedDisplayScale final : public DisplayScale {
public:
    double unitsPerPoint() const override { return scale; }

    double scale = 1;
};

} // namespace brindlex
