#pragma once

#include "platform/PressLedger.h"

#include <cstdint>
#include <map>
#include <vector>

namespace brindlex {

/// Keeps the presses and releases that the program posts in pairs on their way to the applications.
///
/// A tap that looks at a posted press may post the same one again before the first is released, as
/// who gives back what he has swallowed does. A release belongs to the last press that waits for
/// one, and goes where that one went.
class PostedPresses {
public:
    using Press = PressLedger::Press;

    /// Whether the press has to be played. `passes` is what the taps say to it; a press of what
    /// is down already adds nothing.
    bool pressed(Press press, bool passes);

    /// Whether the release has to be played. `passes` counts for what was never pressed here.
    bool released(Press press, bool passes);

private:
    /// For each press that waits whether it was played, the last one last.
    std::map<Press, std::vector<bool>> waiting_;
};

} // namespace brindlex
