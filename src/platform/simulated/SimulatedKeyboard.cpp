#include "platform/simulated/SimulatedKeyboard.h"

#include <array>
#include <utility>

namespace brindlex {
namespace {

/// The modifier keys on the left, by flag.
constexpr std::array modifierKeys{
    std::pair{eventFlag::command, std::int64_t{55}},
    std::pair{eventFlag::shift, std::int64_t{56}},
    std::pair{eventFlag::capsLock, std::int64_t{57}},
    std::pair{eventFlag::option, std::int64_t{58}},
    std::pair{eventFlag::control, std::int64_t{59}},
    std::pair{eventFlag::function, std::int64_t{63}},
};

} // namespace

EventVerdict SimulatedKeyboard::press(std::int64_t keyCode)
{
    heldKeys_.insert(keyCode);
    return send(EventType::keyDown, keyCode);
}

EventVerdict SimulatedKeyboard::release(std::int64_t keyCode)
{
    heldKeys_.erase(keyCode);
    return send(EventType::keyUp, keyCode);
}

void SimulatedKeyboard::holdModifiers(std::uint64_t flags)
{
    for (const auto& [flag, keyCode] : modifierKeys) {
        if (((input_.heldFlags ^ flags) & flag) == 0)
            continue;
        input_.heldFlags ^= flag;
        send(EventType::flagsChanged, keyCode);
    }
}

EventVerdict SimulatedKeyboard::send(EventType type, std::int64_t keyCode)
{
    return input_.send(device_,
        {type, input_.cursor, input_.heldFlags, {{EventField::keyboardEventKeycode, keyCode}}});
}

} // namespace brindlex
