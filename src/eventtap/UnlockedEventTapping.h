#pragma once

#include "platform/EventTap.h"
#include "platform/SessionLock.h"

namespace brindlex {

/// Taps that see nothing of what is done at a locked session.
///
/// A press of a button or a key and a notch of the wheel that come while the session is locked go
/// to the locker, and so does all that follows until one comes at a session that is not. Drags,
/// moves and releases cost no question of their own. Main thread only.
class UnlockedEventTapping : public EventTapping {
public:
    UnlockedEventTapping(EventTapping& tapping, SessionLock& lock) : tapping_(tapping), lock_(lock)
    {
    }

    std::unique_ptr<EventTap> createTap(
        EventMask mask, std::vector<EventInterest> interests, Handler handler) override;

private:
    bool isForTheLocker(const Event& event);

    EventTapping& tapping_;
    SessionLock& lock_;
    bool isLocked_ = false;
};

} // namespace brindlex
