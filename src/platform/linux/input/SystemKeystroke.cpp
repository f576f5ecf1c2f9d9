#include "platform/linux/input/SystemKeystroke.h"

#include "platform/VirtualKey.h"

namespace brindlex {
namespace {

constexpr std::int64_t backButton = 3;
constexpr std::int64_t forwardButton = 4;

} // namespace

SystemKeystroke systemKeystroke(std::int64_t keyCode, std::uint64_t flags)
{
    using Meaning = SystemKeystroke::Meaning;
    if (keyCode == virtualKey::leftBracket && flags == eventFlag::command)
        return {Meaning::button, backButton, 0};
    if (keyCode == virtualKey::rightBracket && flags == eventFlag::command)
        return {Meaning::button, forwardButton, 0};
    if (keyCode == virtualKey::f11 && flags == 0)
        return {Meaning::showDesktop, keyCode, flags};
    return {Meaning::key, keyCode, flags};
}

} // namespace brindlex
