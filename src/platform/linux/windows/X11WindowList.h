#pragma once

#include "platform/WindowList.h"
#include "platform/linux/x11/X11Connection.h"

namespace brindlex {

/// The windows that the window manager looks after, with their frames, and the panels among them.
/// What a window says of itself costs two round trips for all windows together.
class X11WindowList : public WindowList {
public:
    explicit X11WindowList(X11Connection& connection) : connection_(connection) { }

    std::vector<WindowInfo> onScreen() override;

private:
    X11Connection& connection_;
};

} // namespace brindlex
