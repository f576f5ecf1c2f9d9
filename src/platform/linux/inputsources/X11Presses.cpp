#include "platform/linux/inputsources/X11Presses.h"

#include <utility>

namespace brindlex {

X11Presses::X11Presses(X11Connection& connection, std::function<void()> pressed)
    : connection_(connection),
      presses_(connection, X11RawPresses::Kind::keysToo, [this, pressed = std::move(pressed)] {
          presses_.stop();
          pressed();
      })
{
}

void X11Presses::catchUp()
{
    if (!presses_.isListening())
        return;
    const X11Message<xcb_get_input_focus_reply_t> reply(xcb_get_input_focus_reply(
        connection_.get(), xcb_get_input_focus(connection_.get()), nullptr));
}

} // namespace brindlex
