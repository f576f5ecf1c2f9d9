#include "platform/linux/panels/X11WindowUse.h"

#include "platform/linux/windows/X11WindowReading.h"

namespace brindlex {
namespace {

constexpr std::uint8_t kind(const xcb_generic_event_t& event) { return event.response_type & 0x7F; }

/// Whether the keys go to the window or to one inside it, and not only by way of the pointer, nor
/// back to it from a menu.
bool isUse(const xcb_focus_in_event_t& event)
{
    const bool isByPointer = event.detail == XCB_NOTIFY_DETAIL_POINTER
        || event.detail == XCB_NOTIFY_DETAIL_POINTER_ROOT;
    const bool isOfGrab
        = event.mode == XCB_NOTIFY_MODE_GRAB || event.mode == XCB_NOTIFY_MODE_UNGRAB;
    return !isByPointer && !isOfGrab;
}

} // namespace

X11WindowUse::X11WindowUse(X11Connection& connection) : connection_(connection)
{
    connection_.listenToRoot(XCB_EVENT_MASK_PROPERTY_CHANGE);
    events_
        = connection_.observeEvents([this](const xcb_generic_event_t& event) { receive(event); });
    for (const auto window : managedWindows(connection_))
        follow(window);
    recent_.note(activeWindow(connection_));
}

void X11WindowUse::receive(const xcb_generic_event_t& event)
{
    if (kind(event) == XCB_FOCUS_IN)
        return receiveFocus(reinterpret_cast<const xcb_focus_in_event_t&>(event));
    if (kind(event) != XCB_PROPERTY_NOTIFY)
        return;
    const auto& change = reinterpret_cast<const xcb_property_notify_event_t&>(event);
    if (change.window != connection_.root())
        return;
    if (change.atom == connection_.atom("_NET_CLIENT_LIST"))
        findWindows();
    // A new window may have had the keys before it was followed.
    else if (change.atom == connection_.atom("_NET_ACTIVE_WINDOW"))
        recent_.note(activeWindow(connection_));
}

void X11WindowUse::receiveFocus(const xcb_focus_in_event_t& event)
{
    if (isUse(event) && followed_.contains(event.event))
        recent_.note(event.event);
}

void X11WindowUse::findWindows()
{
    const auto managed = managedWindows(connection_);
    const std::set<xcb_window_t> present(managed.begin(), managed.end());
    std::erase_if(followed_, [&](xcb_window_t window) { return !present.contains(window); });
    // The list has the windows in the order in which they came, and most get the keys at once.
    bool isAnyNew = false;
    for (const auto window : managed) {
        if (followed_.contains(window))
            continue;
        follow(window);
        recent_.note(window);
        isAnyNew = true;
    }
    if (isAnyNew)
        recent_.note(activeWindow(connection_));
}

void X11WindowUse::follow(xcb_window_t window)
{
    followed_.insert(window);
    connection_.listenTo(window, XCB_EVENT_MASK_FOCUS_CHANGE);
}

} // namespace brindlex
