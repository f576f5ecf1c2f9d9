#pragma once

#include "platform/linux/x11/X11Connection.h"

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

namespace brindlex {

/// The limit of a request for a list of atoms: room for 32, more than any window has.
inline constexpr std::uint32_t someAtoms = 32 * sizeof(std::uint32_t);

/// A request for a property of a window that has been sent and has no reply yet.
///
/// Send several before the first has a reply: they then cost one round trip together. What a window
/// says of itself is not to be trusted: a missing window, a missing property, another type and more
/// content than was asked for all give less or nothing, never a failure.
class X11PropertyRequest {
public:
    /// `limit` is the length in bytes from which on the content is cut off, a multiple of 4.
    X11PropertyRequest(
        X11Connection& connection, xcb_window_t window, std::string_view name, std::uint32_t limit);
    ~X11PropertyRequest();
    X11PropertyRequest(X11PropertyRequest&& other) noexcept;
    X11PropertyRequest(const X11PropertyRequest&) = delete;
    X11PropertyRequest& operator=(const X11PropertyRequest&) = delete;

    /// The content as bytes, unless it has another form. May be asked once, like `values`.
    std::optional<std::string> bytes();

    /// The content as 32-bit numbers, unless it has another form.
    std::optional<std::vector<std::uint32_t>> values();

    /// Whether the reply was that there is no such window.
    bool windowHasGone() const { return windowHasGone_; }

private:
    X11Message<xcb_get_property_reply_t> reply();

    xcb_connection_t* connection_;
    xcb_get_property_cookie_t cookie_{};
    bool pending_ = true;
    bool windowHasGone_ = false;
};

} // namespace brindlex
