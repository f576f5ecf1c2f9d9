#pragma once

#include "foundation/Geometry.h"
#include "platform/EventFields.h"
#include "platform/EventType.h"

#include <cstdint>

namespace brindlex {

/// The modifier keys among an event's flags, by the numbers of CoreGraphics' `CGEventFlags`.
namespace eventFlag {

inline constexpr std::uint64_t capsLock = 0x10000;
inline constexpr std::uint64_t shift = 0x20000;
inline constexpr std::uint64_t control = 0x40000;
inline constexpr std::uint64_t option = 0x80000;
inline constexpr std::uint64_t command = 0x100000;
inline constexpr std::uint64_t numericPad = 0x200000;
inline constexpr std::uint64_t function = 0x800000;

/// The four that bindings look at.
inline constexpr std::uint64_t modifiers = shift | control | option | command;

} // namespace eventFlag

/// One event of the input of the whole session, the same on every system.
struct Event {
    EventType type{};
    Point location{};
    std::uint64_t flags = 0;
    EventFields fields{};

    std::int64_t value(EventField field) const { return fields.value(field); }

    bool operator==(const Event&) const = default;
};

} // namespace brindlex
