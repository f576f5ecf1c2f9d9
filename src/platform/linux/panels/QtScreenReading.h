#pragma once

#include "platform/ScreenReading.h"

namespace brindlex {

/// The screens as the window library knows them, in its logical pixels. Needs the Qt application;
/// main thread only.
class QtScreenReading : public ScreenReading {
public:
    ScreenLayout layout() const override;
};

} // namespace brindlex
