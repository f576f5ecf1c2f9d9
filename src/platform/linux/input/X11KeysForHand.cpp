#include "platform/linux/input/X11KeysForHand.h"

#include <algorithm>

namespace brindlex {
namespace {

using Kind = X11Injection::Kind;
using Keys = std::vector<std::uint8_t>;

bool holds(const Keys& hand, std::uint8_t key)
{
    return std::ranges::find(hand, key) != hand.end();
}

} // namespace

void X11KeysForHand::expect(const Keys& keys) { keys_.insert(keys.begin(), keys.end()); }

void X11KeysForHand::press(const Keys& keys, const std::vector<X11InputDevice>& devices)
{
    const auto before = keysHeldByHand(connection_, devices);
    for (const auto key : keys)
        if (holds(before, key))
            injection_.play(Kind::key, key, true);
    const auto after = keysHeldByHand(connection_, devices);
    for (const auto key : keys) {
        if (holds(before, key) && !holds(after, key))
            injection_.play(Kind::key, key, false);
        // What was pressed through the tap is released through it.
        if (!holds(after, key) || injection_.holds(Kind::key, key))
            keys_.erase(key);
    }
}

void X11KeysForHand::released(std::uint8_t key)
{
    if (keys_.erase(key) != 0)
        injection_.play(Kind::key, key, false);
}

} // namespace brindlex
