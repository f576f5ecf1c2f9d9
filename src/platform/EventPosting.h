#pragma once

#include "platform/SyntheticEvent.h"

namespace brindlex {

/// Puts events where those of the hardware come in. Main thread only.
class EventPosting {
public:
    virtual ~EventPosting() = default;

    /// Posts the event; false, with nothing posted, when the system cannot make it.
    ///
    /// The program's own tap sees the event as it sees those of the hardware, with all its fields,
    /// and what the tap lets pass reaches the applications in the order of posting. Returns without
    /// waiting for any of them. Callable from inside the tap's handler.
    virtual bool post(const SyntheticEvent& event) = 0;
};

} // namespace brindlex
