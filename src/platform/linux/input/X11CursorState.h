#pragma once

#include "foundation/Geometry.h"
#include "platform/linux/x11/X11Connection.h"

#include <cstdint>

namespace brindlex {

/// Where the cursor is and what is held with it.
struct X11CursorState {
    Point location{};
    /// The modifiers, as flags of an event.
    std::uint64_t flags = 0;

    bool operator==(const X11CursorState&) const = default;
};

/// Requests the state of the pointer that moves for the connection and of the keyboard
/// that goes with it; nothing held, at the origin, when the server is gone.
X11CursorState cursorState(X11Connection& connection);

} // namespace brindlex
