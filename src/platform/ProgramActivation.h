#pragma once

#include "foundation/Subscription.h"

#include <functional>

namespace brindlex {

/// Whether the user works in this program; it may know before it notifies. Main thread only.
class ProgramActivation {
public:
    virtual ~ProgramActivation() = default;

    virtual bool isActive() const = 0;

    /// Notifies the observer each time the program has become the active one.
    virtual Subscription observeDidBecomeActive(std::function<void()> handler) = 0;

    /// Notifies the observer each time another program has become the active one, or none has.
    virtual Subscription observeDidResignActive(std::function<void()> handler) = 0;
};

} // namespace brindlex
