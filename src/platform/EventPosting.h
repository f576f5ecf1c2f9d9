#pragma once

#include "platform/ScrollDistance.h"
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

    /// Says how far scroll events are about to go, all together and not rounded, in addition to
    /// what was announced before. The flags are those of the events.
    ///
    /// Where applications scroll by whole notches, this is what they get, and the events say when:
    /// steps too small to be posted and their rounding lose nothing. Elsewhere it changes nothing.
    virtual void announceScroll(std::uint64_t flags, ScrollDistance distance) = 0;

    /// Says that no more events come for what was announced.
    virtual void finishScroll() = 0;
};

} // namespace brindlex
