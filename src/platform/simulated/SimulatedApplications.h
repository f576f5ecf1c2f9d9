#pragma once

#include "foundation/Subscribers.h"
#include "platform/RunningApplications.h"
#include "platform/simulated/SimulatedJournal.h"

#include <optional>
#include <vector>

namespace brindlex {

/// The applications of a simulated computer. Main thread only.
class SimulatedApplications final : public RunningApplications {
public:
    explicit SimulatedApplications(SimulatedJournal::Writer journal = {}) : journal_(journal) { }

    std::optional<RunningApplication> frontmost() const override;
    std::vector<RunningApplication> running() const override { return running_; }
    Subscription observeActivation(ActivationHandler handler) override;

    /// Starts an application, which opens its first window behind all others.
    void launch(const RunningApplication& application);

    /// Starts an application unless it runs, and brings it to the front.
    void bringToFront(const RunningApplication& application);
    /// Brings a running application to the front; of one that does not run nothing is done.
    void bringToFront(ProcessIdentity processIdentifier);

    /// Leaves no window active.
    void emptyFront() { frontmost_.reset(); }

    /// Ends an application; if it was in front, the front is empty.
    void quit(ProcessIdentity processIdentifier);

private:
    std::vector<RunningApplication>::const_iterator find(ProcessIdentity processIdentifier) const;

    SimulatedJournal::Writer journal_;
    std::vector<RunningApplication> running_;
    std::optional<ProcessIdentity> frontmost_;
    std::optional<ProcessIdentity> lastNotified_;
    Subscribers<ActivationHandler> observers_;
};

} // namespace brindlex
