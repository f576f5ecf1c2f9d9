#pragma once

#include "foundation/Geometry.h"
#include "platform/linux/windows/X11WindowReading.h"
#include "platform/linux/x11/X11Connection.h"

#include <cstdint>
#include <optional>

namespace brindlex {

/// An application's window under a point of the screen.
struct X11WindowAtPoint {
    std::int64_t processIdentifier = 0;
    /// Without what the window manager drew around it.
    Rect contents{};

    bool operator==(const X11WindowAtPoint&) const = default;
};

/// The topmost window at the point that says which process it is of; nothing where there is none,
/// as on the desktop. Costs a round trip for each window around it, about four.
std::optional<X11WindowAtPoint> windowAt(X11Connection& connection, Point point);

/// What the topmost window at the point says of itself that a user works in and that the window
/// manager looks after; nothing on the desktop, on panels and on menus.
std::optional<X11WindowDescription> workWindowAt(X11Connection& connection, Point point);

} // namespace brindlex
