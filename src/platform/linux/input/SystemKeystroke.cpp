#include "platform/linux/input/SystemKeystroke.h"

#include "platform/VirtualKey.h"

namespace brindlex {

SystemKeystroke systemKeystroke(std::int64_t keyCode, std::uint64_t flags)
{
    using Meaning = SystemKeystroke::Meaning;
    if (keyCode == virtualKey::leftBracket && flags == eventFlag::command)
        return {Meaning::key, virtualKey::leftArrow, eventFlag::option};
    if (keyCode == virtualKey::rightBracket && flags == eventFlag::command)
        return {Meaning::key, virtualKey::rightArrow, eventFlag::option};
    if (keyCode == virtualKey::f11 && flags == 0)
        return {Meaning::showDesktop, keyCode, flags};
    return {Meaning::key, keyCode, flags};
}

} // namespace brindlex
