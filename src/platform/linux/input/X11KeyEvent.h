#pragma once

#include "platform/Event.h"
#include "platform/linux/input/X11CursorState.h"
#include "platform/linux/input/X11InputEvent.h"

namespace brindlex {

/// The type of what the taps see of a key: a modifier changes the flags, all others go down and up.
EventType eventTypeOf(const X11InputEvent::Key& key);

/// What the taps see of a key. `cursor` is the state before the key: a modifier counts from its own
/// event on, but for Caps Lock, which only switches.
Event eventOf(const X11InputEvent::Key& key, const X11CursorState& cursor);

} // namespace brindlex
