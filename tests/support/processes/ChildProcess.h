#pragma once

#include <chrono>
#include <filesystem>
#include <map>
#include <optional>
#include <string>
#include <sys/types.h>
#include <vector>

namespace brindlex {

/// How a process ended: by `exit` with a code, or by a signal.
struct ProcessEnd {
    std::optional<int> code{};
    std::optional<int> signal{};

    bool operator==(const ProcessEnd&) const = default;
};

/// A program that a test started, leader of a process group of its own.
///
/// It gets the environment of the test process with the variables of `environment` put over it (one
/// with an empty value is taken away). It dies with the thread that started it; the destructor ends
/// the whole group.
class ChildProcess {
public:
    struct Start {
        std::vector<std::string> command{};
        /// Both output streams go here; a file that is there is continued.
        std::filesystem::path output{"/dev/null"};
        std::map<std::string, std::string> environment{};
        /// A descriptor that the child keeps under the same number.
        std::optional<int> inherited{};
    };

    explicit ChildProcess(const Start& start);
    ~ChildProcess();
    ChildProcess(const ChildProcess&) = delete;
    ChildProcess& operator=(const ChildProcess&) = delete;

    pid_t id() const { return id_; }
    bool isRunning() const { return !end(); }

    /// How it ended; nothing while it runs.
    std::optional<ProcessEnd> end() const;

    /// How it ended; nothing when it still runs at the deadline.
    std::optional<ProcessEnd> waitForEnd(std::chrono::milliseconds deadline) const;

    /// What it has printed so far.
    std::string output() const;

    /// Sends the signal to the program alone, not to its children.
    void signal(int number) const;

    /// Asks the group to end and kills what is left of it two seconds later. May be repeated.
    void stop();

private:
    pid_t id_ = -1;
    bool stopped_ = false;
    std::filesystem::path output_;
};

/// Starts the program and waits for its end; nothing when it had to be stopped at the deadline.
std::optional<ProcessEnd> run(const ChildProcess::Start& start, std::chrono::milliseconds deadline);

} // namespace brindlex
