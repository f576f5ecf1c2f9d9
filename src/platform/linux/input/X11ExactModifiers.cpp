#include "platform/linux/input/X11ExactModifiers.h"

#include "platform/linux/input/X11LoneModifiers.h"
#include "platform/linux/x11/XkbProtocol.h"

#include <optional>

namespace brindlex {
namespace {

using Kind = X11Injection::Kind;

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

/// Nothing when the server is gone.
std::optional<ModifierState> modifierState(X11TapSession& session)
{
    auto* const server = session.connection().get();
    const auto mappingRequest = xcb_get_modifier_mapping(server);
    const auto keysRequest = xcb_query_keymap(server);
    const X11Message<xcb_get_modifier_mapping_reply_t> mapping(
        xcb_get_modifier_mapping_reply(server, mappingRequest, nullptr));
    const X11Message<xcb_query_keymap_reply_t> keys(
        xcb_query_keymap_reply(server, keysRequest, nullptr));
    if (!mapping || !keys)
        return {};
    ModifierState state;
    const auto* code = xcb_get_modifier_mapping_keycodes(mapping.get());
    for (auto& keysOfModifier : state.keysOf) {
        keysOfModifier.assign(code, code + mapping->keycodes_per_modifier);
        code += mapping->keycodes_per_modifier;
    }
    for (std::size_t key = 0; key < state.keysDown.size(); ++key)
        state.keysDown[key] = (keys->keys[key / 8] >> (key % 8) & 1) != 0;
    state.flags = session.cursor().flags;
    return state;
}

} // namespace

void X11ExactModifiers::hold(X11TapSession& session, std::uint64_t flags)
{
    restore(session);
    const ServerForOneself alone(session.connection().get());
    const auto state = modifierState(session);
    if (!state)
        return;
    isHolding_ = true;
    flags_ = flags;
    change_ = changeToHold(flags, *state);
    hasLoneModifiers_ = actingAlone(state->flags & ~flags) != 0;
    keepCompany(session);
    if (change_.switchesCapsLockOff)
        setCapsLock(session, false);
    for (const auto code : change_.releases)
        session.injection().play(Kind::key, code, false);
    for (const auto code : change_.presses)
        session.injection().play(Kind::key, code, true);
}

void X11ExactModifiers::restore(X11TapSession& session)
{
    if (!isHolding_)
        return;
    for (const auto code : change_.presses)
        session.injection().play(Kind::key, code, false);
    if (!change_.releases.empty())
        session.pressForHand(change_.releases);
    keepCompany(session);
    if (change_.switchesCapsLockOff)
        setCapsLock(session, true);
    forget();
}

void X11ExactModifiers::keepCompany(X11TapSession& session) const
{
    // What is released for a moment, and pressed again, would each time be a press for nothing.
    if (hasLoneModifiers_)
        playCompanyForModifiers(session.connection(), session.injection());
}

void X11ExactModifiers::setCapsLock(X11TapSession& session, bool isOn) const
{
    xcb_xkb_latch_lock_state(session.connection().get(), XCB_XKB_ID_USE_CORE_KBD, XCB_MOD_MASK_LOCK,
        isOn ? XCB_MOD_MASK_LOCK : 0, false, 0, 0, false, 0);
}

} // namespace brindlex
