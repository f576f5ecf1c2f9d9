#pragma once

#include "platform/Event.h"
#include "platform/EventInterest.h"

#include <functional>
#include <memory>
#include <vector>

namespace brindlex {

/// What becomes of an event: it goes on to the applications, or nobody sees it any more.
enum class EventVerdict { pass, swallow };

/// An interception of the input of the session, in front of all others; it ends with the object.
///
/// It begins switched off. May be destroyed from inside its own handler, whose verdict on the event
/// in hand still counts. When another one is made before control is back in the main loop, no event
/// in between is lost and no device changes hands. Main thread only.
class EventTap {
public:
    virtual ~EventTap() = default;

    /// Switches the interception on or off; while it is off events go on by themselves.
    virtual void setEnabled(bool isEnabled) = 0;

    /// Says anew what is wanted, within the mask that the tap was made with.
    virtual void setInterests(std::vector<EventInterest> interests) = 0;
};

/// Makes interceptions. Main thread only.
class EventTapping {
public:
    /// Called on the main thread, while the event waits, for each event of the mask and, whatever
    /// the mask, with an event of the type `tapDisabledByTimeout` or `tapDisabledByUserInput` when
    /// the system has switched the tap off. Must not block.
    using Handler = std::function<EventVerdict(const Event& event)>;

    virtual ~EventTapping() = default;

    /// A tap for the events of the mask; nothing when the system refuses, as it does without
    /// permission. `interests`, whose masks are parts of `mask`, say which of them matter.
    virtual std::unique_ptr<EventTap> createTap(
        EventMask mask, std::vector<EventInterest> interests, Handler handler)
        = 0;
};

} // namespace brindlex
