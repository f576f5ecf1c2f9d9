#include "platform/simulated/SimulatedKeyboard.h"

#include "platform/VirtualKey.h"

#include <array>
#include <utility>

namespace brindlex {
namespace {

/// The modifier keys on the left, by flag.
constexpr std::array modifierKeys{
    std::pair{eventFlag::command, virtualKey::command},
    std::pair{eventFlag::shift, virtualKey::shift},
    std::pair{eventFlag::capsLock, virtualKey::capsLock},
    std::pair{eventFlag::option, virtualKey::option},
    std::pair{eventFlag::control, virtualKey::control},
    std::pair{eventFlag::function, virtualKey::function},
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
