#include "platform/linux/tray/DockingTray.h"

#include <utility>

namespace brindlex {
DockingTray::DockingTray(X11Connection& connection, const std::string& title, Handlers handlers)
    : connection_(connection), title_(title), handlers_(std::move(handlers)),
      tray_(connection, "_NET_SYSTEM_TRAY_S", [this](xcb_window_t tray) { moveTo(tray); }),
      events_(
          connection.observeEvents([this](const xcb_generic_event_t& event) { receive(event); }))
{
    moveTo(tray_.owner());
}

void DockingTray::setTitle(const std::string& title)
{
    title_ = title;
    if (icon_)
        icon_->setTitle(title);
}

/// A tray that has put the icon out is not asked again; another one will announce itself.
void DockingTray::receive(const xcb_generic_event_t& event)
{
    if (!icon_)
        return;
    icon_->receive(event);
    if (icon_->hasEnded())
        leave();
}

void DockingTray::moveTo(xcb_window_t tray)
{
    if (tray == iconsTray_ && icon_)
        return;
    leave();
    iconsTray_ = tray;
    if (tray != XCB_WINDOW_NONE)
        icon_ = std::make_unique<DockedIcon>(connection_, tray, title_,
            DockedIcon::Handlers{
                [this] { handlers_.changed(true); }, handlers_.pressed, handlers_.hovered});
}

void DockingTray::leave()
{
    const auto icon = std::exchange(icon_, nullptr);
    if (icon && icon->isDocked())
        handlers_.changed(false);
}

} // namespace brindlex
