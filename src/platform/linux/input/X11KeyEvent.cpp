#include "platform/linux/input/X11KeyEvent.h"

#include "platform/linux/input/VirtualKeyCodes.h"

namespace brindlex {

EventType eventTypeOf(const X11InputEvent::Key& key)
{
    if (modifierFlagOf(virtualKeyCode(key.keycode)) != 0)
        return EventType::flagsChanged;
    return key.isPress ? EventType::keyDown : EventType::keyUp;
}

Event eventOf(const X11InputEvent::Key& key, const X11CursorState& cursor)
{
    const auto code = virtualKeyCode(key.keycode);
    const auto held = modifierFlagOf(code) & ~eventFlag::capsLock;
    const auto flags = key.isPress ? cursor.flags | held : cursor.flags & ~held;
    EventFields fields{{EventField::keyboardEventKeycode, code}};
    if (key.isRepeat)
        fields.set(EventField::keyboardEventAutorepeat, 1);
    return {eventTypeOf(key), cursor.location, flags, fields};
}

} // namespace brindlex
