#pragma once

namespace brindlex {

/// How large things on the screen are drawn. Main thread only.
class DisplayScale {
public:
    virtual ~DisplayScale() = default;

    /// How many units of the coordinates of events and windows are one point: 1 where these are
    /// points themselves, 2 on a screen of pixels that is drawn twice as large. Costs no round
    /// trip; never below 1.
    virtual double unitsPerPoint() const = 0;
};

} // namespace brindlex
