#include "platform/linux/x11/X11ManagerSelection.h"

#include <string>
#include <utility>

namespace brindlex {
namespace {

/// With the number of the screen that the connection is for.
std::string selectionName(const X11Connection& connection, std::string_view name)
{
    auto screens = xcb_setup_roots_iterator(xcb_get_setup(connection.get()));
    int number = 0;
    for (; screens.rem > 1 && screens.data->root != connection.root(); ++number)
        xcb_screen_next(&screens);
    return std::string(name) + std::to_string(number);
}

xcb_window_t ownerOf(X11Connection& connection, xcb_atom_t selection)
{
    auto* const server = connection.get();
    const X11Message<xcb_get_selection_owner_reply_t> reply(
        xcb_get_selection_owner_reply(server, xcb_get_selection_owner(server, selection), nullptr));
    return reply ? reply->owner : xcb_window_t{XCB_WINDOW_NONE};
}

} // namespace

X11ManagerSelection::X11ManagerSelection(
    X11Connection& connection, std::string_view name, Handler handler)
    : connection_(connection),
      selection_(connection.isAlive() ? connection.atom(selectionName(connection, name)) : 0),
      manager_(connection.atom("MANAGER")), handler_(std::move(handler))
{
    if (!connection_.isAlive())
        return;
    connection_.listenToRoot(XCB_EVENT_MASK_STRUCTURE_NOTIFY);
    events_
        = connection_.observeEvents([this](const xcb_generic_event_t& event) { receive(event); });
    findOwner();
}

X11ManagerSelection::~X11ManagerSelection() { follow(XCB_WINDOW_NONE); }

void X11ManagerSelection::receive(const xcb_generic_event_t& event)
{
    if (!isEndOfOwner(event) && !isAnnouncement(event))
        return;
    findOwner();
    handler_(owner_);
}

bool X11ManagerSelection::isAnnouncement(const xcb_generic_event_t& event) const
{
    if ((event.response_type & 0x7F) != XCB_CLIENT_MESSAGE)
        return false;
    const auto& message = reinterpret_cast<const xcb_client_message_event_t&>(event);
    return message.type == manager_ && message.data.data32[1] == selection_;
}

bool X11ManagerSelection::isEndOfOwner(const xcb_generic_event_t& event) const
{
    return (event.response_type & 0x7F) == XCB_DESTROY_NOTIFY && owner_ != XCB_WINDOW_NONE
        && reinterpret_cast<const xcb_destroy_notify_event_t&>(event).window == owner_;
}

void X11ManagerSelection::follow(xcb_window_t owner)
{
    const auto before = std::exchange(owner_, owner);
    if (before == owner)
        return;
    if (before != XCB_WINDOW_NONE)
        connection_.stopListeningTo(before, XCB_EVENT_MASK_STRUCTURE_NOTIFY);
    if (owner != XCB_WINDOW_NONE)
        connection_.listenTo(owner, XCB_EVENT_MASK_STRUCTURE_NOTIFY);
}

/// Follows the owner, whose end will be notified of: it was still there after the request.
void X11ManagerSelection::findOwner()
{
    follow(ownerOf(connection_, selection_));
    while (owner_ != XCB_WINDOW_NONE) {
        const auto present = ownerOf(connection_, selection_);
        if (present == owner_)
            break;
        follow(present);
    }
}

} // namespace brindlex
