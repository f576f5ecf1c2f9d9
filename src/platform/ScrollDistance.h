#pragma once

namespace brindlex {

/// Pixels to scroll, with the signs of the wheel: positive is up, and to the left.
struct ScrollDistance {
    double vertical = 0;
    double horizontal = 0;

    bool operator==(const ScrollDistance&) const = default;
};

} // namespace brindlex
