#pragma once

#include "foundation/Subscription.h"

#include <functional>
#include <string>

namespace brindlex {

/// Names that are posted to every process of the user's session.
class DistributedNotifications {
public:
    virtual ~DistributedNotifications() = default;

    /// Posts the name about the object; on its way to all receivers when this returns, even if the
    /// process ends at once. Lost without an error when nobody listens or the session has no bus.
    virtual void post(const std::string& name, const std::string& object) = 0;

    /// Calls the handler on the main thread for each such notification, those of this process
    /// included.
    virtual Subscription observe(
        const std::string& name, const std::string& object, std::function<void()> handler)
        = 0;
};

} // namespace brindlex
