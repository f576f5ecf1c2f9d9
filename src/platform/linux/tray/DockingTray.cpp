#include "platform/linux/tray/DockingTray.h"

#include <utility>

namespace brindlex {
namespace {

/// Of the screen that the connection is for.
std::string traySelection(const X11Connection& connection)
{
    auto screens = xcb_setup_roots_iterator(xcb_get_setup(connection.get()));
    int number = 0;
    for (; screens.rem > 1 && screens.data->root != connection.root(); ++number)
        xcb_screen_next(&screens);
    return "_NET_SYSTEM_TRAY_S" + std::to_string(number);
}

xcb_window_t ownerOf(X11Connection& connection, xcb_atom_t selection)
{
    auto* const server = connection.get();
    const X11Message<xcb_get_selection_owner_reply_t> reply(
        xcb_get_selection_owner_reply(server, xcb_get_selection_owner(server, selection), nullptr));
    return reply ? reply->owner : xcb_window_t{XCB_WINDOW_NONE};
}

} // namespace

DockingTray::DockingTray(X11Connection& connection, const std::string& title, Handlers handlers)
    : connection_(connection), title_(title), handlers_(std::move(handlers)),
      selection_(connection.atom(traySelection(connection))), manager_(connection.atom("MANAGER"))
{
    if (!connection_.isAlive())
        return;
    connection_.listenToRoot(XCB_EVENT_MASK_STRUCTURE_NOTIFY);
    events_
        = connection_.observeEvents([this](const xcb_generic_event_t& event) { receive(event); });
    findTray();
}

DockingTray::~DockingTray()
{
    if (tray_ != XCB_WINDOW_NONE)
        connection_.stopListeningTo(tray_, XCB_EVENT_MASK_STRUCTURE_NOTIFY);
}

void DockingTray::setTitle(const std::string& title)
{
    title_ = title;
    if (icon_)
        icon_->setTitle(title);
}

void DockingTray::receive(const xcb_generic_event_t& event)
{
    const bool isTraysEnd = (event.response_type & 0x7F) == XCB_DESTROY_NOTIFY
        && reinterpret_cast<const xcb_destroy_notify_event_t&>(event).window == tray_;
    if (icon_ && !isTraysEnd)
        icon_->receive(event);
    const bool isOut = icon_ && icon_->hasEnded();
    if (isTraysEnd || isOut) {
        leave();
        // A tray that has put the icon out is not asked again; another one will announce itself.
        if (isTraysEnd)
            findTray();
    } else if (isAnnouncement(event))
        findTray();
}

bool DockingTray::isAnnouncement(const xcb_generic_event_t& event) const
{
    if ((event.response_type & 0x7F) != XCB_CLIENT_MESSAGE)
        return false;
    const auto& message = reinterpret_cast<const xcb_client_message_event_t&>(event);
    return message.type == manager_ && message.data.data32[1] == selection_;
}

void DockingTray::findTray()
{
    const auto owner = followedOwner();
    if (owner == tray_ && icon_)
        return;
    leave();
    if (owner != XCB_WINDOW_NONE)
        dock(owner);
}

/// The owner of the selection, whose end will be notified of: it was still there after the request.
xcb_window_t DockingTray::followedOwner()
{
    auto owner = ownerOf(connection_, selection_);
    while (owner != XCB_WINDOW_NONE) {
        connection_.listenTo(owner, XCB_EVENT_MASK_STRUCTURE_NOTIFY);
        const auto present = ownerOf(connection_, selection_);
        if (present == owner)
            break;
        connection_.stopListeningTo(owner, XCB_EVENT_MASK_STRUCTURE_NOTIFY);
        owner = present;
    }
    return owner;
}

void DockingTray::dock(xcb_window_t tray)
{
    tray_ = tray;
    icon_ = std::make_unique<DockedIcon>(connection_, tray, title_,
        DockedIcon::Handlers{
            [this] { handlers_.changed(true); }, handlers_.pressed, handlers_.hovered});
}

void DockingTray::leave()
{
    if (tray_ != XCB_WINDOW_NONE)
        connection_.stopListeningTo(
            std::exchange(tray_, XCB_WINDOW_NONE), XCB_EVENT_MASK_STRUCTURE_NOTIFY);
    const auto icon = std::exchange(icon_, nullptr);
    if (icon && icon->isDocked())
        handlers_.changed(false);
}

} // namespace brindlex
