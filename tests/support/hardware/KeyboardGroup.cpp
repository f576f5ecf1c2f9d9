#include "support/hardware/KeyboardGroup.h"

#include "platform/linux/x11/XkbProtocol.h"

namespace brindlex {
namespace {

void useExtension(const XConnection& server)
{
    const XReply<xcb_xkb_use_extension_reply_t> reply(xcb_xkb_use_extension_reply(server.get(),
        xcb_xkb_use_extension(server.get(), XCB_XKB_MAJOR_VERSION, XCB_XKB_MINOR_VERSION),
        nullptr));
}

} // namespace

int keyboardGroup(const XConnection& server)
{
    useExtension(server);
    const XReply<xcb_xkb_get_state_reply_t> state(xcb_xkb_get_state_reply(
        server.get(), xcb_xkb_get_state(server.get(), XCB_XKB_ID_USE_CORE_KBD), nullptr));
    return state ? state->group : -1;
}

void selectKeyboardGroup(const XConnection& server, int group)
{
    useExtension(server);
    xcb_xkb_latch_lock_state(server.get(), XCB_XKB_ID_USE_CORE_KBD, 0, 0, true,
        static_cast<std::uint8_t>(group), 0, false, 0);
    server.sync();
}

void lockModifiers(const XConnection& server, std::uint8_t modifiers)
{
    useExtension(server);
    constexpr std::uint8_t all = 0xFF;
    xcb_xkb_latch_lock_state(
        server.get(), XCB_XKB_ID_USE_CORE_KBD, all, modifiers, false, 0, 0, false, 0);
    server.sync();
}

} // namespace brindlex
