#pragma once

#include "platform/EventPermissions.h"
#include "platform/EventTap.h"

namespace brindlex {

/// Makes no tap without the permissions for it, wherever the system would make one all the same.
/// Main thread only.
class PermittedEventTapping : public EventTapping {
public:
    PermittedEventTapping(EventTapping& tapping, EventPermissions& permissions)
        : tapping_(tapping), permissions_(permissions)
    {
    }

    std::unique_ptr<EventTap> createTap(
        EventMask mask, std::vector<EventInterest> interests, Handler handler) override;

private:
    EventTapping& tapping_;
    EventPermissions& permissions_;
};

} // namespace brindlex
