#pragma once

#include "foundation/Lifetime.h"
#include "platform/WindowPicking.h"
#include "platform/linux/applications/X11RunningApplications.h"
#include "platform/linux/watchdog/TapWatchdog.h"

#include <memory>

namespace brindlex {

class X11WindowPick;

/// Picks a window of the X server. Each pick has the pointer and the keys through a connection of
/// its own, with which the server gives them back, however the program ends; when the loop stands
/// still the watchdog does. Main thread only.
class X11WindowPicking final : public WindowPicking {
public:
    /// The applications outlive it.
    explicit X11WindowPicking(const X11RunningApplications& applications);
    ~X11WindowPicking() override;

    Subscription pick(Picked picked) override;

private:
    void end(const std::shared_ptr<X11WindowPick>& pick);

    const X11RunningApplications& applications_;
    TapWatchdog watchdog_{TapWatchdog::besideThisProgram(), ""};
    std::shared_ptr<X11WindowPick> pick_;
    Lifetime lifetime_;
};

} // namespace brindlex
