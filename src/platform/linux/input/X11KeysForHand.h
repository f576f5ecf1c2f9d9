#pragma once

#include "platform/linux/input/X11Injection.h"
#include "platform/linux/input/X11InputDevices.h"

#include <cstdint>
#include <set>
#include <vector>

namespace brindlex {

/// Keys that are played down in the place of a hand which holds them, after something else has
/// released them; they go up with the hand.
///
/// The hand may let go at any moment. `expect` comes first, then the connection has to be notified
/// of releases, then `press` looks at the hand: what it has let go before that is seen there, and
/// what it lets go afterwards comes to `released`.
class X11KeysForHand {
public:
    X11KeysForHand(X11Connection& connection, X11Injection& injection)
        : connection_(connection), injection_(injection)
    {
    }

    void expect(const std::vector<std::uint8_t>& keys);

    /// Presses those of the keys that a hand holds.
    void press(const std::vector<std::uint8_t>& keys, const std::vector<X11InputDevice>& devices);

    /// The hand has let go of a key.
    void released(std::uint8_t key);

    /// Whether releases need no notification.
    bool isEmpty() const { return keys_.empty(); }

private:
    X11Connection& connection_;
    X11Injection& injection_;
    std::set<std::uint8_t> keys_;
};

} // namespace brindlex
