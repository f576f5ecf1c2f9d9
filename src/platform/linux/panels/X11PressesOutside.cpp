#include "platform/linux/panels/X11PressesOutside.h"

#include "platform/linux/windows/X11WindowAtPoint.h"

#include <unistd.h>

#include <utility>

namespace brindlex {

X11PressesOutside::X11PressesOutside(X11Connection& connection, std::function<void()> pressed)
    : connection_(connection), presses_(connection, X11RawPresses::Kind::buttonsAndTouches,
                                   [this, pressed = std::move(pressed)] {
                                       if (isPointerOutside())
                                           pressed();
                                   })
{
}

bool X11PressesOutside::isPointerOutside() const
{
    const X11Message<xcb_query_pointer_reply_t> pointer(xcb_query_pointer_reply(
        connection_.get(), xcb_query_pointer(connection_.get(), connection_.root()), nullptr));
    if (!pointer)
        return false;
    const auto window = windowAt(
        connection_, {static_cast<double>(pointer->root_x), static_cast<double>(pointer->root_y)});
    return !window || window->processIdentifier != ::getpid();
}

} // namespace brindlex
