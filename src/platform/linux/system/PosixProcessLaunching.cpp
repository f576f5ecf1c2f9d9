#include "platform/linux/system/PosixProcessLaunching.h"

#include "foundation/Result.h"
#include "log/Log.h"
#include "platform/linux/system/FreshStart.h"

#include <cstdlib>
#include <sys/wait.h>
#include <system_error>
#include <thread>
#include <unistd.h>
#include <utility>

namespace brindlex {
namespace {

bool canBeRun(const std::filesystem::path& program)
{
    std::error_code ignored;
    return std::filesystem::is_regular_file(program, ignored) && access(program.c_str(), X_OK) == 0;
}

std::filesystem::path shellFor(const std::filesystem::path& executable)
{
    if (executable != "/bin/zsh" || canBeRun(executable))
        return executable;
    const char* const own = std::getenv("SHELL");
    return own && *own == '/' && canBeRun(own) ? own : "/bin/sh";
}

/// Somebody has to wait for a process, or it stays in the table of processes.
void waitForEnd(pid_t process)
{
    // What a shell ends with that could not run the last program of its command.
    constexpr int notRun = 126;
    constexpr int notFound = 127;
    int status = 0;
    if (waitpid(process, &status, 0) != process || !WIFEXITED(status))
        return;
    if (WEXITSTATUS(status) == notFound)
        Log::warn("A command has named a program that is not to be found", logCategory::mouse);
    else if (WEXITSTATUS(status) == notRun)
        Log::warn("A command has named a program that cannot be run", logCategory::mouse);
}

void waitBeside(pid_t process)
{
    try {
        std::thread([process] { waitForEnd(process); }).detach();
    } catch (const std::system_error& noThread) {
        Log::warn(std::string("Waiting for a process: ") + noThread.what(), logCategory::mouse);
    }
}

Result<Done, std::string> start(std::vector<std::string> command)
{
    const auto process = startFresh(std::move(command));
    if (!process)
        return fail(process.error());
    waitBeside(*process);
    return Done{};
}

} // namespace

void PosixProcessLaunching::launch(const std::filesystem::path& executable,
    const std::vector<std::string>& arguments, Failed failed)
{
    std::vector<std::string> command{shellFor(executable).string()};
    command.insert(command.end(), arguments.begin(), arguments.end());
    if (!queue_)
        queue_.emplace("Brindlex.Launch");
    queue_->post(
        [&mainThread = mainThread_, command = std::move(command), failed = std::move(failed)] {
            const auto started = start(command);
            if (!started)
                mainThread.post([failed, reason = started.error()] { failed(reason); });
        });
}

} // namespace brindlex
