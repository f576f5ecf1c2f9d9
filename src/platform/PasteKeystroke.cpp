#include "platform/PasteKeystroke.h"

namespace brindlex {

std::array<SyntheticEvent, 2> pasteKeystroke(std::int64_t keyCode, std::uint64_t flags)
{
    const EventFields fields{{EventField::keyboardEventKeycode, keyCode},
        {EventField::eventSourceUserData, pasteEventTag}};
    return {SyntheticEvent{EventType::keyDown, {}, flags, fields},
        SyntheticEvent{EventType::keyUp, {}, flags, fields}};
}

} // namespace brindlex
