#pragma once

#include "platform/linux/x11/X11Connection.h"

#include <cstdint>
#include <memory>
#include <string>

struct xkb_keymap;

namespace brindlex {

/// What keys write in the layout that is selected now, as the server's layouts say it
/// (`_XKB_RULES_NAMES`). Main thread only; a question waits for the server.
class X11KeyCharacters {
public:
    explicit X11KeyCharacters(X11Connection& connection);
    ~X11KeyCharacters();
    X11KeyCharacters(const X11KeyCharacters&) = delete;
    X11KeyCharacters& operator=(const X11KeyCharacters&) = delete;

    /// Without modifiers, by the virtual key code, as UTF-8; empty for a key that writes nothing
    /// and for one that waits for the next.
    std::string of(std::int64_t virtualKeyCode);

private:
    /// Made anew when the layouts have changed; null where there are none.
    xkb_keymap* keymap();
    std::uint32_t group() const;

    X11Connection& connection_;
    std::string rules_;
    std::shared_ptr<xkb_keymap> keymap_;
};

} // namespace brindlex
