#pragma once

#include <cstdint>

namespace brindlex {

/// What the program sends to its watchdog, one message per packet. The watchdog sends requests with
/// an empty order, to which `alive` is the response.
struct WatchdogMessage {
    enum class Order : std::uint32_t {
        ask,
        /// Input is taken through the connection of the window, and may have to be given back.
        watch,
        /// The window keeps the pointer and the keys to itself, as a menu does, and may have to be
        /// taken from the screen, which ends that.
        watchOpen,
        /// Nothing is taken.
        rest,
        alive,
        /// The program ends and has tidied up.
        dismiss,
    };

    Order order{};
    std::uint32_t window = 0;

    bool operator==(const WatchdogMessage&) const = default;
};

/// The descriptor at which the watchdog finds its end of the connection.
constexpr int watchdogDescriptor = 3;

} // namespace brindlex
