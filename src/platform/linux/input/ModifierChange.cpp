#include "platform/linux/input/ModifierChange.h"

#include "platform/linux/input/X11Modifiers.h"

#include <algorithm>
#include <iterator>

namespace brindlex {
namespace {

/// Caps Lock and Num Lock are not held but switched.
constexpr std::uint32_t heldModifiers
    = XCB_MOD_MASK_SHIFT | XCB_MOD_MASK_CONTROL | XCB_MOD_MASK_1 | XCB_MOD_MASK_4;

constexpr bool isKey(std::uint8_t code) { return code != 0; }

} // namespace

ModifierChange changeToHold(std::uint64_t flags, const ModifierState& state)
{
    const auto wanted = modifiersOfFlags(flags);
    const auto isDown = [&](std::uint8_t code) { return isKey(code) && state.keysDown[code]; };
    ModifierChange change;
    for (std::uint32_t modifier = 0; modifier < state.keysOf.size(); ++modifier) {
        const std::uint32_t mask = 1U << modifier;
        const auto& keys = state.keysOf[modifier];
        if ((heldModifiers & mask) == 0)
            continue;
        if ((wanted & mask) == 0) {
            std::ranges::copy_if(keys, std::back_inserter(change.releases), isDown);
        } else if (std::ranges::none_of(keys, isDown)) {
            const auto first = std::ranges::find_if(keys, isKey);
            if (first != keys.end())
                change.presses.push_back(*first);
        }
    }
    change.switchesCapsLockOff
        = (state.flags & eventFlag::capsLock) != 0 && (flags & eventFlag::capsLock) == 0;
    return change;
}

} // namespace brindlex
