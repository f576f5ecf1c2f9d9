#pragma once

#include "platform/WindowList.h"

namespace brindlex {

/// Windows as they are given, from front to back.
class SimulatedWindowList : public WindowList {
public:
    std::vector<WindowInfo> onScreen() override { return windows; }

    std::vector<WindowInfo> windows{};
};

} // namespace brindlex
