#pragma once

#include "desktop/MouseDesk.h"

#include <cstdint>
#include <vector>

namespace brindlex {

/// A hand on the mouse and the keyboard of a desktop, no faster than what follows it.
class PlayedHand {
public:
    explicit PlayedHand(const MouseDesk& desk) : desk_(desk) { }

    void pointAt(int x, int y) const;
    /// Presses a button, moves by ten equal steps and lets go.
    void drag(int button, int x, int y) const;
    void click(int button, int times = 1) const;
    void stroke(std::uint8_t key) const;
    /// Holds all keys but the last, strokes that one and lets go.
    void chord(const std::vector<std::uint8_t>& keys) const;

private:
    void waitUntilStill() const;

    const MouseDesk& desk_;
};

} // namespace brindlex
