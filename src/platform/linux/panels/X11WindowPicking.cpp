#include "platform/linux/panels/X11WindowPicking.h"

#include "platform/linux/panels/X11WindowPick.h"

#include <unistd.h>
#include <utility>

namespace brindlex {

X11WindowPicking::X11WindowPicking(const X11RunningApplications& applications)
    : applications_(applications)
{
}

X11WindowPicking::~X11WindowPicking() = default;

Subscription X11WindowPicking::pick(Picked picked)
{
    const auto pick = std::make_shared<X11WindowPick>(
        watchdog_, [this, picked = std::move(picked)](const X11WindowPick::Found& found) {
            pick_.reset();
            const bool isOthers = found && found->processIdentifier != ::getpid();
            picked(isOthers ? std::optional(applications_.applicationOf(*found)) : std::nullopt);
        });
    pick_ = pick;
    pick->start();
    return Subscription([this, weak = std::weak_ptr(pick), alive = lifetime_.watch()] {
        if (!alive.expired())
            end(weak.lock());
    });
}

void X11WindowPicking::end(const std::shared_ptr<X11WindowPick>& pick)
{
    if (pick && pick == pick_)
        pick_.reset();
}

} // namespace brindlex
