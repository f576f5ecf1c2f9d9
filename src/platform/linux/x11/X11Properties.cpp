#include "platform/linux/x11/X11Properties.h"

#include <cstring>
#include <utility>

namespace brindlex {

X11PropertyRequest::X11PropertyRequest(
    X11Connection& connection, xcb_window_t window, std::string_view name, std::uint32_t limit)
    : connection_(connection.get())
{
    const auto atom = connection.atom(name);
    cookie_ = xcb_get_property(
        connection_, false, window, atom, XCB_GET_PROPERTY_TYPE_ANY, 0, limit / 4);
}

X11PropertyRequest::~X11PropertyRequest()
{
    if (pending_)
        xcb_discard_reply(connection_, cookie_.sequence);
}

X11PropertyRequest::X11PropertyRequest(X11PropertyRequest&& other) noexcept
    : connection_(other.connection_), cookie_(other.cookie_),
      pending_(std::exchange(other.pending_, false)), windowHasGone_(other.windowHasGone_)
{
}

std::optional<std::string> X11PropertyRequest::bytes()
{
    const auto property = reply();
    if (!property || property->format != 8)
        return {};
    return std::string(static_cast<const char*>(xcb_get_property_value(property.get())),
        static_cast<std::size_t>(xcb_get_property_value_length(property.get())));
}

std::optional<std::vector<std::uint32_t>> X11PropertyRequest::values()
{
    const auto property = reply();
    if (!property || property->format != 32)
        return {};
    const auto length = static_cast<std::size_t>(xcb_get_property_value_length(property.get()));
    std::vector<std::uint32_t> numbers(length / sizeof(std::uint32_t));
    if (!numbers.empty())
        std::memcpy(numbers.data(), xcb_get_property_value(property.get()),
            numbers.size() * sizeof(std::uint32_t));
    return numbers;
}

X11Message<xcb_get_property_reply_t> X11PropertyRequest::reply()
{
    if (!std::exchange(pending_, false))
        return {};
    xcb_generic_error_t* error = nullptr;
    X11Message<xcb_get_property_reply_t> property(
        xcb_get_property_reply(connection_, cookie_, &error));
    windowHasGone_ = error && error->error_code == XCB_WINDOW;
    std::free(error);
    return property;
}

} // namespace brindlex
