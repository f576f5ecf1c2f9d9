#pragma once

#include "foundation/Date.h"

namespace brindlex {

/// Tells the titles of pages that a user visits from one that runs like a ticker: after a few
/// changes with hardly a pause between them a title is no news any more until it rests.
class TitlePace {
public:
    static constexpr int changesInARow = 4;
    static constexpr Seconds rest = 0.25;

    /// Whether a change of the title at that time is worth a look at the page.
    bool takes(Seconds now)
    {
        if (now - lastChange_ >= rest)
            inARow_ = 0;
        lastChange_ = now;
        inARow_ = inARow_ < changesInARow ? inARow_ + 1 : changesInARow + 1;
        return inARow_ <= changesInARow;
    }

private:
    Seconds lastChange_ = -rest;
    int inARow_ = 0;
};

} // namespace brindlex
