#include "platform/linux/X11KeymapSync.h"

#include "platform/linux/X11KeyboardMap.h"
#include "platform/linux/XkbProtocol.h"

#include <utility>

namespace brindlex {

void X11KeymapSync::listen(bool isListening)
{
    auto* const server = connection_.get();
    const auto* extension = xcb_get_extension_data(server, &xcb_xkb_id);
    if (isListening == isListening_ || !extension || !extension->present)
        return;
    isListening_ = isListening;
    hasChanged_ = false;
    firstEvent_ = extension->first_event;
    xcb_discard_reply(server,
        xcb_xkb_use_extension(server, XCB_XKB_MAJOR_VERSION, XCB_XKB_MINOR_VERSION).sequence);
    constexpr std::uint16_t changes
        = XCB_XKB_EVENT_TYPE_NEW_KEYBOARD_NOTIFY | XCB_XKB_EVENT_TYPE_MAP_NOTIFY;
    constexpr std::uint16_t mapParts = 0xFF;
    xcb_xkb_select_events(server, XCB_XKB_ID_USE_CORE_KBD, changes, isListening ? 0 : changes,
        isListening ? changes : 0, mapParts, mapParts, nullptr);
}

void X11KeymapSync::receive(const xcb_generic_event_t& event)
{
    if (isListening_ && (event.response_type & 0x7F) == firstEvent_)
        hasChanged_ = true;
}

void X11KeymapSync::bringUpToDate(
    X11MasterDevices masters, const std::vector<X11InputDevice>& keyboards)
{
    if (!std::exchange(hasChanged_, false))
        return;
    const auto source = playingKeyboard(connection_, masters);
    for (const auto& keyboard : keyboards)
        copyKeyboardMap(display_, source, keyboard.id);
}

} // namespace brindlex
