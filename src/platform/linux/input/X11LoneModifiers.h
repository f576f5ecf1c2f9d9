#pragma once

#include "platform/Event.h"
#include "platform/linux/input/X11Injection.h"
#include "platform/linux/x11/X11Connection.h"

#include <cstdint>

namespace brindlex {

/// The modifiers, as flags of an event, that applications act on when they are pressed and released
/// with nothing in between: menu bars open by Alt, start menus by Super.
constexpr std::uint64_t actingAlone(std::uint64_t flags)
{
    return flags & (eventFlag::option | eventFlag::command);
}

/// Plays a key that no layout gives a meaning to, so that a modifier that is held has been pressed
/// for something, also where what it was for is not to be seen. A server whose keys all have a
/// meaning gets none.
void playCompanyForModifiers(X11Connection& connection, X11Injection& injection);

} // namespace brindlex
