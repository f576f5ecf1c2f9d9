#pragma once

#include "foundation/Subscription.h"
#include "platform/RunningApplications.h"

#include <functional>
#include <optional>

namespace brindlex {

/// Lets the user point at a window of another program. Main thread only.
class WindowPicking {
public:
    /// Gets the application of the window, or nothing when the user has picked none.
    using Picked = std::function<void(const std::optional<RunningApplication>& application)>;

    virtual ~WindowPicking() = default;

    /// Makes a crosshair of the pointer until the user clicks a window. Nothing is picked by
    /// Escape, by another button, by a click on the desktop or on a window of this program, when
    /// another program keeps the pointer or the keys. The keyboard will do: arrows move the
    /// crosshair, Return picks.
    ///
    /// What the user does meanwhile reaches no window. `picked` is called once, from the loop, when
    /// the pointer and the keys are free again; not after the end of the subscription or the
    /// beginning of another pick, which end this one.
    virtual Subscription pick(Picked picked) = 0;
};

} // namespace brindlex
