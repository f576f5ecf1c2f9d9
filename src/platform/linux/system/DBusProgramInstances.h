#pragma once

#include "platform/ProgramInstances.h"
#include "platform/linux/system/SessionBus.h"

#include <functional>
#include <string>

namespace brindlex {

/// The processes of the program as the owner of its name on the session bus and those that queue
/// for it, in the order in which they came.
///
/// A process is in the queue from the construction of this object until its connection ends, a
/// crash included. Without a bus, or with one that does not reply, a process knows of itself
/// alone; that is logged once.
class DBusProgramInstances : public ProgramInstances {
public:
    using ActivateWindows = std::function<void(ProcessIdentifier instance)>;

    /// `activateWindows` brings the windows of a process to the front.
    DBusProgramInstances(
        SessionBus& bus, const std::string& bundleID, ActivateWindows activateWindows);

    ProcessIdentifier current() const override;
    std::vector<ProcessIdentifier> running(const std::string& bundleID) override;
    void activate(ProcessIdentifier instance) override { activateWindows_(instance); }
    void terminate() override;

private:
    SessionBus& bus_;
    const std::string bundleID_;
    const ActivateWindows activateWindows_;
};

} // namespace brindlex
