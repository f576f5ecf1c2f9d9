#include "support/processes/ChildProcess.h"

#include "foundation/FatalError.h"
#include "support/basics/Eventually.h"
#include "support/basics/TemporaryFolder.h"

#include <cerrno>
#include <csignal>
#include <cstring>
#include <fcntl.h>
#include <sys/prctl.h>
#include <sys/wait.h>
#include <unistd.h>

namespace brindlex {
namespace {

constexpr std::chrono::milliseconds timeToLeave{2'000};

/// The variables of this process with others put over them, as `NAME=value`.
std::vector<std::string> environmentWith(std::map<std::string, std::string> variables)
{
    for (auto entry = environ; *entry; ++entry) {
        const std::string text = *entry;
        const auto equals = text.find('=');
        variables.emplace(text.substr(0, equals), text.substr(equals + 1));
    }
    std::vector<std::string> entries;
    for (const auto& [name, value] : variables)
        if (!value.empty())
            entries.push_back(name + "=" + value);
    return entries;
}

std::vector<char*> pointersTo(std::vector<std::string>& texts)
{
    std::vector<char*> pointers;
    for (auto& text : texts)
        pointers.push_back(text.data());
    pointers.push_back(nullptr);
    return pointers;
}

/// The part that runs in the child, where only calls that are safe after `fork` are allowed.
[[noreturn]] void become(
    char* const* command, char* const* environment, int output, std::optional<int> inherited)
{
    setpgid(0, 0);
    prctl(PR_SET_PDEATHSIG, SIGKILL);
    sigset_t none;
    sigemptyset(&none);
    sigprocmask(SIG_SETMASK, &none, nullptr);
    dup2(open("/dev/null", O_RDONLY), STDIN_FILENO);
    dup2(output, STDOUT_FILENO);
    dup2(output, STDERR_FILENO);
    if (inherited)
        fcntl(*inherited, F_SETFD, 0);
    execvpe(command[0], command, environment);
    const auto reason = std::strerror(errno);
    (void)!::write(STDERR_FILENO, reason, std::strlen(reason));
    _exit(127);
}

} // namespace

ChildProcess::ChildProcess(const Start& start) : output_(start.output)
{
    auto command = start.command;
    auto environment = environmentWith(start.environment);
    const auto commandPointers = pointersTo(command);
    const auto environmentPointers = pointersTo(environment);
    const auto output = open(start.output.c_str(), O_WRONLY | O_CREAT | O_APPEND | O_CLOEXEC, 0600);
    if (output < 0)
        fatalError("Cannot write " + start.output.string() + ": " + std::strerror(errno));

    id_ = fork();
    if (id_ < 0)
        fatalError("Cannot start " + command.front() + ": " + std::strerror(errno));
    if (id_ == 0)
        become(commandPointers.data(), environmentPointers.data(), output, start.inherited);
    // Both sides set the group, so that it is there whichever of them runs first.
    setpgid(id_, id_);
    close(output);
}

ChildProcess::~ChildProcess() { stop(); }

std::optional<ProcessEnd> ChildProcess::end() const
{
    // The process is not taken off the table before `stop`: its number stays its own until then.
    siginfo_t information{};
    if (waitid(P_PID, static_cast<id_t>(id_), &information, WEXITED | WNOHANG | WNOWAIT) != 0)
        return ProcessEnd{};
    if (information.si_pid == 0)
        return std::nullopt;
    if (information.si_code == CLD_EXITED)
        return ProcessEnd{information.si_status, {}};
    return ProcessEnd{{}, information.si_status};
}

std::optional<ProcessEnd> ChildProcess::waitForEnd(std::chrono::milliseconds deadline) const
{
    eventually([this] { return !isRunning(); }, deadline);
    return end();
}

std::string ChildProcess::output() const { return contentOf(output_); }

void ChildProcess::signal(int number) const { kill(id_, number); }

void ChildProcess::stop()
{
    if (stopped_)
        return;
    stopped_ = true;
    kill(-id_, SIGTERM);
    // A stopped process sees the request only when it goes on.
    kill(-id_, SIGCONT);
    waitForEnd(timeToLeave);
    kill(-id_, SIGKILL);
    waitpid(id_, nullptr, 0);
}

std::optional<ProcessEnd> run(const ChildProcess::Start& start, std::chrono::milliseconds deadline)
{
    return ChildProcess(start).waitForEnd(deadline);
}

} // namespace brindlex
