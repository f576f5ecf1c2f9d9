#include "platform/linux/appearance/XSettingsAppearance.h"

#include "platform/linux/appearance/GtkAppearance.h"
#include "platform/linux/x11/X11Properties.h"

#include <utility>

namespace brindlex {
namespace {

constexpr auto settingsName = "_XSETTINGS_SETTINGS";
/// Managers set some dozens of settings of some dozens of bytes.
constexpr std::uint32_t mostSettings = 1U << 16;

} // namespace

XSettingsAppearance::XSettingsAppearance(X11Connection& connection)
    : connection_(connection),
      manager_(connection, "_XSETTINGS_S", [this](xcb_window_t manager) { follow(manager); }),
      events_(
          connection.observeEvents([this](const xcb_generic_event_t& event) { receive(event); }))
{
    follow(manager_.owner());
}

XSettingsAppearance::~XSettingsAppearance()
{
    if (followed_ != XCB_WINDOW_NONE)
        connection_.stopListeningTo(followed_, XCB_EVENT_MASK_PROPERTY_CHANGE);
}

void XSettingsAppearance::receive(const xcb_generic_event_t& event)
{
    if (followed_ == XCB_WINDOW_NONE || (event.response_type & 0x7F) != XCB_PROPERTY_NOTIFY)
        return;
    const auto& change = reinterpret_cast<const xcb_property_notify_event_t&>(event);
    if (change.window == followed_ && change.atom == connection_.atom(settingsName))
        read();
}

void XSettingsAppearance::follow(xcb_window_t manager)
{
    const auto before = std::exchange(followed_, manager);
    if (before != XCB_WINDOW_NONE && before != manager)
        connection_.stopListeningTo(before, XCB_EVENT_MASK_PROPERTY_CHANGE);
    if (manager != XCB_WINDOW_NONE)
        connection_.listenTo(manager, XCB_EVENT_MASK_PROPERTY_CHANGE);
    read();
}

void XSettingsAppearance::read()
{
    StatedAppearance stated;
    if (followed_ != XCB_WINDOW_NONE) {
        X11PropertyRequest settings(connection_, followed_, settingsName, mostSettings);
        stated = gtkAppearance(xSettingsOf(settings.bytes().value_or("")));
    }
    if (stated != current_.value())
        current_.set(stated);
}

} // namespace brindlex
