#include "platform/linux/input/X11KeymapSync.h"

#include "platform/linux/input/X11KeyboardMap.h"
#include "platform/linux/x11/XkbProtocol.h"

#include <utility>

namespace brindlex {

X11KeymapSync::X11KeymapSync(X11Connection& connection, std::string display)
    : connection_(connection), display_(std::move(display)),
      firstEvent_(connection.isAlive() ? useXkb(connection.get()) : std::nullopt)
{
}

void X11KeymapSync::listen(bool isListening)
{
    if (isListening == isListening_ || !firstEvent_)
        return;
    isListening_ = isListening;
    hasChanged_ = false;
    constexpr std::uint16_t changes
        = XCB_XKB_EVENT_TYPE_NEW_KEYBOARD_NOTIFY | XCB_XKB_EVENT_TYPE_MAP_NOTIFY;
    constexpr std::uint16_t mapParts = 0xFF;
    xcb_xkb_select_events(connection_.get(), XCB_XKB_ID_USE_CORE_KBD, changes,
        isListening ? 0 : changes, isListening ? changes : 0, mapParts, mapParts, nullptr);
}

void X11KeymapSync::receive(const xcb_generic_event_t& event)
{
    if (isListening_ && (event.response_type & 0x7F) == *firstEvent_)
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
