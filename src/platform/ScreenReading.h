#pragma once

#include "foundation/Geometry.h"

#include <vector>

namespace brindlex {

struct Screen {
    Rect frame{};
    /// What of the frame the desktop leaves to windows, beside its own bars.
    Rect visibleFrame{};

    bool operator==(const Screen&) const = default;
};

/// The screens and the pointer at one moment.
struct ScreenLayout {
    /// The main one first; none where there is no screen.
    std::vector<Screen> screens{};
    Point pointer{};

    bool operator==(const ScreenLayout&) const = default;
};

/// Where the screens lie. Main thread only.
class ScreenReading {
public:
    virtual ~ScreenReading() = default;

    /// As it is now; costs a round trip to the system at the most.
    virtual ScreenLayout layout() const = 0;
};

} // namespace brindlex
