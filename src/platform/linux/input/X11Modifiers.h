#pragma once

#include "platform/Event.h"

#include <array>
#include <cstdint>
#include <xcb/xproto.h>

namespace brindlex {

/// A modifier of X and the flag of an event that it is: Alt is option and Super is command, on the
/// bits that every layout of this system's keyboard rules gives them.
struct X11Modifier {
    std::uint32_t mask;
    std::uint64_t flag;
};

inline constexpr std::array x11Modifiers{
    X11Modifier{XCB_MOD_MASK_SHIFT, eventFlag::shift},
    X11Modifier{XCB_MOD_MASK_LOCK, eventFlag::capsLock},
    X11Modifier{XCB_MOD_MASK_CONTROL, eventFlag::control},
    X11Modifier{XCB_MOD_MASK_1, eventFlag::option},
    X11Modifier{XCB_MOD_MASK_4, eventFlag::command},
};

constexpr std::uint64_t flagsOfModifiers(std::uint32_t mask)
{
    std::uint64_t flags = 0;
    for (const auto& modifier : x11Modifiers)
        if (mask & modifier.mask)
            flags |= modifier.flag;
    return flags;
}

constexpr std::uint32_t modifiersOfFlags(std::uint64_t flags)
{
    std::uint32_t mask = 0;
    for (const auto& modifier : x11Modifiers)
        if (flags & modifier.flag)
            mask |= modifier.mask;
    return mask;
}

} // namespace brindlex
