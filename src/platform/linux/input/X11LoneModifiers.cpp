#include "platform/linux/input/X11LoneModifiers.h"

#include <algorithm>
#include <optional>
#include <span>

namespace brindlex {
namespace {

/// The highest key without a symbol: real keys begin at the lowest.
std::optional<std::uint8_t> keyWithoutMeaning(X11Connection& connection)
{
    auto* const server = connection.get();
    const auto* const setup = xcb_get_setup(server);
    const auto count = static_cast<std::uint8_t>(setup->max_keycode - setup->min_keycode + 1);
    const X11Message<xcb_get_keyboard_mapping_reply_t> reply(xcb_get_keyboard_mapping_reply(
        server, xcb_get_keyboard_mapping(server, setup->min_keycode, count), nullptr));
    if (!reply)
        return {};
    const std::span symbols(xcb_get_keyboard_mapping_keysyms(reply.get()),
        static_cast<std::size_t>(xcb_get_keyboard_mapping_keysyms_length(reply.get())));
    const std::size_t perKey = reply->keysyms_per_keycode;
    const auto isNone = [](xcb_keysym_t symbol) { return symbol == XCB_NO_SYMBOL; };
    for (std::size_t key = count; key-- > 0;)
        if (std::ranges::all_of(symbols.subspan(key * perKey, perKey), isNone))
            return static_cast<std::uint8_t>(setup->min_keycode + key);
    return {};
}

} // namespace

void playCompanyForModifiers(X11Connection& connection, X11Injection& injection)
{
    const auto key = keyWithoutMeaning(connection);
    if (!key)
        return;
    injection.play(X11Injection::Kind::key, *key, true);
    injection.play(X11Injection::Kind::key, *key, false);
}

} // namespace brindlex
