#pragma once

#include "support/basics/StateReport.h"
#include "support/processes/ChildProcess.h"
#include "support/processes/ProgramFiles.h"
#include "support/screen/VirtualDesktop.h"

#include <filesystem>
#include <optional>
#include <string>
#include <vector>

namespace brindlex {

/// Where the program stands in the build.
std::filesystem::path programFile();

/// The program itself, running on a virtual desktop.
class RunningProgram {
public:
    /// Starts the program that was built together with this one, or another file of it, as a
    /// desktop does at login: no window comes to the front. Without arguments it starts as the user
    /// starts it.
    explicit RunningProgram(const VirtualDesktop& desktop,
        const std::vector<std::string>& arguments = {"--started-at-login"},
        const std::filesystem::path& program = programFile());

    /// Waits until it says in its log that it has launched.
    bool launches() const { return logs("Brindlex launched"); }

    int process() const { return process_.id(); }
    const ChildProcess& child() const { return process_; }

    /// Asks the program to end as a session does, and waits; how it ended.
    std::optional<ProcessEnd> quit();
    /// Kills the program, as a crash of it would, and waits.
    void kill();

    /// Waits until the log since the start has a message that begins so.
    bool logs(const std::string& beginning) const;
    /// The messages since the start.
    std::vector<std::string> messages() const;

    /// What it printed and what it logged, for the words of a failure.
    std::string report() const;

private:
    /// Whether it runs, and the end of its log.
    std::string state() const;

    const VirtualDesktop& desktop_;
    ProgramFiles files_;
    std::size_t linesBefore_;
    ChildProcess process_;
    StateReport stateReport_{[this] { return state(); }};
};

/// The name under which the first instance is found on the session bus.
inline constexpr auto programBusName = "com.brindlex.Brindlex";

} // namespace brindlex
