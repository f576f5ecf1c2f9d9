#pragma once

#include <cstdint>
#include <optional>

// A field of the XKB protocol is named as a keyword of C++.
#pragma GCC diagnostic push
#pragma GCC diagnostic ignored "-Wpragmas"
#pragma GCC diagnostic ignored "-Wunknown-warning-option"
#pragma GCC diagnostic ignored "-Wkeyword-macro"
#define explicit explicitly
#include <xcb/xkb.h>
#undef explicit
#pragma GCC diagnostic pop

namespace brindlex {

/// Says that a connection speaks the extension, without which the server refuses its requests. The
/// number of its events; nothing when the server does not have it.
std::optional<std::uint8_t> useXkb(xcb_connection_t* server);

} // namespace brindlex
