#include "platform/linux/input/X11ExactModifiers.h"

#include "platform/linux/input/X11Modifiers.h"
#include "platform/linux/x11/XkbProtocol.h"

namespace brindlex {
namespace {

using Kind = X11Injection::Kind;

/// Caps Lock and Num Lock are not held but switched.
constexpr std::uint32_t heldModifiers
    = XCB_MOD_MASK_SHIFT | XCB_MOD_MASK_CONTROL | XCB_MOD_MASK_1 | XCB_MOD_MASK_4;

/// The server for ourselves: no other program sees, or does, anything in between.
class ServerForOneself {
public:
    explicit ServerForOneself(xcb_connection_t* server) : server_(server)
    {
        xcb_grab_server(server_);
    }
    ~ServerForOneself() { xcb_ungrab_server(server_); }
    ServerForOneself(const ServerForOneself&) = delete;
    ServerForOneself& operator=(const ServerForOneself&) = delete;

private:
    xcb_connection_t* server_;
};

} // namespace

void X11ExactModifiers::hold(X11TapSession& session, std::uint64_t flags)
{
    restore(session);
    auto* const server = session.connection().get();
    const ServerForOneself alone(server);
    const auto mappingRequest = xcb_get_modifier_mapping(server);
    const auto keysRequest = xcb_query_keymap(server);
    const X11Message<xcb_get_modifier_mapping_reply_t> mapping(
        xcb_get_modifier_mapping_reply(server, mappingRequest, nullptr));
    const X11Message<xcb_query_keymap_reply_t> keys(
        xcb_query_keymap_reply(server, keysRequest, nullptr));
    if (!mapping || !keys)
        return;
    const auto held = session.cursor().flags;
    isHolding_ = true;
    flags_ = flags;

    const auto wanted = modifiersOfFlags(flags);
    const auto* codes = xcb_get_modifier_mapping_keycodes(mapping.get());
    const auto perModifier = mapping->keycodes_per_modifier;
    for (std::uint32_t modifier = 0; modifier < 8; ++modifier) {
        const std::uint32_t mask = 1U << modifier;
        if ((heldModifiers & mask) == 0)
            continue;
        bool isHeld = false;
        std::uint8_t first = 0;
        for (std::uint32_t index = 0; index < perModifier; ++index) {
            const auto code = codes[modifier * perModifier + index];
            if (code == 0)
                continue;
            first = first == 0 ? code : first;
            if (!(keys->keys[code / 8] >> (code % 8) & 1))
                continue;
            isHeld = true;
            if ((wanted & mask) == 0)
                released_.push_back(code);
        }
        if ((wanted & mask) != 0 && !isHeld && first != 0)
            pressed_.push_back(first);
    }
    tookCapsLock_ = (held & eventFlag::capsLock) != 0 && (flags & eventFlag::capsLock) == 0;
    if (tookCapsLock_)
        setCapsLock(session, false);
    for (const auto code : released_)
        session.injection().play(Kind::key, code, false);
    for (const auto code : pressed_)
        session.injection().play(Kind::key, code, true);
}

void X11ExactModifiers::restore(X11TapSession& session)
{
    if (!isHolding_)
        return;
    for (const auto code : pressed_)
        session.injection().play(Kind::key, code, false);
    if (!released_.empty())
        session.pressForHand(released_);
    if (tookCapsLock_)
        setCapsLock(session, true);
    forget();
}

void X11ExactModifiers::setCapsLock(X11TapSession& session, bool isOn) const
{
    xcb_xkb_latch_lock_state(session.connection().get(), XCB_XKB_ID_USE_CORE_KBD, XCB_MOD_MASK_LOCK,
        isOn ? XCB_MOD_MASK_LOCK : 0, false, 0, 0, false, 0);
}

} // namespace brindlex
