#pragma once

#include "foundation/Geometry.h"

#include <optional>
#include <vector>

namespace brindlex {

/// What the system reports of a window; what cannot be read is absent.
struct WindowInfo {
    /// 0 for ordinary windows, above it for panels, docks and menus.
    std::optional<int> layer{};
    std::optional<double> alpha{};
    /// With the frame.
    std::optional<Rect> bounds{};

    bool operator==(const WindowInfo&) const = default;
};

/// The windows of all programs. Main thread only.
class WindowList {
public:
    virtual ~WindowList() = default;

    /// The windows on the screen from front to back, those of the desktop left out.
    virtual std::vector<WindowInfo> onScreen() = 0;
};

} // namespace brindlex
