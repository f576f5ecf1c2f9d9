#include "platform/simulated/SimulatedApplications.h"

#include <algorithm>
#include <utility>

namespace brindlex {

std::optional<RunningApplication> SimulatedApplications::frontmost() const
{
    if (!frontmost_)
        return {};
    return *find(*frontmost_);
}

Subscription SimulatedApplications::observeActivation(ActivationHandler handler)
{
    return journal_.addObservation("activations", observers_.add(std::move(handler)));
}

void SimulatedApplications::launch(const RunningApplication& application)
{
    if (find(application.processIdentifier) == running_.end())
        running_.push_back(application);
}

void SimulatedApplications::bringToFront(const RunningApplication& application)
{
    launch(application);
    bringToFront(application.processIdentifier);
}

void SimulatedApplications::bringToFront(ProcessIdentity processIdentifier)
{
    if (find(processIdentifier) == running_.end())
        return;
    frontmost_ = processIdentifier;
    if (std::exchange(lastNotified_, processIdentifier) != processIdentifier)
        observers_.notify(frontmost());
}

void SimulatedApplications::quit(ProcessIdentity processIdentifier)
{
    if (frontmost_ == processIdentifier)
        frontmost_.reset();
    if (lastNotified_ == processIdentifier)
        lastNotified_.reset();
    std::erase_if(running_, [&](const RunningApplication& application) {
        return application.processIdentifier == processIdentifier;
    });
}

std::vector<RunningApplication>::const_iterator SimulatedApplications::find(
    ProcessIdentity processIdentifier) const
{
    return std::find_if(running_.begin(), running_.end(), [&](const RunningApplication& each) {
        return each.processIdentifier == processIdentifier;
    });
}

} // namespace brindlex
