#include "platform/linux/windows/X11DisplayScale.h"

#include "foundation/Text.h"
#include "platform/linux/x11/X11Properties.h"

#include <charconv>

namespace brindlex {
namespace {

constexpr std::string_view dpiName = "Xft.dpi:";
constexpr double usualDpi = 96;
constexpr double largestScale = 8;
constexpr auto resourcesName = "RESOURCE_MANAGER";
constexpr std::uint32_t mostResources = 1U << 16;

} // namespace

double scaleOf(std::string_view resources)
{
    for (const auto& line : split(resources, '\n')) {
        if (!line.starts_with(dpiName))
            continue;
        const auto number = trimmed(line.substr(dpiName.size()));
        double dpi = 0;
        const auto* const end = number.data() + number.size();
        const auto parsed = std::from_chars(number.data(), end, dpi);
        const double scale = dpi / usualDpi;
        const bool isNumber = parsed.ec == std::errc{} && parsed.ptr == end;
        return isNumber && scale >= 1 && scale <= largestScale ? scale : 1;
    }
    return 1;
}

X11DisplayScale::X11DisplayScale(X11Connection& connection) : connection_(connection)
{
    connection_.listenToRoot(XCB_EVENT_MASK_PROPERTY_CHANGE);
    const auto resources = connection_.atom(resourcesName);
    events_ = connection_.observeEvents([this, resources](const xcb_generic_event_t& event) {
        if ((event.response_type & 0x7f) != XCB_PROPERTY_NOTIFY)
            return;
        const auto& change = reinterpret_cast<const xcb_property_notify_event_t&>(event);
        if (change.window == connection_.root() && change.atom == resources)
            read();
    });
    read();
}

void X11DisplayScale::read()
{
    X11PropertyRequest resources(connection_, connection_.root(), resourcesName, mostResources);
    scale_ = scaleOf(resources.bytes().value_or(""));
}

} // namespace brindlex
