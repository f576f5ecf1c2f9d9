#include "platform/linux/input/SystemKeystroke.h"

namespace brindlex {
namespace {

constexpr std::int64_t rightBracketKey = 30;
constexpr std::int64_t leftBracketKey = 33;
constexpr std::int64_t f11Key = 103;
constexpr std::int64_t leftArrowKey = 123;
constexpr std::int64_t rightArrowKey = 124;

} // namespace

SystemKeystroke systemKeystroke(std::int64_t keyCode, std::uint64_t flags)
{
    using Meaning = SystemKeystroke::Meaning;
    if (keyCode == leftBracketKey && flags == eventFlag::command)
        return {Meaning::key, leftArrowKey, eventFlag::option};
    if (keyCode == rightBracketKey && flags == eventFlag::command)
        return {Meaning::key, rightArrowKey, eventFlag::option};
    if (keyCode == f11Key && flags == 0)
        return {Meaning::showDesktop, keyCode, flags};
    return {Meaning::key, keyCode, flags};
}

} // namespace brindlex
