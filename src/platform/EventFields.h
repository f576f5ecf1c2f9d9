#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <initializer_list>
#include <span>

namespace brindlex {

/// A whole number that an event carries, by the numbers of CoreGraphics' `CGEventField`.
enum class EventField : std::uint32_t {
    mouseEventButtonNumber = 3,
    keyboardEventAutorepeat = 8,
    keyboardEventKeycode = 9,
    /// Wheel lines, positive upward.
    scrollWheelEventDeltaAxis1 = 11,
    /// Wheel lines, positive to the left.
    scrollWheelEventDeltaAxis2 = 12,
    eventSourceUserData = 42,
    /// Not 0 for a trackpad and whatever else scrolls by pixels.
    scrollWheelEventIsContinuous = 88,
    /// Pixels, with the signs of the lines.
    scrollWheelEventPointDeltaAxis1 = 96,
    scrollWheelEventPointDeltaAxis2 = 97,
};

/// The fields of an event, held in place: copying and setting allocate nothing.
class EventFields {
public:
    struct Entry {
        EventField field{};
        std::int64_t value = 0;

        bool operator==(const Entry&) const = default;
    };

    EventFields() = default;
    EventFields(std::initializer_list<Entry> entries);

    /// 0 for a field that was not set.
    std::int64_t value(EventField field) const;

    /// The fields in the order in which each was first set.
    std::span<const Entry> entries() const { return {entries_.data(), count_}; }

    /// An event has room for 12 fields; one more is a fatal error.
    void set(EventField field, std::int64_t value);

    /// The order counts.
    bool operator==(const EventFields& other) const;

private:
    std::array<Entry, 12> entries_{};
    std::size_t count_ = 0;
};

} // namespace brindlex
