#pragma once

#include "platform/ProgramInstances.h"
#include "platform/simulated/SimulatedJournal.h"

#include <string>
#include <vector>

namespace brindlex {

/// The processes that run in a simulated session.
class SimulatedSession {
public:
    using ProcessIdentifier = ProgramInstances::ProcessIdentifier;

    struct Process {
        ProcessIdentifier identifier{};
        std::string bundleID{};

        bool operator==(const Process&) const = default;
    };

    /// In the order of their start.
    const std::vector<Process>& processes() const { return processes_; }
    ProcessIdentifier start(const std::string& bundleID);
    void end(ProcessIdentifier process);

    /// Who was brought to the front, in order.
    std::vector<ProcessIdentifier> activated{};

private:
    std::vector<Process> processes_;
    std::int64_t last_ = 100;
};

/// One simulated process among those of its session. It is there as long as the object is.
class SimulatedProgramInstances : public ProgramInstances {
public:
    SimulatedProgramInstances(SimulatedSession& session, const std::string& bundleID,
        SimulatedJournal::Writer journal = {});
    ~SimulatedProgramInstances() override;
    SimulatedProgramInstances(const SimulatedProgramInstances&) = delete;
    SimulatedProgramInstances& operator=(const SimulatedProgramInstances&) = delete;

    ProcessIdentifier current() const override { return current_; }
    std::vector<ProcessIdentifier> running(const std::string& bundleID) override;
    void activate(ProcessIdentifier instance) override;
    void terminate() override;

    /// Whether the process was asked to end.
    bool isTerminating() const { return isTerminating_; }

private:
    SimulatedSession& session_;
    const ProcessIdentifier current_;
    SimulatedJournal::Writer journal_;
    bool isTerminating_ = false;
};

} // namespace brindlex
