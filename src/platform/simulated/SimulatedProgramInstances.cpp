#include "platform/simulated/SimulatedProgramInstances.h"

namespace brindlex {

SimulatedSession::ProcessIdentifier SimulatedSession::start(const std::string& bundleID)
{
    const ProcessIdentifier process{++last_};
    processes_.push_back({process, bundleID});
    return process;
}

void SimulatedSession::end(ProcessIdentifier process)
{
    std::erase_if(
        processes_, [&](const Process& running) { return running.identifier == process; });
}

SimulatedProgramInstances::SimulatedProgramInstances(
    SimulatedSession& session, const std::string& bundleID)
    : session_(session), current_(session.start(bundleID))
{
}

SimulatedProgramInstances::~SimulatedProgramInstances() { session_.end(current_); }

std::vector<ProgramInstances::ProcessIdentifier> SimulatedProgramInstances::running(
    const std::string& bundleID)
{
    std::vector<ProcessIdentifier> instances;
    for (const auto& process : session_.processes()) {
        if (process.bundleID == bundleID)
            instances.push_back(process.identifier);
        if (process.identifier == current_)
            break;
    }
    return instances;
}

void SimulatedProgramInstances::activate(ProcessIdentifier instance)
{
    session_.activated.push_back(instance);
}

} // namespace brindlex
